// The mini frame, and the frame of a floating bar.
#include <algorithm>

#include "afxpriv.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)
IMPLEMENT_DYNCREATE(CMiniDockFrameWnd, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMiniDockFrameWnd, CMiniFrameWnd)
ON_WM_CLOSE()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCLBUTTONDBLCLK()
ON_WM_GETMINMAXINFO()
ON_WM_SIZE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName,
                             DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  m_strTitle = lpWindowName;
  return CWnd::CreateEx(dwExStyle | WS_EX_TOOLWINDOW, lpClassName, lpWindowName, dwStyle, rect.left,
                        rect.top, rect.right - rect.left, rect.bottom - rect.top,
                        pParentWnd ? pParentWnd->m_hWnd : nullptr,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
}

BOOL CMiniFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
  if (!cs.lpszClass)
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
  return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMiniDockFrameWnd::Create(CWnd* pParent, DWORD dwBarStyle) {
  (void)dwBarStyle;
  auto* site = static_cast<CFrameWnd*>(pParent);
  const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;
  if (!CMiniFrameWnd::CreateEx(WS_EX_TOOLWINDOW, nullptr, L"", style, CRect(0, 0, 0, 0), pParent))
    return FALSE;
  m_wndDockBar.m_pDockSite = site;
  if (!m_wndDockBar.Create(this, WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_FLOAT)) {
    m_wndDockBar.m_pDockSite = nullptr;
    DestroyWindow();
    return FALSE;
  }
  site->AddControlBar(&m_wndDockBar);
  return TRUE;
}

CControlBar* CMiniDockFrameWnd::FloatedBar() const {
  for (int i = 0; i < m_wndDockBar.m_arrBars.GetSize(); ++i)
    if (CControlBar* bar = m_wndDockBar.GetDockedControlBar(i)) return bar;
  return nullptr;
}

void CMiniDockFrameWnd::RecalcLayout(BOOL bNotify) {
  (void)bNotify;
  if (m_bInRecalcLayout || !m_hWnd || !m_wndDockBar.m_hWnd) return;
  m_bInRecalcLayout = TRUE;
  m_nIdleFlags &= ~UINT(idleLayout | idleNotify);
  CRect client;
  GetClientRect(client);
  m_wndDockBar.SetWindowPos(nullptr, 0, 0, client.Width(), client.Height(),
                            SWP_NOZORDER | SWP_NOACTIVATE);
  m_wndDockBar.m_rectLayout = client;
  m_wndDockBar.CalcFixedLayout(FALSE, TRUE);
  m_bInRecalcLayout = FALSE;
}

void CMiniDockFrameWnd::OnSize(UINT nType, int cx, int cy) {
  CMiniFrameWnd::OnSize(nType, cx, cy);
  CControlBar* bar = FloatedBar();
  if (bar && bar->m_pDockContext && ::IsWindowVisible(m_hWnd) && cy > 0)
    bar->m_pDockContext->m_sizeMRUFloat = CSize(cx, cy);
}

// An empty frame is closed by the dock bar that lost its last bar; otherwise the bar decides.
void CMiniDockFrameWnd::OnClose() {
  CControlBar* bar = FloatedBar();
  if (!bar) {
    DestroyWindow();
    return;
  }
  CFrameWnd* site = bar->m_pDockSite;
  if (bar->OnCloseFloating() && site) site->ShowControlBar(bar, FALSE, TRUE);
}

void CMiniDockFrameWnd::OnDestroy() {
  CControlBar* bar = FloatedBar();
  if (bar && bar->m_pDockContext) {
    CRect rect;
    GetWindowRect(rect);
    bar->m_pDockContext->m_ptMRUFloatPos = rect.TopLeft();
  }
  CMiniFrameWnd::OnDestroy();
}

// A dockable bar is dragged by this library, which shows the target.
void CMiniDockFrameWnd::OnNcLButtonDown(UINT nHitTest, CPoint point) {
  CControlBar* bar = FloatedBar();
  if (nHitTest != HTCAPTION || !bar || !bar->m_pDockContext) {
    CMiniFrameWnd::OnNcLButtonDown(nHitTest, point);
    return;
  }
  SetActiveWindow();
  bar->m_pDockContext->StartDrag(point);
}

void CMiniDockFrameWnd::OnNcLButtonDblClk(UINT nHitTest, CPoint point) {
  CControlBar* bar = FloatedBar();
  if (nHitTest == HTCAPTION && bar && bar->m_pDockContext)
    bar->m_pDockContext->ToggleDocking();
  else
    CMiniFrameWnd::OnNcLButtonDblClk(nHitTest, point);
}

void CMiniDockFrameWnd::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
  CMiniFrameWnd::OnGetMinMaxInfo(lpMMI);
  CControlBar* bar = FloatedBar();
  if (!bar) return;
  CRect least(CPoint(0, 0), bar->FloatingMinimum());
  CalcWindowRect(least);
  lpMMI->ptMinTrackSize = {std::max<LONG>(least.Width(), lpMMI->ptMinTrackSize.x), least.Height()};
}
