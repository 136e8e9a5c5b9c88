// The history of input lines for the arrow keys, and the rule for blanks. No window.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class CommandHistory {
 public:
  void Add(const std::wstring& line);  // empty lines and immediate repeats are not stored
  // The next older and newer line. `typed` is the current input; it is returned at the newer end.
  std::wstring Older(const std::wstring& typed);
  std::wstring Newer(const std::wstring& typed);

 private:
  static constexpr size_t kMaxLines = 200;
  std::vector<std::wstring> m_lines;
  size_t m_position = 0;  // not recalling
  std::wstring m_typed;
};

// A blank ends the line as Enter does, except in text that may contain blanks and in an unfinished
// LISP expression.
bool BlankEndsLine(const std::wstring& typed, bool acceptsBlanks);

}  // namespace devhost
