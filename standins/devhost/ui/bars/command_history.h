// The lines typed so far, for the arrow keys of the command line, and the rule for when a key ends
// the line. No window here.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class CommandHistory {
 public:
  void Add(const std::wstring& line);  // empty lines and an immediate repeat are not kept
  // Walk back and forth; `typed` is what stands in the edit when the walk begins and is what comes
  // back at its newer end.
  std::wstring Older(const std::wstring& typed);
  std::wstring Newer(const std::wstring& typed);

 private:
  static constexpr size_t kMost = 200;
  std::vector<std::wstring> m_lines;
  size_t m_position = 0;  // m_lines.size(): not walking
  std::wstring m_typed;
};

// A blank ends the line like Enter, save inside text that may hold blanks and inside a LISP
// expression that is not closed yet.
bool BlankEndsLine(const std::wstring& typed, bool textMayHoldBlanks);

}  // namespace devhost
