#include "menu/menu_line.h"

#include <algorithm>

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

// The command text as the host gets it: ';' outside quotes is a newline, one more ends it. A '^'
// takes the character behind it along: with C or c the pair is an ESC, any other pair vanishes
// without a word (so "^^C" leaves a plain C), and a '^' at the very end vanishes alone.
// Gives the end of what it wrote, at most one unit more than the text has.
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

// The same for a command in ASCII, the plain stretches of it at once.
char* ExpandCommand(std::string_view text, char* out) {
  const char* p = text.data();
  const char* end = p + text.size();
  bool quoted = false;
  for (;;) {
    const char* special = bytes::FindAny<'"', ';', '^'>(p, end);
    out = std::copy(p, special, out);
    if (special == end) break;
    p = special + 1;
    if (*special == '"') quoted = !quoted;
    if (*special != '^') {
      *out++ = *special == ';' && !quoted ? '\n' : *special;
      continue;
    }
    if (p == end) break;
    if (*p == '"') quoted = !quoted;
    if (*p == 'C' || *p == 'c') *out++ = kEscape;
    ++p;
  }
  *out++ = '\n';
  return out;
}

// False when the line is not of the usual kind: a label of whole characters, a command in ASCII.
bool ParseUsualLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item) {
  std::wstring_view label;
  const char* close = ansi.DecodeUntil(']', narrow.substr(1), label);
  const char* end = narrow.data() + narrow.size();
  if (!close || !bytes::IsAscii(close, end)) return false;
  item.m_strLabel.KeepQuickly(label.data(), static_cast<int>(label.size()));

  std::string_view command = TrimEnd(std::string_view(close + 1, end));
  if (command.empty()) return true;
  if (command.back() == ';') command.remove_suffix(1);
  char expanded[kLongestToken + 1];
  end = ExpandCommand(command, expanded);
  item.m_strCommand.KeepBy(static_cast<int>(end - expanded),
                           [&](wchar_t* room) { bytes::WidenAscii(expanded, end, room); });
  return true;
}

}  // namespace

void ParseMenuLine(std::wstring_view text, TMenuItem& item) {
  size_t close = 0;
  while (close < text.size() && text[close] != L']') ++close;
  if (close == text.size()) return;
  const std::wstring_view label = text.substr(1, close - 1).substr(0, kLongestLabel);
  item.m_strLabel.Keep(label.data(), static_cast<int>(label.size()));

  std::wstring_view command = TrimEnd(text.substr(close + 1).substr(0, kLongestCommand));
  if (command.empty()) {
    item.m_strCommand.Empty();
    return;
  }
  if (command.back() == L';') command.remove_suffix(1);
  wchar_t expanded[kLongestCommand + 1];
  const wchar_t* end = ExpandCommand(command, expanded);
  item.m_strCommand.Keep(expanded, static_cast<int>(end - expanded));
}

void ParseMenuLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item) {
  if (!ParseUsualLine(narrow, ansi, item)) ParseMenuLine(ansi.Decode(narrow), item);
}
