// Case folding of names, as the engine compares them.
#pragma once

#include <string>
#include <string_view>

#include "menu/fold_case.h"
#include "tools/qmn/check/lint_tokens.h"

// Names are ASCII, so ASCII folding is enough.
inline std::string FoldedName(std::string_view name) {
  std::string folded(name);
  for (char& c : folded) c = FoldAscii(c);
  return folded;
}

inline std::string NameOf(const SourceText& source, const LintToken& token) {
  return source.Bytes().substr(token.begin, token.end - token.begin);
}

inline std::string FoldedName(const SourceText& source, const LintToken& token) {
  return FoldedName(NameOf(source, token));
}
