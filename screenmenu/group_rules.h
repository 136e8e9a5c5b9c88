// Rules over the tree of groups: how high a group's contents are, who scrolls for it, what a click
// on a header does, which group is open at the start. Written over any node type, so that the tests
// walk them on plain records and CMenuGroup on itself.
//
// A node offers: bool LimitHeight(); int RowsHeight() (rows plus 4); int ClientHeight();
// Node* OpenChild() (null when nothing shows); Node* ParentGroup().
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

// A group of limited height scrolls for itself; of any other the topmost one below such a group.
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
  kFold,     // hide the open group, nothing is open then
  kSwitch,   // hide what is open, open this one and bring it into view
};

inline FoldStep DecideFold(unsigned index, int rows, int openIndex) {
  if (index >= static_cast<unsigned>(rows < 0 ? 0 : rows)) return FoldStep::kNothing;
  return static_cast<int>(index) == openIndex ? FoldStep::kFold : FoldStep::kSwitch;
}

// Where the cursor of a new group is sent; a value that is no row leaves nothing open. Opening the
// first line at every level outranks what the settings remember of the root. `remembered` is only
// asked for the root.
template <class Remembered>
int OpenIndexAtStart(bool openFirst, int depth, Remembered remembered) {
  if (openFirst) return 0;
  return depth > 0 ? kNothingOpen : remembered();
}

}  // namespace qvx
