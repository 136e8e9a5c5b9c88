// The live ways from the screen menu to the host: LISP functions of the menu, whether a command
// runs, text for the command line.
#pragma once

#include "screenmenu/dispatch_rules.h"
#include "screenmenu/lisp_caller.h"

namespace qvx {

class HostLisp : public LispCaller {
 public:
  LispAnswer Call(const wchar_t* function) override;
};

HostActivity AskHostActivity();

bool HasWorkingDatabase();

// To the current document, activating it and echoing; nothing happens without one.
void SendToHost(const wchar_t* text);

}  // namespace qvx
