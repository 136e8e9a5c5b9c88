// Conversion between the tool's UTF-8 and the engine's UTF-16, and the tool's own messages.
#pragma once

#include <string>
#include <string_view>

#include "ground/utf8_text.h"
#include "tools/qmn/qmn_tool.h"

// An unpaired surrogate becomes U+FFFD.
inline std::string Utf8(std::wstring_view units) { return qvx::ToUtf8(units); }
// Invalid UTF-8 becomes U+FFFD.
std::wstring Wide(std::string_view utf8);

// "where: error: text" and a newline.
void ReportError(const QmnStreams& streams, const std::string& where, const Message& text);
