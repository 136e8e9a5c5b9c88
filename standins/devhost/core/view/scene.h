// A drawing as plain shapes in world coordinates, for painting, hit tests and extents.
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

// Everything on shown layers of the current space, in drawing order. Arcs come as polylines fine
// enough for `pixelsPerUnit`.
std::vector<Shape> BuildScene(AcDbDatabase& database, double pixelsPerUnit);
std::vector<Shape> ShapesOf(AcDbEntity& entity, double pixelsPerUnit);

AcDbExtents ExtentsOf(AcDbDatabase& database);

// The entity nearest to a point within `reach`, null when there is none; entities entirely inside a
// box, or touched by it.
AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach);
std::vector<AcDbEntity*> EntitiesIn(AcDbDatabase& database, const AcGePoint3d& a,
                                    const AcGePoint3d& b, bool crossing);
// A point on the entity where a click finds it; false when it draws nothing.
bool PointOn(AcDbEntity& entity, AcGePoint3d* at);

}  // namespace devhost
