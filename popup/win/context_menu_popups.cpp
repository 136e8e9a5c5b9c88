// CContextMenuWnd: showing pop-ups, and the messages of the menu loop. The loop runs on this
// thread, so these messages arrive before TrackPopupMenu returns.
#include "afxwin.h"
#include "afxext.h"

#include "acdocman.h"
#include "ground/command_line.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"
#include "popup/win/block_popup_door.h"
#include "popup/win/context_menu_wnd.h"
#include "popup/host_selection.h"
#include "popup/menu_line_run.h"
#include "rxmfcapi.h"
#include "screenmenu/screen_menu_door.h"
#include "statusbar/status_bar_door.h"

// Guard against showing a pop-up from a LISP function or from a message of the menu loop.
class CContextMenuWnd::ShowingScope {
 public:
  explicit ShowingScope(bool& flag) : m_flag(flag) { m_flag = true; }
  ~ShowingScope() { m_flag = false; }
  ShowingScope(const ShowingScope&) = delete;
  ShowingScope& operator=(const ShowingScope&) = delete;

 private:
  bool& m_flag;
};

namespace {

class LiveLineHost : public MenuLineHost {
 public:
  qvx::LineSources Lines() override { return MenuLines(); }
  void UpdateStatusBar() override { UpdateStatusPanes(); }
  void RefreshSwitches() override { RefreshScreenMenu(); }
  void Print(const wchar_t* text) override { adsout << text; }
  void TailCommand(const wchar_t* text) override { ::TailCommand(text); }
  void AddRecent(const wchar_t* command) override { NoteRecentCommand(command); }
  void SendToHost(const wchar_t* text) override { qvx::SendToHost(text); }
};

}  // namespace

CBitmapMenu* CContextMenuWnd::AddPopup() { return AppendPopup(m_popups); }

void CContextMenuWnd::ResetPopups() {
  if (m_isShowing) return;
  m_pBar = nullptr;
  m_pMenu = nullptr;
  for (CBitmapMenu* menu : m_popups) menu->DestroyMenu();
  m_popups.Clear();
}

int CContextMenuWnd::IsOurMenu(const CMenu* menu) const {
  return FindPopup(m_popups, menu) ? 1 : 0;
}

void CContextMenuWnd::ForgetLines() {
  m_menuLife.Renew();
  m_pBar = nullptr;
  BlockPopup::ForgetLines();
  ForgetPopupLines(m_popups);
  if (m_isShowing)
    ::EndMenu();
  else
    ResetPopups();
}

int CContextMenuWnd::FindBlock(bool force) {
  TPickEntSet set(TPickEntSet::kOwned);
  ReadSelection(set);
  return ChooseBlock(m_menuSystem, DescribeSelection(set), g_nSpeedMenu, force);
}

int CContextMenuWnd::ShowContextMenu(CPoint point, int force) {
  if (m_isShowing) return 0;
  ResetPopups();
  const int block = FindBlock(force != 0);
  if (block < 0) return 0;
  TMenuBar& bar = *m_menuSystem.At(block);
  if (!g_nRunMode && bar.m_strName == L"COMMON") EnsureRecentLine(bar, m_menuSystem.m_recent);
  return Track(bar, kFirstContextId, point, 0);
}

bool CContextMenuWnd::PrepareMenu() {
  if (m_isShowing || !acedGetAcadDwgView()) return false;
  ResetPopups();
  return true;
}

int CContextMenuWnd::ShowMenuAt(TMenuBar& bar, CPoint point, UINT flags) {
  if (!PrepareMenu()) return 0;
  return Track(bar, kFirstBlockId, point, flags);
}

int CContextMenuWnd::Track(TMenuBar& bar, int firstId, CPoint point, UINT flags) {
  m_pMenu = AddPopup();
  m_pBar = &bar;
  int result = 0;
  bool isShown = false;
  {
    const ShowingScope showing(m_isShowing);
    const PopupPlan plan = PlanPopup(bar, PopupIds::kRunning, firstId, Lines());
    ShowLineStates();
    isShown = !plan.menus.empty();
    if (isShown) {
      BuildPopup(plan, *m_pMenu, *this);
      result = m_pMenu->TrackPopupMenu(flags | TPM_RIGHTBUTTON, point.x, point.y, this);
    }
  }
  if (!isShown) ResetPopups();
  return result;
}

// WM_COMMAND arrives after the menu has closed; its objects live until the next pop-up.
BOOL CContextMenuWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  LiveLineHost host;
  if (HIWORD(wParam) == 0 && m_pBar && ExecuteMenuLine(*m_pBar, LOWORD(wParam), host)) return TRUE;
  return CWnd::OnCommand(wParam, lParam);
}

void CContextMenuWnd::OnMeasureItem(int control, LPMEASUREITEMSTRUCT item) {
  if (!m_pMenu || !MeasureSubMenuRow(*m_pMenu, *item)) CWnd::OnMeasureItem(control, item);
}

LRESULT CContextMenuWnd::OnMenuChar(UINT character, UINT flags, CMenu* menu) {
  if (menu && menu->IsKindOf(RUNTIME_CLASS(CBitmapMenu)) && IsOurMenu(menu))
    return static_cast<CBitmapMenu*>(menu)->MenuCharSearch(character, flags);
  return CWnd::OnMenuChar(character, flags, menu);
}

// A row without help clears the status text, so that the help of the previous row is not shown.
void CContextMenuWnd::OnMenuSelect(UINT id, UINT flags, HMENU menu) {
  CWnd::OnMenuSelect(id, flags, menu);
  if (!g_hQvxDll || !m_pBar || (flags & (MF_POPUP | MF_SEPARATOR | MF_SYSMENU))) return;
  CMDIFrameWnd* frame = acedGetAcadFrame();
  if (!frame) return;
  const TMenuItem* line = m_pBar->FindItemById(static_cast<int>(id));
  const wchar_t* help = line ? qvx::HelpOfLine(*line, Lines()) : nullptr;
  frame->SetMessageText(help ? help : L"");
  m_bStatusText = 1;
}

void CContextMenuWnd::OnExitMenuLoop(BOOL isShortcut) {
  CWnd::OnExitMenuLoop(isShortcut);
  if (!m_bStatusText) return;
  acedRestoreStatusBar();
  m_bStatusText = 0;
}

int ShowContextMenu(int x, int y, int force) {
  CContextMenuWnd* window = TheContextWindow();
  return window ? window->ShowContextMenu(CPoint(x, y), force) : 0;
}

bool PrepareBlockMenu() {
  CContextMenuWnd* window = TheContextWindow();
  return window && window->PrepareMenu();
}

int ShowBlockMenu(TMenuBar& block, int x, int y, unsigned flags) {
  CContextMenuWnd* window = TheContextWindow();
  return window ? window->ShowMenuAt(block, CPoint(x, y), flags) : 0;
}
