// The one canonical layout of menu sources, over tokens and comments. What a token holds is never
// changed; docs/qmn.md says what the layout is.
#pragma once

#include <string>

#include "tools/qmn/fmt_tokens.h"

// With LF line ends. `page` is the code page of the source.
std::string LayOutSource(const SourceTokens& source, unsigned page);
