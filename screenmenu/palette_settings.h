// The palette's values in the user's settings, under GetRegLocation() + "\Settings", folder
// ScreenMenu, and the constants of its window. A missing value leaves the caller's default
// unchanged. Used by CScreenMenu and the root group.
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

// A saved width that is not positive or exceeds the screen is replaced by the first width: the user
// could not grab the edge of such a palette to correct it.
int UsableWidth(int saved, int screenWidth);

// In this order: Alignment, SizeX, LimitHeight, DefaultOpenFirst, ScrollBar.
void LoadPaletteSettings(PaletteSettings& settings);

// SizeY is written and never read: a palette that was made shorter opens at full height.
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

int LoadActiveSubMenu();  // -1 when none is saved
void SaveActiveSubMenu(int openIndex);

// 1 when the palette is nearer to the frame's left side or equally near to both, else 0.
int AlignmentOf(const RECT& palette, const RECT& frameClient);

// Styles and dock bar of a side, as the published numbers of the window library.
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
// The host stores the palette's position under this identifier. Products 1 to 11 have one; call
// HasToolId first, since the product number comes from the registry and may be any number.
bool HasToolId(int product);
const ToolId& ToolIdOf(int product);

}  // namespace qvx
