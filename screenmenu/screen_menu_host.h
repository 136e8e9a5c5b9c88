// What the palette needs of rooms that stand above it or beside it: the loaded menu, the pop-up
// window, the status bar panes, the selection preview. The module frame implements this once and
// hands it in before the palette is first created; without it every call answers as if the room
// were not there.
#pragma once

#include "menu/menu_model.h"
#include "ground/plain_types.h"

namespace qvx {

class ScreenMenuHost {
 public:
  virtual ~ScreenMenuHost() = default;

  // The one loaded menu, in the context window; null while there is no such window.
  virtual TMenuSystem* MenuSystem() = 0;

  // Shows a bar as a pop-up at a screen point and runs what is chosen. The bar has to live until
  // the next pop-up. `flags` go to the window system beside its own.
  virtual void ShowMenuAt(TMenuBar& bar, POINT at, UINT flags) = 0;

  // The palette goes with all its lines: a pop-up that shows one of its bars has to let go of it.
  virtual void ForgetPopups() {}

  // A switch was flipped: some panes show the same switches.
  virtual void UpdateStatusBar() = 0;

  // The help file of the product file; empty without one.
  virtual const wchar_t* HelpFile() = 0;

  // Another drawing became active: its scale, its panes, the preview's counters, in that order.
  virtual void WriteDrawingScale() = 0;
  virtual void RefreshDrawingPanes() = 0;
  virtual void RefreshScaleText() = 0;
  virtual void ResetPreviewCounters() = 0;
};

// Not owned; null takes it away.
void SetScreenMenuHost(ScreenMenuHost* host);
ScreenMenuHost* TheScreenMenuHost();

}  // namespace qvx
