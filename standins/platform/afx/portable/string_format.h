// Formatting with the rules of Windows' printf family, the same on every build. Used by CString
// only; the widths of text and of long are what the C library would decide differently from place
// to place.
#pragma once

#include <cstdarg>
#include <string>

template <class Char>
std::basic_string<Char> FormatText(const Char* format, va_list arguments);

extern template std::wstring FormatText<wchar_t>(const wchar_t*, va_list);
extern template std::string FormatText<char>(const char*, va_list);
