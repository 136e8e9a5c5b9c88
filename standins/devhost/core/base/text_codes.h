// Codes in the texts of drawings, such as %%d and \P, replaced by what a user sees.
#pragma once

#include <string>
#include <vector>

namespace devhost {

// %%d, %%p, %%c become the signs, %%u and %%o are removed, %%nnn is the character of that number.
std::wstring DisplayText(const std::wstring& text);

// The lines of a paragraph text. \P ends a line; formatting in braces and after backslashes is
// removed. Lines longer than `width` text heights are wrapped; 0 never wraps.
std::vector<std::wstring> MTextLines(const std::wstring& text, double width);

// The approximate length of a line in text heights: wide characters count 1, others 0.6.
double TextLength(const std::wstring& text);

}  // namespace devhost
