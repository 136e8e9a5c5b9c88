// Shapes: lines, filled areas and texts in world coordinates, for painting and hit tests.
#pragma once

#include <string>
#include <vector>

#include "dbmain.h"

namespace devhost {

struct Shape {
  enum class Kind { Polyline, Polygon, Text };
  Kind kind = Kind::Polyline;
  int color = 7;                    // 1 to 255, resolved
  std::vector<AcGePoint3d> points;  // of a text: its lower left corner
  std::wstring text;
  double height = 0, rotation = 0, widthFactor = 1;
  AcDbObject* entity = nullptr;  // the top-level entity that it belongs to
  bool dashed = false;
};

}  // namespace devhost
