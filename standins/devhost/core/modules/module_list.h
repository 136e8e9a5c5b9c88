// The loaded modules: loading, messages to their entry points, unloading. Implements the dynamic
// linker of the published interface.
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

  // Sets the callback for modules that are loaded as a command: they are to be loaded
  // at every start.
  void OnPersistentLoad(std::function<void(const std::wstring&)> callback) {
    m_persistentLoad = std::move(callback);
  }

  LoadedModule* Find(const std::wstring& name) const;  // by file name, case ignored
  std::vector<std::wstring> Names() const;
  void SendToAll(int message, Document* document);  // in loading order
  void Send(LoadedModule& module, int message, Document* document);
  void UnloadAll();  // in reverse order, locked modules too

  LoadedModule* Running() const { return m_running; }  // whose code is running
  void SetRunning(LoadedModule* module) { m_running = module; }

 private:
  ModuleSource* m_source = nullptr;
  std::function<void(const std::wstring&)> m_persistentLoad;
  std::vector<std::unique_ptr<LoadedModule>> m_modules;
  LoadedModule* m_running = nullptr;
};

}  // namespace devhost
