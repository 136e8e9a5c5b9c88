// See scroll_rules.h.
#include "screenmenu/scroll_rules.h"

#include <algorithm>

#include "screenmenu/group_layout.h"

namespace qvx {
namespace {

constexpr int kLineStep = 20;
constexpr int kPageStep = 100;
constexpr double kWheelDivisor = 3.0;
// About sixty rows above and below: more than any step except long drags of the thumb, and few
// enough that the wheel does not lag.
constexpr int kNearReach = 1500;

}  // namespace

int ScrollTarget(unsigned code, int pos, int thumb, int low, int high) {
  int target = pos;
  switch (code) {
    case SB_LINEUP:
      target = pos - kLineStep;
      break;
    case SB_LINEDOWN:
      target = pos + kLineStep;
      break;
    case SB_PAGEUP:
      target = pos - kPageStep;
      break;
    case SB_PAGEDOWN:
      target = pos + kPageStep;
      break;
    case SB_THUMBTRACK:
      target = thumb;
      break;
    case SB_TOP:
      target = low;
      break;
    case SB_BOTTOM:
      target = high;
      break;
    default:
      break;
  }
  return std::max(low, std::min(target, high));
}

int WheelTarget(int pos, int delta) { return static_cast<int>(pos - delta / kWheelDivisor); }

int RevealShift(const RECT& rect, const RECT& client) {
  if (rect.top < client.top) return rect.top - client.top;
  if (rect.bottom - rect.top > client.bottom - client.top) return rect.top - client.top;
  if (rect.bottom > client.bottom || rect.top > client.bottom) return rect.bottom - client.bottom;
  return 0;
}

RECT ScrolledArea(const RECT& client, bool barShown) {
  RECT area = client;
  if (barShown) area.right -= kScrollBarWidth;
  return area;
}

RECT NearView(const RECT& view) {
  return {view.left, view.top - kNearReach, view.right, view.bottom + kNearReach};
}

}  // namespace qvx
