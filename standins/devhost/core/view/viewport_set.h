// The viewports of one drawing: tiles of model space, which fill the view window without overlap,
// or one view of the whole window on a sheet. Exactly one viewport is current; its view is
// Current(), at a fixed address. Tiles keep their views while a sheet is shown.
#pragma once

#include <vector>

#include "devhost/core/view/view_transform.h"

namespace devhost {

constexpr int kSheetViewport = 1;  // the sheet itself
constexpr int kFirstTile = 2;      // tiles are numbered from here
constexpr std::size_t kMostTiles = 64;

struct UnitRect {
  double left = 0, bottom = 0, right = 1, top = 1;  // parts of the window, y up
};

struct TilePlace {
  int number;
  UnitRect place;
};

struct ViewportOnScreen {
  int number;
  RECT pixels;
  bool isCurrent;
};

enum class Tiling {
  TwoHorizontal,  // one above the other
  TwoVertical,
  ThreeHorizontal,
  ThreeVertical,
  ThreeAbove,  // the large one is above
  ThreeBelow,
  ThreeLeft,
  ThreeRight,
  Four
};

// The parts of `whole`; the first is that of the viewport that is divided.
std::vector<UnitRect> Divide(const UnitRect& whole, Tiling tiling);

class ViewportSet {
 public:
  ViewportSet();
  ViewportSet(const ViewportSet&) = delete;  // Current() would refer to the source
  ViewportSet& operator=(const ViewportSet&) = delete;

  void Resize(int width, int height);  // of the window
  ViewTransform& Current() { return m_current; }
  int CurrentNumber() const;  // on a sheet that of ShowSheet
  bool IsOnSheet() const { return m_sheet != 0; }

  void ShowSheet(int number);
  // False: no tile was on the screen yet, so that its view has no meaning.
  bool ShowTiles();

  int CurrentTile() const { return m_tiles[m_at].number; }  // also while a sheet is shown
  bool HasTile(int number) const;
  bool MakeCurrent(int number);  // a tile; false on a sheet and for an unknown number

  std::vector<ViewportOnScreen> OnScreen() const;  // those that are shown
  int At(POINT pixel) const;                       // 0: beside all
  ViewTransform* ViewOf(int number);               // null: not shown

  // The current tile is divided and stays current; the others get its view and free numbers. False,
  // with nothing done, on a sheet and above kMostTiles.
  bool Split(Tiling tiling);
  bool MakeSingle();  // the current tile fills the window, with number 2; false on a sheet

  // All tiles, the current one first. SetTiles keeps the views of numbers that stay and gives the
  // current view to new ones; false, with nothing done, unless they fill the window exactly.
  std::vector<TilePlace> Tiles() const;
  bool SetTiles(const std::vector<TilePlace>& tiles);

 private:
  struct Tile {
    int number;
    UnitRect place;
    ViewTransform parked;  // the view; not valid for the tile whose view is m_current
  };

  int FreeNumber() const;
  RECT PixelsOf(const UnitRect& place) const;
  void PlaceAll();

  std::vector<Tile> m_tiles;
  std::size_t m_at = 0;  // the current tile
  ViewTransform m_current;
  int m_sheet = 0;  // number of the viewport on the sheet; 0: tiles are shown
  int m_width = 800, m_height = 600;
  bool m_tilesSeen = false;
};

}  // namespace devhost
