// Plans the rows of a pop-up from the lines of a block: grey, checked, sub-menu, identifier, icon.
// Calls the lines' LISP functions and writes identifiers and switch states into the lines. Creates
// no menu: the context window and the in-place editor build native menus from the plan.
#pragma once

#include <vector>

#include "menu/line_state.h"

// Menu flags (MF_*) of the window system.
enum PopupRowFlags : unsigned {
  kRowOff = 3,  // greyed and disabled
  kRowChecked = 8,
  kRowSubMenu = 16,
  kRowOwnerDrawn = 256,
  kRowSeparator = 2048,
};

constexpr int kFirstContextId = 2000;  // of pop-ups on the drawing
constexpr int kFirstBlockId = 3000;    // of blocks shown by ShowBlockMenu

// WM_COMMAND has 16 bits for the identifier: lines beyond that are left out.
constexpr int kLastPopupId = 0xFFFF;
// Deeper lines are grey and have no sub-menu: the window system creates and destroys nested menus
// by recursion.
constexpr int kDeepestSubMenu = 64;

enum class PopupIds {
  kRunning,  // consecutive from firstId, in the order in which rows are added
  kCommand,  // the number at the start of the line's command text
};

struct PopupRow {
  TMenuItem* line = nullptr;  // not owned; null for a separator
  int index = -1;             // of the line in its bar and of the row in its menu
  unsigned flags = 0;
  int id = 0;                       // 0 for a separator and for a sub-menu
  int subMenu = -1;                 // index into PopupPlan::menus
  const wchar_t* bitmap = nullptr;  // name in the icon library; lives as long as the system
};

struct PopupPlan {
  std::vector<std::vector<PopupRow>> menus;  // the top menu first; empty: nothing to show
};

// Empty when a LISP function replaced the menus: their lines are destroyed then.
PopupPlan PlanPopup(TMenuBar& bar, PopupIds ids, int firstId, const qvx::LineSources& sources);

// Inserts the line of the recent commands as the second line of the block, if it is not there.
void EnsureRecentLine(TMenuBar& bar, TMenuStack& recent);
