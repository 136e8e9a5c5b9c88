// How the drawing view reads the mouse: what counts as a drag, whether a box takes what lies inside
// or all that it touches, how far a wheel notch zooms. No window here.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

constexpr int kPickBox = 5;    // half side of the square in which a click finds an entity, pixels
constexpr int kGripHalf = 4;   // half side of a grip, pixels
constexpr int kDragStart = 4;  // pixels a press may tremble and still be a click

bool IsDrag(POINT press, POINT now);
bool IsCrossing(POINT press, POINT now);  // drawn to the left: touching is enough
RECT BoxOf(POINT a, POINT b);             // left <= right, top <= bottom
double WheelZoom(int delta);              // above 1 enlarges; a notch of 120 gives 1.25

// The spots of a clicked list that are hit; -1 for none. The nearest wins.
int NearestSpot(const POINT* spots, int count, POINT at, int reach);

}  // namespace devhost
