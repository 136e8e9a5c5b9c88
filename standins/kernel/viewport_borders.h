// The geometry of dragging a border between tiled viewports, without windows.
#pragma once

#include <functional>
#include <vector>

#include "atltypes.h"
#include "kernel/kernel_export.h"

// A viewport as part of its window, from 0,0 at the lower left to 1,1.
struct ViewportTile {
  int number;
  double left, bottom, right, top;
};

// The border between two viewports that touch, with `first` on the left or above. Pixels of the
// window.
struct ViewportBorder {
  int first = 0, second = 0;  // 0: no border
  bool upright = false;       // a vertical line, dragged sideways
  int at = 0;                 // where it lies: x of an upright one, otherwise y
  int from = 0, to = 0;       // its ends in the other direction, `to` not included
};

// The border within reach of a pixel. `numberAt` returns the number of the
// viewport at a pixel, 0 if there is none.
QVX_KERNEL ViewportBorder BorderNear(const std::function<int(int x, int y)>& numberAt,
                                     CPoint pixel);

// Moves the border between two viewports, with all others that end at the same line without a gap,
// to `place` (a part of the window: from the left, or from below). No viewport becomes narrower
// than a twentieth of the window, unless it is already. False, with nothing done: the two have no
// such border, or nothing would change.
QVX_KERNEL bool MoveBorder(std::vector<ViewportTile>& tiles, const ViewportBorder& border,
                           double place);
