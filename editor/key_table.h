// The keys that the filter acts on, as one table. docs/keys.md is made from this header's comments
// and the rows in key_table.cpp by tools/checks/keys --write.
#pragma once

#include <span>

#include "ground/plain_types.h"

namespace qvx {

enum class KeyEvent {
  kResize,  // pressed, before all others
  kDown,    // pressed
  kUp,      // released
};

// Asked from left to right; the first that fails ends the row.
enum class KeyCondition : unsigned char {
  kNone,
  kHelpFile,     // the help file of the product is found
  kCanResize,    // the host is idle in model space and nothing is typed
  kIdle,         // the host is idle
  kTyped,        // the command line is not empty
  kNoLisp,       // no LISP expression is half-typed
  kCtrl,         // with Ctrl
  kNoCtrl,       // without Ctrl
  kShift,        // with Shift
  kNoShift,      // without Shift
  kZoomSetting,  // `g_bZoomKey` is set
  kCurrentView,  // the message is for the current drawing view
  kAlone,        // no other key was pressed meanwhile
};

enum class KeyEffect : unsigned char {
  kNothing,                   // nothing
  kEndResize,                 // ends a drag of the border between viewports
  kCommandHelp,               // shows help on the running command
  kClearTyped,                // clears the record of typed characters
  kClearTypedAndSelection,    // clears typed characters and a selection of fewer than 100 objects
  kProjectManager,            // sends the project manager's command
  kToggleTabBar,              // shows or hides the drawing tabs, with a hint
  kToggleScreenMenuWithHint,  // shows or hides the screen menu, with a hint
  kToggleScreenMenu,          // shows or hides the screen menu
  kZoomIn,                    // zooms in about the pointer
  kZoomOut,                   // zooms out about the pointer
  kToggleModelNumber,         // shows or hides the model number
  kInvertShiftToggle,         // inverts `g_bShiftToggle`
  kToggleControls,            // flips the control state of the selected objects
};

enum class KeyResult : unsigned char {
  kPass,      // no
  kSwallow,   // yes
  kByEffect,  // if it took effect
};

constexpr int kMostKeyConditions = 5;

struct KeyRow {
  KeyEvent event;
  WPARAM key;
  KeyCondition conditions[kMostKeyConditions];
  double belowRelease;  // only hosts of an earlier release; 0: every host
  KeyEffect effect;
  KeyResult result;
};

// The first row of an event and a key whose conditions hold decides.
std::span<const KeyRow> KeyRows();

}  // namespace qvx
