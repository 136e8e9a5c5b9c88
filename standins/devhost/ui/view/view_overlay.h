// The overlay of the drawing: crosshair, grips, selection box, rubber band, axis mark. Painted over
// the cached picture each time.
#pragma once

#include <optional>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

struct ViewOverlay {
  std::optional<POINT> cursor;  // none: pointer outside the view
  bool pickBox = true;          // pick square: clicks select entities
  std::vector<POINT> grips;
  std::optional<POINT> boxFrom;     // selection box from here to the cursor
  std::optional<POINT> rubberFrom;  // rubber line from here to the cursor
  POINT origin{};                   // pixel of world 0,0
};

constexpr int kCrosshair = 42;  // half the length, pixels at 96 dots per inch

COLORREF ViewBackground();
void PaintOverlay(HDC dc, const RECT& client, const ViewOverlay& overlay);

// The area that the crosshair covers.
RECT CrosshairBounds(POINT cursor);

}  // namespace devhost
