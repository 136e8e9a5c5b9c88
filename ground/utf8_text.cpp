// See utf8_text.h.
#include "ground/utf8_text.h"

namespace qvx {
namespace {

constexpr unsigned kReplacement = 0xFFFD;

bool IsHigh(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

// The code point at i, which moves to its last unit.
unsigned CodePointAt(std::wstring_view text, std::size_t& i) {
  const unsigned unit = static_cast<unsigned>(text[i]);
  if (!IsHigh(unit)) return IsLow(unit) || unit > 0x10FFFF ? kReplacement : unit;
  const unsigned next = i + 1 < text.size() ? static_cast<unsigned>(text[i + 1]) : 0;
  if (!IsLow(next)) return kReplacement;
  ++i;
  return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
}

void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) AppendUtf8(out, CodePointAt(text, i));
  return out;
}

}  // namespace qvx
