// What one line of the menu becomes as a row: caption, height, whether it answers, which image. The
// switch lines' state step stands here too, since it changes the line itself. No window, no bitmap:
// the group's window creates what is planned here. Called by CMenuGroup and CSMenuItem.
#pragma once

#include "menu/line_state.h"

namespace qvx {

enum class RowImage {
  kNone,   // the button gets no image call at all
  kArrow,  // folded or open, by the group's depth
  kCheckMark,
  kFromLibrary,  // the bitmap of the icon library that RowPlan::bitmap names; an empty name clears
};

struct RowPlan {
  const wchar_t* caption = L"";  // lives as long as the line's label
  int height = 0;
  bool enabled = false;
  RowImage image = RowImage::kNone;
  const wchar_t* bitmap = L"";  // for kFromLibrary; never null
};

// What a row needs beyond its line.
struct RowSources {
  LineSources lines;
  int rowHeight;  // the setting
};

// Runs the line's functions and, for a switch line, copies the state's label and icon into the
// line, which therefore always shows the last state seen. Empty when a function replaced the menu:
// the line is gone then.
RowPlan PlanRow(TMenuItem& line, const RowSources& sources);

// True when the line took over another state. Only the icon is compared: two states that share an
// icon keep the old caption, and users of such switches know it so. False too when the menu is
// gone.
bool RefreshSwitchLine(TMenuItem& line, const LineSources& sources);

}  // namespace qvx
