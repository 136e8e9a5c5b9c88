// --right-click-menu: a right click in the view goes to the module's context menu, by the module's
// diagnostic export QvxShowContextMenu, and not to the command line. Off unless asked for: in
// earnest a module takes the click from the message loop itself.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

void SetRightClickMenu(bool on);
// The point is of the window; `force` asks for a menu also where the module would show none. False:
// it is off, a command runs, no loaded module has the export, or the module showed no menu; the
// click is the host's then.
bool ShowModuleMenu(HWND view, POINT at, bool force);

}  // namespace devhost
