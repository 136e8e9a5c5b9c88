// The input text that has not been read yet, sent by modules or typed by the user. A blank or a
// newline ends a token; ESC (27) is an item of its own and cancels the running command.
#pragma once

#include <deque>
#include <string>

namespace devhost {

// Where a text comes from. Texts of all drawings run in this order; 0 precedes all.
struct InputOrigin {
  long long order = 0;
  bool posted = false;  // by sendStringToExecute; false: typed
};

class InputQueue {
 public:
  enum class Kind { None, Token, Escape };
  struct Item {
    Kind kind = Kind::None;
    std::wstring text;
    long long order = 0;  // of its first character
  };

  void Append(const std::wstring& text, InputOrigin origin = {});
  bool IsEmpty() const { return m_text.empty(); }
  void Clear() { m_text.clear(); }

  // Removes and returns the next item; None if there is no complete one. An ESC discards an
  // unfinished token before it. A LISP expression, a token beginning with "(", ends with its
  // closing bracket. With `blanksAllowed` only a newline ends a token.
  Item Take(bool blanksAllowed);
  // As above, without the text of other posts than the one of this order: such text waits. An ESC
  // in it counts.
  Item TakeOwn(bool blanksAllowed, long long order);
  void ClearOwn(long long order);  // all but the text of other posts

  bool HasItem() const;  // a complete token, or an ESC
  long long FirstOrder() const { return m_text.empty() ? 0 : m_text.front().origin.order; }

 private:
  struct Char {
    wchar_t c;
    InputOrigin origin;
  };
  static int ItemLength(const std::deque<Char>& text, bool blanksAllowed);
  std::deque<Char> TakeOthers(long long order);

  std::deque<Char> m_text;
};

}  // namespace devhost
