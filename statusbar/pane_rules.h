// What the panes of the switches decide, without a window: which picture, text, menu and style
// stand for a state, what a click does while a command runs, and which value PICKSTYLE gets. The
// pane classes carry it out.
#pragma once

#include <optional>

namespace qvx {

enum class SwitchPane { kFill, kBoldLine, kBaseLine, kDynDim, kMakeGroup };

struct PaneLook {
  const wchar_t* toolTip;
  int offIcon, onIcon;
  int offMenu, onMenu;  // of the right button
};

const PaneLook& LookOf(SwitchPane pane);
int IconOf(SwitchPane pane, bool on);

// The style says the state a second time: pressed in when on.
inline constexpr int kStyleOn = 8, kStyleOff = 2;
constexpr int StyleOf(bool on) { return on ? kStyleOn : kStyleOff; }

// A line of the right button's menu. Off and on do the same, since the one in force is grey.
enum class MenuAct { kNone, kToggle, kSettings };
MenuAct ActOf(unsigned command);

// A click on fill or bold lines gives way to a running command altogether.
constexpr bool DrawingSwitchActs(int cmdActive) { return cmdActive == 0; }

struct BaseLineClick {
  bool iconOn;  // to show at once
  bool flips;
};
// Deliberately uneven: the icon turns first, and only then a running command stops the click. The
// user then sees an icon that is ahead of the state until the next refresh.
constexpr BaseLineClick OnBaseLineClick(bool isOn, int cmdActive) {
  return {!isOn, cmdActive == 0};
}

// The grouping pane owns the low bit of PICKSTYLE; the value read, if one could be.
// At a click a value above 1 keeps its high bit. When the pane is added or taken away one below 0
// counts like that too.
int PickStyleAfterClick(std::optional<int> value, bool grouping);
int PickStyleAtInit(std::optional<int> value, bool grouping);

// Hosts above this release have dynamic input themselves.
constexpr bool HasDynInputPane(double hostRelease) { return hostRelease <= 16.11; }

// The radio button that stands for a number of input fields (1, 2, or 10 for all), and back.
int ChoiceOfFields(int fields);
int FieldsOfChoice(int choice);

}  // namespace qvx
