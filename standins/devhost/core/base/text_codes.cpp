// Codes in drawing texts; see the header.
#include "devhost/core/base/text_codes.h"

#include <cwctype>
#include <string_view>

namespace devhost {

std::wstring DisplayText(const std::wstring& text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != L'%' || i + 2 >= text.size() || text[i + 1] != L'%') {
      out += text[i];
      continue;
    }
    const wchar_t code = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(text[i + 2])));
    i += 2;
    if (code == L'd')
      out += L'°';
    else if (code == L'p')
      out += L'±';
    else if (code == L'c')
      out += L'Φ';
    else if (code == L'%')
      out += L'%';
    else if (std::iswdigit(static_cast<wint_t>(code))) {
      int number = 0, digits = 0;
      for (; digits < 3 && i < text.size() && std::iswdigit(static_cast<wint_t>(text[i]));
           ++digits, ++i)
        number = number * 10 + (text[i] - L'0');
      --i;
      if (number >= 32) out += static_cast<wchar_t>(number);
    }
  }
  return out;
}

namespace {
double CharWidth(wchar_t c) { return c >= 0x2E80 ? 1.0 : 0.6; }
}  // namespace

double TextLength(const std::wstring& text) {
  double length = 0;
  for (wchar_t c : text) length += CharWidth(c);
  return length;
}

namespace {

// Skips a code that ends in a semicolon, such as \H2.5x; or \fArial|b0;
std::size_t SkipToSemicolon(const std::wstring& text, std::size_t at) {
  const std::size_t end = text.find(L';', at);
  return end == std::wstring::npos ? text.size() - 1 : end;
}

void Wrap(std::vector<std::wstring>& lines, const std::wstring& line, double width) {
  if (width <= 0 || TextLength(line) <= width) {
    lines.push_back(line);
    return;
  }
  std::wstring part;
  // Counted along: measuring the part anew would be quadratic for a line of a megabyte.
  double length = 0;
  for (wchar_t c : line) {
    if (!part.empty() && length + CharWidth(c) > width) {
      const std::size_t blank = part.rfind(L' ');
      std::wstring rest;
      if (c < 0x2E80 && blank != std::wstring::npos && blank > 0) {
        rest = part.substr(blank + 1);
        part.resize(blank);
      }
      lines.push_back(part);
      part = rest;
      length = TextLength(part);
    }
    part += c;
    length += CharWidth(c);
  }
  if (!part.empty()) lines.push_back(part);
}

// Reads the formatting code whose letter is at `at`. Appends the visible text to `line` and returns
// the index of the last character of the code.
std::size_t ReadFormat(const std::wstring& text, std::size_t at, std::wstring* line) {
  const wchar_t code = text[at];
  constexpr std::wstring_view kWithoutArgument = L"LlOoKk", kWithArgument = L"HhFfCcTQWAp";
  if (kWithoutArgument.find(code) != kWithoutArgument.npos) return at;
  if (kWithArgument.find(code) != kWithArgument.npos) return SkipToSemicolon(text, at);
  if (code == L'~') {
    *line += L' ';
    return at;
  }
  if (code != L'S') {
    *line += code;
    return at;
  }
  // A stacked fraction, shown on one line.
  const std::size_t end = SkipToSemicolon(text, at);
  for (std::size_t k = at + 1; k < end; ++k)
    *line += text[k] == L'^' || text[k] == L'#' ? L'/' : text[k];
  return end;
}

}  // namespace

std::vector<std::wstring> MTextLines(const std::wstring& text, double width) {
  std::vector<std::wstring> lines;
  std::wstring line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t c = text[i];
    if (c == L'{' || c == L'}' || c == L'\r') continue;
    if (c == L'\n') {
      Wrap(lines, DisplayText(line), width);
      line.clear();
      continue;
    }
    if (c != L'\\' || i + 1 >= text.size()) {
      line += c;
      continue;
    }
    ++i;
    if (text[i] == L'P' || text[i] == L'N' || text[i] == L'X') {
      Wrap(lines, DisplayText(line), width);
      line.clear();
    } else {
      i = ReadFormat(text, i, &line);
    }
  }
  Wrap(lines, DisplayText(line), width);
  return lines;
}

}  // namespace devhost
