// Layout of the status bar; see the header.
#include "devhost/ui/bars/pane_layout.h"

#include <algorithm>

namespace devhost {
namespace {

int WidthOf(const PaneMeasure& pane) {
  int width = std::max(pane.content, pane.minWidth);
  if (pane.maxWidth > 0) width = std::min(width, pane.maxWidth);
  return std::max(width, 0);
}

bool Contains(const RECT& r, POINT p) {
  return p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom;
}

}  // namespace

StatusLayout LayOutStatusBar(SIZE client, int coordinateWidth, int gap,
                             const std::vector<PaneMeasure>& panes) {
  const LONG top = std::min<LONG>(1, client.cy), bottom = client.cy;
  StatusLayout layout{};
  layout.coordinates = {0, top, std::min<LONG>(coordinateWidth, client.cx), bottom};
  layout.panes.assign(panes.size(), RECT{});
  const int room = std::max<int>(client.cx - coordinateWidth, 0);
  int used = 0;
  size_t shown = 0;
  for (; shown < panes.size(); ++shown) {
    const int more = panes[shown].visible ? WidthOf(panes[shown]) + gap : 0;
    if (used + more > room) break;
    used += more;
  }
  LONG x = client.cx - used;
  layout.message = {layout.coordinates.right, top, std::max(x, layout.coordinates.right), bottom};
  for (size_t i = 0; i < shown; ++i) {
    if (!panes[i].visible) continue;
    const LONG right = x + WidthOf(panes[i]);
    layout.panes[i] = {x, top, right, bottom};
    x = right + gap;
  }
  return layout;
}

int HitTestPane(const StatusLayout& layout, POINT point) {
  for (size_t i = 0; i < layout.panes.size(); ++i)
    if (Contains(layout.panes[i], point)) return static_cast<int>(i);
  return -1;
}

}  // namespace devhost
