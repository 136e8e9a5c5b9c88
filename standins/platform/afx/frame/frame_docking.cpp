// CFrameWnd and its control bars: the list, the dock bars, docking, floating, showing.
#include <vector>

#include "afxpriv.h"
#include "portable/dock_layout.h"

namespace {

// In layout order: top and bottom span the whole width.
struct SideId {
  DWORD side;
  UINT id;
};
constexpr SideId kSides[] = {{CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_TOP},
                             {CBRS_ALIGN_BOTTOM, AFX_IDW_DOCKBAR_BOTTOM},
                             {CBRS_ALIGN_LEFT, AFX_IDW_DOCKBAR_LEFT},
                             {CBRS_ALIGN_RIGHT, AFX_IDW_DOCKBAR_RIGHT}};

// Distance in pixels from an edge within which a dropped bar docks.
constexpr int kDropReach = 40;

UINT DockBarIdOf(DWORD side) {
  for (const SideId& entry : kSides)
    if (side & entry.side) return entry.id;
  return 0;
}

bool IsFloatingDockBar(const CControlBar* bar) {
  return bar->IsDockBar() && static_cast<const CDockBar*>(bar)->m_bFloating;
}

// The list may change during calls of its bars.
std::vector<CControlBar*> CopyOf(const CPtrList& list) {
  std::vector<CControlBar*> bars;
  for (POSITION at = list.GetHeadPosition(); at;)
    bars.push_back(static_cast<CControlBar*>(list.GetNext(at)));
  return bars;
}

}  // namespace

// --- the list

void CFrameWnd::AddControlBar(CControlBar* pBar) {
  if (!m_listControlBars.Find(pBar)) m_listControlBars.AddTail(pBar);
}

void CFrameWnd::RemoveControlBar(CControlBar* pBar) {
  POSITION at = m_listControlBars.Find(pBar);
  if (!at) return;
  m_listControlBars.RemoveAt(at);
  if (!pBar->m_hWnd || pBar->IsDockBar()) return;
  // Removes its place holders: a later bar with the same identifier must not use them.
  for (CControlBar* bar : CopyOf(m_listControlBars))
    if (bar->IsDockBar()) static_cast<CDockBar*>(bar)->RemovePlaceHolder(pBar);
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
  if (nID == 0) return nullptr;
  for (CControlBar* bar : CopyOf(m_listControlBars))
    if (bar->m_hWnd && UINT(bar->GetDlgCtrlID()) == nID && !IsFloatingDockBar(bar)) return bar;
  return nullptr;
}

CDockBar* CFrameWnd::GetDockBar(UINT nDockBarID) const {
  for (CControlBar* bar : CopyOf(m_listControlBars))
    if (bar->IsDockBar() && bar->m_hWnd && !IsFloatingDockBar(bar) &&
        UINT(bar->GetDlgCtrlID()) == nDockBarID)
      return static_cast<CDockBar*>(bar);
  return nullptr;
}

CDockBar* CFrameWnd::FirstDockBar(DWORD dwDockStyle) const {
  for (DWORD side : {CBRS_ALIGN_LEFT, CBRS_ALIGN_TOP, CBRS_ALIGN_RIGHT, CBRS_ALIGN_BOTTOM})
    if (dwDockStyle & side)
      if (CDockBar* bar = GetDockBar(DockBarIdOf(side))) return bar;
  return nullptr;
}

// --- dock bars

CDockBar* CFrameWnd::MakeDockBar(DWORD side, UINT id) {
  auto* bar = new CDockBar;
  bar->m_pDockSite = this;
  if (!bar->Create(this, WS_CHILD | WS_VISIBLE | side, id)) {
    bar->m_pDockSite = nullptr;
    delete bar;
    return nullptr;
  }
  AddControlBar(bar);
  return bar;
}

void CFrameWnd::EnableDocking(DWORD dwDockStyle) {
  if (!m_pFloatingFrameClass) m_pFloatingFrameClass = RUNTIME_CLASS(CMiniDockFrameWnd);
  for (const SideId& entry : kSides)
    if ((dwDockStyle & entry.side) && !GetDockBar(entry.id)) MakeDockBar(entry.side, entry.id);
}

// Called while the frame is destroyed and its windows still exist.
void CFrameWnd::DestroyDockBars() {
  for (CControlBar* bar : CopyOf(m_listControlBars)) {
    if (!m_listControlBars.Find(bar) || !bar->m_hWnd) continue;
    if (IsFloatingDockBar(bar) && bar->GetParentFrame() != this)
      bar->GetParentFrame()->DestroyWindow();
    else if (bar->IsDockBar() && !IsFloatingDockBar(bar))
      bar->DestroyWindow();
  }
}

CRect CFrameWnd::DockArea() const {
  CRect area(0, 0, 0, 0);
  auto include = [&area](HWND window) {
    CRect rect;
    if (window && ::GetWindowRect(window, rect) && !rect.IsRectEmpty()) area.UnionRect(area, rect);
  };
  for (const SideId& entry : kSides)
    if (CDockBar* bar = GetDockBar(entry.id)) include(bar->m_hWnd);
  include(::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST));
  if (area.IsRectEmpty()) {
    GetClientRect(area);
    ClientToScreen(area);
  }
  return area;
}

