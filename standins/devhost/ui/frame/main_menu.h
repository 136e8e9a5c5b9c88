// The menu bar and the keys of the development host: the few things that any drawing program
// offers.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

enum MenuCommand : UINT {
  kFileNew = 0x8001,
  kFileOpen,
  kFileClose,
  kFileQuit,
  kViewZoomIn,
  kViewZoomOut,
  kViewExtents,
  kViewRedraw,
  kWindowCascade,
  kWindowTileHorizontal,
  kWindowTileVertical,
};

struct MainMenu {
  HMENU bar;         // the window that it is set on destroys it
  HMENU windowMenu;  // a part of the bar, where the MDI area lists its children
};

MainMenu MakeMainMenu();
HACCEL MakeMainKeys();                              // destroy with DestroyAcceleratorTable
void EnableMainMenu(HMENU menu, bool drawingOpen);  // greys what needs a drawing

}  // namespace devhost
