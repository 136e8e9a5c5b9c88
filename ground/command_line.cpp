// See command_line.h.
#include "ground/command_line.h"

#include "acdocman.h"
#include "aced.h"
#include "adslib.h"
#include "dbapserv.h"
#include "ground/host_variables.h"
#include "kernel/tadsprintf.h"

namespace qvx {

void SendToHost(const wchar_t* text) {
  AcApDocument* document = acDocManager ? acDocManager->curDocument() : nullptr;
  if (document) acDocManager->sendStringToExecute(document, text, true, false, true);
}

HostActivity AskHostActivity() { return {CommandActive(), TextVariable(L"CMDNAMES")}; }

bool IsBusy(const HostActivity& host) { return host.active != 0 || !host.names.IsEmpty(); }

int CommandActive() { return ShortVariable(L"CMDACTIVE").value_or(0); }

bool RunsCommand(const wchar_t* part) { return TextVariableContains(L"CMDNAMES", part); }

bool RunsAnyCommand() { return !TextVariable(L"CMDNAMES").IsEmpty(); }

bool HasWorkingDatabase() {
  AcDbHostApplicationServices* services = acdbHostApplicationServices();
  return services && services->workingDatabase();
}

void PrintOutsideCommand(const wchar_t* text) {
  adsout << text;
  PostPromptWhenIdle();
}

void PostPromptWhenIdle() {
  if (CommandActive() == 0) PostPrompt();
}

void PostPrompt() { acedPostCommandPrompt(); }

}  // namespace qvx
