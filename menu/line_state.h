// The live state of a menu line, for the palette and the pop-ups alike: icon, help text, grey and
// switch state. A line's LISP functions are called here and nowhere else. No window and no host.
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

// The answer of a line's LISP function: a value, no value, or the menu is gone and with it the
// line. GivesNumber and GivesTrue are false in the last two cases.
struct LineAnswer : LispAnswer {
  bool isGone = false;
};
LineAnswer AskLine(const TWCString& function, const LineSources& sources);

// A line with an empty command is off. Its grey function turns it off with a true result; a
// function that fails leaves it on. Meaningless once the menu is gone.
bool IsLineEnabled(const TMenuItem& line, const LineSources& sources);
// True when the line has a grey function and it gives true.
bool IsLineGray(const TMenuItem& line, const LineSources& sources);
// The same for the check function.
bool IsLineChecked(const TMenuItem& line, const LineSources& sources);

// The state that the line's switch reports; null when the function gives no number, the switch has
// no states, or the menu is gone.
TSwitchStateItem* AskSwitch(const TMenuItem& line, const LineSources& sources);
void CopyState(const TSwitchStateItem& state, TMenuItem& line);

// The image name of the line's icon; null without an icon, or without the icon library.
const wchar_t* IconOfLine(const TMenuItem& line, const LineSources& sources);
// The help text that the line's icon entry holds; null under the same conditions.
const wchar_t* HelpOfLine(const TMenuItem& line, const LineSources& sources);

}  // namespace qvx
