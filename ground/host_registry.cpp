#include "ground/host_registry.h"

#include "accmd.h"
#include "rxdict.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

namespace {

template <class Wanted>
Wanted* Registered(const wchar_t* key) {
  AcRxObject* object = acrxSysRegistry()->at(key);
  if (!object || !object->isA()->isDerivedFrom(Wanted::desc())) return nullptr;
  return static_cast<Wanted*>(object);
}

}  // namespace

AcRxDynamicLinker* HostLinker() { return Registered<AcRxDynamicLinker>(L"DynamicLinker"); }
AcEdCommandStack* HostCommands() {
  return Registered<AcEdCommandStack>(L"ACAD_REGISTERED_COMMANDS");
}
