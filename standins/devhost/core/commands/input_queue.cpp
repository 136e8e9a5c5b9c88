// The input queue; see the header.
#include "devhost/core/commands/input_queue.h"

#include <algorithm>

namespace devhost {
namespace {

constexpr wchar_t kEscape = 27;

bool EndsToken(wchar_t c, bool blanksAllowed) {
  return c == L'\n' || c == L'\r' || (!blanksAllowed && (c == L' ' || c == L'\t'));
}

}  // namespace

// The length of the first item without its end; -1 if it is incomplete. Inside a LISP expression,
// blanks, newlines and brackets in strings are part of it.
int InputQueue::ItemLength(const std::deque<Char>& text, bool blanksAllowed) {
  // With blanks allowed, "(" is plain text.
  const bool lisp = !blanksAllowed && !text.empty() && text[0].c == L'(';
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t c = text[i].c;
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

void InputQueue::Append(const std::wstring& text, InputOrigin origin) {
  for (const wchar_t c : text) m_text.push_back({c, origin});
}

bool InputQueue::HasItem() const {
  return !m_text.empty() && (m_text[0].c == kEscape || ItemLength(m_text, false) >= 0);
}

InputQueue::Item InputQueue::Take(bool blanksAllowed) {
  Item item;
  if (m_text.empty()) return item;
  item.order = FirstOrder();
  if (m_text[0].c == kEscape) {
    m_text.pop_front();
    item.kind = Kind::Escape;
    return item;
  }
  const int length = ItemLength(m_text, blanksAllowed);
  if (length < 0) return item;
  if (static_cast<std::size_t>(length) < m_text.size() && m_text[length].c == kEscape &&
      (length == 0 || m_text[length - 1].c != L')' || m_text[0].c != L'(')) {
    m_text.erase(m_text.begin(), m_text.begin() + length + 1);
    item.kind = Kind::Escape;
    return item;
  }
  item.kind = Kind::Token;
  for (int i = 0; i < length; ++i) item.text += m_text[i].c;
  m_text.erase(m_text.begin(), m_text.begin() + length);
  if (m_text.empty() || m_text[0].c == kEscape) return item;
  // Removes the end of the token; CR LF is one end.
  if (EndsToken(m_text[0].c, blanksAllowed)) {
    const wchar_t end = m_text[0].c;
    m_text.pop_front();
    if (end == L'\r' && !m_text.empty() && m_text[0].c == L'\n') m_text.pop_front();
  }
  return item;
}

std::deque<InputQueue::Char> InputQueue::TakeOthers(long long order) {
  std::deque<Char> others, own;
  for (const Char& at : m_text)
    (at.origin.posted && at.origin.order != order ? others : own).push_back(at);
  m_text = std::move(own);
  return others;
}

InputQueue::Item InputQueue::TakeOwn(bool blanksAllowed, long long order) {
  std::deque<Char> others = TakeOthers(order);
  Item item = Take(blanksAllowed);
  if (item.kind == Kind::None) {
    const auto escape =
        std::find_if(others.begin(), others.end(), [](const Char& at) { return at.c == kEscape; });
    if (escape != others.end()) {
      others.erase(escape);
      item.kind = Kind::Escape;
    }
  }
  m_text.insert(m_text.begin(), others.begin(), others.end());
  return item;
}

void InputQueue::ClearOwn(long long order) { m_text = TakeOthers(order); }

}  // namespace devhost
