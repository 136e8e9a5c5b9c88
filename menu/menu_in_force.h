// The door to the menu in force: the one loaded system, its recent commands, and the watch over its
// lines. The context window owns the system and registers itself here; without one, the functions
// below do nothing or return nothing.
#pragma once

#include "menu/line_state.h"

class MenuInForce {
 public:
  virtual TMenuSystem& System() = 0;
  virtual qvx::LineSources Lines() = 0;
  // Lines that may be shown are about to be destroyed, because another menu was loaded or the
  // palette is destroyed: for all watches the menu is gone, and pop-ups drop their references
  // to lines.
  virtual void ForgetLines() = 0;
  virtual void SetToolBar(TMenuBar* bar) = 0;  // the system's ToolBar block; null for none

 protected:
  ~MenuInForce() = default;
};

MenuInForce* TheMenuInForce();           // null without a context window
void SetMenuInForce(MenuInForce* menu);  // not owned; null removes it

TMenuSystem* LoadedMenu();
qvx::LineSources MenuLines();
void ForgetMenuLines();
// Puts a command at the head of the recent list. The text may belong to an entry of that list.
void NoteRecentCommand(const wchar_t* command);
