// The state of a menu line, for the palette and the pop-ups: icon, help text, grey and switch
// state. A line's LISP functions are called only here. No window and no host.
#pragma once

#include "ground/lisp_caller.h"
#include "menu/menu_model.h"
#include "menu/menu_watch.h"

namespace qvx {

// What a line's state is read from.
struct LineSources {
  LispCaller* lisp = nullptr;           // null: no function can be called
  const TMenuSystem* system = nullptr;  // for icons and help; may be null
  bool hasIcons = false;                // the icon library is loaded
  MenuWatch watch = {};                 // over the lines and the system
};

// The result of a line's LISP function: a value, no value, or the menu is gone and the line with
// it. GivesNumber and GivesTrue are false in the last two cases.
struct LineAnswer : LispAnswer {
  bool isGone = false;
};
LineAnswer AskLine(const TWCString& function, const LineSources& sources);

// False when the line has an empty command, or when its grey function returns true; a function that
// fails leaves the line enabled. Meaningless once the menu is gone.
bool IsLineEnabled(const TMenuItem& line, const LineSources& sources);
// True when the line has a grey function that returns true.
bool IsLineGray(const TMenuItem& line, const LineSources& sources);
// The same for the check function.
bool IsLineChecked(const TMenuItem& line, const LineSources& sources);

// The present state of the line's switch; null when the function returns no number, the switch has
// no states, or the menu is gone.
TSwitchStateItem* AskSwitch(const TMenuItem& line, const LineSources& sources);
void CopyState(const TSwitchStateItem& state, TMenuItem& line);

// The image name of the line's icon; null without an icon, or without the icon library.
const wchar_t* IconOfLine(const TMenuItem& line, const LineSources& sources);
// The help text of the line's icon entry; null under the same conditions.
const wchar_t* HelpOfLine(const TMenuItem& line, const LineSources& sources);

}  // namespace qvx
