// The entry point of the sample design module.
#include "aced.h"
#include "adslib.h"
#include "annotation_commands.h"
#include "annotation_entities.h"
#include "design_commands.h"
#include "design_lisp.h"
#include "document_commands.h"
#include "symbol_entity.h"

namespace {

constexpr wchar_t kGroup[] = L"QVX_DESIGN";

AcEdCommandStack* Commands() { return AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS)); }

void RegisterAll(AcEdCommandStack& stack, const DesignCommand* commands, int count) {
  for (int i = 0; i < count; ++i)
    stack.addCommand(kGroup, commands[i].name, commands[i].name, commands[i].flags,
                     commands[i].run);
}

void Register() {
  AcEdCommandStack* stack = Commands();
  if (!stack) return;
  RegisterAll(*stack, kDesignCommands, kDesignCommandCount);
  RegisterAll(*stack, kAnnotationCommands, kAnnotationCommandCount);
  RegisterAll(*stack, kDocumentCommands, kDocumentCommandCount);
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
