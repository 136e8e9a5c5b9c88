#include "menu/menu_line.h"

#include "menu/menu_item.h"

namespace {

constexpr size_t kLongestLabel = 255;
constexpr size_t kLongestCommand = 2047;
constexpr wchar_t kEscape = 27;

std::wstring_view TrimEnd(std::wstring_view text) {
  while (!text.empty() && (text.back() == L' ' || text.back() == L'\t')) text.remove_suffix(1);
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
