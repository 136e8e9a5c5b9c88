// Narrow text of the ANSI code page into wide text, for tokens. A conversion by the system costs
// more than all the rest of reading a line, so ASCII is widened here and each double-byte character
// is converted by the kernel's strings once and remembered. Text with anything else in it, a byte
// that is no character for instance, goes to the kernel's strings as a whole.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

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
  bool DecodeQuickly(std::string_view narrow);
  uint16_t Remember(const char* pair);

  wchar_t m_units[kLongestToken + 1];
  size_t m_count = 0;
  TWCString m_other;
  std::vector<uint16_t> m_pairs;  // by the two bytes; 0 not asked yet, kNoCharacter not one unit
};
