// UTF-8 of wide texts.
#pragma once

#include <string>
#include <string_view>

namespace qvx {

// UTF-8 of a wide text in UTF-16 or UTF-32. Lone surrogates and values above U+10FFFF become
// U+FFFD, so the result is always valid.
std::string ToUtf8(std::wstring_view text);

}  // namespace qvx
