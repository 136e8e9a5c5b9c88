// Numbers as text for the user: no exponent, and at most the digits that a scale or a length needs.
#include <cmath>
#include <cwchar>

#include "kernel/twcstring.h"

TWCString& TWCString::operator<<(double value) {
  constexpr int kDecimals = 4;
  wchar_t digits[400];  // the longest double has 309 digits before the point
  if (!std::isfinite(value)) return *this += L"?";
  std::swprintf(digits, 400, L"%.*f", kDecimals, value);
  wchar_t* end = digits + std::wcslen(digits);
  while (end[-1] == L'0') *--end = 0;
  if (end[-1] == L'.') *--end = 0;
  return *this += std::wcscmp(digits, L"-0") ? digits : L"0";
}
