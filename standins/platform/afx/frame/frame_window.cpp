// CFrameWnd as a window: creation, message line, title, activation, idle work, destruction. Control
// bars are in frame_docking.cpp.
#include "afxpriv.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_WM_ACTIVATE()
ON_WM_NCACTIVATE()
ON_WM_SYSCOLORCHANGE()
ON_MESSAGE(WM_SETMESSAGESTRING, OnSetMessageString)
ON_MESSAGE(WM_POPMESSAGESTRING, OnPopMessageString)
ON_MESSAGE(WM_IDLEUPDATECMDUI, OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

// --- creation and destruction

CFrameWnd::~CFrameWnd() {
  // Bars that outlive the frame must not refer to it.
  for (POSITION at = m_listControlBars.GetHeadPosition(); at;) {
    auto* bar = static_cast<CControlBar*>(m_listControlBars.GetNext(at));
    if (bar->m_pDockSite == this) bar->m_pDockSite = nullptr;
  }
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
  if (!cs.lpszClass)
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
  cs.style |= WS_CLIPCHILDREN;
  return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                       const RECT& rect, CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle,
                       void* pContext) {
  HMENU menu = nullptr;
  if (lpszMenuName) {
    menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
    if (!menu) return FALSE;
  }
  m_strTitle = lpszWindowName;
  const int width = rect.left == CW_USEDEFAULT ? CW_USEDEFAULT : rect.right - rect.left;
  const int height = rect.left == CW_USEDEFAULT ? CW_USEDEFAULT : rect.bottom - rect.top;
  if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width,
               height, pParentWnd ? pParentWnd->m_hWnd : nullptr, menu, pContext))
    return TRUE;
  if (menu) ::DestroyMenu(menu);
  return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          void* pContext) {
  CString title;
  if (title.LoadString(nIDResource)) {
    const int end = title.Find(L'\n');
    if (end >= 0) title = title.Left(end);
  }
  LPCTSTR name = MAKEINTRESOURCE(nIDResource);
  const HINSTANCE icons = AfxFindResourceHandle(name, RT_GROUP_ICON);
  LPCTSTR windowClass =
      AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                          reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), ::LoadIcon(icons, name));
  const HINSTANCE menus = AfxFindResourceHandle(name, RT_MENU);
  LPCTSTR menu = ::FindResource(menus, name, RT_MENU) ? name : nullptr;
  if (!Create(windowClass, title, dwDefaultStyle, rectDefault, pParentWnd, menu, 0, pContext))
    return FALSE;
  m_hMenuDefault = ::GetMenu(m_hWnd);
  LoadAccelTable(name);
  return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
  const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR);
  m_hAccelTable = ::LoadAccelerators(module, lpszResourceName);
  return m_hAccelTable != nullptr;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpcs) {
  if (CWnd::OnCreate(lpcs) == -1) return -1;
  if (!OnCreateClient(lpcs, lpcs->lpCreateParams)) return -1;
  RecalcLayout();
  return 0;
}

void CFrameWnd::OnDestroy() {
  DestroyDockBars();
  // Windows destroys the window's current menu only, so the default menu is set again.
  if (m_hMenuDefault && m_hMenuDefault != ::GetMenu(m_hWnd) && ::IsMenu(m_hMenuDefault))
    ::SetMenu(m_hWnd, m_hMenuDefault);
  CWinApp* app = AfxGetApp();
  const bool last = app && app->m_pMainWnd == this;
  CWnd::OnDestroy();
  if (last) app->m_pMainWnd = nullptr;
}

void CFrameWnd::OnClose() { DestroyWindow(); }

void CFrameWnd::PostNcDestroy() { delete this; }

// --- messages

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
  if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
  return pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST && m_hAccelTable &&
         ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) { return CWnd::OnCommand(wParam, lParam); }

