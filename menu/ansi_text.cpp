#include "menu/ansi_text.h"

namespace {
constexpr uint16_t kNoCharacter = 0xFFFD;

unsigned Byte(char c) { return static_cast<unsigned char>(c); }
}  // namespace

std::wstring_view AnsiText::Decode(std::string_view narrow) {
  if (narrow.size() <= kLongestToken && DecodeQuickly(narrow)) return {m_units, m_count};
  m_other = TUString(narrow.data(), static_cast<int>(narrow.size()));
  return {m_other.c_str(), static_cast<size_t>(m_other.Length())};
}

bool AnsiText::DecodeQuickly(std::string_view narrow) {
  m_count = 0;
  for (size_t i = 0; i < narrow.size(); ++i) {
    const unsigned first = Byte(narrow[i]);
    if (first < 0x80) {
      m_units[m_count++] = static_cast<wchar_t>(first);
      continue;
    }
    if (i + 1 == narrow.size()) return false;
    if (m_pairs.empty()) m_pairs.resize(0x8000);
    uint16_t unit = m_pairs[(first - 0x80) << 8 | Byte(narrow[i + 1])];
    if (unit == 0) unit = Remember(&narrow[i]);
    if (unit == kNoCharacter) return false;
    m_units[m_count++] = static_cast<wchar_t>(unit);
    ++i;
  }
  return true;
}

uint16_t AnsiText::Remember(const char* pair) {
  const TUString wide(pair, 2);
  const bool one = wide.Length() == 1 && wide.c_str()[0] != 0;
  const uint16_t unit = one ? static_cast<uint16_t>(wide.c_str()[0]) : kNoCharacter;
  return m_pairs[(Byte(pair[0]) - 0x80) << 8 | Byte(pair[1])] = unit;
}
