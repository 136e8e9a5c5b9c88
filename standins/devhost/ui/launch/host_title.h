// The title of the frame: the year of a release number.
#pragma once

#include <string>

namespace devhost {

std::wstring HostTitle(double release);  // 24.0 gives "DevHost 2021"

}  // namespace devhost
