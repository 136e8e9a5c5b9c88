#include "tools/qmn/check/text_decoder.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "afxstr.h"

namespace {

constexpr uint16_t kReplacement = 0xFFFD;

unsigned ByteAt(std::string_view text, size_t at) { return static_cast<unsigned char>(text[at]); }

// The single unit of a character, or the replacement: systems substitute invalid bytes differently.
uint16_t OneUnit(std::string_view bytes, unsigned page) {
  const std::wstring wide = AnsiToWide(bytes, page);
  if (wide.size() != 1 || wide[0] == 0 || wide[0] == L'?') return kReplacement;
  return static_cast<uint16_t>(wide[0]);
}

struct CodeRange {
  unsigned first, last;
};

bool IsIn(const CodeRange* begin, const CodeRange* end, unsigned code) {
  return std::any_of(begin, end, [code](const CodeRange& range) {
    return code >= range.first && code <= range.last;
  });
}

constexpr CodeRange kWide[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F9FF}, {0x20000, 0x3FFFD}};
constexpr CodeRange kNoWidth[] = {{0x300, 0x36F}, {0x200B, 0x200F}, {0xFEFF, 0xFEFF}};

}  // namespace

TextChar TextDecoder::Next(std::string_view text, size_t at) {
  const unsigned first = ByteAt(text, at);
  if (first < 0x80) return {1, first, true};
  if (m_page == kUtf8Page) return NextUtf8(text, at);
  if (at + 1 < text.size())
    if (const TextChar pair = Pair(text.substr(at, 2)); pair.isValid) return pair;
  return Single(text[at]);
}

TextChar TextDecoder::Pair(std::string_view pair) {
  if (m_pairs.empty()) m_pairs.resize(0x8000);
  uint16_t& unit = m_pairs[(ByteAt(pair, 0) - 0x80) << 8 | ByteAt(pair, 1)];
  if (!unit) unit = OneUnit(pair, m_page);
  return {2, unit, unit != kReplacement};
}

TextChar TextDecoder::Single(char byte) {
  uint16_t& unit = m_singles[static_cast<unsigned char>(byte) - 0x80];
  if (!unit) unit = OneUnit({&byte, 1}, m_page);
  // Some systems map invalid bytes to the private use area.
  if (unit >= 0xE000 && unit < 0xF900) unit = kReplacement;
  return {1, unit, unit != kReplacement};
}

TextChar NextUtf8(std::string_view text, size_t at) {
  const unsigned first = ByteAt(text, at);
  if (first < 0x80) return {1, first, true};
  const size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() - at < size) return {1, kReplacement, false};
  unsigned code = first & (0xFFu >> (size + 1));
  for (size_t i = 1; i < size; ++i) {
    const unsigned next = ByteAt(text, at + i);
    if ((next & 0xC0) != 0x80) return {1, kReplacement, false};
    code = code << 6 | (next & 0x3F);
  }
  constexpr unsigned kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isHalf = code >= 0xD800 && code < 0xE000;
  if (code < kLeast[size] || code > 0x10FFFF || isHalf) return {1, kReplacement, false};
  return {size, code, true};
}

int DisplayWidth(unsigned code) {
  if (code < 0x300) return 1;
  if (IsIn(std::begin(kNoWidth), std::end(kNoWidth), code)) return 0;
  return IsIn(std::begin(kWide), std::end(kWide), code) ? 2 : 1;
}
