// The title of the frame for a release number: the year under which that release was known.
#pragma once

#include <string>

namespace devhost {

std::wstring HostTitle(double release);  // 24.0 gives "DevHost 2021"

}  // namespace devhost
