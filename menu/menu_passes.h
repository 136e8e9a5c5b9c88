// What turns the raw lines of a parsed file into the final tree; a compiled file holds the result
// and never sees the passes. As the language words them, four passes go over the whole menu one
// after the other: icon names of the top-level lines and of the switch states become indexes; "->"
// and "<-" labels become sub-menus; "*SWITCH*" lines get their switches; "{~=Fn}" and "{!=Fn}" in
// front of labels become flags and functions. No block has a part in another one's passes, so that
// all that needs no table is done when a block ends, its lines still being in the caches; what
// needs the tables behind the blocks is noted and done at the end of the file.
#pragma once

#include <vector>

#include "menu/name_pool.h"

class TMenuSystem;
class TMenuBar;
class TMenuItem;

struct PassWork {
  struct IconUse {
    int* index;  // of a line or a state
    int name;
  };
  struct LabelUse {
    TMenuItem* item;
    int icon;  // the name in front of the line; kNoName for none
  };
  static constexpr int kNoName = -1;

  explicit PassWork(size_t sourceBytes) : names(sourceBytes) {}

  NamePool names;
  std::vector<int> resources;  // the name of each entry
  std::vector<int> switches;
  std::vector<IconUse> icons;
  std::vector<LabelUse> marks;  // lines that show a switch
};

// Whether a label as it is written may be work for FinishBlock.
bool IsLabelWork(const TMenuItem& item);
// For a block whose lines are complete: nests them, notes the lines that show a switch and strips
// the conditions of the others. `labels` has at least all lines with such work.
void FinishBlock(TMenuBar& bar, const std::vector<PassWork::LabelUse>& labels, PassWork& work);
// At the end of an accepted file: icons and switches.
void ResolveNames(TMenuSystem& system, const PassWork& work);

// Gives the number of steps: each closed a range or ended a bar, so that there are no more than two
// a line and one.
int NestSubMenus(TMenuBar& bar);
void StripConditions(TMenuItem& item);

// First and last line of one "->" to "<-" range while sub-menus are built.
struct TItemDot {
  int first;
  int last;
};
