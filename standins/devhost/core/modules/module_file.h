// The interface for loading module files. On Windows the system's loader implements it
// (devhost/ui); tests register functions by name.
#pragma once

#include <memory>
#include <string>

namespace devhost {

using ModuleEntry = int (*)(int message, void* packet);

class ModuleFile {
 public:
  virtual ~ModuleFile() = default;  // unloads
  virtual ModuleEntry Entry() const = 0;
};

class ModuleSource {
 public:
  virtual ~ModuleSource() = default;
  // Null if the file is not a module; `why` is the reason for the user, without line end.
  virtual std::unique_ptr<ModuleFile> Load(const std::wstring& path, std::wstring* why) = 0;
};

}  // namespace devhost
