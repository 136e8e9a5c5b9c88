// The whole tree of groups as a plan, made before any window: rows, heights, nested groups and
// which of them is open. Planning runs every LISP function of the menu once, in line order. The
// windows are then created hidden at their final places and shown once.
#pragma once

#include <memory>
#include <vector>

#include "screenmenu/group_layout.h"
#include "screenmenu/row_plan.h"

namespace qvx {

// Deeper menus are cut off: the window system limits nesting of windows, and planning recurses.
constexpr int kDeepestGroup = 100;

struct GroupPlan {
  TMenuBar* bar = nullptr;
  GroupPlan* parent = nullptr;
  int depth = 0;
  bool limitHeight = false;
  int rowsHeight = 0;         // sum of the row heights plus the margin
  int clientHeight = 0;       // the root's, where its height is limited
  std::vector<RowPlan> rows;  // one for each line
  // One slot for each line, null without sub-menu.
  std::vector<std::unique_ptr<GroupPlan>> children;
  int cursor = -1;  // the open index; may be that of a line without sub-menu

  // The node interface of group_rules.h.
  bool LimitHeight() const { return limitHeight; }
  int RowsHeight() const { return rowsHeight; }
  int ClientHeight() const { return clientHeight; }
  GroupPlan* OpenChild() const;
  GroupPlan* ParentGroup() const { return parent; }

  std::vector<int> RowHeights() const;
};

struct TreeRequest {
  RowSources sources;
  bool limitHeight;    // of the root
  bool openFirst;      // the setting that opens the first line of each level
  int rememberedOpen;  // the root's open index from the settings
  int clientHeight;    // of the root's window
};
// Null when a LISP function replaced the menu: bar and lines are destroyed then.
std::unique_ptr<GroupPlan> PlanTree(TMenuBar& bar, const TreeRequest& request);

// The open index in a list of `count` slots after setting it to `index`.
constexpr int RestOfCursor(int index, int count) {
  return index >= 0 && index < count ? index : -1;
}

}  // namespace qvx
