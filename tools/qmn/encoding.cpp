#include "tools/qmn/encoding.h"

#include "afxstr.h"
#include "tools/qmn/check/source_text.h"
#include "tools/qmn/code_page.h"
#include "tools/qmn/decompile_encoder.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsAscii(char c) { return c > 0; }

// Without a mark, two ASCII characters at the beginning of the file decide. A source begins with a
// comment, a blank or a word, so that no other text looks like this.
bool IsUtf16(std::string_view bytes, size_t low) {
  const size_t high = 1 - low;
  if (bytes.size() < 4) return false;
  if (bytes[low] == '\xFF' && bytes[high] == '\xFE') return true;
  return IsAscii(bytes[low]) && IsAscii(bytes[2 + low]) && bytes[high] == 0 && bytes[2 + high] == 0;
}

std::wstring Utf16Units(std::string_view bytes, size_t low) {
  std::wstring units;
  for (size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto first = static_cast<unsigned char>(bytes[at + low]);
    const auto second = static_cast<unsigned char>(bytes[at + 1 - low]);
    const auto unit = static_cast<wchar_t>(second << 8 | first);
    if (at > 0 || unit != 0xFEFF) units += unit;
  }
  return units;
}

bool IsUtf8(std::string_view bytes) {
  size_t at = 0;
  while (at < bytes.size()) {
    const TextChar next = NextUtf8(bytes, at);
    if (!next.isValid) return false;
    at += next.size;
  }
  return true;
}

}  // namespace

void RemoveUtf8Mark(std::string& bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.erase(0, kUtf8Mark.size());
}

Encoding EncodingOf(std::string_view bytes, unsigned page) {
  if (IsUtf16(bytes, 0)) return Encoding::kUtf16Little;
  if (IsUtf16(bytes, 1)) return Encoding::kUtf16Big;
  if (page == kUtf8Page) return IsUtf8(bytes) ? Encoding::kPage : Encoding::kNotUtf8;
  if (bytes.starts_with(kUtf8Mark)) return Encoding::kUtf8WithMark;
  return LooksLikeUtf8(bytes) ? Encoding::kUtf8 : Encoding::kPage;
}

std::string ToUtf8(const std::string& bytes, Encoding encoding, unsigned page) {
  switch (encoding) {
    case Encoding::kUtf16Little:
      return Utf8(Utf16Units(bytes, 0));
    case Encoding::kUtf16Big:
      return Utf8(Utf16Units(bytes, 1));
    case Encoding::kNotUtf8:
      return Utf8(AnsiToWide(bytes, kUsualPage));
    case Encoding::kPage:
      if (page != kUtf8Page) return Utf8(AnsiToWide(bytes, page));
      break;
    default:
      break;
  }
  std::string text = bytes;
  RemoveUtf8Mark(text);
  return text;
}

Encoded FromUtf8(const std::string& utf8, unsigned page) {
  Encoded out;
  if (page == kUtf8Page) {
    out.bytes = utf8;
    return out;
  }
  PageEncoder encoder(page);
  for (size_t at = 0; at < utf8.size();) {
    const size_t size = NextUtf8(utf8, at).size;
    if (!encoder.Append(Wide(std::string_view(utf8).substr(at, size)), out.bytes)) {
      out.lackingAt = at;
      out.lacking = encoder.Lacking();
      return out;
    }
    at += size;
  }
  return out;
}
