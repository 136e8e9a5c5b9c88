// Formats a menu source in its canonical layout. Used by fmt and by decompile.
#pragma once

#include <string>

enum class LineEnds { kLf, kCrLf };

struct FormattedSource {
  std::string text;
  // Line of a byte that the language skips, 0 for none; nothing is formatted when there is one.
  int strayLine = 0;
};

// For a source that compiles without a message.
FormattedSource FormatSource(const std::string& source, unsigned page);

// The line end style of the first line.
LineEnds LineEndsOf(const std::string& source);
// Restores line ends in folded text. A CR before a line end is doubled, so
// that folding restores it.
std::string Unfolded(const std::string& folded, LineEnds ends);
