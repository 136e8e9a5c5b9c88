// The passes turn the lines of a parsed source into the final tree; a compiled file contains the
// result and needs no pass. The language defines four passes over the whole menu, one after the
// other: icon names of top-level lines and of switch states become indexes; "->" and "<-" labels
// become sub-menus; "*SWITCH*" lines get their switches; "{~=Fn}" and "{!=Fn}" before labels become
// flags and functions. Blocks do not depend on each other, so that everything that needs no table
// is done at the end of each block, while its lines are in the caches. What needs the tables after
// the blocks is recorded and done at the end of the file.
#pragma once

#include <vector>

#include "frame/containers/tdptrlist.h"
#include "menu/name_pool.h"

class TMenuSystem;
class TMenuBar;
class TMenuItem;

// What is set once the number of a name is known. One member is not null.
struct NameUse {
  int* iconIndex = nullptr;           // set to the icon's index at the end of the file
  TMenuItem* mark = nullptr;          // given its switch at the end of the file
  std::vector<int>* table = nullptr;  // the number is appended
};

class PassWork {
 public:
  struct IconUse {
    int* index;  // in a line or a state
    int name;
  };
  struct Mark {
    TMenuItem* item;
    int name;  // kNoName for none
  };
  struct LabelUse {
    TMenuItem* item;
    NamePool::Key icon;  // the name before the line; empty for none
  };
  static constexpr int kNoName = -1;

  explicit PassWork(size_t sourceBytes) : names(sourceBytes) {}

  // Names are looked up in batches. The targets of the use must exist until FlushNames or
  // DropNames.
  void AddName(const NamePool::Key& key, const NameUse& use) {
    m_keys[m_pending] = key;
    m_uses[m_pending] = use;
    if (++m_pending == kBatch) FlushNames();
  }
  void FlushNames();
  void DropNames() { m_pending = 0; }

  NamePool names;
  std::vector<int> resources;  // the name of each resource
  std::vector<int> switches;
  std::vector<IconUse> icons;
  std::vector<Mark> marks;  // the "*SWITCH*" lines

 private:
  static constexpr size_t kBatch = 64;
  NamePool::Key m_keys[kBatch];
  NameUse m_uses[kBatch];
  size_t m_pending = 0;
};

// The first and last index of one range from "->" to "<-".
struct TItemDot {
  int first;
  int last;
};

// Distributes the lines of a block to its bar and the sub-menus. Arrows are recorded when a line is
// read, so that lines without an arrow are not examined again.
class SubMenuNester {
 public:
  // To be called for the lines of the block in order; lines without an arrow may be omitted.
  // Removes the arrows from the label; HandOut puts back those that close or open nothing.
  void Note(TMenuItem& item, int line);
  // Empties the list, which owns its lines. Returns the number of steps, each of which closes a
  // range or ends a bar: at most two for each line and one more.
  int HandOut(TDPtrList<TMenuItem>& lines, TMenuBar& bar);
  void Clear();  // for the next block

 private:
  struct Arrow {
    TMenuItem* item;
    int line;
    int pairs;        // number of leading "<-"; -1 for "->"
    int sum;          // +1 for each opening line, -1 for each pair, up to and with this line
    int worn;         // pairs that were used by ranges
    int end;          // of an opening arrow: the arrow that closes it
    int nextOpening;  // this arrow or the next opening one
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

// Collected while the lines of a block are read, for FinishBlock.
struct BlockWork {
  std::vector<PassWork::LabelUse> labels;
  SubMenuNester nester;

  void Note(TMenuItem& item, int line, const NamePool::Key& icon);
  void Clear() {
    labels.clear();
    nester.Clear();
  }
};

// At the end of a block: distributes its lines, records the "*SWITCH*" lines and strips the
// conditions of the others.
void FinishBlock(TDPtrList<TMenuItem>& lines, TMenuBar& bar, BlockWork& block, PassWork& work);
// At the end of an accepted file, after FlushNames: sets icons and switches.
void ResolveNames(TMenuSystem& system, const PassWork& work);

void StripConditions(TMenuItem& item);
