// Rectangles and flags in the shell state.
#pragma once

#include <optional>

#include "devhost/core/base/json.h"
#include "ground/plain_types.h"

namespace devhost {

// The member `rect` of an object, four whole numbers; nothing if it has none.
std::optional<RECT> StateRect(const Json& object);

// The member is there and is false.
bool IsStateFalse(const Json& object, const char* member);

bool IsEmptyRect(const RECT& rect);

}  // namespace devhost
