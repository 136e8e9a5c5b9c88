// JSON text, in UTF-8, from wide strings and rectangles.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace qvx {

std::string JsonString(const std::wstring& text);  // with its quotes
const char* JsonWord(bool value);
std::string JsonRect(const RECT& r);  // [left, top, right, bottom]

}  // namespace qvx
