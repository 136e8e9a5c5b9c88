// A menu source as tokens with everything that stands between them: comments, line ends, blank
// lines. The engine's scanner says where tokens are; what it skips is looked at here. For the
// formatter, which may lose nothing but white space.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Views point into the source.
struct SourceComment {
  std::string_view text;  // with its marks; a // comment without blanks at its end
  bool onNewLine;         // nothing else stands in front of it on its line
  bool blankBefore;       // an empty line does
  bool IsLineComment() const { return text[1] == '/'; }
};

struct SourceToken {
  int kind;
  std::string_view text;  // as written, strings with their quotes
  uint32_t firstComment;  // of those in front of it; they end where the next token's begin
  bool blankBefore;
};

struct SourceTokens {
  std::vector<SourceToken> tokens;  // the last one is QMN_END
  std::vector<SourceComment> comments;
  // A byte that no rule takes, or the zero behind which nothing is read; null without one.
  const char* stray = nullptr;
};

// `folded` has its line ends folded, compiles without a message, and outlives the result.
SourceTokens TokenizeSource(const std::string& folded);
