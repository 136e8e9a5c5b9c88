// The loaded modules: loading, messages to their entry points, unloading. This is the dynamic
// linker that modules see.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "devhost/core/modules/module_file.h"
#include "rxdlinkr.h"

namespace devhost {

class Document;

struct LoadedModule {
  std::wstring name;  // file name with extension, as shown
  std::wstring path;
  std::unique_ptr<ModuleFile> file;
  ModuleEntry entry = nullptr;
  bool unlocked = false, mdiAware = false;
};

class ModuleList : public AcRxDynamicLinker {
 public:
  void SetSource(ModuleSource* source) { m_source = source; }

  bool loadModule(const ACHAR* name, bool print, bool asCommand) override;
  bool unloadModule(const ACHAR* name, bool asCommand) override;
  bool unlockApplication(void* packet) override;
  bool registerAppMDIAware(void* packet) override;

  // Told the path of a module that was loaded as by a command, that is for every start from now on.
  void OnLoadedForGood(std::function<void(const std::wstring&)> remember) {
    m_remember = std::move(remember);
  }

  LoadedModule* Find(const std::wstring& name) const;  // by file name, case ignored
  std::vector<std::wstring> Names() const;
  void SendToAll(int message, Document* document);  // in loading order
  void Send(LoadedModule& module, int message, Document* document);
  void UnloadAll();  // the latest first, locked or not

  LoadedModule* Running() const { return m_running; }  // whose code runs
  void SetRunning(LoadedModule* module) { m_running = module; }

 private:
  ModuleSource* m_source = nullptr;
  std::function<void(const std::wstring&)> m_remember;
  std::vector<std::unique_ptr<LoadedModule>> m_modules;
  LoadedModule* m_running = nullptr;
};

}  // namespace devhost
