// What lies over the drawing while the user works: crosshair, grips, selection box, rubber band,
// axis mark. Painted fresh over the finished picture each time, so nothing has to be undone.
#pragma once

#include <optional>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

struct ViewOverlay {
  std::optional<POINT> cursor;  // none: the pointer is not over the view
  bool pickBox = true;          // a square in the crosshair: clicks choose entities
  std::vector<POINT> grips;
  std::optional<POINT> boxFrom;     // a selection box from here to the cursor
  std::optional<POINT> rubberFrom;  // a line from here to the cursor
  POINT origin{};                   // where world 0,0 lies
  bool originShown = false;
};

constexpr int kCrosshair = 42;  // half length of the crosshair, pixels at 96 dots per inch

COLORREF ViewBackground();
void PaintOverlay(HDC dc, const RECT& client, const ViewOverlay& overlay);

// The part of the view that the crosshair covers at this point.
RECT CrosshairBounds(POINT cursor);

}  // namespace devhost
