// CScreenMenu: sending a chosen command to the host. It is not sent from inside the button's click:
// it waits for a timer, cancels a running command, and returns the focus to the drawing.
#include "afxwin.h"

#include "ground/command_line.h"
#include "rxmfcapi.h"
#include "screenmenu/row_plan.h"
#include "screenmenu/win/screen_menu.h"
#include "statusbar/status_bar_door.h"

void CScreenMenu::ArmCommand(const TWCString& command) {
  m_pending.Arm(command);
  SetTimer(qvx::kSendTimer, qvx::kSendDelay, nullptr);
}

void CScreenMenu::OnTimer(UINT_PTR timer) {
  if (!qvx::IsSendDue(static_cast<unsigned>(timer), m_pending, qvx::HasWorkingDatabase())) {
    CAdUiPaletteSet::OnTimer(timer);
    return;
  }
  KillTimer(qvx::kSendTimer);
  if (CWnd* view = acedGetAcadDwgView()) view->SetFocus();
  const bool busy = IsHostBusy();
  NoteRecentCommand(m_pending.Text());
  qvx::SendToHost(m_pending.Take(busy));
}

bool CScreenMenu::IsHostBusy() { return qvx::IsBusy(qvx::AskHostActivity()); }

void CScreenMenu::ReportBusy() { AfxMessageBox(L"有命令未完成"); }

// Status panes and other rows may show the same switch. The panes call LISP functions too, which
// may destroy this palette.
void CScreenMenu::SwitchWasFlipped() {
  const qvx::MenuWatch watch = Lines().watch;
  UpdateStatusPanes();
  if (!watch.IsGone() && m_pRootGroup) m_pRootGroup->RefreshSwitches();
}

// The same decision for buttons directly on the palette. None is ever added, so in practice the
// base class handles the message.
BOOL CScreenMenu::OnCommand(WPARAM wParam, LPARAM lParam) {
  const BOOL handled = CAdUiDockControlBar::OnCommand(wParam, lParam);
  if (handled || HIWORD(wParam) != 0) return handled;
  CSMenuItem* item = lParam ? FindDirectItem(LOWORD(wParam)) : nullptr;
  if (!item || !item->Line()) return handled;
  switch (qvx::DecideClick(*item->Line())) {
    case qvx::ClickKind::kFold:
      OpenDirectly(*item->Line());
      break;
    case qvx::ClickKind::kSwitch:
      FlipDirectly(*item);
      break;
    case qvx::ClickKind::kCommand:
      ArmCommand(item->Line()->m_strCommand);
      item->ReleaseMouse();
      break;
    case qvx::ClickKind::kNothing:
      break;
  }
  return TRUE;
}

CSMenuItem* CScreenMenu::FindDirectItem(UINT ctrlId) const {
  for (CSMenuItem* item : m_directItems)
    if (static_cast<UINT>(item->CtrlId()) == ctrlId) return item;
  return nullptr;
}

void CScreenMenu::OpenDirectly(TMenuItem& line) {
  if (&line == m_bar.Current()) return;
  if (m_bar.IsOnStack(&line))
    m_bar.BackTo(&line);
  else
    m_bar.EnterSubMenu(&line);
  EnsureRootGroup();
}

// Deliberate: unlike a row of a group this updates neither the status panes nor the other rows.
void CScreenMenu::FlipDirectly(CSMenuItem& item) {
  if (IsHostBusy()) {
    ReportBusy();
    return;
  }
  item.ReleaseMouse();
  if (qvx::FlipSwitch(*item.Line(), Lines()) != qvx::SwitchResult::kChanged) return;
  item.SetBitmaps(nullptr, nullptr, 0, 0);
  item.ShowState();
  item.Invalidate();
}
