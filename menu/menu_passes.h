// What turns the raw lines of a parsed file into the final tree; a compiled file holds the result
// and never sees the passes. As the language words them, four passes go over the whole menu one
// after the other: icon names of the top-level lines and of the switch states become indexes; "->"
// and "<-" labels become sub-menus; "*SWITCH*" lines get their switches; "{~=Fn}" and "{!=Fn}" in
// front of labels become flags and functions. No block has a part in another one's passes, so that
// all that needs no table is done when a block ends, its lines still being in the caches; what
// needs the tables behind the blocks is noted and done at the end of the file.
#pragma once

#include <vector>

#include "frame/containers/tdptrlist.h"
#include "menu/name_pool.h"

class TMenuSystem;
class TMenuBar;
class TMenuItem;

// What the number of a name is for.
struct NameUse {
  int* iconIndex = nullptr;           // gets the index of the icon, at the end of the file
  TMenuItem* mark = nullptr;          // gets the switch, at the end of the file
  std::vector<int>* table = nullptr;  // gets the number of its next entry
};

class PassWork {
 public:
  struct IconUse {
    int* index;  // of a line or a state
    int name;
  };
  struct Mark {
    TMenuItem* item;
    int name;  // kNoName for none
  };
  struct LabelUse {
    TMenuItem* item;
    NamePool::Key icon;  // the name in front of the line; empty for none
  };
  static constexpr int kNoName = -1;

  explicit PassWork(size_t sourceBytes) : names(sourceBytes) {}

  // Names are looked up in batches. The targets of the use live until the next FlushNames or
  // DropNames.
  void AddName(const NamePool::Key& key, const NameUse& use) {
    m_keys[m_pending] = key;
    m_uses[m_pending] = use;
    if (++m_pending == kBatch) FlushNames();
  }
  void FlushNames();
  void DropNames() { m_pending = 0; }

  NamePool names;
  std::vector<int> resources;  // the name of each entry
  std::vector<int> switches;
  std::vector<IconUse> icons;
  std::vector<Mark> marks;  // lines that show a switch

 private:
  static constexpr size_t kBatch = 64;
  NamePool::Key m_keys[kBatch];
  NameUse m_uses[kBatch];
  size_t m_pending = 0;
};

// First and last of one "->" to "<-" range while sub-menus are built.
struct TItemDot {
  int first;
  int last;
};

// Hands the lines of a block out to its bar and the sub-menus below it. The arrows are noted while
// the lines are read, so that no line without one is looked at again.
class SubMenuNester {
 public:
  // For each line of the block, in their order; lines without an arrow may be left out. The label
  // loses its arrows until HandOut says which of them stay.
  void Note(TMenuItem& item, int line);
  // Empties the list, which owns its lines. Gives the number of steps: each closed a range or ended
  // a bar, so that there are no more than two a line and one.
  int HandOut(TDPtrList<TMenuItem>& lines, TMenuBar& bar);
  void Clear();  // for the next block

 private:
  struct Arrow {
    TMenuItem* item;
    int line;
    int pairs;        // leading "<-"; -1 for "->"
    int sum;          // +1 for each opening line, -1 for each pair, with this line
    int worn;         // pairs that it has lost to ranges
    int end;          // arrow that closes an opening one
    int nextOpening;  // this arrow or the first opening one behind it
  };
  struct Place {
    TMenuBar* bar;
    int begin;  // its lines in the list, begin to end
    int end;
    int next;  // line
    int nextArrow;
    int last;       // line
    int lastArrow;  // of the last line
  };
  const Arrow& At(int arrow) const { return m_arrows[static_cast<size_t>(arrow)]; }
  void Note(TMenuItem& item, int line, int pairs);
  void FindEnds();
  TItemDot NextRange(const Place& place) const;  // arrows
  void Step(TDPtrList<TMenuItem>& lines);

  std::vector<Arrow> m_arrows;
  int m_sum = 0;
  int m_lowest = 0;
  int m_highest = 0;
  std::vector<int> m_nearest;
  std::vector<Place> m_path;  // the bars under construction
};

// What the lines of one block leave for its end, gathered while they are read.
struct BlockWork {
  std::vector<PassWork::LabelUse> labels;
  SubMenuNester nester;

  void Note(TMenuItem& item, int line, const NamePool::Key& icon);
  void Clear() {
    labels.clear();
    nester.Clear();
  }
};

// For a block whose lines are complete: hands them out to the bar, notes the lines that show a
// switch and strips the conditions of the others.
void FinishBlock(TDPtrList<TMenuItem>& lines, TMenuBar& bar, BlockWork& block, PassWork& work);
// At the end of an accepted file, all names settled: icons and switches.
void ResolveNames(TMenuSystem& system, const PassWork& work);

void StripConditions(TMenuItem& item);
