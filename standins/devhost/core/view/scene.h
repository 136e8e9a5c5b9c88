// A drawing as shapes, for painting, hit tests and extents.
#pragma once

#include <vector>

#include "devhost/core/view/shape.h"

namespace devhost {

// All entities on visible layers of the current space, in drawing order. Arcs become polylines fine
// enough for `pixelsPerUnit`.
std::vector<Shape> BuildScene(AcDbDatabase& database, double pixelsPerUnit);
std::vector<Shape> ShapesOf(AcDbEntity& entity, double pixelsPerUnit);

AcDbExtents ExtentsOf(AcDbDatabase& database);

// The entity nearest to a point within `reach`, or null. Entities inside a box, or, with
// `crossing`, also those that touch it.
AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach);
std::vector<AcDbEntity*> EntitiesIn(AcDbDatabase& database, const AcGePoint3d& a,
                                    const AcGePoint3d& b, bool crossing);
// A point at which a click picks the entity. False if it draws nothing.
bool PointOn(AcDbEntity& entity, AcGePoint3d* at);

}  // namespace devhost
