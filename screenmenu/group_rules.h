// Rules over the tree of groups: content height, which group scrolls, what a click on a header
// does, which group is open at the start. Templates over a node type, so that they run on
// CMenuGroup, on GroupPlan and on plain records.
//
// A node has: bool LimitHeight(); int RowsHeight() (rows plus 4); int ClientHeight();
// Node* OpenChild() (null when none is shown); Node* ParentGroup().
#pragma once

namespace qvx {

constexpr int kGroupMargin = 4;  // above and below a group's rows, and around an open child
constexpr int kNothingOpen = -1;

template <class Node>
int ContentHeight(Node* group) {
  int height = 0;
  for (; group; group = group->OpenChild()) {
    if (group->LimitHeight()) return height + group->ClientHeight();
    height += group->RowsHeight();
    if (group->OpenChild()) height += kGroupMargin;
  }
  return height;
}

// The group that scrolls: the group itself when its height is limited, otherwise the topmost one
// below a group of limited height.
template <class Node>
Node* ScrollHostOf(Node* group) {
  if (group->LimitHeight()) return group;
  for (Node* parent = group->ParentGroup(); parent && !parent->LimitHeight();
       parent = group->ParentGroup())
    group = parent;
  return group;
}

enum class FoldStep {
  kNothing,  // the index is no row
  kFold,     // hide the open group; none is open then
  kSwitch,   // hide the open group, show this one and scroll it into view
};

inline FoldStep DecideFold(unsigned index, int rows, int openIndex) {
  if (index >= static_cast<unsigned>(rows < 0 ? 0 : rows)) return FoldStep::kNothing;
  return static_cast<int>(index) == openIndex ? FoldStep::kFold : FoldStep::kSwitch;
}

// The open index of a new group; an index that is no row leaves none open. Opening the first line
// at every level takes precedence over `remembered`, which is called only for the root.
template <class Remembered>
int OpenIndexAtStart(bool openFirst, int depth, Remembered remembered) {
  if (openFirst) return 0;
  return depth > 0 ? kNothingOpen : remembered();
}

}  // namespace qvx
