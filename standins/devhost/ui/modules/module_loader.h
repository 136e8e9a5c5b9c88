// Loads modules with the system's loader.
#pragma once

#include "devhost/core/modules/module_file.h"

namespace devhost {

class ModuleLoader : public ModuleSource {
 public:
  std::unique_ptr<ModuleFile> Load(const std::wstring& path, std::wstring* why) override;
};

}  // namespace devhost
