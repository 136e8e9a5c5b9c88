// Variables of the host by name. A variable that can't be read, or is of another type, gives
// nothing: a missing value and an empty text. The one place of the product that calls acedGetVar.
#pragma once

#include <optional>
#include <string>

#include "kernel/twcstring.h"

namespace qvx {

std::optional<int> ShortVariable(const wchar_t* name);
TWCString TextVariable(const wchar_t* name);
// A number or text as text; a value of another type leaves `text` as it was. False when the
// variable can't be read.
bool VariableAsText(const wchar_t* name, std::wstring& text);

void SetShortVariable(const wchar_t* name, int value);
void SetRealVariable(const wchar_t* name, double value);

}  // namespace qvx
