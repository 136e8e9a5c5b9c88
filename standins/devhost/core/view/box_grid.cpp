// The index over rectangles; see the header.
#include "devhost/core/view/box_grid.h"

#include <algorithm>
#include <cmath>

namespace devhost {
namespace {

constexpr int kSmallestLevel = -20;  // smaller boxes, and points, share the cells of this size
constexpr double kMaxCell = 1e15;    // cell numbers up to here are exact in a double

int LevelOf(const Box& box) {
  int exponent = 0;
  std::frexp(std::max(box.x1 - box.x0, box.y1 - box.y0), &exponent);
  return std::max(exponent, kSmallestLevel);
}

bool HasCell(const Box& box, int level) {
  const double size = std::ldexp(1.0, level);
  for (double v : {box.x0, box.y0, box.x1, box.y1})
    if (!std::isfinite(v) || std::fabs(v / size) > kMaxCell) return false;
  return std::isfinite(size);
}

double CellNumber(double v, double size) {
  return std::clamp(std::floor(v / size), -2 * kMaxCell, 2 * kMaxCell);
}

}  // namespace

std::size_t BoxGrid::CellHash::operator()(const Cell& cell) const {
  const auto mix = [](std::uint64_t v) {
    v *= 0x9E3779B97F4A7C15u;
    return v ^ v >> 29;
  };
  return static_cast<std::size_t>(
      mix(static_cast<std::uint64_t>(cell.x) + mix(static_cast<std::uint64_t>(cell.y))));
}

std::vector<int>* BoxGrid::Place(const Box& box, bool create) {
  const int level = LevelOf(box);
  if (!HasCell(box, level)) return &m_everywhere;
  const double size = std::ldexp(1.0, level);
  const Cell cell = {static_cast<std::int64_t>(CellNumber(box.x0, size)),
                     static_cast<std::int64_t>(CellNumber(box.y0, size))};
  if (create) return &m_levels[level][cell];
  const auto cells = m_levels.find(level);
  if (cells == m_levels.end()) return nullptr;
  const auto at = cells->second.find(cell);
  return at == cells->second.end() ? nullptr : &at->second;
}

void BoxGrid::Insert(int item, const Box& box) { Place(box, true)->push_back(item); }

void BoxGrid::Remove(int item, const Box& box) {
  if (std::vector<int>* place = Place(box, false)) std::erase(*place, item);
}

void BoxGrid::Clear() {
  m_levels.clear();
  m_everywhere.clear();
}

// A box of a level begins at most one cell before the cells that it touches.
void BoxGrid::Find(const Box& box, std::vector<int>* items) const {
  const auto append = [items](const std::vector<int>& cell) {
    items->insert(items->end(), cell.begin(), cell.end());
  };
  append(m_everywhere);
  for (const auto& [level, cells] : m_levels) {
    const double size = std::ldexp(1.0, level);
    const double left = CellNumber(box.x0, size) - 1, right = CellNumber(box.x1, size),
                 bottom = CellNumber(box.y0, size) - 1, top = CellNumber(box.y1, size);
    const auto covers = [&](const Cell& cell) {
      return cell.x >= left && cell.x <= right && cell.y >= bottom && cell.y <= top;
    };
    if ((right - left + 1) * (top - bottom + 1) > static_cast<double>(cells.size())) {
      for (const auto& [cell, place] : cells)
        if (covers(cell)) append(place);
      continue;
    }
    for (double x = left; x <= right; ++x)
      for (double y = bottom; y <= top; ++y) {
        const auto at = cells.find({static_cast<std::int64_t>(x), static_cast<std::int64_t>(y)});
        if (at != cells.end()) append(at->second);
      }
  }
}

}  // namespace devhost
