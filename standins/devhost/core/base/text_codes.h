// What a drawing's text looks like once its codes are taken out.
#pragma once

#include <string>
#include <vector>

namespace devhost {

// %%d, %%p, %%c become the signs, %%u and %%o vanish, %%nnn the character of that number.
std::wstring ShownText(const std::wstring& text);

// Lines of a paragraph text: \P breaks, formatting in braces and behind backslashes vanishes. Lines
// longer than `width` text heights are wrapped; 0 never wraps.
std::vector<std::wstring> MTextLines(const std::wstring& text, double width);

// Roughly how long a line is, in text heights: wide characters count 1, others 0.6.
double TextLength(const std::wstring& text);

}  // namespace devhost
