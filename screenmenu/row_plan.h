// How a menu line appears as a row: caption, height, enabled state, image. Updating a switch line
// from its state is here too, since it changes the line. No window, no bitmap: CMenuGroup and
// CSMenuItem create what is planned here.
#pragma once

#include <algorithm>

#include "menu/line_state.h"

namespace qvx {

enum class RowImage {
  kNone,   // no image call is made on the button
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

// The setting of the row height without values that would overflow sums over the rows of a menu.
// Those below 1 are kept: such rows are not seen.
constexpr int RowHeightInRange(int setting) {
  constexpr int kMost = 10000;  // pixels, higher than any screen
  return std::clamp(setting, -kMost, kMost);
}

struct RowSources {
  LineSources lines;
  int rowHeight;  // of RowHeightInRange
};

// Runs the line's functions and, for a switch line, copies the state's label and icon into the
// line, so that it shows the last state read. Empty when a function replaced the menu: the line is
// destroyed then.
RowPlan PlanRow(TMenuItem& line, const RowSources& sources);

// True when the line changed to another state; false also when the menu is gone. Deliberate: only
// the icon is compared, so of two states with the same icon the row keeps showing the old caption.
bool RefreshSwitchLine(TMenuItem& line, const LineSources& sources);

}  // namespace qvx
