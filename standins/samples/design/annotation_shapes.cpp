#include "annotation_shapes.h"

namespace {
constexpr double kHeadSlope = 0.3;  // half width of an arrow head for its length
}

void DrawLine(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  const AcGePoint3d ends[2] = {a, b};
  draw->geometry().polyline(2, ends);
}

void DrawBox(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  DrawOutline(draw, {a, {b.x, a.y, 0}, b, {a.x, b.y, 0}}, true);
}

void DrawOutline(AcGiWorldDraw* draw, std::vector<AcGePoint3d> corners, bool closed) {
  if (corners.empty()) return;
  if (closed) corners.push_back(corners.front());
  draw->geometry().polyline(static_cast<unsigned>(corners.size()), corners.data());
}

void DrawArrowHead(AcGiWorldDraw* draw, const AcGePoint3d& tip, const AcGePoint3d& from,
                   double length) {
  const AcGeVector3d back = (from - tip).normal() * length;
  const AcGeVector3d side(-back.y * kHeadSlope, back.x * kHeadSlope, 0);
  DrawOutline(draw, {tip + back + side, tip, tip + back - side}, false);
}
