// Mouse rules of the drawing view; see the header.
#include "devhost/ui/view/pick_logic.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace devhost {

bool IsDrag(POINT press, POINT now) {
  return std::abs(now.x - press.x) > kDragStart || std::abs(now.y - press.y) > kDragStart;
}

bool IsCrossing(POINT press, POINT now) { return now.x < press.x; }

RECT BoxOf(POINT a, POINT b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

double WheelZoom(int delta) { return std::pow(1.25, delta / 120.0); }

int NearestSpot(const POINT* spots, int count, POINT at, int reach) {
  int best = -1;
  LONG bestDistance = 0;
  for (int i = 0; i < count; ++i) {
    const LONG distance = std::max<LONG>(std::abs(spots[i].x - at.x), std::abs(spots[i].y - at.y));
    if (distance > reach || (best >= 0 && distance >= bestDistance)) continue;
    best = i;
    bestDistance = distance;
  }
  return best;
}

}  // namespace devhost
