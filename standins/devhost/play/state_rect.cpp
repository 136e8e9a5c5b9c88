// Rectangles and flags in the shell state; see the header.
#include "devhost/play/state_rect.h"

#include <algorithm>
#include <array>

namespace devhost {

std::optional<RECT> StateRect(const Json& object) {
  if (!object.is_object() || !object.contains("rect")) return {};
  const Json& rect = object["rect"];
  if (!rect.is_array() || rect.size() != 4) return {};
  std::array<LONG, 4> edge;
  for (std::size_t i = 0; i < 4; ++i) {
    if (!rect[i].is_number_integer()) return {};
    const auto value = rect[i].get<std::int64_t>();
    edge[i] = static_cast<LONG>(std::clamp<std::int64_t>(value, -100000, 100000));
  }
  return RECT{edge[0], edge[1], edge[2], edge[3]};
}

bool IsStateFalse(const Json& object, const char* member) {
  return object.contains(member) && object[member].is_boolean() && !object[member].get<bool>();
}

bool IsEmptyRect(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

}  // namespace devhost
