// Adding objects to the current space, and points from the user's coordinate system.
#pragma once

#include <memory>
#include <vector>

#include "adsdef.h"
#include "dbsymtb.h"

AcDbBlockTableRecord* CurrentSpace();  // null without a drawing

// On this layer, which is created with this colour if it is missing; at the scale of the drawing.
void AddEntity(std::unique_ptr<AcDbEntity> entity, const wchar_t* layer, int color);

void AddLine(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* layer, int color);
void AddPolyline(const std::vector<AcGePoint3d>& corners, bool closed, const wchar_t* layer,
                 int color);
void AddBox(const AcGePoint3d& a, const AcGePoint3d& b, const wchar_t* layer, int color);

// Creates the layer with this colour if it is missing; false without a drawing.
bool EnsureLayer(const wchar_t* layer, int color);

// A block of the drawing; null, after a message, if it has none with this name.
AcDbObjectId FindBlock(const wchar_t* name);

// An object of the family from one point to another.
template <class Entity>
std::unique_ptr<Entity> MakeBetween(const AcGePoint3d& start, const AcGePoint3d& end,
                                    double width = 0, double size = 0) {
  auto entity = std::make_unique<Entity>();
  entity->start = start;
  entity->end = end;
  entity->width = width;
  entity->size = size;
  return entity;
}

template <class Entity>
std::unique_ptr<Entity> MakeAt(const AcGePoint3d& at, double width = 0, double size = 0) {
  return MakeBetween<Entity>(at, at, width, size);
}

AcGePoint3d WorldPoint(const ads_point user);
