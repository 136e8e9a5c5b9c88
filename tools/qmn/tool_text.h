// Between the tool's UTF-8 and the engine's wide text of UTF-16 units, and the tool's own messages.
#pragma once

#include <string>
#include <string_view>

#include "tools/qmn/qmn_tool.h"

// A lone half of a pair becomes U+FFFD.
std::string Utf8(std::wstring_view units);
// Bytes that are no UTF-8 become U+FFFD.
std::wstring Wide(std::string_view utf8);

// "where: error: text" and a newline.
void ReportError(const QmnStreams& streams, const std::string& where, const std::string& text);
