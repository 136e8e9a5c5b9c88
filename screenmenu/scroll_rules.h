// Where a group scrolls to: by the bar, by the wheel, and to bring an opened group into view.
// Positions in pixels of content. Called by CMenuGroup.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

// The new position for a scroll code, clamped into [low, high]. Codes that only end a movement
// leave the position where it is.
int ScrollTarget(unsigned code, int pos, int thumb, int low, int high);

// A notch of 120 moves 40 pixels, toward the top when the wheel turns away from the user. Not
// clamped; a fraction is cut toward zero.
int WheelTarget(int pos, int delta);

// By how much the view has to move so that the rectangle shows: from its top when it is above the
// view or too tall for it, otherwise, when it reaches below the view, so that its bottom just
// shows.
int RevealShift(const RECT& rect, const RECT& client);

// The part of the client area whose pixels move with a scroll.
RECT ScrolledArea(const RECT& client, bool barShown);

// The part of a group, in and around its view, whose rows are moved at every step.
RECT NearView(const RECT& view);

}  // namespace qvx
