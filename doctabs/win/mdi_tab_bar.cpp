#include "doctabs/win/mdi_tab_bar.h"

#include "doctabs/tab_menu.h"
#include "doctabs/tab_tip.h"
#include "ground/command_line.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"

namespace {

constexpr UINT kTipOfTool = 0x40000000;  // the tip stays while the pointer is on the tool

}  // namespace

IMPLEMENT_DYNAMIC(CMDITabBar, CTabBar)

BEGIN_MESSAGE_MAP(CMDITabBar, CTabBar)
ON_COMMAND(kTabHide, OnHide)
ON_COMMAND(kTabAlways, OnShowAlways)
ON_COMMAND(kTabAutomatic, OnShowAutomatically)
ON_COMMAND(kTabToBottom, OnMoveToBottom)
ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

void CMDITabBar::OnHide() {
  HideStrip(m_strip, g_bDwgTabBar);
  adsout << kTabsHiddenLine;
  qvx::PostPrompt();
}

void CMDITabBar::OnShowAlways() { ShowStripAlways(m_strip, g_bDwgTabBar); }

void CMDITabBar::OnShowAutomatically() { ShowStripAutomatically(m_strip); }

void CMDITabBar::OnMoveToBottom() {
  TabBarWindow window(*this);
  MoveStripToBottom(window);
}

void CMDITabBar::OnTabActivated() {
  if (CFrameWnd* frame = m_frames.ActiveTabFrame()) m_windows.Activate(frame);
}

INT_PTR CMDITabBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
  if (!pTI) return -1;
  return qvx::GuardedOr(INT_PTR{-1}, [&] { return FillTip(point, *pTI); });
}

INT_PTR CMDITabBar::FillTip(CPoint point, TOOLINFO& info) const {
  const TabTip tip = TipAt(m_strip, point.x);
  if (tip.tab < 0) return -1;
  CString title;
  if (m_frames.m_frames.IsValidIndex(tip.tab))
    title = m_windows.TitleOf(m_frames.m_frames.At(tip.tab));
  wchar_t* text = MakeTipText(title);
  if (!text) return -1;
  info.hwnd = m_hWnd;
  info.uId = static_cast<UINT_PTR>(tip.tab);
  info.uFlags |= kTipOfTool;
  info.rect = tip.box;
  info.lpszText = text;
  return tip.tab;
}

// ---- MdiFrameWindows

CMDIFrameWnd* MdiFrameWindows::MainFrame() {
  CWnd* main = AfxGetMainWnd();
  return main && main->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)) ? static_cast<CMDIFrameWnd*>(main)
                                                             : nullptr;
}

CFrameWnd* MdiFrameWindows::Active() {
  CMDIFrameWnd* main = MainFrame();
  return main && main->m_hWnd ? main->MDIGetActive() : nullptr;
}

// Null when the frame is no child frame any more. The object may be deleted, so it is compared and
// not used.
HWND MdiFrameWindows::WindowOf(CFrameWnd* frame) {
  CMDIFrameWnd* main = MainFrame();
  if (!frame || !main || !main->m_hWndMDIClient) return nullptr;
  for (HWND child = ::GetWindow(main->m_hWndMDIClient, GW_CHILD); child;
       child = ::GetWindow(child, GW_HWNDNEXT))
    if (CWnd::FromHandlePermanent(child) == frame) return child;
  return nullptr;
}

CString MdiFrameWindows::TitleOf(CFrameWnd* frame) {
  CString title;
  if (const HWND window = WindowOf(frame)) CWnd::FromHandle(window)->GetWindowText(title);
  return title;
}

void MdiFrameWindows::Activate(CFrameWnd* frame) {
  if (const HWND window = WindowOf(frame))
    ::SendMessageW(MainFrame()->m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window),
                   0);
}
