// CWnd's longer functions: relations between windows, scrolling, the layout of bars, sending to all
// descendants, PreTranslateMessage.
#include "afximpl.h"

// ---- text and style

void CWnd::GetWindowText(CString& rString) const {
  int length = ::GetWindowTextLength(m_hWnd);
  int got = ::GetWindowText(m_hWnd, rString.GetBuffer(length + 1), length + 1);
  rString.ReleaseBuffer(got);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
  rString.Empty();
  if (HWND control = ::GetDlgItem(m_hWnd, nID)) FromHandle(control)->GetWindowText(rString);
  return rString.GetLength();
}

namespace {
BOOL ChangeStyle(HWND window, int index, DWORD remove, DWORD add, UINT flags) {
  auto old = DWORD(::GetWindowLongPtr(window, index));
  DWORD style = (old & ~remove) | add;
  if (style == old) return FALSE;
  ::SetWindowLongPtr(window, index, LONG_PTR(style));
  if (flags)
    ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
  return TRUE;
}
}  // namespace

BOOL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
  return ChangeStyle(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}
BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
  return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}
BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
  return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

// ---- relations

CWnd* CWnd::GetParentOwner() const {
  HWND window = m_hWnd;
  while (window && (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD)) window = ::GetParent(window);
  return FromHandle(window);
}

CWnd* CWnd::GetTopLevelParent() const {
  HWND window = m_hWnd;
  while (HWND above = window ? AfxParentOrOwner(window) : nullptr) window = above;
  return FromHandle(window);
}

CWnd* CWnd::GetTopLevelOwner() const {
  HWND window = AfxHandleOf(GetParentOwner());
  while (HWND owner = window ? ::GetWindow(window, GW_OWNER) : nullptr) window = owner;
  return FromHandle(window);
}

BOOL CWnd::IsTopParentActive() const {
  CWnd* top = GetTopLevelParent();
  return top && GetForegroundWindow() == top->GetLastActivePopup();
}

