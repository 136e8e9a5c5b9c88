// Formatting with the rules of Windows' printf family, the same on every build: C libraries differ
// in the width of text and of long. Used by CString only.
#pragma once

#include <cstdarg>
#include <string>

template <class Char>
std::basic_string<Char> FormatText(const Char* format, va_list arguments);

extern template std::wstring FormatText<wchar_t>(const wchar_t*, va_list);
extern template std::string FormatText<char>(const char*, va_list);
