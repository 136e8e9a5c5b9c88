// Converts tokens from the ANSI code page to wide text. A conversion by the system takes longer
// than the rest of reading a line, so that ASCII is widened here and each double-byte character is
// converted once and cached. Text that contains anything else, for example an invalid byte, is
// converted as a whole.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "kernel/twcstring.h"
#include "menu/menu_scanner.h"

// Converts texts of another code page, of which ASCII is a part.
class NarrowDecoder {
 public:
  virtual ~NarrowDecoder() = default;
  virtual void Decode(std::string_view narrow, TWCString& wide) = 0;
};

class AnsiText {
 public:
  // Without a decoder the code page is the system's.
  explicit AnsiText(NarrowDecoder* decoder = nullptr);

  // Valid until the next call. The text may be longer than a token.
  std::wstring_view Decode(std::string_view narrow) {
    if (narrow.size() <= kLongestToken)
      if (const wchar_t* end = DecodeQuickly(narrow))
        return {m_units, static_cast<size_t>(end - m_units)};
    return DecodeWhole(narrow);
  }
  // Decodes the text before the first `stop`, an ASCII character, and returns the position of the
  // stop; null when there is none or when the text must be decoded as a whole.
  const char* DecodeUntil(char stop, std::string_view narrow, std::wstring_view& units);
  void DecodeTo(std::string_view narrow, TWCString& out) {
    const std::wstring_view wide = Decode(narrow);
    out.Assign(wide.data(), static_cast<int>(wide.size()));
  }

 private:
  // The end of the decoded units; null when the text must be converted as a whole.
  const wchar_t* DecodeQuickly(std::string_view narrow);
  bool DecodePair(const char*& p, const char* end, wchar_t*& out);
  std::wstring_view DecodeWhole(std::string_view narrow);
  void Convert(std::string_view narrow, TWCString& out);
  uint16_t Remember(const char* pair, uint16_t& place);

  NarrowDecoder* m_decoder;
  std::vector<uint16_t> m_ownPairs;
  std::vector<uint16_t>&
      m_pairs;  // by the two bytes; 0: not converted yet; kNoCharacter: not one unit
  wchar_t m_units[kLongestToken + 8];
  TWCString m_other;
};
