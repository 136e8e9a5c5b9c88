// A play script as a list of steps. The whole script is parsed before it is played, so errors are
// reported at once. docs/play-scripts.md describes the steps.
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
  ClickTwo,
  RightClick,
  MiddleClick,
  DoubleClick,
  Hold,
  ButtonDown,
  ButtonUp,
  Move,
  Wheel,
  Drag,
  MiddleDrag,
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
  ExpectHelp,
  ExpectVar,
  ExpectSetting,
  ExpectHighlighted,
  ExpectPointer,
  ExpectTyped,
  ExpectTip,
  ExpectText,
  ExpectState,
  DumpShell,
  DumpWindows,
  DumpDatabase,
  Shot,
  Restart,
  Quit,
};

enum class MouseButton { Left, Right, Middle };

enum class TargetKind {
  None,
  Row,
  Tab,
  Strip,
  Pane,
  Popup,
  Button,
  Entity,
  World,
  View,
  Character
};

struct Target {
  TargetKind kind = TargetKind::None;
  std::string text;  // label, name, part or handle
  double x = 0, y = 0;
  int position = 0;  // of a character
};

// An expected value. Quoted text is a string; unquoted text has the type of the value that it is
// compared with.
struct ScriptValue {
  std::string text;
  bool quoted = false;
};

struct Step {
  int line = 0;
  std::string source;  // the line without blanks at its ends
  StepKind kind = StepKind::Quit;
  std::string text;  // path, name, text, help file, or path in the shell state
  ScriptValue value;
  Target target;
  Target target2;     // end of a drag, or the second click
  bool ctrl = false;  // keys held during mouse input
  bool shift = false;
  int number = 0;  // milliseconds of wait and hold, wheel delta, or help command
  MouseButton button = MouseButton::Left;
  KeyChord chord;
  std::vector<std::string> handles;  // in upper case
};

// Parses UTF-8 text. False with the first error.
bool ParsePlayScript(std::string_view text, std::vector<Step>* steps, ScriptError* error);

// The part of a script that a start of the program plays: the steps after `restarts` restarts.
// Empty if the script has fewer.
std::vector<Step> PartOfScript(std::vector<Step> steps, int restarts);

// Whether a step only examines the program.
bool IsExpectation(StepKind kind);

}  // namespace devhost
