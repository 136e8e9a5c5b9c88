// What a single token loses: characters that do not decode, backslashes, cut words and numbers.
#pragma once

#include "tools/qmn/check/gap_rules.h"

void CheckToken(const GapContext& context, const LintToken& token, double real);
