// What the palette keeps in the user's settings, under GetRegLocation() + "\Settings", folder
// ScreenMenu, and the fixed numbers of its window. A missing value leaves the caller's default
// as it is. Called by CScreenMenu and by the root group.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

constexpr int kPaletteLeastWidth = 74;
constexpr int kPaletteLeastHeight = 200;
constexpr int kPaletteFirstHeight = 80;
constexpr int kPaletteFirstWidth = 76;

struct PaletteSettings {
  int alignment = 1;  // 1 docks left, 0 right
  int sizeX = kPaletteFirstWidth;
  int limitHeight = 0;
  int defaultOpenFirst = 0;
  int scrollBar = 0;
};

// A saved width that no palette can have, or that no screen has room for, counts as none: nobody
// could take hold of such a palette to make it right again.
int UsableWidth(int saved, int screenWidth);

// In this order: Alignment, SizeX, LimitHeight, DefaultOpenFirst, ScrollBar.
void LoadPaletteSettings(PaletteSettings& settings);

// SizeY is written and never read back: a palette that was dragged lower comes up at full height.
void SavePaletteSize(int width, int height);

struct PaletteState {
  int visible;
  int alignment;
  SIZE size;
  int limitHeight;
  int defaultOpenFirst;
  int scrollBar;
};
void SavePaletteState(const PaletteState& state);

int LoadActiveSubMenu();  // -1 when nothing is remembered
void SaveActiveSubMenu(int openIndex);

// 1 when the palette is nearer to the frame's left side, or as near to it as to the right.
int AlignmentOf(const RECT& palette, const RECT& frameClient);

// Styles and dock bar of a side, as numbers of the window library.
struct DockChoice {
  unsigned barStyle;  // without WS_CHILD and WS_VISIBLE
  int dockBar;
};
DockChoice DockFor(int alignment);

struct ToolId {
  unsigned data1;
  unsigned short data2, data3;
  unsigned char data4[8];
};
// The host keeps its layout by this. There are identifiers for the products 1 to 11; a caller asks
// first, since the product comes from the registry and may be any number.
bool HasToolId(int product);
const ToolId& ToolIdOf(int product);

}  // namespace qvx
