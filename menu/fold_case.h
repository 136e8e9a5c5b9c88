// Simple case folding, the same on every build and in every locale, for names that are compared
// without regard to case.
#pragma once

#include <string_view>

class TWCString;

inline char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; }
wchar_t FoldCase(wchar_t unit);  // one UTF-16 unit
bool EqualNamesNoCase(const TWCString& a, std::wstring_view b);
