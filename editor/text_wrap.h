// Wraps long one-line text for display in the in-place editor. The line breaks exist in the box
// only; a commit removes them.
#pragma once

#include <string>
#include <vector>

namespace qvx {

// prefixWidths[i]: width in pixels of the first i + 1 characters, from one measurement of the whole
// text. `width`: room of a line. Deliberate: no break is made after the last but one character, so
// a last character that would overrun the line is missing in the result.
std::wstring WrapText(const std::wstring& text, const std::vector<int>& prefixWidths, int width);

// Every "\r\n" removed; single returns and line feeds stay.
std::wstring UnwrapText(const std::wstring& text);

}  // namespace qvx
