// What stands between two tokens and means nothing.
#pragma once

#include "tools/qmn/check/lint_tokens.h"

struct GapContext {
  SourceText& source;
  Findings& findings;
  const std::string& bytes;  // the source; what was reported before may be blanked
};

// From `begin` to the token behind.
void CheckGap(const GapContext& context, size_t begin, const LintToken& next);
// What nobody reads behind a byte 0.
void CheckBehindZero(const GapContext& context, size_t zero);
