// A play script as a list of steps. The whole script is read before anything is played, so a slip
// in its last line is told at once. The steps themselves stand in docs/play-scripts.md.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "devhost/play/key_names.h"
#include "devhost/play/script_text.h"

namespace devhost {

enum class StepKind {
  Open,
  New,
  Activate,
  Close,
  Command,
  Type,
  Press,
  Click,
  ClickBoth,
  RightClick,
  DoubleClick,
  Hold,
  Move,
  Wheel,
  Drag,
  Select,
  SetVar,
  Setting,
  Wait,
  WaitIdle,
  WaitMenu,
  WaitPopup,
  ExpectSent,
  ExpectNothingSent,
  ExpectPrinted,
  ExpectVar,
  ExpectState,
  DumpShell,
  DumpWindows,
  DumpDatabase,
  Shot,
  Restart,
  Quit,
};

enum class TargetKind { None, Row, Tab, Pane, Popup, Button, Entity, World, View };

struct Target {
  TargetKind kind = TargetKind::None;
  std::string text;  // label, name or handle
  double x = 0, y = 0;
};

// A value to compare with: quoted text is text, anything else takes the type of what it meets.
struct ScriptValue {
  std::string text;
  bool quoted = false;
};

struct Step {
  int line = 0;
  std::string source;  // the line as it was written, without blanks at its ends
  StepKind kind = StepKind::Quit;
  std::string text;  // path, name, text, or the path into the shell state
  ScriptValue value;
  Target target;
  Target target2;     // where a drag ends, or what is clicked second
  bool ctrl = false;  // held while the mouse acts
  bool shift = false;
  int number = 0;  // milliseconds of wait and hold, delta of the wheel
  KeyChord chord;
  std::vector<std::string> handles;
};

// Reads UTF-8 text. False with the first error.
bool ParsePlayScript(std::string_view text, std::vector<Step>* steps, ScriptError* error);

// The program ends at each `restart` and starts again, so each start plays a part: what stands
// behind the restarts that have been. Empty when the script has fewer.
std::vector<Step> PartOfScript(std::vector<Step> steps, int restarts);

// Steps that only look; every other step acts on the program.
bool IsExpectation(StepKind kind);

}  // namespace devhost
