// The entry point of the kernel module. Modules load it before all else and unload it last.
#include "afx.h"

#include "kernel/current_drawing.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/globals.h"
#include "kernel/kernel_start.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

namespace {
void StartFromOwnFile() {
  HMODULE self = nullptr;
  wchar_t path[260] = L"";
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&StartFromOwnFile), &self);
  GetModuleFileNameW(self, path, 260);
  StartKernel(path);
}
}  // namespace

extern "C" __declspec(dllexport) AcRx::AppRetCode
    acrxEntryPoint(AcRx::AppMsgCode message, void* packet) {
  if (message == AcRx::kInitAppMsg) {
    acrxUnlockApplication(packet);
    acrxRegisterAppMDIAware(packet);
    BeginQvxEntities();
    StartFromOwnFile();
    BeginCurrentDrawing();
  } else if (message == AcRx::kUnloadAppMsg) {
    EndCurrentDrawing();
    EndQvxEntities();
  }
  return AcRx::kRetOK;
}
