// Variables of the host by name. A variable that can't be read, or is of another type, has no value
// or is an empty text. The product calls acedGetVar only here.
#pragma once

#include <optional>
#include <string>

#include "kernel/twcstring.h"

namespace qvx {

std::optional<int> ShortVariable(const wchar_t* name);
std::optional<double> PointVariableX(const wchar_t* name);  // of a point with two or three values
TWCString TextVariable(const wchar_t* name);
bool TextVariableContains(const wchar_t* name, const wchar_t* part);
// A number or text as text; a value of another type leaves `text` unchanged. False when the
// variable can't be read.
bool VariableAsText(const wchar_t* name, std::wstring& text);

void SetShortVariable(const wchar_t* name, int value);
void SetRealVariable(const wchar_t* name, double value);

}  // namespace qvx
