// Narrow text of the ANSI code page into wide text, for tokens. Plain ASCII, which most of a menu
// is, needs no conversion; the rest goes through the kernel's strings.
#pragma once

#include <string_view>

#include "kernel/twcstring.h"
#include "menu/menu_scanner.h"

class AnsiText {
 public:
  // Valid until the next call. Longer texts than a token are fine.
  std::wstring_view Decode(std::string_view narrow);
  void Decode(std::string_view narrow, TWCString& out) {
    const std::wstring_view wide = Decode(narrow);
    out.Assign(wide.data(), static_cast<int>(wide.size()));
  }

 private:
  wchar_t m_ascii[kLongestToken + 1];
  TWCString m_other;
};
