// UTF-8 and wide text. Wide text holds one UTF-16 unit per wchar_t on every build; a single wchar_t
// above the first plane, as other code on a 32-bit build may give, is accepted on the way out.
#include "devhost/core/base/journal.h"

#include <cstdint>

namespace devhost {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsHigh(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendUtf8(std::string* out, std::uint32_t c) {
  const auto put = [out](std::uint32_t byte) { out->push_back(static_cast<char>(byte)); };
  const auto tail = [&put, c](int shift) { put(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | c >> 6), tail(0);
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12), tail(6), tail(0);
  } else {
    put(0xF0 | c >> 18), tail(12), tail(6), tail(0);
  }
}

void AppendWide(std::wstring* out, std::uint32_t c) {
  if (c < 0x10000) {
    out->push_back(static_cast<wchar_t>(c));
    return;
  }
  out->push_back(static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10)));
  out->push_back(static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
}

// The character at `at`, which moves behind it; behind one byte when that byte starts none.
std::uint32_t TakeUtf8(const std::string& text, std::size_t* at) {
  const auto byte = [&text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
  };
  const std::uint32_t lead = byte((*at)++);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF0 && lead < 0xF5   ? 3
                   : lead >= 0xE0 && lead < 0xF0 ? 2
                   : lead >= 0xC2 && lead < 0xE0 ? 1
                                                 : 0;
  if (!more) return kReplacement;
  constexpr std::uint32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
  std::uint32_t c = lead & (0x3Fu >> more);
  for (int i = 0; i < more; ++i) {
    const std::uint32_t next = byte(*at + static_cast<std::size_t>(i));
    if ((next & 0xC0) != 0x80) return kReplacement;
    c = c << 6 | (next & 0x3F);
  }
  if (c < kSmallest[more] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) return kReplacement;
  *at += static_cast<std::size_t>(more);
  return c;
}

}  // namespace

std::string Utf8(const wchar_t* text) { return text ? Utf8(std::wstring(text)) : std::string(); }

std::string Utf8(const std::wstring& text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t c = static_cast<std::uint32_t>(text[i]);
    const std::uint32_t next = i + 1 < text.size() ? static_cast<std::uint32_t>(text[i + 1]) : 0;
    if (IsHigh(c) && IsLow(next)) {
      c = 0x10000 + ((c - 0xD800) << 10) + (next - 0xDC00);
      ++i;
    } else if (IsHigh(c) || IsLow(c) || c > 0x10FFFF) {
      c = kReplacement;
    }
    AppendUtf8(&out, c);
  }
  return out;
}

std::wstring Wide(const std::string& utf8) {
  std::wstring out;
  out.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) AppendWide(&out, TakeUtf8(utf8, &at));
  return out;
}

}  // namespace devhost
