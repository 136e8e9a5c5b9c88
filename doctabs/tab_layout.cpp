#include "doctabs/tab_layout.h"

#include <algorithm>

namespace {

constexpr int kArrowsDistance = 2;  // between the tabs shown and the arrows
constexpr int kRaisedTop = 2;       // of the client area, over the border

// The tab whose left edge is the last one below x, if x is below its limit too; otherwise `none`.
int TabBetween(TabOffsets offsets, int x, int gap, int none) {
  const auto at = std::lower_bound(offsets.begin(), offsets.end(), x);
  const int i = static_cast<int>(at - offsets.begin()) - 1;
  if (i < 0 || i >= TabCount(offsets)) return none;
  return x < offsets[static_cast<std::size_t>(i) + 1] - gap ? i : none;
}

}  // namespace

int HitTab(TabOffsets offsets, int x) { return TabBetween(offsets, x, kTabGap, TabCount(offsets)); }

int TipTab(TabOffsets offsets, int x) { return TabBetween(offsets, x, 1, -1); }

int OriginOf(TabOffsets offsets, int firstTab) {
  return offsets[static_cast<std::size_t>(std::clamp(firstTab, 0, TabCount(offsets)))];
}

int LastScrollPosition(TabOffsets offsets, int arrowsLeft) {
  const int count = TabCount(offsets);
  if (count < 2) return 1;
  // last - offset < arrowsLeft - distance, solved for the offset.
  const long long limit = static_cast<long long>(offsets.back()) - (arrowsLeft - kArrowsDistance);
  const auto at = std::upper_bound(offsets.begin() + 1, offsets.end(), limit);
  return std::min(static_cast<int>(at - offsets.begin()), count);
}

RECT ArrowsBox(int cx, int cy) { return {cx - 2 * cy, 0, cx, cy}; }

RECT TabsBox(const RECT& client) {
  const int height = client.bottom - client.top;
  return {client.left, client.top, client.right - kArrowsDistance - 2 * height, client.bottom};
}

int StripHeight(const StripMetrics& m) {
  return 2 * (m.borderLine + m.verticalBorder) - m.insideHeight - m.fontLeading + m.fontHeight - 1;
}

RECT StripClient(const RECT& proposed, const RECT& inside) {
  return {proposed.left + inside.left, proposed.top + inside.top - kRaisedTop,
          proposed.right + inside.right, proposed.bottom + inside.bottom};
}