// Order: view, frame, application.
BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  if (m_pViewActive && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  CWinApp* app = AfxGetApp();
  return app && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// The layout covers the client area; the class brush erases the rest.
BOOL CFrameWnd::OnEraseBkgnd(CDC* pDC) { return CWnd::OnEraseBkgnd(pDC); }

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
  CWnd::OnSize(nType, cx, cy);
  if (nType != SIZE_MINIMIZED) RecalcLayout();
}

void CFrameWnd::OnSysColorChange() {
  CWnd::OnSysColorChange();
  SendMessageToDescendants(WM_SYSCOLORCHANGE);
}

// --- activation

void CFrameWnd::ActivateFrame(int nCmdShow) {
  if (nCmdShow == -1) nCmdShow = IsIconic() ? SW_RESTORE : SW_SHOW;
  ShowWindow(nCmdShow);
  BringWindowToTop();
}

// The frame's caption stays active while one of its floating bars is.
void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
  const bool toOwnBar = nState == WA_INACTIVE && pWndOther &&
                        pWndOther->IsKindOf(RUNTIME_CLASS(CMiniFrameWnd)) &&
                        ::GetWindow(pWndOther->m_hWnd, GW_OWNER) == m_hWnd;
  if (toOwnBar)
    m_nFlags |= WF_STAYACTIVE;
  else
    m_nFlags &= ~UINT(WF_STAYACTIVE);
  CWnd::OnActivate(nState, pWndOther, bMinimized);
  if (toOwnBar) SendMessage(WM_NCACTIVATE, TRUE);
}

BOOL CFrameWnd::OnNcActivate(BOOL bActive) {
  if (m_nFlags & WF_STAYACTIVE) bActive = TRUE;
  return BOOL(DefWindowProc(WM_NCACTIVATE, WPARAM(bActive), 0));
}

// --- title

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
  (void)bAddToTitle;
  UpdateFrameTitleForDocument(nullptr);
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR lpszDocName) {
  CString text = m_strTitle;
  if (lpszDocName && *lpszDocName) {
    if (!text.IsEmpty()) text += L" - ";
    text += lpszDocName;
  }
  CString now;
  GetWindowText(now);
  if (now != text) SetWindowText(text);
}

// --- message line

CWnd* CFrameWnd::GetMessageBar() { return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE); }

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
  if (!rMessage.LoadString(nID)) rMessage.Empty();
  const int end = rMessage.Find(L'\n');  // the rest is the tool tip of a button
  if (end >= 0) rMessage = rMessage.Left(end);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
  SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) { SendMessage(WM_SETMESSAGESTRING, nID); }

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
  const UINT last = m_nIDLastMessage;
  if (CWnd* bar = GetMessageBar()) {
    CString text;
    if (lParam)
      text = reinterpret_cast<LPCTSTR>(lParam);
    else if (wParam)
      GetMessageString(UINT(wParam), text);
    bar->SetWindowText(text);
  }
  m_nIDLastMessage = m_nIDTracking = UINT(wParam);
  return last;
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
  return SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

// --- layout and idle

void CFrameWnd::RecalcLayout(BOOL bNotify) {
  (void)bNotify;
  if (m_bInRecalcLayout || !m_hWnd) return;
  m_bInRecalcLayout = TRUE;
  m_nIdleFlags &= ~UINT(idleLayout | idleNotify);
  RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
  m_bInRecalcLayout = FALSE;
}

void CFrameWnd::DelayRecalcLayout(BOOL bNotify) {
  const bool first = !(m_nIdleFlags & idleLayout);
  m_nIdleFlags |= idleLayout | (bNotify ? idleNotify : 0);
  // With an empty queue there is no idle time until the pump has taken another message.
  if (first && m_hWnd) PostMessage(WM_NULL);
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM) {
  if (m_nShowDelay >= 0) {
    const int show = m_nShowDelay;
    m_nShowDelay = -1;
    ShowWindow(show);
  }
  if (m_nIdleFlags & idleTitle) OnUpdateFrameTitle(TRUE);
  if (m_nIdleFlags & idleLayout) RecalcLayout((m_nIdleFlags & idleNotify) != 0);
  m_nIdleFlags &= ~UINT(idleTitle);
  return 0;
}
