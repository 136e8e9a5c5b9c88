// A menu source as tokens and everything between them: comments, line ends, blank lines. Token
// positions come from the engine's scanner; the text it skips is read here. Used by the formatter,
// which may drop nothing but white space.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Views refer to the source text.
struct SourceComment {
  std::string_view
      text;        // with its marks; a // with its delimiters; a // comment without trailing blanks
  bool onNewLine;  // it is the first text on its line
  bool blankBefore;  // an empty line precedes it
  bool IsLineComment() const { return text[1] == '/'; }
};

struct SourceToken {
  int kind;
  std::string_view text;  // as written, strings with their quotes
  uint32_t firstComment;  // of those before it; they end where the next token's begin
  bool blankBefore;
};

struct SourceTokens {
  std::vector<SourceToken> tokens;  // the last one is QMN_END
  std::vector<SourceComment> comments;
  // A byte that no rule accepts, or the zero at which reading stops; null for none.
  const char* stray = nullptr;
};

// `folded` has its line ends folded, compiles without a message, and outlives the result.
SourceTokens TokenizeSource(const std::string& folded);
