// Lost parts of single tokens: invalid characters, backslashes, truncated words and numbers.
#pragma once

#include "tools/qmn/check/gap_rules.h"

void CheckToken(const GapContext& context, const LintToken& token, double real);
