// Where a grip tip appears.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

// The tip's rectangle for a text of this size at a point, in the frame's client area: moved up or
// left to end on the area's edge where it would cross it.
RECT PlaceGripTip(POINT at, SIZE text, SIZE area);

}  // namespace qvx
