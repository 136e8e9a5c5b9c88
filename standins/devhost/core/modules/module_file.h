// How a module's file becomes something that can be called. On Windows that is the system's loader
// (devhost/ui gives it); tests and the native build register functions under a name.
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
  // Null when it is no module; `why` then says so in the user's words, without a line end.
  virtual std::unique_ptr<ModuleFile> Load(const std::wstring& path, std::wstring* why) = 0;
};

}  // namespace devhost
