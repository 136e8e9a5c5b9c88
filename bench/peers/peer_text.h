// Converts code page 936 to UTF-16 with a table that is filled once.
#pragma once

#include <string>
#include <string_view>

namespace peer {

std::u16string Widen(std::string_view narrow);

}  // namespace peer
