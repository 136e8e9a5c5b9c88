#include "kernel/tadsprintf.h"

#include <cstdarg>
#include <cwchar>
#include <vector>

#include "adslib.h"
#include "kernel/twcstring.h"

TADSPrintf adsout;

TADSPrintf& TADSPrintf::operator<<(const wchar_t* text) {
  if (text && *text) acutPrintf(L"%ls", text);
  return *this;
}

TADSPrintf& TADSPrintf::operator<<(const char* narrow) { return *this << TUString(narrow); }

TADSPrintf& TADSPrintf::operator<<(wchar_t unit) {
  const wchar_t text[] = {unit, 0};
  return *this << text;
}

TADSPrintf& TADSPrintf::operator<<(int value) {
  acutPrintf(L"%d", value);
  return *this;
}

TADSPrintf& TADSPrintf::operator<<(double value) {
  acutPrintf(L"%g", value);
  return *this;
}

// Formatted here and printed as plain text: the host's own formatting limits length and
// conversions.
TADSPrintf& TADSPrintf::operator()(const wchar_t* format, ...) {
  std::vector<wchar_t> text(512);
  for (;;) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vswprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    if (length >= 0 && static_cast<std::size_t>(length) < text.size()) return *this << text.data();
    if (text.size() > 1u << 20) return *this;  // an invalid format
    text.resize(text.size() * 2);
  }
}
