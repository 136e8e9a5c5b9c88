// CMDIChildWnd: one window of an MDI area.
#include "afxpriv.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
ON_WM_SIZE()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
  if (!cs.lpszClass)
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
  return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CMDIFrameWnd* pParentWnd, void* pContext) {
  if (!pParentWnd) pParentWnd = DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
  if (!pParentWnd || !pParentWnd->m_hWndMDIClient) return FALSE;
  m_strTitle = lpszWindowName;
  CREATESTRUCT cs{};
  cs.style = dwStyle;
  cs.lpszClass = lpszClassName;
  if (!PreCreateWindow(cs)) {
    PostNcDestroy();
    return FALSE;
  }
  MDICREATESTRUCT create{};
  create.szClass = cs.lpszClass;
  create.szTitle = lpszWindowName;
  create.hOwner = AfxGetInstanceHandle();
  create.x = rect.left;
  create.y = rect.top;
  create.cx =
      rect.left == CW_USEDEFAULT || rect.right == 0 ? CW_USEDEFAULT : rect.right - rect.left;
  create.cy =
      rect.left == CW_USEDEFAULT || rect.bottom == 0 ? CW_USEDEFAULT : rect.bottom - rect.top;
  create.style = cs.style & ~DWORD(WS_POPUP | WS_CHILD);
  create.lParam = reinterpret_cast<LPARAM>(pContext);
  AfxHookWindowCreate(this);
  const auto made = reinterpret_cast<HWND>(::SendMessage(pParentWnd->m_hWndMDIClient, WM_MDICREATE,
                                                         0, reinterpret_cast<LPARAM>(&create)));
  if (!AfxUnhookWindowCreate()) PostNcDestroy();  // creation failed before the window existed
  return made != nullptr;
}

LRESULT CMDIChildWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) {
  return ::DefMDIChildProc(m_hWnd, nMsg, wParam, lParam);
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
  const HWND client = ::GetParent(m_hWnd);
  CWnd* frame = client ? CWnd::FromHandlePermanent(::GetParent(client)) : nullptr;
  return frame ? DYNAMIC_DOWNCAST(CMDIFrameWnd, frame) : nullptr;
}

void CMDIChildWnd::MDIDestroy() {
  ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIActivate() {
  ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIMaximize() {
  ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIRestore() {
  ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

// Through the MDI client, which updates its list of children and the frame's menu bar.
BOOL CMDIChildWnd::DestroyWindow() {
  if (!m_hWnd) return FALSE;
  MDIDestroy();
  return TRUE;
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
  if (nCmdShow != -1) ShowWindow(nCmdShow);
  MDIActivate();
}

CWnd* CMDIChildWnd::GetMessageBar() {
  CMDIFrameWnd* frame = GetMDIFrame();
  return frame ? frame->GetMessageBar() : nullptr;
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
  if (CMDIFrameWnd* frame = GetMDIFrame()) frame->OnUpdateFrameTitle(bAddToTitle);
}

// The frame has called the active child already when a message comes from the focus window.
BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
  if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
  return pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST && m_hAccelTable &&
         ::TranslateAccelerator(GetMDIFrame()->m_hWnd, m_hAccelTable, pMsg);
}

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy) {
  // The default handling maximizes.
  CFrameWnd::OnSize(nType, cx, cy);
}

int CMDIChildWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
  const int result = CFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
  CMDIFrameWnd* frame = GetMDIFrame();
  if (result != MA_NOACTIVATE && result != MA_NOACTIVATEANDEAT && frame &&
      frame->MDIGetActive() != this)
    MDIActivate();
  return result;
}
