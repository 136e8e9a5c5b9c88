// Messages to a module's entry point, the system registry and what a module says to its loader.
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

#define ACRX_API_VERSION 24

class AcRxDictionary : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcRxDictionary);
  virtual AcRxObject* at(const ACHAR* key) const = 0;  // null when there is none; not owned
};

AcRxDictionary* acrxSysRegistry();

bool acrxLoadModule(const ACHAR* name, bool print, bool asCommand = false);
bool acrxUnloadModule(const ACHAR* name, bool asCommand = false);
bool acrxUnlockApplication(void* packet);    // the module may be unloaded again
bool acrxRegisterAppMDIAware(void* packet);  // it keeps apart what belongs to which drawing
