// Adding objects to the current space, and points from the user's coordinate system.
#pragma once

#include <memory>

#include "adsdef.h"
#include "dbsymtb.h"

AcDbBlockTableRecord* CurrentSpace();  // null without a drawing

// On this layer, which is created with this colour if it is missing; at the scale of the drawing.
void AddEntity(std::unique_ptr<AcDbEntity> entity, const wchar_t* layer, int color);

AcGePoint3d WorldPoint(const ads_point user);
