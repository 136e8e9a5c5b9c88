// Decoding texts of drawing files; see dxf_text.h.
#include <algorithm>
#include <cctype>
#include <charconv>

#include "afxstr.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {
namespace {

struct NamedPage {
  std::string_view name;
  unsigned page;
};
constexpr NamedPage kNamedPages[] = {
    {"UTF8", 65001},     {"UTF-8", 65001},     {"ASCII", 1252}, {"GB2312", 936},
    {"BIG5", 950},       {"KSC5601", 949},     {"JOHAB", 1361}, {"MACINTOSH", 1252},
    {"ISO88591", 28591}, {"ISO8859-1", 28591},
};

// The digit n of \M+nXXXX selects the code page of the two bytes.
constexpr unsigned kMultiBytePages[] = {932, 950, 949, 1361, 936};

// The value of `count` hexadecimal digits, or nothing.
std::optional<unsigned> HexAt(const std::wstring& text, std::size_t at, std::size_t count) {
  if (text.size() - at < count) return std::nullopt;
  unsigned value = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    const wchar_t c = text[i];
    if (c > 127 || !std::isxdigit(static_cast<int>(c))) return std::nullopt;
    value = value * 16 + (c <= L'9' ? c - L'0' : (c | 32) - L'a' + 10);
  }
  return value;
}

// Code pages that the system lacks, or in which the ASCII characters of the format
// differ, are ignored.
bool IsUsable(unsigned page) {
  if (page == 65001) return true;
  if (page == 1200 || page == 1201 || page == 12000 || page == 12001) return false;  // wide units
  const std::wstring high = AnsiToWide("\xB0\xC4", page);  // valid in every code page of the format
  return AnsiToWide("A0\\", page) == L"A0\\" && !high.empty() &&
         high.find(L'\xFFFD') == std::wstring::npos;
}

std::wstring TwoBytes(unsigned value, unsigned page) {
  const char bytes[2] = {static_cast<char>(value >> 8), static_cast<char>(value & 255)};
  return AnsiToWide(std::string_view(bytes, 2), page);
}

// Reads a code at a backslash. Returns its length; 0: there is none.
std::size_t TakeCode(const std::wstring& text, std::size_t at, std::wstring* out) {
  if (text.size() - at < 3 || text[at + 2] != L'+') return 0;
  if (text[at + 1] == L'U') {
    const std::optional<unsigned> unit = HexAt(text, at + 3, 4);
    if (!unit || *unit == 0) return 0;
    *out += static_cast<wchar_t>(*unit);
    return 7;
  }
  if (text[at + 1] == L'M' && text.size() - at >= 8 && text[at + 3] >= L'1' &&
      text[at + 3] <= L'5') {
    const std::optional<unsigned> value = HexAt(text, at + 4, 4);
    if (!value) return 0;
    *out += TwoBytes(*value, kMultiBytePages[text[at + 3] - L'1']);
    return 8;
  }
  return 0;
}

// "^J" is a newline, "^I" a tab, "^ " a caret. Other carets are kept: stacked fractions use them.
std::size_t TakeCaret(const std::wstring& text, std::size_t at, std::wstring* out) {
  if (at + 1 >= text.size()) return 0;
  switch (text[at + 1]) {
    case L'J':
      *out += L'\n';
      return 2;
    case L'I':
      *out += L'\t';
      return 2;
    case L'M':
      *out += L'\r';
      return 2;
    case L' ':
      *out += L'^';
      return 2;
    default:
      return 0;
  }
}

}  // namespace

std::wstring DxfDecoder::Text(std::string_view value) const {
  std::wstring text = AnsiToWide(value, m_page);
  std::replace(text.begin(), text.end(), L'\0',
               L'\xFFFD');  // C strings would end there
  if (text.find_first_of(L"\\^") == std::wstring::npos) return text;
  std::wstring out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t taken = text[i] == L'\\'  ? TakeCode(text, i, &out)
                              : text[i] == L'^' ? TakeCaret(text, i, &out)
                                                : 0;
    if (taken == 0) out += text[i];
    i += std::max<std::size_t>(taken, 1);
  }
  return out;
}

std::optional<unsigned> DxfPageOf(std::string_view name) {
  std::string upper(TrimBlanks(name));
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  for (const NamedPage& known : kNamedPages)
    if (upper == known.name) return known.page;
  for (std::string_view prefix : {"ANSI_", "DOS", "CP"}) {
    if (upper.substr(0, prefix.size()) != prefix) continue;
    unsigned page = 0;
    const char* digits = upper.data() + prefix.size();
    const char* last = upper.data() + upper.size();
    const auto [end, error] = std::from_chars(digits, last, page);
    if (error == std::errc() && end == last && page > 0 && page < 65536 && IsUsable(page))
      return page;
  }
  return std::nullopt;
}

}  // namespace devhost
