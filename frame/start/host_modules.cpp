#include "frame/start/host_modules.h"

#include "ground/host_registry.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

namespace {
constexpr const wchar_t* kKernel = L"qvx_kernal.arx";
}  // namespace

void LoadKernel() {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->loadModule(kKernel, false, false);
}

void UnloadKernel() {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->unloadModule(kKernel, false);
}

void UnlockModule(void* packet) { acrxUnlockApplication(packet); }

void RegisterMdiAware(void* packet) {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->registerAppMDIAware(packet);
}
