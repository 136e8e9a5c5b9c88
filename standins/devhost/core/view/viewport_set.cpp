// Viewports; see the header.
#include "devhost/core/view/viewport_set.h"

#include <algorithm>
#include <cmath>

namespace devhost {
namespace {

bool IsInside(const RECT& r, POINT p) {
  return p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom;
}

bool IsPlace(const UnitRect& r) {
  return r.left >= 0 && r.bottom >= 0 && r.right <= 1 && r.top <= 1 && r.left < r.right &&
         r.bottom < r.top;
}

constexpr double kSlack = 1e-6;  // of the window; rounding of corners that a module computed

bool Overlap(const UnitRect& a, const UnitRect& b) {
  return a.left + kSlack < b.right && b.left + kSlack < a.right && a.bottom + kSlack < b.top &&
         b.bottom + kSlack < a.top;
}

// Rectangles without overlap whose areas add up to the window's fill it.
bool FillTheWindow(const std::vector<TilePlace>& tiles) {
  double area = 0;
  for (std::size_t i = 0; i < tiles.size(); ++i) {
    const UnitRect& r = tiles[i].place;
    if (!IsPlace(r)) return false;
    area += (r.right - r.left) * (r.top - r.bottom);
    for (std::size_t k = 0; k < i; ++k)
      if (tiles[k].number == tiles[i].number || Overlap(tiles[k].place, r)) return false;
  }
  return std::fabs(area - 1) < 10 * kSlack;
}

}  // namespace

std::vector<UnitRect> Divide(const UnitRect& w, Tiling tiling) {
  const double x = (w.left + w.right) / 2, y = (w.bottom + w.top) / 2;
  const double x1 = w.left + (w.right - w.left) / 3, x2 = w.right - (w.right - w.left) / 3;
  const double y1 = w.bottom + (w.top - w.bottom) / 3, y2 = w.top - (w.top - w.bottom) / 3;
  const UnitRect above = {w.left, y, w.right, w.top}, below = {w.left, w.bottom, w.right, y};
  const UnitRect left = {w.left, w.bottom, x, w.top}, right = {x, w.bottom, w.right, w.top};
  const UnitRect aboveLeft = {w.left, y, x, w.top}, aboveRight = {x, y, w.right, w.top};
  const UnitRect belowLeft = {w.left, w.bottom, x, y}, belowRight = {x, w.bottom, w.right, y};
  switch (tiling) {
    case Tiling::TwoHorizontal:
      return {above, below};
    case Tiling::TwoVertical:
      return {left, right};
    case Tiling::ThreeHorizontal:
      return {
          {w.left, y2, w.right, w.top}, {w.left, y1, w.right, y2}, {w.left, w.bottom, w.right, y1}};
    case Tiling::ThreeVertical:
      return {
          {w.left, w.bottom, x1, w.top}, {x1, w.bottom, x2, w.top}, {x2, w.bottom, w.right, w.top}};
    case Tiling::ThreeAbove:
      return {above, belowLeft, belowRight};
    case Tiling::ThreeBelow:
      return {below, aboveLeft, aboveRight};
    case Tiling::ThreeLeft:
      return {left, aboveRight, belowRight};
    case Tiling::ThreeRight:
      return {right, aboveLeft, belowLeft};
    case Tiling::Four:
      return {aboveLeft, aboveRight, belowLeft, belowRight};
  }
  return {w};
}

ViewportSet::ViewportSet() : m_tiles{{kFirstTile, {}, {}}} {}

// Neighbours round their common border to the same pixel.
RECT ViewportSet::PixelsOf(const UnitRect& place) const {
  auto pixel = [](double part, int size) { return static_cast<LONG>(std::lround(part * size)); };
  return {pixel(place.left, m_width), pixel(1 - place.top, m_height), pixel(place.right, m_width),
          pixel(1 - place.bottom, m_height)};
}

void ViewportSet::PlaceAll() {
  for (Tile& tile : m_tiles) tile.parked.Place(PixelsOf(tile.place));
  m_current.Place(m_sheet ? RECT{0, 0, m_width, m_height} : PixelsOf(m_tiles[m_at].place));
}

void ViewportSet::Resize(int width, int height) {
  m_width = std::max(width, 1);
  m_height = std::max(height, 1);
  m_tilesSeen |= !m_sheet;
  PlaceAll();
}

int ViewportSet::CurrentNumber() const { return m_sheet ? m_sheet : CurrentTile(); }

void ViewportSet::ShowSheet(int number) {
  if (!m_sheet) m_tiles[m_at].parked = m_current;
  m_sheet = number;
  PlaceAll();
}

bool ViewportSet::ShowTiles() {
  if (m_sheet && m_tilesSeen) m_current = m_tiles[m_at].parked;
  m_sheet = 0;
  PlaceAll();
  return m_tilesSeen;
}

bool ViewportSet::HasTile(int number) const {
  return std::any_of(m_tiles.begin(), m_tiles.end(),
                     [number](const Tile& tile) { return tile.number == number; });
}

bool ViewportSet::MakeCurrent(int number) {
  if (m_sheet || !HasTile(number)) return false;
  m_tiles[m_at].parked = m_current;
  m_at = 0;
  while (m_tiles[m_at].number != number) ++m_at;
  m_current = m_tiles[m_at].parked;
  return true;
}

std::vector<ViewportOnScreen> ViewportSet::OnScreen() const {
  if (m_sheet) return {{m_sheet, {0, 0, m_width, m_height}, true}};
  std::vector<ViewportOnScreen> shown;
  for (std::size_t i = 0; i < m_tiles.size(); ++i)
    shown.push_back({m_tiles[i].number, PixelsOf(m_tiles[i].place), i == m_at});
  return shown;
}

int ViewportSet::At(POINT pixel) const {
  for (const ViewportOnScreen& viewport : OnScreen())
    if (IsInside(viewport.pixels, pixel)) return viewport.number;
  return 0;
}

ViewTransform* ViewportSet::ViewOf(int number) {
  if (number == CurrentNumber()) return &m_current;
  if (m_sheet) return nullptr;
  for (Tile& tile : m_tiles)
    if (tile.number == number) return &tile.parked;
  return nullptr;
}

int ViewportSet::FreeNumber() const {
  int number = kFirstTile;
  while (HasTile(number)) ++number;
  return number;
}

bool ViewportSet::Split(Tiling tiling) {
  if (m_sheet) return false;
  const std::vector<UnitRect> parts = Divide(m_tiles[m_at].place, tiling);
  if (m_tiles.size() + parts.size() - 1 > kMostTiles) return false;
  m_tiles[m_at].place = parts[0];
  for (std::size_t i = 1; i < parts.size(); ++i)
    m_tiles.push_back({FreeNumber(), parts[i], m_current});
  PlaceAll();
  return true;
}

bool ViewportSet::MakeSingle() {
  if (m_sheet) return false;
  m_tiles = {{kFirstTile, {}, m_current}};
  m_at = 0;
  PlaceAll();
  return true;
}

std::vector<TilePlace> ViewportSet::Tiles() const {
  std::vector<TilePlace> tiles = {{m_tiles[m_at].number, m_tiles[m_at].place}};
  for (std::size_t i = 0; i < m_tiles.size(); ++i)
    if (i != m_at) tiles.push_back({m_tiles[i].number, m_tiles[i].place});
  return tiles;
}

bool ViewportSet::SetTiles(const std::vector<TilePlace>& tiles) {
  if (m_sheet || tiles.empty() || tiles.size() > kMostTiles || !FillTheWindow(tiles)) return false;
  if (std::any_of(tiles.begin(), tiles.end(),
                  [](const TilePlace& tile) { return tile.number < kFirstTile; }))
    return false;
  std::vector<Tile> next;
  for (const TilePlace& tile : tiles) {
    const ViewTransform* view = ViewOf(tile.number);
    next.push_back({tile.number, tile.place, view ? *view : m_current});
  }
  m_tiles = std::move(next);
  m_at = 0;
  m_current = m_tiles[0].parked;
  PlaceAll();
  return true;
}

}  // namespace devhost
