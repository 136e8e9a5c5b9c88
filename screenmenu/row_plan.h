// What one line of the menu becomes as a row: caption, height, whether it answers, which image. The
// switch lines' state step stands here too, since it changes the line itself. No window, no bitmap:
// the group's window creates what is planned here. Called by CMenuGroup and CSMenuItem.
#pragma once

#include "menu/menu_model.h"
#include "ground/lisp_caller.h"
#include "screenmenu/menu_watch.h"

namespace qvx {

enum class RowImage {
  kNone,   // the button gets no image call at all
  kArrow,  // folded or open, by the group's depth
  kCheckMark,
  kFromLibrary,  // the bitmap of the icon library that RowPlan::bitmap names; an empty name clears
};

struct RowPlan {
  const wchar_t* caption = L"";  // lives as long as the line's label
  int height = 0;
  bool enabled = false;
  RowImage image = RowImage::kNone;
  const wchar_t* bitmap = L"";  // for kFromLibrary; never null
};

// What a row needs beyond its line. `system` may be null; without icons no bitmap is looked up.
struct RowSources {
  LispCaller* lisp;
  const TMenuSystem* system;
  bool hasIcons;         // the icon library is loaded
  int rowHeight;         // the setting
  MenuWatch watch = {};  // over the line and the system
};

// Runs the line's functions and, for a switch line, copies the state's label and icon into the
// line, which therefore always shows the last state seen. Empty when a function replaced the menu:
// the line is gone then.
RowPlan PlanRow(TMenuItem& line, const RowSources& sources);

// A line with an empty command is off. Its grey function turns it off with a true result; a
// function that fails leaves it on. With the menu gone the answer means nothing.
bool IsLineEnabled(const TMenuItem& line, LispCaller& lisp);

// Asks the switch for its state; null when the function gives no number or the switch has no
// states, or when the menu is gone.
TSwitchStateItem* AskSwitch(const TMenuItem& line, LispCaller& lisp, const MenuWatch& watch);
void CopyState(const TSwitchStateItem& state, TMenuItem& line);

// True when the line took over another state. Only the icon is compared: two states that share an
// icon keep the old caption, and users of such switches know it so. False too when the menu is
// gone.
bool RefreshSwitchLine(TMenuItem& line, LispCaller& lisp, const MenuWatch& watch = {});

// The image name of the line's icon, or null when the button must get no image call.
const wchar_t* IconOfLine(const TMenuItem& line, const RowSources& sources);
// The help text behind the line's icon, or null without one.
const wchar_t* HelpOfLine(const TMenuItem& line, const TMenuSystem* system, bool hasIcons);

}  // namespace qvx
