// Messages to a module's entry point and what a module says to its loader.
#pragma once

#include "rxobject.h"

namespace AcRx {
enum AppMsgCode {
  kNullMsg = 0,
  kInitAppMsg = 1,
  kUnloadAppMsg = 2,
  kLoadDwgMsg = 3,
  kUnloadDwgMsg = 4,
  kInvkSubrMsg = 5,
  kCfgMsg = 6,
  kEndMsg = 7,
  kQuitMsg = 8,
  kSaveMsg = 9,
};
enum AppRetCode { kRetOK = 0, kRetError = 3 };
}  // namespace AcRx

extern "C" int acrxGetApiVersion();  // in the library that each module links and exports it from

bool acrxLoadModule(const ACHAR* name, bool print, bool asCommand = false);
bool acrxUnloadModule(const ACHAR* name, bool asCommand = false);
bool acrxUnlockApplication(void* packet);    // the module may be unloaded again
bool acrxRegisterAppMDIAware(void* packet);  // the module keeps its data of each drawing apart
