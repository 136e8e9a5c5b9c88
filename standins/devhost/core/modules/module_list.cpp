// Loaded modules; see the header.
#include "devhost/core/modules/module_list.h"

#include "devhost/core/base/journal.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/documents/document_scope.h"
#include "devhost/core/host/host.h"

namespace devhost {

LoadedModule* ModuleList::Find(const std::wstring& name) const {
  const std::wstring wanted = FileNameOf(name);
  for (const auto& m : m_modules)
    if (SameName(m->name, wanted)) return m.get();
  return nullptr;
}

std::vector<std::wstring> ModuleList::Names() const {
  std::vector<std::wstring> names;
  for (const auto& m : m_modules) names.push_back(m->name);
  return names;
}

void ModuleList::Send(LoadedModule& module, int message, Document* document) {
  if (!module.entry) return;
  LoadedModule* before = m_running;
  m_running = &module;
  DocumentScope scope(document);
  module.entry(message, &module);
  m_running = before;
}

void ModuleList::SendToAll(int message, Document* document) {
  // Modules may load or unload others during the message.
  for (const std::wstring& name : Names())
    if (LoadedModule* m = Find(name)) Send(*m, message, document);
}

bool ModuleList::loadModule(const ACHAR* name, bool print, bool asCommand) {
  if (!name || !m_source) return false;
  if (Find(name)) return true;
  std::wstring path = TheHost().FindFile(name);
  if (path.empty()) {
    if (print) TheHost().Print(std::wstring(L"\n找不到模块文件 ") + name + L"\n");
    return false;
  }
  auto module = std::make_unique<LoadedModule>();
  module->name = FileNameOf(path);
  module->path = path;
  std::wstring why;
  module->file = m_source->Load(path, &why);
  if (!module->file) {
    TheHost().Print(L"\n无法加载模块 " + path + L": " + why + L"\n");
    return false;
  }
  module->entry = module->file->Entry();
  LoadedModule* loaded = module.get();
  m_modules.push_back(std::move(module));
  TheJournal().Record("module", {{"phase", "loaded"}, {"name", Utf8(loaded->name)}});
  TheStartTrace().Begin(Utf8(loaded->name));
  Send(*loaded, AcRx::kInitAppMsg, TheHost().documents.Current());
  TheStartTrace().Step("kInitAppMsg done", Utf8(loaded->name));
  if (asCommand && m_persistentLoad) m_persistentLoad(path);
  std::vector<Document*> open;
  for (const auto& d : TheHost().documents.All()) open.push_back(d.get());
  for (Document* d : open) {
    TheStartTrace().Step("kLoadDwgMsg", Utf8(loaded->name));
    Send(*loaded, AcRx::kLoadDwgMsg, d);
  }
  return true;
}

bool ModuleList::unloadModule(const ACHAR* name, bool) {
  LoadedModule* module = name ? Find(name) : nullptr;
  if (!module || !module->unlocked) return false;
  // Its registrations are removed after the message, which may still use them.
  Send(*module, AcRx::kUnloadAppMsg, TheHost().documents.Current());
  TheHost().commands.RemoveModule(module);
  for (const auto& d : TheHost().documents.All())
    std::erase_if(d->lispFunctions, [&](const auto& f) { return f.second.module == module; });
  const std::wstring shown = module->name;
  std::erase_if(m_modules, [&](const auto& m) { return m.get() == module; });
  TheJournal().Record("module", {{"phase", "unloaded"}, {"name", Utf8(shown)}});
  return true;
}

bool ModuleList::unlockApplication(void* packet) {
  TheStartTrace().Step("unlockApplication");
  for (const auto& m : m_modules)
    if (m.get() == packet) return m->unlocked = true;
  return false;
}

bool ModuleList::registerAppMDIAware(void* packet) {
  TheStartTrace().Step("registerAppMDIAware");
  for (const auto& m : m_modules)
    if (m.get() == packet) return m->mdiAware = true;
  return false;
}

void ModuleList::UnloadAll() {
  while (!m_modules.empty()) {
    m_modules.back()->unlocked = true;
    const std::wstring name = m_modules.back()->name;
    unloadModule(name.c_str(), false);
  }
}

}  // namespace devhost

bool acrxLoadModule(const ACHAR* name, bool print, bool asCommand) {
  return devhost::TheHost().modules.loadModule(name, print, asCommand);
}
bool acrxUnloadModule(const ACHAR* name, bool asCommand) {
  return devhost::TheHost().modules.unloadModule(name, asCommand);
}
bool acrxUnlockApplication(void* packet) {
  return devhost::TheHost().modules.unlockApplication(packet);
}
bool acrxRegisterAppMDIAware(void* packet) {
  return devhost::TheHost().modules.registerAppMDIAware(packet);
}

resbuf* acedArxLoaded() {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  for (const std::wstring& name : devhost::TheHost().modules.Names()) {
    *tail = acutNewRb(RTSTR);
    acutNewString(name.c_str(), (*tail)->resval.rstring);
    tail = &(*tail)->rbnext;
  }
  return head;
}
