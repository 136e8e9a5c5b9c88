// CMenuGroup: handles clicks on its rows. dispatch_rules decides; this file changes the group, the
// row and the palette.
#include "screenmenu/dispatch_rules.h"
#include "screenmenu/win/menu_group.h"

// Rejects focus notifications of the buttons: only a click has code 0.
BOOL CMenuGroup::OnCommand(WPARAM wParam, LPARAM lParam) {
  const BOOL handled = CWnd::OnCommand(wParam, lParam);
  if (handled || HIWORD(wParam) != 0) return handled;
  const int index = lParam ? FindRow(LOWORD(wParam)) : -1;
  CSMenuItem* row = index >= 0 ? m_items.At(index) : nullptr;
  if (!row || !row->Line()) return handled;
  switch (qvx::DecideClick(*row->Line())) {
    case qvx::ClickKind::kFold:
      ToggleSubMenu(static_cast<unsigned>(index));
      break;
    case qvx::ClickKind::kSwitch:
      ClickSwitch(*row);
      break;
    case qvx::ClickKind::kCommand:
      m_pOwner->ArmCommand(row->Line()->m_strCommand);
      row->ReleaseMouse();
      break;
    case qvx::ClickKind::kNothing:
      break;
  }
  return TRUE;
}

// Each group numbers its rows from the same start, so only this group is searched.
int CMenuGroup::FindRow(UINT ctrlId) const {
  for (int i = 0; i < m_items.Length(); ++i)
    if (static_cast<UINT>(m_items.At(i)->CtrlId()) == ctrlId) return i;
  return -1;
}

// A switch is refused while a command runs; a command row would cancel that command. If the
// function loads another menu, this group is destroyed; the new tree has already read all states.
void CMenuGroup::ClickSwitch(CSMenuItem& row) {
  if (m_pOwner->IsHostBusy()) {
    m_pOwner->ReportBusy();
    return;
  }
  row.ReleaseMouse();
  const qvx::SwitchResult result = qvx::FlipSwitch(*row.Line(), m_pOwner->Lines());
  if (result == qvx::SwitchResult::kGone || result == qvx::SwitchResult::kRefused) return;
  if (result == qvx::SwitchResult::kChanged) {
    row.SetBitmaps(nullptr, nullptr, 0, 0);
    row.ShowState();
    row.Invalidate();
  }
  m_pOwner->SwitchWasFlipped();
}
