// The input queue; see the header.
#include "devhost/core/commands/input_queue.h"

namespace devhost {
namespace {

constexpr wchar_t kEscape = 27;

bool EndsToken(wchar_t c, bool blanksAllowed) {
  return c == L'\n' || c == L'\r' || (!blanksAllowed && (c == L' ' || c == L'\t'));
}

// The length of the first item without its end; -1 if it is incomplete. Inside a LISP expression,
// blanks, newlines and brackets in strings are part of it.
int ItemLength(const std::deque<wchar_t>& text, bool blanksAllowed) {
  // With blanks allowed, "(" is plain text.
  const bool lisp = !blanksAllowed && !text.empty() && text[0] == L'(';
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t c = text[i];
    if (c == kEscape) return static_cast<int>(i);
    if (lisp && depth + (i == 0) > 0) {
      if (quoted && c == L'\\') {
        ++i;
        continue;
      }
      if (c == L'"') quoted = !quoted;
      if (!quoted && c == L'(') ++depth;
      if (!quoted && c == L')' && --depth == 0) return static_cast<int>(i) + 1;
      continue;
    }
    if (EndsToken(c, blanksAllowed)) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace

void InputQueue::Append(const std::wstring& text) {
  m_text.insert(m_text.end(), text.begin(), text.end());
}

bool InputQueue::HasItem() const {
  return !m_text.empty() && (m_text[0] == kEscape || ItemLength(m_text, false) >= 0);
}

InputQueue::Item InputQueue::Take(bool blanksAllowed) {
  Item item;
  if (m_text.empty()) return item;
  if (m_text[0] == kEscape) {
    m_text.pop_front();
    item.kind = Kind::Escape;
    return item;
  }
  const int length = ItemLength(m_text, blanksAllowed);
  if (length < 0) return item;
  if (static_cast<std::size_t>(length) < m_text.size() && m_text[length] == kEscape &&
      (length == 0 || m_text[length - 1] != L')' || m_text[0] != L'(')) {
    m_text.erase(m_text.begin(), m_text.begin() + length + 1);
    item.kind = Kind::Escape;
    return item;
  }
  item.kind = Kind::Token;
  item.text.assign(m_text.begin(), m_text.begin() + length);
  m_text.erase(m_text.begin(), m_text.begin() + length);
  if (m_text.empty() || m_text[0] == kEscape) return item;
  // Removes the end of the token; CR LF is one end.
  if (EndsToken(m_text[0], blanksAllowed)) {
    const wchar_t end = m_text[0];
    m_text.pop_front();
    if (end == L'\r' && !m_text.empty() && m_text[0] == L'\n') m_text.pop_front();
  }
  return item;
}

}  // namespace devhost
