// Layout of the status bar: coordinates at the left, panes at the right, message text between.
// Measuring, painting and hit testing use the same layout.
#pragma once

#include <vector>

#include "ground/plain_types.h"

namespace devhost {

struct PaneMeasure {
  int content;   // width of icon, text and margins in pixels
  int minWidth;  // 0: none
  int maxWidth;  // 0: none
  bool visible;
};

struct StatusLayout {
  RECT coordinates;
  RECT message;
  std::vector<RECT> panes;  // One for each measure; empty if the pane is hidden or does not fit.
};

// Panes are right-aligned, in order. If they do not all fit beside the coordinates, the last ones
// are omitted.
StatusLayout LayOutStatusBar(SIZE client, int coordinateWidth, int gap,
                             const std::vector<PaneMeasure>& panes);

int HitTestPane(const StatusLayout& layout, POINT point);  // -1: no pane

}  // namespace devhost
