// Files along the support path.
#pragma once

#include <string>
#include <vector>

namespace devhost {

// Finds a file in the support path; a name with a folder is tried first as it is. Empty: not found.
std::wstring FindFileIn(const std::vector<std::wstring>& supportPath, const std::wstring& name);

}  // namespace devhost
