// Stretching by grips; see the header.
#include "devhost/core/entities/grips.h"

#include "dbents.h"

namespace devhost {
namespace {

bool IsSame(const AcGePoint3d& a, const AcGePoint3d& b) { return a.distanceTo(b) < 1e-9; }

bool MoveEnd(AcDbLine& line, const AcGePoint3d& from, const AcGePoint3d& to) {
  if (IsSame(line.startPoint(), from))
    line.setStartPoint(to);
  else if (IsSame(line.endPoint(), from))
    line.setEndPoint(to);
  else
    return false;
  return true;
}

bool MoveVertex(AcDbPolyline& polyline, const AcGePoint3d& from, const AcGePoint3d& to) {
  for (unsigned i = 0; i < polyline.numVerts(); ++i) {
    AcGePoint3d at;
    polyline.getPointAt(i, at);
    if (IsSame(at, from)) return polyline.setPointAt(i, to) == Acad::eOk;
  }
  return false;
}

}  // namespace

bool MoveGrip(AcDbEntity& entity, const AcGePoint3d& from, const AcGePoint3d& to) {
  bool moved = false;
  if (auto* line = AcDbLine::cast(&entity)) {
    moved = MoveEnd(*line, from, to);
  } else if (auto* polyline = AcDbPolyline::cast(&entity)) {
    moved = MoveVertex(*polyline, from, to);
  } else if (auto* circle = AcDbCircle::cast(&entity); circle && !AcDbArc::cast(&entity)) {
    moved = !IsSame(circle->center(), from) && !IsSame(circle->center(), to);
    if (moved) circle->setRadius(circle->center().distanceTo(to));
  }
  return moved || entity.transformBy(AcGeMatrix3d::translation(to - from)) == Acad::eOk;
}

}  // namespace devhost
