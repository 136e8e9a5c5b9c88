// Narrow text of the ANSI code page into wide text, for tokens. A conversion by the system costs
// more than all the rest of reading a line, so ASCII is widened here and each double-byte character
// is converted once and remembered. Text with anything else in it, a byte that is no character for
// instance, is converted as a whole.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "kernel/twcstring.h"
#include "menu/menu_scanner.h"

// Converts whole texts of some other code page. ASCII stands for itself in it.
class NarrowDecoder {
 public:
  virtual ~NarrowDecoder() = default;
  virtual void Decode(std::string_view narrow, TWCString& wide) = 0;
};

class AnsiText {
 public:
  // Without a decoder the page is the system's, by the kernel's strings.
  explicit AnsiText(NarrowDecoder* decoder = nullptr);

  // Valid until the next call. Longer texts than a token are fine.
  std::wstring_view Decode(std::string_view narrow) {
    if (narrow.size() <= kLongestToken)
      if (const wchar_t* end = DecodeQuickly(narrow))
        return {m_units, static_cast<size_t>(end - m_units)};
    return DecodeWhole(narrow);
  }
  // What stands in front of the first `stop`, an ASCII character, and the place of that one. Null
  // when there is none or when the text has to be decoded as a whole.
  const char* DecodeUntil(char stop, std::string_view narrow, std::wstring_view& units);
  void DecodeTo(std::string_view narrow, TWCString& out) {
    const std::wstring_view wide = Decode(narrow);
    out.Assign(wide.data(), static_cast<int>(wide.size()));
  }

 private:
  // Behind the last unit; null when the text has to be converted as a whole.
  const wchar_t* DecodeQuickly(std::string_view narrow);
  bool DecodePair(const char*& p, const char* end, wchar_t*& out);
  std::wstring_view DecodeWhole(std::string_view narrow);
  void Convert(std::string_view narrow, TWCString& out);
  uint16_t Remember(const char* pair, uint16_t& place);

  NarrowDecoder* m_decoder;
  std::vector<uint16_t> m_ownPairs;
  std::vector<uint16_t>& m_pairs;  // by the two bytes; 0 not asked yet, kNoCharacter not one unit
  wchar_t m_units[kLongestToken + 8];
  TWCString m_other;
};
