// Scroll positions of a group: for scroll bar codes, for the wheel, and to bring an opened group
// into view. Positions in pixels of content. Used by CMenuGroup.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

// The new position for a scroll code, clamped to [low, high]. Codes that only end a movement do not
// change it.
int ScrollTarget(unsigned code, int pos, int thumb, int low, int high);

// A notch of 120 moves 40 pixels, toward the top when the wheel turns away from the user. Not
// clamped; rounded toward zero.
int WheelTarget(int pos, int delta);

// How far the view has to move to show the rectangle: to its top when it starts above the view or
// is taller; to its bottom when it ends below the view; otherwise 0.
int RevealShift(const RECT& rect, const RECT& client);

// The part of the client area whose pixels move with a scroll.
RECT ScrolledArea(const RECT& client, bool barShown);

// The zone in and around the view of a group in which rows are moved at every scroll step.
RECT NearView(const RECT& view);

}  // namespace qvx
