// --right-click-menu: a right click in the view goes to the module's context menu, by the module's
// diagnostic export QvxShowContextMenu, and not to the command line. Off unless asked for: in
// earnest a module takes the click from the message loop itself.
#pragma once

#include "wintypes.h"

namespace devhost {

void SetRightClickMenu(bool on);
// The point is of the window. False: it is off, a command runs, or no loaded module has the export;
// the click is the host's then.
bool ShowModuleMenu(HWND view, POINT at);

}  // namespace devhost
