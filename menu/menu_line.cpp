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
class CommandExpander {
 public:
  explicit CommandExpander(TWCString& out) : m_out(out) {}

  void Expand(std::wstring_view text) {
    m_out.Empty();
    bool quoted = false;
    for (wchar_t c : text) {
      if (c == L'"') quoted = !quoted;
      Put(c == L';' && !quoted ? L'\n' : c);
    }
    m_caret = false;
    Put(L'\n');
    Flush();
  }

 private:
  void Put(wchar_t c) {
    if (m_caret) {
      m_caret = false;
      if (c != L'C' && c != L'c') return;
      c = kEscape;
    } else if (c == L'^') {
      m_caret = true;
      return;
    }
    m_piece[m_count++] = c;
    if (m_count == sizeof m_piece / sizeof *m_piece) Flush();
  }
  void Flush() {
    if (m_out.IsEmpty())
      m_out.Assign(m_piece, m_count);
    else
      m_out.Append(m_piece, m_count);
    m_count = 0;
  }

  TWCString& m_out;
  bool m_caret = false;
  wchar_t m_piece[256];
  int m_count = 0;
};

}  // namespace

void ParseMenuLine(std::wstring_view text, TMenuItem& item) {
  const size_t close = text.find(L']');
  if (close == std::wstring_view::npos) return;
  const std::wstring_view label = text.substr(1, close - 1).substr(0, kLongestLabel);
  item.m_strLabel.Assign(label.data(), static_cast<int>(label.size()));

  std::wstring_view command = TrimEnd(text.substr(close + 1).substr(0, kLongestCommand));
  if (command.empty()) {
    item.m_strCommand.Empty();
    return;
  }
  if (command.back() == L';') command.remove_suffix(1);
  CommandExpander(item.m_strCommand).Expand(command);
}
