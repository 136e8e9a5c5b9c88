// What the lines of a block become as rows of a pop-up: which are grey, checked or lead to a
// sub-menu, which identifier each answers to, and which picture it has. Asks the lines' LISP
// functions, and writes identifiers and switch states into the lines. Makes no menu: the context
// window and the in-place editor build the native ones from the plan.
#pragma once

#include <vector>

#include "menu/line_state.h"

// The window system's own bits for a row.
enum PopupRowFlags : unsigned {
  kRowOff = 3,  // greyed and disabled
  kRowChecked = 8,
  kRowSubMenu = 16,
  kRowOwnerDrawn = 256,
  kRowSeparator = 2048,
};

constexpr int kFirstContextId = 2000;  // of pop-ups on the drawing
constexpr int kFirstBlockId = 3000;    // of blocks that are shown by others

// A choice arrives in 16 bits: lines beyond that are left out.
constexpr int kLastPopupId = 0xFFFF;
// Deeper lines show grey and without their sub-menu: menus are built and torn down by recursion
// inside the window system.
constexpr int kDeepestSubMenu = 64;

enum class PopupIds {
  kRunning,  // from a first number on, in the order in which rows are appended
  kCommand,  // the number that the line's command text begins with
};

struct PopupRow {
  TMenuItem* line = nullptr;  // not owned; null for a separator
  int index = -1;             // of the line in its bar, which is the row's position too
  unsigned flags = 0;
  int id = 0;                       // 0 for a separator and for a sub-menu
  int subMenu = -1;                 // index into PopupPlan::menus
  const wchar_t* bitmap = nullptr;  // name in the icon library; lives as long as the system
};

struct PopupPlan {
  std::vector<std::vector<PopupRow>> menus;  // the first one is the top; empty: nothing to show
};

// Empty when a LISP function replaced the menus: their lines are gone then.
PopupPlan PlanPopup(TMenuBar& bar, PopupIds ids, int firstId, const qvx::LineSources& sources);

// Puts the recent commands under their own line, the second one of the block, where it is not there
// already.
void EnsureRecentLine(TMenuBar& bar, TMenuStack& recent);
