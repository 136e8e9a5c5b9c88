// The overlay of the drawing: crosshair, grips, selection box, rubber band, axis mark. Painted over
// the cached picture each time.
#pragma once

#include <optional>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

// The axes of the user coordinate system on the screen.
struct AxisMark {
  struct Direction {
    double x = 0, y = 0;  // pixels for a unit of length 1, y down
  };
  POINT origin{};
  Direction x, y;
};

struct ViewOverlay {
  RECT clip{};                  // the current viewport
  std::optional<POINT> cursor;  // none: pointer outside the view
  bool pickBox = true;          // pick square: clicks select entities
  std::vector<POINT> grips;
  std::optional<POINT> boxFrom;     // selection box from here to the cursor
  std::optional<POINT> rubberFrom;  // rubber line from here to the cursor
  AxisMark axes;
};

constexpr int kCrosshair = 42;  // half the length, pixels at 96 dots per inch

COLORREF ViewBackground();
void PaintOverlay(HDC dc, const ViewOverlay& overlay);

// The area that the crosshair covers.
RECT CrosshairBounds(POINT cursor);

}  // namespace devhost
