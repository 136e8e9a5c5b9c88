// The entry point of the sample design module.
#include "aced.h"
#include "adslib.h"
#include "annotation_entities.h"
#include "command_table.h"
#include "design_lisp.h"
#include "symbol_entity.h"

namespace {

constexpr wchar_t kGroup[] = L"QVX_DESIGN";

AcEdCommandStack* Commands() { return AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS)); }

void Register() {
  AcEdCommandStack* stack = Commands();
  if (!stack) return;
  for (int i = 0; i < kDesignCommandCount; ++i) {
    const DesignCommand& command = kDesignCommands[i];
    stack->addCommand(kGroup, command.name, command.name, command.flags, command.run);
  }
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
      BeginAnnotationEntities();
      BeginSymbolEntity();
      Register();
      break;
    case AcRx::kUnloadAppMsg:
      if (AcEdCommandStack* stack = Commands()) stack->removeGroup(kGroup);
      EndSymbolEntity();
      EndAnnotationEntities();
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
