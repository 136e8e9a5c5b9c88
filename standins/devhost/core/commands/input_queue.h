// The text that waits to be read as input, in the order in which it came: sent by modules, typed by
// the user. A blank or a newline ends a token; ESC (27) stands by itself and cancels what runs.
#pragma once

#include <deque>
#include <string>

namespace devhost {

class InputQueue {
 public:
  enum class Kind { None, Token, Escape };
  struct Item {
    Kind kind = Kind::None;
    std::wstring text;
    bool endedByNewline = false;
  };

  void Append(const std::wstring& text);
  bool IsEmpty() const { return m_text.empty(); }
  void Clear() { m_text.clear(); }

  // The next item, removed; None when no whole one is there. Text that an ESC follows before it was
  // ended goes with the ESC, as half a word does under the user's hands. A LISP expression, that is
  // a token beginning with "(", ends where its brackets close. With blanksAllowed only a newline
  // ends it.
  Item Take(bool blanksAllowed);
  bool HasItem() const;  // a token that is ended, or an ESC

 private:
  std::deque<wchar_t> m_text;
};

}  // namespace devhost
