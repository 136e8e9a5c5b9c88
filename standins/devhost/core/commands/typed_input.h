// What a typed answer means: keywords, numbers and points. Points are typed as "x,y", "@dx,dy" or
// "@length<angle"; keywords may be shortened to their capitals.
#pragma once

#include <optional>
#include <string>

#include "gepnt3d.h"

namespace devhost {

// A word typed whole or by its capitals is that word; otherwise the first one that begins so.
std::optional<std::wstring> MatchKeyword(const std::wstring& keywords, std::wstring typed);

bool ReadNumber(const wchar_t*& at, double* value);
std::optional<AcGePoint3d> ReadPoint(const std::wstring& text, const AcGePoint3d& base);

}  // namespace devhost
