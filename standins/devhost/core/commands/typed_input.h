// Parsing of typed answers: keywords, numbers and points. Points are "x,y", "@dx,dy" or
// "@length<angle"; keywords may be abbreviated to their capitals.
#pragma once

#include <optional>
#include <string>

#include "gepnt3d.h"

namespace devhost {

// A keyword equal to the text or with these capitals; otherwise the first that begins
// with the text.
std::optional<std::wstring> MatchKeyword(const std::wstring& keywords, std::wstring typed);

bool ReadNumber(const wchar_t*& at, double* value);
std::optional<AcGePoint3d> ReadPoint(const std::wstring& text, const AcGePoint3d& base);

}  // namespace devhost
