// The place of a text in a drawing, for hit tests, extents and drawing, and how it is edited.
#pragma once

#include <string>
#include <vector>

#include "gepnt3d.h"
#include "kernel/kernel_export.h"

class AcDbEntity;
class AcGiWorldDraw;
class AcRxObject;
class TTextOwner;

// The pop-up menu of a text while it is edited. Other numbers have the general one.
enum QvxTextMenu {
  kGeneralText = 0,    // special characters, words
  kAnnotation = 1,     // scripts, circles, corner marks
  kAxisName = 2,       // reversing the order of axis names
  kOpeningNumber = 3,  // numbering of doors and windows
  kTableCell = 4,      // the cell's own dialog, emptying
  kSteelText = 5,      // signs of steel grades
  kMeasuredText = 6,   // back to the measured value
  kSymbolText = 7,     // editing the whole symbol
};

struct QVX_KERNEL QvxTextPlace {
  std::wstring text;  // the lines of a multi-line text are separated by LF
  AcGePoint3d at;     // lower left corner of the first line
  double height = 0, angle = 0;
  double width = 0;  // of the place, which may be wider than its text, also with none
  int slot = 0;      // where the object keeps it: 0 the label, n the cell n - 1
  int menu = kGeneralText;
  bool multiLine = false;
  double wrap = 0;  // width at which lines of a multi-line text are broken; 0: never

  std::vector<std::wstring> Lines() const;    // as drawn, from top to bottom
  double TextWidth() const;                   // of the widest line
  AcDbExtents Extents() const;                // of the text; not valid when it is empty
  bool Contains(const AcGePoint3d& p) const;  // by the place or its text, whichever is wider
  bool IsInside(const AcGePoint3d& p) const;  // by the place alone
  void Draw(AcGiWorldDraw* draw) const;

  // A place for a text that is centred around a point.
  static QvxTextPlace Around(const AcGePoint3d& middle, double height, const std::wstring& text);
};

QVX_KERNEL void DrawTexts(AcGiWorldDraw* draw, const std::vector<QvxTextPlace>& places);

// The text interface of an object, whichever of the two kernel classes it is; null: neither.
QVX_KERNEL TTextOwner* TextOwnerOf(const AcRxObject* object);

// The text with this index of an object with a text interface; index 0 of TEXT and MTEXT. False:
// none.
bool TextPlaceOf(const AcDbEntity& entity, long index, QvxTextPlace& place);
// Stores a text that was typed, with any kind of line breaks. The object is open for writing.
void ChangeTextOf(AcDbEntity& entity, long index, const std::wstring& typed);