CWnd* CWnd::GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm) {
  // A direct child is preferred to the children of that child.
  if (HWND found = ::GetDlgItem(hWnd, nID)) {
    if (::GetTopWindow(found))
      if (CWnd* deeper = GetDescendantWindow(found, nID, bOnlyPerm)) return deeper;
    if (!bOnlyPerm) return FromHandle(found);
    if (CWnd* lasting = FromHandlePermanent(found)) return lasting;
  }
  for (HWND child = ::GetTopWindow(hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
    if (CWnd* found = GetDescendantWindow(child, nID, bOnlyPerm)) return found;
  return nullptr;
}

BOOL AfxIsDescendant(HWND hWndParent, HWND hWndChild) {
  for (; hWndChild; hWndChild = AfxParentOrOwner(hWndChild))
    if (hWndChild == hWndParent) return TRUE;
  return FALSE;
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pTopLevel) {
  HWND window = pParent ? pParent->m_hWnd : AfxHandleOf(AfxGetMainWnd());
  while (window && (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD)) window = ::GetParent(window);
  HWND top = window;
  while (HWND above = top ? ::GetParent(top) : nullptr) top = above;
  if (!pParent && window) window = ::GetLastActivePopup(window);
  if (pTopLevel) {
    bool disable = top && top != window && ::IsWindowEnabled(top);
    if (disable) ::EnableWindow(top, FALSE);
    *pTopLevel = disable ? top : nullptr;
  }
  return FromHandle(window);
}

// ---- place

void CWnd::ClientToScreen(LPRECT lpRect) const {
  ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
  ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
  lpwndpl->length = sizeof(WINDOWPLACEMENT);
  return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
  WINDOWPLACEMENT placement = *lpwndpl;
  placement.length = sizeof(WINDOWPLACEMENT);
  return ::SetWindowPlacement(m_hWnd, &placement);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
  DWORD exStyle = GetExStyle();
  if (nAdjustType == adjustBorder) exStyle &= ~DWORD(WS_EX_CLIENTEDGE);
  ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

namespace {
CRect WorkAreaAround(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
  return info.rcWork;
}
}  // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
  bool child = (GetStyle() & WS_CHILD) != 0;
  HWND around = AfxHandleOf(pAlternateOwner);
  if (!around) around = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
  CRect self, centre, limit;
  GetWindowRect(self);
  if (child) {
    ::GetClientRect(::GetParent(m_hWnd), limit);
    ::GetClientRect(around, centre);
    ::MapWindowPoints(around, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&centre), 2);
  } else {
    bool usable = around && ::IsWindowVisible(around) && !::IsIconic(around);
    limit = WorkAreaAround(usable ? around : m_hWnd);
    if (usable)
      ::GetWindowRect(around, centre);
    else
      centre = limit;
  }
  int x = centre.CenterPoint().x - self.Width() / 2;
  int y = centre.CenterPoint().y - self.Height() / 2;
  x = std::max<int>(limit.left, std::min<int>(x, limit.right - self.Width()));
  y = std::max<int>(limit.top, std::min<int>(y, limit.bottom - self.Height()));
  SetWindowPos(nullptr, x, y, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect) {
  if (lpLayout && !lpLayout->hDWP) return;  // query only
  CRect old;
  ::GetWindowRect(hWnd, old);
  ::MapWindowPoints(nullptr, ::GetParent(hWnd), reinterpret_cast<LPPOINT>(&old), 2);
  if (old == *lpRect) return;
  int cx = lpRect->right - lpRect->left, cy = lpRect->bottom - lpRect->top;
  constexpr UINT kFlags = SWP_NOACTIVATE | SWP_NOZORDER;
  if (lpLayout)
    lpLayout->hDWP =
        ::DeferWindowPos(lpLayout->hDWP, hWnd, nullptr, lpRect->left, lpRect->top, cx, cy, kFlags);
  else
    ::SetWindowPos(hWnd, nullptr, lpRect->left, lpRect->top, cx, cy, kFlags);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag,
                          LPRECT lpRectParam, LPCRECT lpRectClient, BOOL bStretch) {
  const UINT mode = nFlag & ~UINT(reposNoPosLeftOver);
  AFX_SIZEPARENTPARAMS layout{};
  layout.bStretch = bStretch;
  if (lpRectClient)
    layout.rect = *lpRectClient;
  else
    GetClientRect(&layout.rect);
  if (mode != reposQuery) layout.hDWP = ::BeginDeferWindowPos(8);

  HWND leftOver = nullptr;
  for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    UINT id = WORD(::GetDlgCtrlID(child));
    if (id == nIDLeftOver)
      leftOver = child;
    else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child))
      ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
  }
  if (mode == reposQuery) {
    *lpRectParam = bStretch ? layout.rect : RECT{0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
    return;
  }
  if (nIDLeftOver && leftOver && !(nFlag & reposNoPosLeftOver)) {
    if (mode == reposExtra) {
      CRect inner(layout.rect);
      inner.DeflateRect(lpRectParam);
      layout.rect = inner;
    }
    FromHandle(leftOver)->CalcWindowRect(&layout.rect);
    AfxRepositionWindow(&layout, leftOver, &layout.rect);
  }
  if (layout.hDWP) ::EndDeferWindowPos(layout.hDWP);
}

// ---- scrolling

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
  if (IsWindowVisible() || lpRect || lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    return;
  }
  // Windows does not scroll a hidden window; its children are moved all the same.
  for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    CRect rect;
    ::GetWindowRect(child, rect);
    ScreenToClient(rect);
    ::SetWindowPos(child, nullptr, rect.left + xAmount, rect.top + yAmount, 0, 0,
                   SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
  }
}

namespace {
struct BarPlace {
  HWND window;
  int bar;
};
BarPlace PlaceOf(const CWnd* wnd, int bar) {
  CScrollBar* control = bar == SB_CTL ? nullptr : wnd->GetScrollBarCtrl(bar);
  return control ? BarPlace{control->m_hWnd, SB_CTL} : BarPlace{wnd->m_hWnd, bar};
}
}  // namespace

