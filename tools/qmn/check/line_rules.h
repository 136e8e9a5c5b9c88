// The rules of menu lines, by the part that they check.
#pragma once

#include "tools/qmn/check/line_view.h"

// Checks the arrows of one block. `lines` are all its lines in file order.
void CheckArrows(const CheckContext& context, const std::vector<LineView>& lines);
void CheckLabel(const LineView& line);
bool IsOnlyDashes(const TMenuItem& item);     // and no separator
bool ShowsSwitchMark(const TMenuItem& item);  // *SWITCH* that is no switch
void CheckConditions(const LineView& line);
void CheckCommand(const LineView& line);
void CheckIconName(const LineView& line);
void CheckKnownCommands(const LineView& line);
// Separators and repeated lines of one block, sub-menus included.
void CheckMenus(const std::vector<LineView>& lines, bool isToolBar);
