// What turns the raw lines of a parsed file into the final tree, in this order. The loader runs
// them after every parse, failed ones too; a compiled file holds their result and never sees them.
#pragma once

class TMenuSystem;
class TMenuBar;

// Icon names of the top-level lines and of the switch states into indexes. First, while every line
// is still at the top level.
void ResolveIcons(TMenuSystem& system);
// "->" and "<-" labels into sub-menus.
void NestSubMenus(TMenuSystem& system);
// Gives the number of steps: each closed a range or ended a bar, so that there are no more than two
// a line and one.
int NestSubMenus(TMenuBar& bar);
// "*SWITCH*" lines to their switches.
void ResolveSwitches(TMenuSystem& system);
// "{~=Fn}" and "{!=Fn}" in front of labels into flags and functions.
void StripConditions(TMenuSystem& system);

void RunPasses(TMenuSystem& system);

// First and last line of one "->" to "<-" range while sub-menus are built.
struct TItemDot {
  int first;
  int last;
};
