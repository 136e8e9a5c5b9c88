// The host's command line: sending commands, whether a command runs, the prompt after printing. The
// one place of the product that calls sendStringToExecute and acedPostCommandPrompt.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// To the current document: it is activated, an inactive document is not wrapped up, the text is
// echoed. Nothing happens without a current document.
void SendToHost(const wchar_t* text);

// What the host says of running commands. A value that can't be read counts as 0 or as empty text.
struct HostActivity {
  int active = 0;   // CMDACTIVE
  TWCString names;  // CMDNAMES
};
HostActivity AskHostActivity();
// Names alone make the host busy too: some commands are named while CMDACTIVE is still 0.
bool IsBusy(const HostActivity& host);
int CommandActive();  // CMDACTIVE alone; 0 when it can't be read

bool HasWorkingDatabase();

// Printing outside a command: the text, then the prompt unless a command is active, whose own
// prompt would then be repeated.
void PrintOutsideCommand(const wchar_t* text);
void PostPromptWhenIdle();
void PostPrompt();  // in every case

}  // namespace qvx
