// Files along the support path.
#pragma once

#include <string>
#include <vector>

namespace devhost {

// The file along the support path (the name itself first when it has a folder); empty: not found.
std::wstring FindFileIn(const std::vector<std::wstring>& supportPath, const std::wstring& name);

}  // namespace devhost
