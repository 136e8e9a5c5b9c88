// Where the fields of the status bar lie: the coordinates at the left, the modules' panes at the
// right, the message text between them. Measuring, painting and hit testing all read one layout.
#pragma once

#include <vector>

#include "ground/plain_types.h"

namespace devhost {

struct PaneMeasure {
  int content;   // pixels that icon, text and margins take
  int minWidth;  // 0: none
  int maxWidth;  // 0: none
  bool visible;
};

struct StatusLayout {
  RECT coordinates;
  RECT message;
  std::vector<RECT>
      panes;  // one for each measure; empty for a pane that is hidden or finds no room
};

// Panes keep their order and stand as far right as they can. When they do not all fit beside the
// coordinates, the last ones are left out, never cut.
StatusLayout LayOutStatusBar(SIZE client, int coordinateWidth, int gap,
                             const std::vector<PaneMeasure>& panes);

int HitTestPane(const StatusLayout& layout, POINT point);  // -1 beside all panes

}  // namespace devhost
