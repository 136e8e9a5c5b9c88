// The canonical layout of menu sources, over tokens and comments. The text of a token is never
// changed; docs/qmn.md describes the layout.
#pragma once

#include <string>

#include "tools/qmn/fmt_tokens.h"

// With LF line ends. `page` is the code page of the source.
std::string LayOutSource(const SourceTokens& source, unsigned page);
