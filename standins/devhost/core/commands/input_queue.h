// The input text that has not been read yet, sent by modules or typed by the user. A blank or a
// newline ends a token; ESC (27) is an item of its own and cancels the running command.
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
  };

  void Append(const std::wstring& text);
  bool IsEmpty() const { return m_text.empty(); }
  void Clear() { m_text.clear(); }

  // Removes and returns the next item; None if there is no complete one. An ESC discards an
  // unfinished token before it. A LISP expression, a token beginning with "(", ends with its
  // closing bracket. With `blanksAllowed` only a newline ends a token.
  Item Take(bool blanksAllowed);
  bool HasItem() const;  // a complete token, or an ESC

 private:
  std::deque<wchar_t> m_text;
};

}  // namespace devhost
