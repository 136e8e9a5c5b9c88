// The whole tree of groups as a plan, before a single window exists: rows, heights, nested groups
// and which of them is open. Planning runs every LISP function of the menu, once and in line order;
// the windows are then created where the plan and the layout pass put them, hidden, and shown once.
#pragma once

#include <memory>
#include <vector>

#include "screenmenu/group_layout.h"
#include "screenmenu/row_plan.h"

namespace qvx {

// Deeper menus than this are cut: windows don't nest that deep, and planning recurses.
constexpr int kDeepestGroup = 100;

struct GroupPlan {
  TMenuBar* bar = nullptr;
  GroupPlan* parent = nullptr;
  int depth = 0;
  bool limitHeight = false;
  int rowsHeight = 0;         // sum of the row heights plus the margin
  int clientHeight = 0;       // the root's, where its height is limited
  std::vector<RowPlan> rows;  // one for each line
  std::vector<std::unique_ptr<GroupPlan>>
      children;     // one slot for each line, null without sub-menu
  int cursor = -1;  // the open index; may stand on a line without sub-menu

  // For the rules of group_rules.h.
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
  int rememberedOpen;  // the root's open index as the settings keep it
  int clientHeight;    // of the root's window
};
// Null when a LISP function replaced the menu: bar and lines are gone then.
std::unique_ptr<GroupPlan> PlanTree(TMenuBar& bar, const TreeRequest& request);

// Where a cursor sent to `index` comes to rest in a list of `count` slots.
constexpr int RestOfCursor(int index, int count) {
  return index >= 0 && index < count ? index : -1;
}

}  // namespace qvx
