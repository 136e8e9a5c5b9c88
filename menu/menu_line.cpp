#include "menu/menu_line.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "menu/ansi_text.h"
#include "menu/byte_search.h"
#include "menu/menu_item.h"

namespace {

constexpr size_t kLongestLabel = 255;
constexpr size_t kLongestCommand = 2047;
constexpr char kEscape = 27;

template <class Unit>
std::basic_string_view<Unit> TrimEnd(std::basic_string_view<Unit> text) {
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// Writes the command as it is sent to the host: ';' outside quotes becomes a newline, and a newline
// is appended. "^C" and "^c" become ESC; '^' with any other character is dropped with that
// character (deliberate: "^^C" leaves a plain C), and so is a '^' at the end. Returns the end of
// the output, which has at most one unit more than the text.
wchar_t* ExpandCommand(std::wstring_view text, wchar_t* out) {
  bool quoted = false;
  for (size_t i = 0; i < text.size(); ++i) {
    wchar_t c = text[i];
    if (c == L'"') quoted = !quoted;
    if (c == L'^') {
      if (++i == text.size()) break;
      if (text[i] == L'"') quoted = !quoted;
      if (text[i] != L'C' && text[i] != L'c') continue;
      c = kEscape;
    }
    *out++ = c == L';' && !quoted ? L'\n' : c;
  }
  *out++ = L'\n';
  return out;
}

// Copies up to the first character that is special in a command or not ASCII and advances to it;
// false when there is none. The eight bytes before `end` must be readable, and seven bytes after
// the output are overwritten.
bool CopyPlain(const char*& p, const char* end, char*& out) {
  for (;;) {
    const bool isLast = end - p < 8;
    const std::uint64_t eight = isLast ? bytes::LastOf(p, end) : bytes::EightAt(p);
    std::memcpy(out, &eight, sizeof eight);
    const std::uint64_t marks = bytes::Marks(eight, '"') | bytes::Marks(eight, ';') |
                                bytes::Marks(eight, '^') | (eight & bytes::kHighBits);
    const std::ptrdiff_t count = marks ? std::countr_zero(marks) / 8 : isLast ? end - p : 8;
    p += count;
    out += count;
    if (marks || isLast) return marks;
  }
}

// The same for an ASCII command, eight bytes at a time; null when it is not ASCII. The eight bytes
// before its end must be readable.
char* ExpandCommand(std::string_view text, char* out) {
  const char* p = text.data();
  const char* end = p + text.size();
  bool quoted = false;
  while (CopyPlain(p, end, out)) {
    const char special = *p++;
    if (special & 0x80) return nullptr;
    if (special == '"') quoted = !quoted;
    if (special != '^') {
      *out++ = special == ';' && !quoted ? '\n' : special;
      continue;
    }
    if (p == end) break;
    if (*p & 0x80) return nullptr;
    if (*p == '"') quoted = !quoted;
    if (*p == 'C' || *p == 'c') *out++ = kEscape;
    ++p;
  }
  *out++ = '\n';
  return out;
}

void Assign(TWCString& out, std::wstring_view text) {
  out.Assign(text.data(), static_cast<int>(text.size()));
}

// Handles lines with an ASCII command and valid characters in the label; false, with the item
// unchanged, for others.
bool ParseUsualLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item) {
  std::wstring_view label;
  const char* close = ansi.DecodeUntil(']', narrow.substr(1), label);
  if (!close) return false;
  std::string_view command = TrimEnd(std::string_view(close + 1, narrow.data() + narrow.size()));
  if (!command.empty()) {
    if (command.back() == ';') command.remove_suffix(1);
    if (command.data() + command.size() - narrow.data() < 8) return false;
    char expanded[kLongestToken + 1 + 8];
    const char* end = ExpandCommand(command, expanded);
    if (!end) return false;
    wchar_t wide[kLongestToken + 1];
    const wchar_t* wideEnd = bytes::WidenAscii(expanded, end, wide);
    item.m_strCommand.Assign(wide, static_cast<int>(wideEnd - wide));
  }
  Assign(item.m_strLabel, label);
  return true;
}

}  // namespace

void ParseMenuLine(std::wstring_view text, TMenuItem& item) {
  size_t close = 0;
  while (close < text.size() && text[close] != L']') ++close;
  if (close == text.size()) return;
  const std::wstring_view label = text.substr(1, close - 1).substr(0, kLongestLabel);
  Assign(item.m_strLabel, label);

  std::wstring_view command = TrimEnd(text.substr(close + 1).substr(0, kLongestCommand));
  if (command.empty()) {
    item.m_strCommand.Empty();
    return;
  }
  if (command.back() == L';') command.remove_suffix(1);
  wchar_t expanded[kLongestCommand + 1];
  const wchar_t* end = ExpandCommand(command, expanded);
  item.m_strCommand.Assign(expanded, static_cast<int>(end - expanded));
}

void ParseMenuLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item) {
  if (!ParseUsualLine(narrow, ansi, item)) ParseMenuLine(ansi.Decode(narrow), item);
}
