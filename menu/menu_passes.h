// What turns the raw lines of a parsed file into the final tree. The loader runs the passes after
// every parse, failed ones too; a compiled file holds their result and never sees them. The parser
// notes on its way which lines a pass has to look at, so that none walks the whole menu.
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

  NamePool names;
  std::vector<int> resources;  // the name of each entry
  std::vector<int> switches;
  std::vector<IconUse> icons;
  // Lines whose label a pass may change or that may show a switch; at least all of those.
  std::vector<LabelUse> labels;
};

// Runs all of them, in this order: icon names of the top-level lines and of the switch states into
// indexes; "->" and "<-" labels into sub-menus; "*SWITCH*" lines to their switches; "{~=Fn}" and
// "{!=Fn}" in front of labels into flags and functions.
void RunPasses(TMenuSystem& system, const PassWork& work);

void ResolveIcons(const PassWork& work);
void NestSubMenus(TMenuSystem& system);
// Gives the number of steps: each closed a range or ended a bar, so that there are no more than two
// a line and one.
int NestSubMenus(TMenuBar& bar);
void ResolveSwitches(TMenuSystem& system, const PassWork& work);
void StripConditions(const PassWork& work);

// Whether a label as it is written may be work for the passes behind the nesting.
bool IsLabelWork(const TMenuItem& item);

// First and last line of one "->" to "<-" range while sub-menus are built.
struct TItemDot {
  int first;
  int last;
};
