// The wheel over the palette, as the message filter asks and turns it.
#include "screenmenu/win/screen_menu.h"

namespace {

CMenuGroup* WheelTarget() {
  CMenuGroup* root = g_pScreenMenu ? g_pScreenMenu->RootGroup() : nullptr;
  CMenuGroup* open = root ? root->OpenChild() : nullptr;
  return open ? open : root;
}

// A hidden window contains no pointer.
bool Contains(CWnd* window, int x, int y) {
  if (!window || !window->GetSafeHwnd() || !window->IsWindowVisible()) return false;
  CRect area;
  window->GetWindowRect(area);
  return area.PtInRect(CPoint(x, y)) != FALSE;
}

}  // namespace

bool IsInScreenMenu(int x, int y) { return Contains(g_pScreenMenu, x, y); }

bool IsInWheelGroup(int x, int y) {
  CMenuGroup* group = WheelTarget();
  return group && group->RowCount() > 0 && Contains(group, x, y);
}

void WheelScreenMenu(int delta, int x, int y) {
  if (CMenuGroup* group = WheelTarget())
    group->WheelGroup(0, static_cast<short>(delta), CPoint(x, y));
}
