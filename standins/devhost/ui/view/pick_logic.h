// Mouse rules of the drawing view: drags, selection boxes, wheel. No window.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

constexpr int kPickBox = 5;    // half the side of the pick square, pixels
constexpr int kGripHalf = 4;   // half the side of a grip, pixels
constexpr int kDragStart = 4;  // movement in pixels up to which a press is a click

bool IsDrag(POINT press, POINT now);
// Drawn to the left: entities that the box touches are selected.
bool IsCrossing(POINT press, POINT now);
RECT BoxOf(POINT a, POINT b);  // left <= right, top <= bottom
double WheelZoom(int delta);   // above 1 enlarges; a notch (120) is 1.25

// The index of the nearest spot within reach; -1: none.
int NearestSpot(const POINT* spots, int count, POINT at, int reach);

}  // namespace devhost
