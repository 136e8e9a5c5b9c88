// One layout pass over a group, as arithmetic: rectangles in, rectangles out. The window moves only
// what differs from where it stands. Called by CMenuGroup::LayoutGroup; painting and hit testing
// use the same rectangles, since rows are windows.
#pragma once

#include <vector>

#include "ground/plain_types.h"

namespace qvx {

constexpr int kScrollBarWidth = 8;
constexpr int kTopMargin = 2;  // above the first row
constexpr int kChildGap = 2;   // between a header and the group below it; the sunken edge fills it
constexpr int kHeaderReach = 2;  // how far above an open group its header's row is counted to reach

struct LayoutRequest {
  RECT client;
  bool limitHeight;  // the group keeps its rows still and gives its open child what is left
  bool scrolls;      // it is its own scroll host, and may get a bar
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
  bool wanted = false;  // otherwise a bar that exists is to go
  RECT bar{};
  int top = 0;  // the range runs from 0 to here
  int pos = 0;
};

struct LayoutPlan {
  ScrollPlan scroll;
  std::vector<RECT> rows;
  RECT child{};  // of the open child; its height may be zero or negative when rows fill all
  int end = 0;   // y behind the last row
};

LayoutPlan PlanLayout(const LayoutRequest& request);

// The palette's part of a root group: 3 pixels from the top while docked, 2 from the bottom.
// `bottom` is the used rectangle's while floating and the window's own while docked.
RECT FitRootGroup(const RECT& used, bool floating, int windowBottom);
RECT FirstRootGroup(const RECT& used, bool floating);

}  // namespace qvx
