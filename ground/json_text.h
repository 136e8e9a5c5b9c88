// JSON and UTF-8 text from wide strings and rectangles.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace qvx {

// UTF-8 of a wide text in UTF-16 or UTF-32. Lone surrogates become U+FFFD, so the result is always
// valid.
std::string ToUtf8(const std::wstring& text);

std::string JsonString(const std::wstring& text);  // with its quotes
const char* JsonWord(bool value);
std::string JsonRect(const RECT& r);  // [left, top, right, bottom]

}  // namespace qvx
