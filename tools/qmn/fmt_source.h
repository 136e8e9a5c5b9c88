// A menu source in its canonical layout, for fmt and for what decompile writes.
#pragma once

#include <string>

enum class LineEnds { kLf, kCrLf };

struct FormattedSource {
  std::string text;
  int strayLine = 0;  // where a byte stands that the language skips; nothing is formatted then
};

// For a source that compiles without a message.
FormattedSource FormatSource(const std::string& source, unsigned page);

// The line ends of the first line.
LineEnds LineEndsOf(const std::string& source);
// From folded line ends. A CR in front of a line end is doubled, so that reading folds it back.
std::string Unfolded(const std::string& folded, LineEnds ends);
