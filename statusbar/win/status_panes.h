// The module's panes: one static object of each class, living as long as the module. The module's
// frame adds and removes them and refreshes those of the drawing; sibling modules call
// UpdateStatusBar when a switch has changed behind the panes' back.
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
TDynPane& TheDynInputPane();  // stays off the bar until somebody calls its Init
TPScalePane& TheScalePane();

// What the bar shows at present, in its order; panes of others have no name.
struct ShownPane {
  const char* name;
  int style;
  int icon;  // its resource; 0 for none
  std::wstring toolTip, text;
  RECT rect;  // screen pixels; empty when the bar has no room for it
};
std::vector<ShownPane> ShownPanes();
