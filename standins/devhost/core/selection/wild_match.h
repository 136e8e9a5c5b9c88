// Wild-card patterns as selection filters and acutWcMatch use them.
#pragma once

#include <string>

namespace devhost {

// The host's wild cards, case ignored: * any text, ? any character, # a digit, @ a letter, .
// neither,
// [..] one of, [~..] none of, ~ in front negates the pattern, ` takes the next as it stands, and
// commas separate patterns of which one must match.
bool WildMatch(const std::wstring& text, const std::wstring& patterns);

}  // namespace devhost
