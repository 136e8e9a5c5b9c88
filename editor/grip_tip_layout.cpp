#include "editor/grip_tip_layout.h"

#include <algorithm>

namespace qvx {

RECT PlaceGripTip(POINT at, SIZE text, SIZE area) {
  constexpr LONG kMargin = 8;  // of both sides together
  const LONG width = text.cx + kMargin, height = text.cy + kMargin;
  const LONG left = std::min(at.x, area.cx - width), top = std::min(at.y, area.cy - height);
  return {left, top, left + width, top + height};
}

}  // namespace qvx
