// Modules that were loaded as a command: they are loaded at every start of the same release. Stored
// in the host's registry key.
#pragma once

#include <string>
#include <vector>

namespace devhost {

void AddAutoloadModule(const std::wstring& path);
std::vector<std::wstring> AutoloadModules();  // only existing files

}  // namespace devhost
