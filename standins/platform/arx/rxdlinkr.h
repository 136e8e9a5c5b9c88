// The loader of modules, found in the system registry under "DynamicLinker".
#pragma once

#include "rxdict.h"
#include "rxregsvc.h"

class AcRxDynamicLinker : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcRxDynamicLinker);
  // Searches the support path; a module that is loaded already counts as success.
  virtual bool loadModule(const ACHAR* name, bool print, bool asCommand = false) = 0;
  virtual bool unloadModule(const ACHAR* name, bool asCommand = false) = 0;  // false when locked
  virtual bool unlockApplication(void* packet) = 0;
  virtual bool registerAppMDIAware(void* packet) = 0;
};
