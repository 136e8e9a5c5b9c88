// Text between two tokens that the language ignores.
#pragma once

#include "tools/qmn/check/lint_tokens.h"

struct GapContext {
  SourceText& source;
  Findings& findings;
  const std::string& bytes;  // the source; parts reported before may be blanked
};

// Checks from `begin` to the next token.
void CheckGap(const GapContext& context, size_t begin, const LintToken& next);
// Reports text after a byte 0, which is not read.
void CheckBehindZero(const GapContext& context, size_t zero);
