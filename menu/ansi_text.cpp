#include "menu/ansi_text.h"

std::wstring_view AnsiText::Decode(std::string_view narrow) {
  if (narrow.size() <= kLongestToken) {
    unsigned char all = 0;
    for (size_t i = 0; i < narrow.size(); ++i) {
      const auto byte = static_cast<unsigned char>(narrow[i]);
      m_ascii[i] = byte;
      all |= byte;
    }
    if (all < 0x80) return {m_ascii, narrow.size()};
  }
  m_other = TUString(narrow.data(), static_cast<int>(narrow.size()));
  return {m_other.c_str(), static_cast<size_t>(m_other.Length())};
}
