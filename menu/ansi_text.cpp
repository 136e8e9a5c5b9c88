#include "menu/ansi_text.h"

#include "afx.h"
#include "menu/byte_search.h"

namespace {

constexpr uint16_t kNoCharacter = 0xFFFD;
constexpr size_t kPairs = 0x8000;
unsigned Byte(char c) { return static_cast<unsigned char>(c); }

// Shared by all runs: the system's code page does not change while a program runs.
std::vector<uint16_t>& PairsOfTheSystem() {
  static std::vector<uint16_t> pairs;
  return pairs;
}

}  // namespace

AnsiText::AnsiText(NarrowDecoder* decoder)
    : m_decoder(decoder), m_pairs(decoder ? m_ownPairs : PairsOfTheSystem()) {
  m_pairs.resize(kPairs);
}

// False when the two bytes are not one character.
inline bool AnsiText::DecodePair(const char*& p, const char* end, wchar_t*& out) {
  if (end - p < 2) return false;
  uint16_t& place = m_pairs[(Byte(p[0]) - 0x80) << 8 | Byte(p[1])];
  const uint16_t unit = place ? place : Remember(p, place);
  if (unit == kNoCharacter) return false;
  *out++ = static_cast<wchar_t>(unit);
  p += 2;
  return true;
}

const wchar_t* AnsiText::DecodeQuickly(std::string_view narrow) {
  const char* p = narrow.data();
  const char* end = p + narrow.size();
  wchar_t* out = m_units;
  while (p < end) {
    if (end - p >= 8 && !(bytes::EightAt(p) & bytes::kHighBits)) {
      out = bytes::WidenAscii(p, p + 8, out);
      p += 8;
    } else if (!(*p & 0x80)) {
      *out++ = static_cast<wchar_t>(*p++);
    } else if (!DecodePair(p, end, out)) {
      return nullptr;
    }
  }
  return out;
}

const char* AnsiText::DecodeUntil(char stop, std::string_view narrow, std::wstring_view& units) {
  if (narrow.size() > kLongestToken) return nullptr;
  const char* p = narrow.data();
  const char* end = p + narrow.size();
  wchar_t* out = m_units;
  while (p < end && *p != stop) {
    if (!(*p & 0x80))
      *out++ = static_cast<wchar_t>(*p++);
    else if (!DecodePair(p, end, out))
      return nullptr;
  }
  units = {m_units, static_cast<size_t>(out - m_units)};
  return p < end ? p : nullptr;
}

std::wstring_view AnsiText::DecodeWhole(std::string_view narrow) {
  Convert(narrow, m_other);
  return {m_other, static_cast<size_t>(m_other.Length())};
}

void AnsiText::Convert(std::string_view narrow, TWCString& out) {
  if (m_decoder) return m_decoder->Decode(narrow, out);
  const CStringW wide(narrow.data(), static_cast<int>(narrow.size()));
  out.Assign(wide, wide.GetLength());
}

uint16_t AnsiText::Remember(const char* pair, uint16_t& place) {
  TWCString wide;
  Convert({pair, 2}, wide);
  const bool one = wide.Length() == 1 && wide[0] != 0;
  return place = one ? static_cast<uint16_t>(wide[0]) : kNoCharacter;
}
