// The drawing objects of the family: walls, openings, columns, axis numbers, rooms, texts and
// stairs, as far as the sample modules need them; dimensions are in tdbdimension2.h, symbols of
// interior views in tdbinsight.h, block references in block_inserts.h. They share one
// record of plain values, which is stored in drawing files; each class draws itself from it.
// Lengths are millimetres; angles are degrees in files and radians here. Editing rules (joining
// walls, moving openings) are not implemented.
#pragma once

#include <string>
#include <vector>

#include "dbents.h"
#include "kernel/entities/tentitybase.h"
#include "kernel/kernel_export.h"
#include "kernel/tdbentity.h"
#include "kernel/text_place.h"

class QVX_KERNEL QvxDbEntity : public AcDbEntity, public TEntityBase {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbEntity);

  AcGePoint3d start, end;            // groups 10 and 11
  double width = 0, size = 0;        // groups 40 and 41
  double angle = 0;                  // group 50; the scale is group 42
  int kind = 0, flags = 0;           // groups 70 and 71
  std::wstring label;                // group 1
  std::vector<AcGePoint3d> outline;  // further groups 10 of a class that has corners
  int group = 0;                     // group 72, 0 for none: what is controlled together
  int control = 0;                   // group 73: 1 while the control state is on
  std::vector<std::wstring> cells;   // groups 302: texts beside the label

  // The texts that can be edited, in the order of their indices.
  virtual std::vector<QvxTextPlace> TextPlaces() const { return {}; }
  // Stores a text in the slot of its place.
  virtual void ChangeText(int index, const std::wstring& text);
  const std::wstring& Stored(int slot) const;  // empty where there is none

  long GroupKey() const override;
  void ToggleCtrl() override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  virtual bool HasOutline() const { return false; }
  bool IsOnLockedLayer() const;
  bool ShowsModelNumbers() const;               // whether the drawing shows the numbers of openings
  void DrawControl(AcGiWorldDraw* draw) const;  // a cross at each control point, while it is on
};

// A drawing object with one of the two interfaces. What lies on a locked layer cannot be edited.
template <class Interface>
class QvxEditable : public QvxDbEntity, public Interface {
 public:
  Adesk::Boolean IsEditable() const override { return !IsOnLockedLayer(); }
  TSubText* GetSubText(int index) const override { return Interface::MakeSubText(*this, index); }
  TSubText* GetSubTextAt(const AcGePoint3d& at) const override {
    return Interface::MakeSubTextAt(*this, at);
  }
  std::vector<QvxTextPlace> SubTexts() const override { return TextPlaces(); }
  void ChangeSubText(int index, const std::wstring& text) override { ChangeText(index, text); }
};

#define QVX_ENTITY(CLASS, INTERFACE, ...)                  \
  class QVX_KERNEL CLASS : public QvxEditable<INTERFACE> { \
   public:                                                 \
    ACRX_DECLARE_MEMBERS(CLASS);                           \
    bool subWorldDraw(AcGiWorldDraw* draw) const override; \
    __VA_ARGS__                                            \
  }
#define QVX_TEXTS std::vector<QvxTextPlace> TextPlaces() const override;

QVX_ENTITY(QvxDbWall, TDbCurveEntity);  // start, end; width; size is the height
QVX_ENTITY(QvxDbOpening, TDbEntity,
           QVX_TEXTS);  // start the middle; width of the wall; size; kind 0 door, 1 window;
                        // flags: 1 opens downwards, 2 hinge on the other side
QVX_ENTITY(QvxDbColumn, TDbEntity);                 // start the middle; width by size
QVX_ENTITY(QvxDbAxisNumber, TDbEntity, QVX_TEXTS);  // start the middle; width the radius; label
QVX_ENTITY(QvxDbStair, TDbEntity);  // start the lower left; width by size; kind the number of steps
#undef QVX_TEXTS
#undef QVX_ENTITY

// start; width the height; angle; label; size the width at which the lines of a text of several
// lines are broken, 0 for never.
class QVX_KERNEL QvxDbText : public QvxEditable<TDbEntity> {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbText);
  enum Kind { kLine = 0, kLines = 1 };
  virtual bool IsMultiLine() const { return kind == kLines; }
  std::vector<QvxTextPlace> TextPlaces() const override;
  EditFunction GetEditFunction() const override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};

class QVX_KERNEL QvxDbMText : public QvxDbText {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbMText);
  bool IsMultiLine() const override { return true; }
};

class QVX_KERNEL QvxDbSpace : public QvxEditable<TDbEntity> {  // outline; label
 public:
  ACRX_DECLARE_MEMBERS(QvxDbSpace);
  double Area() const;  // square units
  AcGePoint3d Middle() const;
  std::vector<QvxTextPlace> TextPlaces() const override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;

 protected:
  bool HasOutline() const override { return true; }
};

// Registers the classes, and removes them before the module is unloaded.
QVX_KERNEL void BeginQvxEntities();
QVX_KERNEL void EndQvxEntities();
