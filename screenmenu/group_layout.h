// One layout pass over a group, as arithmetic on rectangles. CMenuGroup::LayoutGroup moves only
// windows whose rectangle differs. Rows are windows: painting and hit tests use the same
// rectangles.
#pragma once

#include <vector>

#include "ground/plain_types.h"

namespace qvx {

constexpr int kScrollBarWidth = 8;
constexpr int kTopMargin = 2;  // above the first row
constexpr int kChildGap = 2;   // between a header and the group below it; the sunken edge fills it
constexpr int kHeaderReach = 2;  // added to the header's height when a group is revealed

struct LayoutRequest {
  RECT client;
  bool limitHeight;  // the rows do not scroll; the open child gets the remaining height
  bool scrolls;      // the group is its own scroll host and may get a bar
  int total;         // ContentHeight of the group
  int rowsHeight;    // its own rows plus the margin
  int barWidth;
  bool hasBar;                      // a bar's window exists
  int scrollPos;                    // of that bar
  const std::vector<int>* heights;  // of the rows, in order
  int openIndex;                    // the row whose child shows, or -1
  int childHeight;                  // ContentHeight of that child
};

struct ScrollPlan {
  bool wanted = false;  // false: destroy an existing bar
  RECT bar{};
  int top = 0;  // upper end of the range, which starts at 0
  int pos = 0;
};

struct LayoutPlan {
  ScrollPlan scroll;
  std::vector<RECT> rows;
  RECT child{};  // of the open child; height zero or negative when the rows fill the client area
  int end = 0;   // y below the last row
};

LayoutPlan PlanLayout(const LayoutRequest& request);

// Whether a row begins above the end of the one before it: the open group's height is negative.
bool RowsOverlap(const LayoutPlan& plan);

// The rectangle of a root group in the palette: 3 pixels from the top while docked, 2 from the
// bottom. `bottom` is that of the used rectangle while floating and of the window while docked.
RECT FitRootGroup(const RECT& used, bool floating, int windowBottom);
RECT FirstRootGroup(const RECT& used, bool floating);

}  // namespace qvx
