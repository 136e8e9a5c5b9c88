// The place of a text in a drawing, for hit tests and extents.
#pragma once

#include <string>

#include "gepnt3d.h"
#include "kernel/kernel_export.h"

class AcDbEntity;

struct QVX_KERNEL QvxTextPlace {
  std::wstring text;
  AcGePoint3d at;  // lower left corner
  double height = 0, angle = 0;
  double width = 0;  // of the place, which may be wider than its text, also with none

  double TextWidth() const;
  AcDbExtents Extents() const;                // of the text; not valid when it is empty
  bool Contains(const AcGePoint3d& p) const;  // by the place or its text, whichever is wider

  // A place for a text that is centred around a point.
  static QvxTextPlace Around(const AcGePoint3d& middle, double height, const std::wstring& text);
};

// The text with this index of an object of the family; index 0 of a plain text. False: none.
bool TextPlaceOf(const AcDbEntity& entity, long index, QvxTextPlace& place);
