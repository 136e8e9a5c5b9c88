// Modules that were once loaded for good: the host loads them again at every start of the same
// release. Kept in the registry of the host.
#pragma once

#include <string>
#include <vector>

namespace devhost {

void RememberModule(const std::wstring& path);
std::vector<std::wstring> RememberedModules();  // only those whose file is still there

}  // namespace devhost
