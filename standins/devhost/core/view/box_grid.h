// An index over rectangles: finds those that touch a rectangle without visiting the others. A
// rectangle is in one cell of the level whose cells are at least as large as it is, so inserting
// and removing cost the same for small and large ones.
#pragma once

#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

namespace devhost {

struct Box {
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;  // x0 <= x1, y0 <= y1
  bool Touches(const Box& o) const { return x0 <= o.x1 && o.x0 <= x1 && y0 <= o.y1 && o.y0 <= y1; }
  bool operator==(const Box&) const = default;
};

class BoxGrid {
 public:
  // `item` is a number of the caller's. Remove needs the box of the insertion.
  void Insert(int item, const Box& box);
  void Remove(int item, const Box& box);
  void Clear();

  // Appends the items of all cells that the box may touch: every item whose box touches it, and
  // others. Not sorted.
  void Find(const Box& box, std::vector<int>* items) const;

 private:
  struct Cell {
    std::int64_t x, y;
    bool operator==(const Cell&) const = default;
  };
  struct CellHash {
    std::size_t operator()(const Cell& cell) const;
  };
  using Level = std::unordered_map<Cell, std::vector<int>, CellHash>;

  std::vector<int>* Place(const Box& box, bool create);

  std::map<int, Level> m_levels;  // by the binary exponent of the cells' size
  std::vector<int> m_everywhere;  // boxes that no cell number can express
};

}  // namespace devhost
