// The host's command line: sending text, whether a command runs, the prompt after printing. The
// product calls sendStringToExecute and acedPostCommandPrompt only here.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// Sends to the current document: activates it, does not wrap up an inactive document, echoes the
// text. Does nothing without a current document.
void SendToHost(const wchar_t* text);

// The host's running commands. A value that can't be read is 0 or empty.
struct HostActivity {
  int active = 0;   // CMDACTIVE
  TWCString names;  // CMDNAMES
};
HostActivity AskHostActivity();
// True when either value is set: some commands are in CMDNAMES while CMDACTIVE is still 0.
bool IsBusy(const HostActivity& host);
int CommandActive();  // CMDACTIVE alone; 0 when it can't be read
// Whether CMDNAMES contains the text; copies nothing.
bool RunsCommand(const wchar_t* part);
bool RunsAnyCommand();  // CMDNAMES is not empty

bool HasWorkingDatabase();

// Prints the text, then the prompt unless a command is active: its own prompt would be repeated.
void PrintOutsideCommand(const wchar_t* text);
void PostPromptWhenIdle();
void PostPrompt();  // also while a command is active

}  // namespace qvx