DWORD CFrameWnd::CanDock(CPoint ptScreen, DWORD dwDockStyle, CDockBar** ppDockBar) {
  DWORD offered = 0;
  for (const SideId& entry : kSides)
    if ((dwDockStyle & entry.side) && GetDockBar(entry.id)) offered |= entry.side;
  DWORD side = DropSide(ptScreen, DockArea(), offered, kDropReach);
  // A dock bar with bars accepts a drop anywhere on it.
  for (const SideId& entry : kSides) {
    CRect rect;
    if (!(offered & entry.side)) continue;
    GetDockBar(entry.id)->GetWindowRect(rect);
    if (rect.PtInRect(ptScreen)) side = entry.side;
  }
  if (ppDockBar) *ppDockBar = side ? GetDockBar(DockBarIdOf(side)) : nullptr;
  return side;
}

// --- docking and floating

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect) {
  CDockBar* target =
      nDockBarID ? GetDockBar(nDockBarID) : FirstDockBar(pBar->m_dwStyle & CBRS_ALIGN_ANY);
  DockControlBar(pBar, target, lpRect);
}

void CFrameWnd::DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect) {
  if (!pBar->m_hWnd) return;
  if (!pDockBar) pDockBar = FirstDockBar(pBar->m_dwStyle & CBRS_ALIGN_ANY);
  if (!pDockBar) pDockBar = FirstDockBar(CBRS_ALIGN_ANY);
  if (!pDockBar) return;  // docking is not enabled
  pBar->m_pDockSite = this;
  AddControlBar(pBar);
  pDockBar->DockControlBar(pBar, lpRect);
  DelayRecalcLayout();
}

CMiniDockFrameWnd* CFrameWnd::CreateFloatingFrame(DWORD dwStyle) {
  CRuntimeClass* kind =
      m_pFloatingFrameClass ? m_pFloatingFrameClass : RUNTIME_CLASS(CMiniDockFrameWnd);
  CObject* made = kind->CreateObject();
  auto* frame = DYNAMIC_DOWNCAST(CMiniDockFrameWnd, made);
  if (!frame) {
    delete made;
    return nullptr;
  }
  // A frame whose creation failed has deleted itself.
  return frame->Create(this, dwStyle) ? frame : nullptr;
}

CFrameWnd* CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle) {
  if (pBar->IsFloating()) {
    CFrameWnd* frame = pBar->GetDockingFrame();
    frame->SetWindowPos(nullptr, point.x, point.y, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return frame;
  }
  CMiniDockFrameWnd* frame = CreateFloatingFrame(dwStyle);
  if (!frame) return nullptr;
  const BOOL visible = pBar->IsVisible();
  CSize client = pBar->m_pDockContext ? pBar->m_pDockContext->FloatSize() : CSize(0, 0);
  pBar->m_pDockSite = this;
  AddControlBar(pBar);
  frame->m_wndDockBar.DockControlBar(pBar);
  CRect rect(point, client);
  frame->CalcWindowRect(rect);
  CString title;
  pBar->GetWindowText(title);
  frame->SetWindowText(title);
  frame->SetWindowPos(nullptr, point.x, point.y, rect.Width(), rect.Height(),
                      SWP_NOZORDER | SWP_NOACTIVATE);
  frame->RecalcLayout();
  if (visible) frame->ShowWindow(SW_SHOWNA);
  DelayRecalcLayout();
  return frame;
}

// --- showing

// A floating frame is visible while one of its bars is.
void CFrameWnd::ShowFloatingFrame(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
  CFrameWnd* frame = pBar->GetDockingFrame();
  const int visible = pBar->m_pDockBar->GetDockedVisibleCount();
  const int show = visible > 0 ? SW_SHOWNA : SW_HIDE;
  frame->m_nShowDelay = -1;
  if (bShow || visible == 0) {
    if (bDelay)
      frame->m_nShowDelay = show;
    else
      frame->ShowWindow(show);
  }
  if (!bDelay) frame->RecalcLayout(FALSE);
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
  if (!pBar->m_hWnd) return;
  pBar->DelayShow(bShow);
  CFrameWnd* frame = pBar->GetDockingFrame();
  if (bDelay) {
    if (frame) frame->DelayRecalcLayout();
  } else {
    pBar->SetWindowPos(nullptr, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                           (bShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    pBar->DelayShow(bShow);  // cancels a delayed show or hide
    if (frame && !pBar->IsFloating()) frame->RecalcLayout(FALSE);
  }
  if (pBar->IsFloating()) ShowFloatingFrame(pBar, bShow, bDelay);
}

void CFrameWnd::ShowFloatingFrames(BOOL bShow) {
  for (CControlBar* bar : CopyOf(m_listControlBars))
    if (IsFloatingDockBar(bar) && bar->m_hWnd && bar->GetParentFrame() != this)
      bar->GetParentFrame()->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
}
