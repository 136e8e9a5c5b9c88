// The entry point of the sample design module.
#include "aced.h"
#include "adslib.h"
#include "design_commands.h"
#include "design_lisp.h"

namespace {

constexpr wchar_t kGroup[] = L"QVX_DESIGN";

AcEdCommandStack* Commands() { return AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS)); }

void Register() {
  AcEdCommandStack* stack = Commands();
  for (int i = 0; stack && i < kDesignCommandCount; ++i)
    stack->addCommand(kGroup, kDesignCommands[i].name, kDesignCommands[i].name, ACRX_CMD_MODAL,
                      kDesignCommands[i].run);
}

void InvokeFunction() {
  const int code = acedGetFunCode();
  if (code >= 0 && code < kDesignFunctionCount) kDesignFunctions[code].run();
}

}  // namespace

extern "C" __declspec(dllexport) AcRx::AppRetCode
    acrxEntryPoint(AcRx::AppMsgCode message, void* packet) {
  switch (message) {
    case AcRx::kInitAppMsg:
      acrxUnlockApplication(packet);
      acrxRegisterAppMDIAware(packet);
      Register();
      break;
    case AcRx::kUnloadAppMsg:
      if (AcEdCommandStack* stack = Commands()) stack->removeGroup(kGroup);
      break;
    case AcRx::kLoadDwgMsg:
      for (int i = 0; i < kDesignFunctionCount; ++i) acedDefun(kDesignFunctions[i].name, i);
      break;
    case AcRx::kInvkSubrMsg:
      InvokeFunction();
      break;
    default:
      break;
  }
  return AcRx::kRetOK;
}
