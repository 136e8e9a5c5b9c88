// CMDIFrameWnd: the frame around an MDI area. Commands and keys go to the active child first.
#include "afxpriv.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_ACTIVATE()
END_MESSAGE_MAP()

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
  if (!cs.lpszClass)
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), nullptr);
  return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, void*) {
  const HMENU window = lpcs->hMenu ? GetWindowMenuPopup(lpcs->hMenu) : nullptr;
  return CreateClient(lpcs, window ? CMenu::FromHandle(window) : nullptr);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu) {
  (void)lpCreateStruct;
  CLIENTCREATESTRUCT create{};
  create.hWindowMenu = pWindowMenu ? pWindowMenu->m_hMenu : nullptr;
  create.idFirstChild = AFX_IDM_FIRST_MDICHILD;
  const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  m_hWndMDIClient =
      ::CreateWindowEx(WS_EX_CLIENTEDGE, L"mdiclient", nullptr, style, 0, 0, 0, 0, m_hWnd,
                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                       AfxGetInstanceHandle(), &create);
  if (!m_hWndMDIClient) return FALSE;
  ::BringWindowToTop(m_hWndMDIClient);
  return TRUE;
}

// The popup that contains one of the standard window commands.
HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
  for (int i = ::GetMenuItemCount(hMenuBar) - 1; i >= 0; --i) {
    const HMENU popup = ::GetSubMenu(hMenuBar, i);
    if (!popup) continue;
    for (int row = 0; row < ::GetMenuItemCount(popup); ++row) {
      const UINT id = ::GetMenuItemID(popup, row);
      if (id >= ID_WINDOW_NEW && id <= ID_WINDOW_TILE_VERT) return popup;
    }
  }
  return nullptr;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) {
  return ::DefFrameProc(m_hWnd, m_hWndMDIClient, nMsg, wParam, lParam);
}

void CMDIFrameWnd::OnDestroy() {
  CFrameWnd::OnDestroy();
  m_hWndMDIClient = nullptr;
}

// The frame's layout places the MDI client; the default handling would cover the whole client area.
void CMDIFrameWnd::OnSize(UINT nType, int, int) {
  if (nType != SIZE_MINIMIZED) RecalcLayout();
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
  CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
}

// --- children

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
  if (pbMaximized) *pbMaximized = FALSE;
  if (!m_hWndMDIClient) return nullptr;
  BOOL maximized = FALSE;
  const auto child = reinterpret_cast<HWND>(
      ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized)));
  CWnd* window = child ? CWnd::FromHandlePermanent(child) : nullptr;
  auto* frame = window ? DYNAMIC_DOWNCAST(CMDIChildWnd, window) : nullptr;
  if (frame && pbMaximized) *pbMaximized = maximized;
  return frame;
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
  ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->m_hWnd), 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
  ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
  ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
  const auto old = reinterpret_cast<HMENU>(
      ::SendMessage(m_hWndMDIClient, WM_MDISETMENU,
                    reinterpret_cast<WPARAM>(pFrameMenu ? pFrameMenu->m_hMenu : nullptr),
                    reinterpret_cast<LPARAM>(pWindowMenu ? pWindowMenu->m_hMenu : nullptr)));
  return CMenu::FromHandle(old);
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
  CMDIChildWnd* child = MDIGetActive();
  return child ? static_cast<CFrameWnd*>(child) : this;
}

// Windows itself appends the title of a maximized child.
void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
  BOOL maximized = FALSE;
  CMDIChildWnd* child = MDIGetActive(&maximized);
  if (child && !maximized && bAddToTitle && (GetStyle() & FWS_ADDTOTITLE)) {
    CString name;
    child->GetWindowText(name);
    UpdateFrameTitleForDocument(name);
  } else {
    SetWindowText(m_strTitle);
  }
}

// --- keys and commands

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
  if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
  CMDIChildWnd* child = MDIGetActive();
  if (child && child->PreTranslateMessage(pMsg)) return TRUE;
  if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) return FALSE;
  if (m_hAccelTable && ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg)) return TRUE;
  return m_hWndMDIClient && (pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN) &&
         ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  CMDIChildWnd* child = MDIGetActive();
  if (child && child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  CMDIChildWnd* child = MDIGetActive();
  if (child && AfxCallWndProc(child, child->m_hWnd, WM_COMMAND, wParam, lParam) != 0) return TRUE;
  if (CFrameWnd::OnCommand(wParam, lParam)) return TRUE;
  // Rows of the window menu, and the system commands of a maximized child in the menu bar.
  const UINT id = LOWORD(wParam);
  if (lParam == 0 && (id & 0xF000) == 0xF000) {
    DefWindowProc(WM_COMMAND, wParam, lParam);
    return TRUE;
  }
  return FALSE;
}
