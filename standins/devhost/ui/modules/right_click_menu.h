// --right-click-menu: a right click in the view calls the module's diagnostic export
// QvxShowContextMenu instead of acting as Enter. Off by default, because a module normally takes
// the click from the message loop.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

void SetRightClickMenu(bool on);
// `at` is in client coordinates; `force` shows a menu also where the module would show none. False
// if the option is off, a command runs, no module has the export, or no menu was shown; then the
// host handles the click.
bool ShowModuleMenu(HWND view, POINT at, bool force);

}  // namespace devhost
