// Outlines of shapes, distances and box tests.
#pragma once

#include <vector>

#include "devhost/core/view/shape.h"

namespace devhost {

std::vector<AcGePoint3d> OutlineOf(const Shape& shape);
double DistanceTo(const Shape& shape, const AcGePoint3d& p);

// Whether a segment intersects a box; it is clipped against the four sides.
bool SegmentTouches(AcGePoint3d a, AcGePoint3d b, double x0, double y0, double x1, double y1);

}  // namespace devhost
