// Outlines of shapes, distances, box and segment tests.
#pragma once

#include <vector>

#include "devhost/core/view/shape.h"

namespace devhost {

std::vector<AcGePoint3d> OutlineOf(const Shape& shape);
double DistanceTo(const Shape& shape, const AcGePoint3d& p);

// Whether a segment intersects a box; it is clipped against the four sides.
bool SegmentTouches(AcGePoint3d a, AcGePoint3d b, double x0, double y0, double x1, double y1);
// Whether two segments have a point in common; z is ignored.
bool SegmentsTouch(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& c,
                   const AcGePoint3d& d);

}  // namespace devhost
