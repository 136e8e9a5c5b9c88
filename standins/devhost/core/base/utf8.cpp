// Conversions through the class library; see the header.
#include "devhost/core/base/utf8.h"

#include <cstdint>

#include "afxstr.h"

namespace devhost {
namespace {

constexpr unsigned kUtf8Page = 65001;
constexpr wchar_t kReplacement = 0xFFFD;

bool IsHigh(wchar_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(wchar_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// Well-formed UTF-16. The systems convert a lone surrogate differently, so it is replaced here.
// Where wchar_t has 32 bits, other libraries give a character above U+FFFF as one unit.
std::wstring WellFormed(const std::wstring& text) {
  std::wstring out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto unit = static_cast<std::uint32_t>(text[i]);
    if (unit > 0xFFFF) {
      out += static_cast<wchar_t>(0xD7C0 + (unit >> 10));
      out += static_cast<wchar_t>(0xDC00 + (unit & 0x3FF));
    } else if (IsHigh(text[i]) && i + 1 < text.size() && IsLow(text[i + 1])) {
      out.append(text, i++, 2);
    } else {
      out += IsHigh(text[i]) || IsLow(text[i]) ? kReplacement : text[i];
    }
  }
  return out;
}

}  // namespace

std::string Utf8(const wchar_t* text) { return text ? Utf8(std::wstring(text)) : std::string(); }

std::string Utf8(const std::wstring& text) { return WideToAnsi(WellFormed(text), kUtf8Page); }

std::wstring Wide(const std::string& utf8) { return AnsiToWide(utf8, kUtf8Page); }

}  // namespace devhost
