// A drawing as shapes, for painting, hit tests and extents.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "devhost/core/view/shape.h"

namespace devhost {

// All entities on visible layers of the current space, in drawing order. Arcs become polylines fine
// enough for `pixelsPerUnit`.
std::vector<Shape> BuildScene(AcDbDatabase& database, double pixelsPerUnit);
std::vector<Shape> ShapesOf(AcDbEntity& entity, double pixelsPerUnit);

AcDbExtents ExtentsOf(AcDbDatabase& database);

// Hit tests of the current space. They draw only the entities that EntityIndex finds near the
// place.
using EntityTest = std::function<bool(const AcDbEntity&)>;

// Of the entities that `accepts` returns true for, the nearest to a point within `reach`, or null.
// Without a function every entity is accepted.
AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach,
                     const EntityTest& accepts = {});
// Entities inside a box, or, with `crossing`, also those that touch it.
std::vector<AcDbEntity*> EntitiesIn(AcDbDatabase& database, const AcGePoint3d& a,
                                    const AcGePoint3d& b, bool crossing);
// Entities that the lines from each point to the next touch, seen from above.
std::vector<AcDbEntity*> EntitiesOnFence(AcDbDatabase& database,
                                         std::span<const AcGePoint3d> points);
// A point at which a click picks the entity. False if it draws nothing.
bool PointOn(AcDbEntity& entity, AcGePoint3d* at);

}  // namespace devhost
