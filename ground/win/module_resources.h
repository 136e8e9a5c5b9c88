// Makes the module's own resources current for a scope: texts, bitmaps and dialogs are then found
// in the module and not in the host.
#pragma once

#include "ground/win/module_handle.h"

namespace qvx {

class ModuleResources {
 public:
  ModuleResources() : m_before(AfxGetResourceHandle()) { AfxSetResourceHandle(ThisModule()); }
  ~ModuleResources() { AfxSetResourceHandle(m_before); }
  ModuleResources(const ModuleResources&) = delete;
  ModuleResources& operator=(const ModuleResources&) = delete;

 private:
  HINSTANCE m_before;
};

}  // namespace qvx
