// The door to the menu in force: the one loaded system, its recent commands, and the watch over its
// lines. The context window owns the system and registers itself here; everybody else reaches it
// through the functions below, which do nothing, or give nothing, without one.
#pragma once

#include "menu/line_state.h"

class MenuInForce {
 public:
  virtual TMenuSystem& System() = 0;
  virtual qvx::LineSources Lines() = 0;
  // Lines that somebody may show are going, because another menu was loaded or the palette is
  // destroyed: all watches say "gone", and pop-ups let go of their lines.
  virtual void ForgetLines() = 0;
  virtual void SetToolBar(TMenuBar* bar) = 0;  // the system's ToolBar block; null for none

 protected:
  ~MenuInForce() = default;
};

MenuInForce* TheMenuInForce();           // null without a context window
void SetMenuInForce(MenuInForce* menu);  // not owned; null takes it away

TMenuSystem* LoadedMenu();
qvx::LineSources MenuLines();
void ForgetMenuLines();
// Puts a command at the head of the recent list. The text may belong to an entry of that list.
void NoteRecentCommand(const wchar_t* command);
