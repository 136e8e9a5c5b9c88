// Plain types of a fixed width, as the host's interface names them.
#pragma once

#include <cstdint>

namespace Adesk {
typedef std::int16_t Int16;
typedef std::int32_t Int32;
typedef bool Boolean;
}  // namespace Adesk
