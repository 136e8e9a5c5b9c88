// Wild-card patterns of selection filters and acutWcMatch.
#pragma once

#include <string>

namespace devhost {

// Compares ignoring case. * matches any text, ? any character, # a digit, @ a letter, . a character
// that is neither, [..] one of the characters, [~..] any other; ~ in front negates the pattern, `
// quotes the next character, commas separate alternative patterns.
bool WildMatch(const std::wstring& text, const std::wstring& patterns);

}  // namespace devhost
