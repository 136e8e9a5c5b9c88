// Calling the module's context menu; see the header.
#include "devhost/ui/modules/right_click_menu.h"

#include "devhost/core/host/host.h"

namespace devhost {
namespace {

bool g_on = false;

using ShowFn = int (*)(int x, int y, int force);

ShowFn ModuleMenu() {
  const HMODULE module = ::GetModuleHandleW(L"qvx_initstart.arx");
  return module ? reinterpret_cast<ShowFn>(
                      reinterpret_cast<void*>(::GetProcAddress(module, "QvxShowContextMenu")))
                : nullptr;
}

}  // namespace

void SetRightClickMenu(bool on) { g_on = on; }

bool ShowModuleMenu(HWND view, POINT at, bool force) {
  if (!g_on || TheHost().engine.IsCommandRunning()) return false;
  const ShowFn show = ModuleMenu();
  if (!show) return false;
  ::ClientToScreen(view, &at);
  return show(at.x, at.y, force) != 0;
}

}  // namespace devhost
