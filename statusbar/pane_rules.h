// Decisions of the switch panes, without a window: icon, text, menu and style of a
// state, the effect of a click while a command runs, and the value of PICKSTYLE. The
// pane classes carry them out.
#pragma once

#include <optional>

namespace qvx {

enum class SwitchPane { kFill, kBoldLine, kBaseLine, kDynDim, kMakeGroup };

struct PaneLook {
  const wchar_t* toolTip;
  int offIcon, onIcon;
  int offMenu, onMenu;  // right-button menus
};

const PaneLook& LookOf(SwitchPane pane);
int IconOf(SwitchPane pane, bool on);

// The style shows the state too: pressed in when on.
inline constexpr int kStyleOn = 8, kStyleOff = 2;
constexpr int StyleOf(bool on) { return on ? kStyleOn : kStyleOff; }

// A line of the right-button menu. Off and on do the same, since the current state is grey.
enum class MenuAct { kNone, kToggle, kSettings };
MenuAct ActOf(unsigned command);

// A click on fill or bold lines is ignored while a command runs.
constexpr bool DrawingSwitchActs(int cmdActive) { return cmdActive == 0; }

struct BaseLineClick {
  bool iconOn;  // to show at once
  bool flips;
};
// Deliberate: the icon changes first, and only then is the click refused if a command runs. The
// user then sees the icon of the other state until the next refresh.
constexpr BaseLineClick OnBaseLineClick(bool isOn, int cmdActive) {
  return {!isOn, cmdActive == 0};
}

// The grouping pane owns the low bit of PICKSTYLE. `value` is the value read, none if that
// failed. A click keeps the high bit of a value above 1; adding or removing the pane also
// does so for a value below 0.
int PickStyleAfterClick(std::optional<int> value, bool grouping);
int PickStyleAtInit(std::optional<int> value, bool grouping);

// Later host releases have dynamic input of their own.
constexpr bool HasDynInputPane(double hostRelease) { return hostRelease <= 16.11; }

// Index of the radio button for a number of input fields (1, 2, or 10 for all), and back.
int ChoiceOfFields(int fields);
int FieldsOfChoice(int choice);

}  // namespace qvx
