// Finds the text at a point of the drawing. The text of some annotation objects lies outside their
// geometry, so a pick at the point does not find the object.
#pragma once

#include "gepnt3d.h"
#include "ground/plain_types.h"

class TSubText;

namespace qvx {

class FilterHost;

// One point of the drawing in both systems: selections take the user's, hit tests the world's.
struct DrawingPoint {
  AcGePoint3d world, user;
};

// The drawing's point at a screen point, in the current viewport. False when there is none.
bool FindDrawingPoint(FilterHost& host, POINT screen, DrawingPoint& point);

// The text at the point, owned by the caller; null for none.
TSubText* FindText(FilterHost& host, const DrawingPoint& point);

}  // namespace qvx
