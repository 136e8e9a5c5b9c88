// Borders between tiled viewports; see the header.
#include "kernel/viewport_borders.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kReach = 3;               // pixels on both sides of a border
constexpr double kSame = 1e-6;          // parts of a window that count as equal
constexpr double kSmallest = 1.0 / 20;  // of the window

// Reads as if every border were upright.
class Turned {
 public:
  Turned(const std::function<int(int, int)>& numberAt, bool upright)
      : m_numberAt(numberAt), m_upright(upright) {}
  int operator()(int across, int along) const {
    return m_upright ? m_numberAt(across, along) : m_numberAt(along, across);
  }

 private:
  const std::function<int(int, int)>& m_numberAt;
  bool m_upright;
};

// The first pixel beyond the border that crosses these two, which lie in different viewports.
int ExactPlace(const Turned& numberAt, int across, int along) {
  const int first = numberAt(across - kReach, along);
  int at = across - kReach;
  while (numberAt(at, along) == first) ++at;
  return at;
}

bool IsBorder(const Turned& numberAt, int at, int along) {
  const int first = numberAt(at - 1, along), second = numberAt(at, along);
  return first && second && first != second;
}

ViewportBorder BorderIn(const std::function<int(int, int)>& pixels, bool upright, int across,
                        int along) {
  const Turned numberAt(pixels, upright);
  ViewportBorder border;
  const int before = numberAt(across - kReach, along), after = numberAt(across + kReach, along);
  if (!before || !after || before == after) return border;
  border.upright = upright;
  border.at = ExactPlace(numberAt, across, along);
  border.first = before;
  border.second = numberAt(border.at, along);
  if (!border.second) return {};
  border.from = border.to = along;
  while (IsBorder(numberAt, border.at, border.from - 1)) --border.from;
  while (IsBorder(numberAt, border.at, border.to)) ++border.to;
  return border;
}

}  // namespace

ViewportBorder BorderNear(const std::function<int(int, int)>& numberAt, CPoint pixel) {
  const ViewportBorder upright = BorderIn(numberAt, true, pixel.x, pixel.y);
  return upright.first ? upright : BorderIn(numberAt, false, pixel.y, pixel.x);
}

namespace {

// A tile seen so that the border is upright and `first` lies before it: to the left, or, with y
// turned to point down, above.
struct Side {
  double before, after, from, to;
};

Side SideOf(const ViewportTile& tile, bool upright) {
  if (upright) return {tile.left, tile.right, tile.bottom, tile.top};
  return {-tile.top, -tile.bottom, tile.left, tile.right};
}

bool Same(double a, double b) { return std::fabs(a - b) < kSame; }

bool Overlap(const Side& a, const Side& b) {
  return std::min(a.to, b.to) - std::max(a.from, b.from) > kSame;
}

// Which tiles end at the line (first) and which begin there (second), by index.
struct AtLine {
  std::vector<std::size_t> before, after;
};

// Begins with one tile and takes in what touches along the line until nothing more does.
AtLine Collect(const std::vector<ViewportTile>& tiles, std::size_t first, bool upright,
               double line) {
  AtLine found{{first}, {}};
  std::vector<bool> taken(tiles.size());
  taken[first] = true;
  for (bool grew = true; grew;) {
    grew = false;
    for (std::size_t i = 0; i < tiles.size(); ++i) {
      const Side side = SideOf(tiles[i], upright);
      const bool ends = Same(side.after, line), begins = Same(side.before, line);
      if (taken[i] || (!ends && !begins)) continue;
      const std::vector<std::size_t>& opposite = ends ? found.after : found.before;
      const bool touches = std::any_of(opposite.begin(), opposite.end(), [&](std::size_t other) {
        return Overlap(side, SideOf(tiles[other], upright));
      });
      if (!touches) continue;
      (ends ? found.before : found.after).push_back(i);
      taken[i] = grew = true;
    }
  }
  return found;
}

void SetLine(ViewportTile& tile, bool upright, bool ends, double line) {
  if (upright)
    (ends ? tile.right : tile.left) = line;
  else
    (ends ? tile.bottom : tile.top) = -line;
}

}  // namespace

bool MoveBorder(std::vector<ViewportTile>& tiles, const ViewportBorder& border, double place) {
  const auto named = [&](int number) {
    return std::find_if(tiles.begin(), tiles.end(),
                        [number](const ViewportTile& tile) { return tile.number == number; });
  };
  const auto first = named(border.first), second = named(border.second);
  if (first == tiles.end() || second == tiles.end() || !std::isfinite(place)) return false;
  const Side a = SideOf(*first, border.upright), b = SideOf(*second, border.upright);
  const double line = a.after;
  if (!Same(line, b.before) || !Overlap(a, b)) return false;

  const AtLine moved = Collect(tiles, first - tiles.begin(), border.upright, line);
  double lowest = -2, highest = 2;
  for (std::size_t i : moved.before)
    lowest = std::max(lowest, SideOf(tiles[i], border.upright).before + kSmallest);
  for (std::size_t i : moved.after)
    highest = std::min(highest, SideOf(tiles[i], border.upright).after - kSmallest);
  // What is too narrow already keeps its place.
  const double wanted = border.upright ? place : -place;
  const double to = std::clamp(wanted, std::min(lowest, line), std::max(highest, line));
  if (Same(to, line)) return false;
  for (std::size_t i : moved.before) SetLine(tiles[i], border.upright, true, to);
  for (std::size_t i : moved.after) SetLine(tiles[i], border.upright, false, to);
  return true;
}
