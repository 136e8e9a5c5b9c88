#include "menu/ansi_text.h"

#include <cstring>

namespace {

constexpr uint16_t kNoCharacter = 0xFFFD;
constexpr size_t kPairs = 0x8000;
constexpr uint64_t kHighBits = 0x8080808080808080u;

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

// Those of the system's page outlive a run: no page changes while a program runs.
std::vector<uint16_t>& PairsOfTheSystem() {
  static std::vector<uint16_t> pairs;
  return pairs;
}

// Widens ASCII eight at a time; stops at the first eight that hold anything else.
const char* WidenEights(const char* p, const char* end, wchar_t*& out) {
  for (; end - p >= 8; p += 8, out += 8) {
    uint64_t eight;
    std::memcpy(&eight, p, 8);
    if (eight & kHighBits) break;
    for (int i = 0; i < 8; ++i) out[i] = static_cast<wchar_t>(p[i]);
  }
  return p;
}

}  // namespace

AnsiText::AnsiText(NarrowDecoder* decoder)
    : m_decoder(decoder), m_pairs(decoder ? m_ownPairs : PairsOfTheSystem()) {
  m_pairs.resize(kPairs);
}

const wchar_t* AnsiText::DecodeQuickly(std::string_view narrow) {
  const char* end = narrow.data() + narrow.size();
  wchar_t* out = m_units;
  const char* p = WidenEights(narrow.data(), end, out);
  uint16_t* pairs = m_pairs.data();
  while (p < end) {
    const unsigned first = Byte(*p++);
    if (first < 0x80) {
      *out++ = static_cast<wchar_t>(first);
      continue;
    }
    if (p == end) return nullptr;
    uint16_t& place = pairs[(first - 0x80) << 8 | Byte(*p++)];
    const uint16_t unit = place ? place : Remember(p - 2, place);
    if (unit == kNoCharacter) return nullptr;
    *out++ = static_cast<wchar_t>(unit);
  }
  return out;
}

std::wstring_view AnsiText::DecodeWhole(std::string_view narrow) {
  Convert(narrow, m_other);
  return {m_other.c_str(), static_cast<size_t>(m_other.Length())};
}

void AnsiText::Convert(std::string_view narrow, TWCString& out) {
  if (m_decoder) return m_decoder->Decode(narrow, out);
  out = TUString(narrow.data(), static_cast<int>(narrow.size()));
}

uint16_t AnsiText::Remember(const char* pair, uint16_t& place) {
  TWCString wide;
  Convert({pair, 2}, wide);
  const bool one = wide.Length() == 1 && wide.c_str()[0] != 0;
  return place = one ? static_cast<uint16_t>(wide.c_str()[0]) : kNoCharacter;
}
