// The names of the bitmaps in an icon library, a Windows module whose resources are read here from
// its bytes, so that this works on every system.
#pragma once

#include <optional>
#include <string>

#include "tools/qmn/check/check_settings.h"

// Empty when the bytes are no module. A module without bitmaps gives an empty set.
std::optional<NameSet> BitmapNames(const std::string& bytes);