int CWnd::GetScrollPos(int nBar) const {
  BarPlace at = PlaceOf(this, nBar);
  return ::GetScrollPos(at.window, at.bar);
}
int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
  BarPlace at = PlaceOf(this, nBar);
  return ::SetScrollPos(at.window, at.bar, nPos, bRedraw);
}
void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
  BarPlace at = PlaceOf(this, nBar);
  ::GetScrollRange(at.window, at.bar, lpMinPos, lpMaxPos);
}
void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
  BarPlace at = PlaceOf(this, nBar);
  ::SetScrollRange(at.window, at.bar, nMinPos, nMaxPos, bRedraw);
}
BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
  BarPlace at = PlaceOf(this, nBar);
  lpScrollInfo->cbSize = sizeof *lpScrollInfo;
  lpScrollInfo->fMask = nMask;
  return ::GetScrollInfo(at.window, at.bar, lpScrollInfo);
}
BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
  BarPlace at = PlaceOf(this, nBar);
  lpScrollInfo->cbSize = sizeof *lpScrollInfo;
  ::SetScrollInfo(at.window, at.bar, lpScrollInfo, bRedraw);
  return TRUE;
}
// The highest position: a page before the end of the range.
int CWnd::GetScrollLimit(int nBar) {
  int low = 0, high = 0;
  GetScrollRange(nBar, &low, &high);
  SCROLLINFO info{};
  if (GetScrollInfo(nBar, &info, SIF_PAGE)) high -= std::max(int(info.nPage) - 1, 0);
  return high;
}
void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
  BarPlace at = PlaceOf(this, int(nBar));
  if (at.window != m_hWnd)
    ::ShowWindow(at.window, bShow ? SW_SHOW : SW_HIDE);
  else
    ::ShowScrollBar(m_hWnd, int(nBar), bShow);
}

// ---- messages

void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                    BOOL bDeep, BOOL bOnlyPerm) {
  for (HWND child = ::GetTopWindow(hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (!bOnlyPerm)
      ::SendMessage(child, message, wParam, lParam);
    else if (CWnd* wnd = FromHandlePermanent(child))
      AfxCallWndProc(wnd, wnd->m_hWnd, message, wParam, lParam);
    if (bDeep && ::GetTopWindow(child))
      SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
  }
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
  return ::MessageBox(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
  if (m_nFlags & WF_TOOLTIPS) FilterToolTipMessage(pMsg);
  return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
  for (HWND window = pMsg->hwnd; window; window = ::GetParent(window)) {
    CWnd* wnd = FromHandlePermanent(window);
    if (wnd && wnd->PreTranslateMessage(pMsg)) return TRUE;
    if (window == hWndStop) break;
  }
  return FALSE;
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
  bool input = (lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST) ||
               (lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST);
  return input && IsDialogMessage(lpMsg);
}

// ---- state of the controls

namespace {
// Only push buttons are greyed if there is no handler: a check box or an edit works without one.
bool IsPushButton(CWnd* control) {
  if (!(control->SendMessage(WM_GETDLGCODE) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)))
    return false;
  UINT kind = control->GetStyle() & 0x0F;
  return kind != BS_AUTOCHECKBOX && kind != BS_AUTO3STATE && kind != BS_AUTORADIOBUTTON &&
         kind != BS_GROUPBOX;
}
}  // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
  for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    CCmdUI state;
    state.m_nID = WORD(::GetDlgCtrlID(child));
    state.m_pOther = FromHandle(child);
    // This window's own handlers take precedence over the target's.
    if (CWnd::OnCmdMsg(state.m_nID, int(CN_UPDATE_COMMAND_UI), &state, nullptr)) continue;
    state.DoUpdate(pTarget, bDisableIfNoHndler && IsPushButton(state.m_pOther));
  }
}
