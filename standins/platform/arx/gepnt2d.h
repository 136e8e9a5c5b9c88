// Points of a plane.
#pragma once

class AcGePoint2d {
 public:
  constexpr AcGePoint2d() = default;
  constexpr AcGePoint2d(double x, double y) : x(x), y(y) {}
  double x = 0, y = 0;
};
