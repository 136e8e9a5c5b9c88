// Stretching an entity by a grip.
#pragma once

#include "dbmain.h"

namespace devhost {

// Moves the end of a line, the vertex of a polyline or the radius of a circle that is at `from` to
// `to`; other entities move as a whole. False: the entity cannot be moved.
bool MoveGrip(AcDbEntity& entity, const AcGePoint3d& from, const AcGePoint3d& to);

}  // namespace devhost
