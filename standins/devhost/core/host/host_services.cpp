// Published services: system registry, application services, file search.
#include <cwchar>

#include "acdocman.h"
#include "aced.h"
#include "adslib.h"
#include "dbapserv.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/host/host.h"
#include "rxdlinkr.h"

using devhost::TheHost;

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDictionary, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDynamicLinker, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcEdCommandStack, AcRxObject)

AcRxDictionary* acrxSysRegistry() {
  class Registry : public AcRxDictionary {
    AcRxObject* at(const ACHAR* key) const override {
      if (!key) return nullptr;
      if (!std::wcscmp(key, L"DynamicLinker")) return &TheHost().modules;
      if (!std::wcscmp(key, ACRX_CMDS)) return &TheHost().commands;
      if (!std::wcscmp(key, ACED_EDITOR_OBJ)) return &TheHost().editor;
      return nullptr;
    }
  };
  static Registry registry;
  return &registry;
}

AcDbHostApplicationServices* acdbHostApplicationServices() {
  class Services : public AcDbHostApplicationServices {
    AcDbDatabase* workingDatabase() const override {
      AcApDocument* current = TheHost().documents.curDocument();
      return current ? current->database() : nullptr;
    }
    int releaseMajorVersion() const override { return TheHost().Options().major; }
    int releaseMinorVersion() const override { return TheHost().Options().minor; }
    const ACHAR* getMachineRegistryProductRootKey() override {
      static std::wstring key;
      key = L"Software\\DevHost\\R" + std::to_wstring(releaseMajorVersion()) + L"." +
            std::to_wstring(releaseMinorVersion());
      return key.c_str();
    }
  };
  static Services services;
  return &services;
}

int acedFindFile(const ACHAR* name, ACHAR* path) {
  devhost::TheStartTrace().Step("acedFindFile", name ? devhost::Utf8(name) : std::string());
  const std::wstring found = name ? TheHost().FindFile(name) : std::wstring();
  if (found.empty() || found.size() >= 260) return RTERROR;
  std::wcscpy(path, found.c_str());
  return RTNORM;
}

bool acedIsMenuGroupLoaded(const ACHAR* group) {
  return group && TheHost().menuGroups.IsLoaded(group);
}
