// Simple case folding for comparisons of names, the same in all builds and locales.
#pragma once

#include <string_view>

class TWCString;

inline char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; }
wchar_t FoldCase(wchar_t unit);  // one UTF-16 unit
bool EqualNamesNoCase(const TWCString& a, std::wstring_view b);
