// The module's panes: one static object of each class. The module's frame adds and removes them and
// refreshes those of the drawing; sibling modules call UpdateStatusBar after they change a switch
// by other means than its pane.
#pragma once

#include <string>
#include <vector>

#include "statusbar/pane_rules.h"
#include "ground/plain_types.h"

class CADStatusPane;
class TDynPane;
class TPScalePane;

void InitStatusPane(qvx::SwitchPane pane, bool add);
void InitScalePane(bool add);

CADStatusPane& StatusPaneOf(qvx::SwitchPane pane);
TDynPane& TheDynInputPane();  // not on the bar until its Init(true) is called
TPScalePane& TheScalePane();

// One pane of the bar, in the bar's order; panes of other modules have no name.
struct ShownPane {
  const char* name;
  int style;
  int icon;  // its resource; 0 for none
  std::wstring toolTip, text;
  RECT rect;  // screen pixels; empty if the pane does not fit on the bar
};
std::vector<ShownPane> ShownPanes();
