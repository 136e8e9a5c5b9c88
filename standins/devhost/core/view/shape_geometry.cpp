// Geometry of shapes; see the header.
#include "devhost/core/view/shape_geometry.h"

#include <algorithm>
#include <cmath>

#include "devhost/core/base/text_codes.h"

namespace devhost {
namespace {

double DistanceToSegment(const AcGePoint3d& p, const AcGePoint3d& a, const AcGePoint3d& b) {
  const double dx = b.x - a.x, dy = b.y - a.y, length = dx * dx + dy * dy;
  const double t =
      length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0;
  return std::hypot(p.x - (a.x + dx * t), p.y - (a.y + dy * t));
}

// The rectangle of a text, for hit tests and extents.
std::vector<AcGePoint3d> TextCorners(const Shape& shape) {
  const double length = TextLength(shape.text) * shape.height * shape.widthFactor;
  const AcGeVector3d along(std::cos(shape.rotation), std::sin(shape.rotation), 0),
      up(-along.y, along.x, 0);
  const AcGePoint3d at = shape.points[0];
  return {at, at + along * length, at + along * length + up * shape.height, at + up * shape.height,
          at};
}

bool InsidePolygon(const std::vector<AcGePoint3d>& corners, const AcGePoint3d& p) {
  bool inside = false;
  for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++)
    if ((corners[i].y > p.y) != (corners[j].y > p.y) &&
        p.x < (corners[j].x - corners[i].x) * (p.y - corners[i].y) / (corners[j].y - corners[i].y) +
                  corners[i].x)
      inside = !inside;
  return inside;
}

// Positive if `p` is to the left of the line from `a` to `b`, 0 on it.
double SideOf(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

// Whether a point on the line through `a` and `b` is between them.
bool Between(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& p) {
  return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
         p.y <= std::max(a.y, b.y);
}

}  // namespace

std::vector<AcGePoint3d> OutlineOf(const Shape& shape) {
  if (shape.kind == Shape::Kind::Text) return TextCorners(shape);
  std::vector<AcGePoint3d> points = shape.points;
  if (shape.kind == Shape::Kind::Polygon) points.push_back(points.front());
  return points;
}

double DistanceTo(const Shape& shape, const AcGePoint3d& p) {
  const std::vector<AcGePoint3d> outline = OutlineOf(shape);
  if (shape.kind != Shape::Kind::Polyline && InsidePolygon(outline, p)) return 0;
  double best = outline.size() == 1 ? p.distanceTo(outline[0]) : 1e300;
  for (std::size_t i = 0; i + 1 < outline.size(); ++i)
    best = std::min(best, DistanceToSegment(p, outline[i], outline[i + 1]));
  return best;
}

bool SegmentTouches(AcGePoint3d a, AcGePoint3d b, double x0, double y0, double x1, double y1) {
  double t0 = 0, t1 = 1;
  const double dx = b.x - a.x, dy = b.y - a.y;
  auto clip = [&](double p, double q) {
    if (p == 0) return q >= 0;
    const double t = q / p;
    if (p < 0)
      t0 = std::max(t0, t);
    else
      t1 = std::min(t1, t);
    return t0 <= t1;
  };
  return clip(-dx, a.x - x0) && clip(dx, x1 - a.x) && clip(-dy, a.y - y0) && clip(dy, y1 - a.y);
}

bool SegmentsTouch(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& c,
                   const AcGePoint3d& d) {
  const double sideA = SideOf(c, d, a), sideB = SideOf(c, d, b), sideC = SideOf(a, b, c),
               sideD = SideOf(a, b, d);
  const auto opposite = [](double p, double q) { return (p < 0 && q > 0) || (p > 0 && q < 0); };
  if (opposite(sideA, sideB) && opposite(sideC, sideD)) return true;
  return (sideA == 0 && Between(c, d, a)) || (sideB == 0 && Between(c, d, b)) ||
         (sideC == 0 && Between(a, b, c)) || (sideD == 0 && Between(a, b, d));
}

}  // namespace devhost
