// A drawing as plain shapes in world coordinates, for painting, hit tests and extents.
#pragma once

#include <vector>

#include "devhost/core/view/shape.h"

namespace devhost {

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
