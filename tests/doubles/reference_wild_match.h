// The host's wild cards by plain recursion over one pattern and text in upper case ASCII: slow and
// simple, to compare WildCard with.
#pragma once

#include <string_view>

bool ReferenceWildMatch(std::wstring_view text, std::wstring_view patterns);
