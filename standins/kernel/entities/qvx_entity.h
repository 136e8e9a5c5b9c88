// The drawing objects of the family: walls, openings, columns, axis numbers, rooms, texts and
// stairs, as far as the sample modules need them; dimensions are in tdbdimension2.h. They share one
// record of plain values, which is stored in drawing files; each class draws itself from it.
// Lengths are millimetres; angles are degrees in files and radians here. Editing rules (joining
// walls, moving openings) are not implemented.
#pragma once

#include <string>
#include <vector>

#include "dbents.h"
#include "kernel/entities/tentitybase.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL QvxDbEntity : public AcDbEntity, public TEntityBase {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbEntity);

  AcGePoint3d start, end;            // groups 10 and 11
  double width = 0, size = 0;        // groups 40 and 41
  double angle = 0;                  // group 50; the scale is group 42
  int kind = 0, flags = 0;           // groups 70 and 71
  std::wstring label;                // group 1
  std::vector<AcGePoint3d> outline;  // further groups 10 of a class that has corners

  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  virtual bool HasOutline() const { return false; }
};

#define QVX_ENTITY(CLASS)                                  \
  class QVX_KERNEL CLASS : public QvxDbEntity {            \
   public:                                                 \
    ACRX_DECLARE_MEMBERS(CLASS);                           \
    bool subWorldDraw(AcGiWorldDraw* draw) const override; \
  }

QVX_ENTITY(QvxDbWall);        // start, end; width; size is the height
QVX_ENTITY(QvxDbOpening);     // start the middle; width of the wall; size; kind 0 door, 1 window;
                              // flags: 1 opens downwards, 2 hinge on the other side
QVX_ENTITY(QvxDbColumn);      // start the middle; width by size
QVX_ENTITY(QvxDbAxisNumber);  // start the middle; width the radius; label
QVX_ENTITY(QvxDbText);        // start; width the height; angle; label
QVX_ENTITY(QvxDbStair);       // start the lower left; width by size; kind the number of steps
#undef QVX_ENTITY

class QVX_KERNEL QvxDbSpace : public QvxDbEntity {  // outline; label
 public:
  ACRX_DECLARE_MEMBERS(QvxDbSpace);
  double Area() const;  // square units
  AcGePoint3d Middle() const;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;

 protected:
  bool HasOutline() const override { return true; }
};

// Registers the classes, and removes them before the module is unloaded.
QVX_KERNEL void BeginQvxEntities();
QVX_KERNEL void EndQvxEntities();
