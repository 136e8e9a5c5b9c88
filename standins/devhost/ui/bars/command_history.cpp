// The input history; see the header.
#include "devhost/ui/bars/command_history.h"

namespace devhost {

void CommandHistory::Add(const std::wstring& line) {
  if (!line.empty() && (m_lines.empty() || m_lines.back() != line)) m_lines.push_back(line);
  if (m_lines.size() > kMaxLines) m_lines.erase(m_lines.begin());
  m_position = m_lines.size();
}

std::wstring CommandHistory::Older(const std::wstring& typed) {
  if (m_position == m_lines.size()) m_typed = typed;
  if (m_position == 0) return m_lines.empty() ? typed : m_lines.front();
  return m_lines[--m_position];
}

std::wstring CommandHistory::Newer(const std::wstring& typed) {
  if (m_position == m_lines.size()) return typed;
  if (++m_position == m_lines.size()) return m_typed;
  return m_lines[m_position];
}

bool BlankEndsLine(const std::wstring& typed, bool acceptsBlanks) {
  if (acceptsBlanks) return false;
  int open = 0;
  bool quoted = false;
  for (wchar_t c : typed) {
    if (c == L'"') quoted = !quoted;
    if (quoted) continue;
    if (c == L'(') ++open;
    if (c == L')') --open;
  }
  return !quoted && open <= 0;
}

}  // namespace devhost
