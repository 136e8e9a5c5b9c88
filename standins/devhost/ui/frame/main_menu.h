// The menu bar and the accelerator keys.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

enum MenuCommand : UINT {
  kFileNew = 0x8001,
  kFileOpen,
  kFileClose,
  kFileCloseAll,
  kFileSave,
  kFileSaveAs,
  kFileQuit,
  kViewZoomIn,
  kViewZoomOut,
  kViewExtents,
  kViewRedraw,
  kWindowCascade,
  kWindowTileHorizontal,
  kWindowTileVertical,
  kWindowArrange,
  kWindowMinimize,
  kHelpTopics,  // F1; not in the menu
  kToggleGrid,  // F7; not in the menu
};

struct MainMenu {
  HMENU bar;         // destroyed by its window
  HMENU windowMenu;  // part of the bar; the MDI client lists its children there
};

MainMenu MakeMainMenu();
HACCEL MakeMainKeys();                              // destroy with DestroyAcceleratorTable
void EnableMainMenu(HMENU menu, bool drawingOpen);  // disables commands that need a drawing

}  // namespace devhost
