// Tips for parts of a window that are not windows. The thread has one tool tip control; the part
// under the pointer is its only tool.
#include "afximpl.h"

#include <cstdlib>

BOOL CWnd::EnableToolTips(BOOL bEnable) {
  BOOL old = (m_nFlags & WF_TOOLTIPS) != 0;
  m_nFlags = bEnable ? m_nFlags | WF_TOOLTIPS : m_nFlags & ~WF_TOOLTIPS;
  if (!bEnable && AfxGetThreadState().tipWindow == this) CancelToolTips();
  return old;
}

// The base class supports the child controls as parts.
INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
  HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
  if (!child || child == m_hWnd) return -1;
  if (pTI) {
    pTI->hwnd = m_hWnd;
    pTI->uId = reinterpret_cast<UINT_PTR>(child);
    pTI->uFlags |= TTF_IDISHWND;
    pTI->lpszText = LPSTR_TEXTCALLBACK;
  }
  return WORD(::GetDlgCtrlID(child));
}

namespace {
void DropTool(AfxThreadState& state) {
  if (state.tipTool.cbSize && state.toolTip && state.toolTip->m_hWnd)
    state.toolTip->SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&state.tipTool));
  state.tipTool = {};
  state.tipHit = -1;
  state.tipWindow = nullptr;
}

// Created again after its owner was destroyed with the control.
bool EnsureControl(AfxThreadState& state, CWnd* owner) {
  if (!state.toolTip) state.toolTip = new CToolTipCtrl;  // never freed, like the state
  if (state.toolTip->m_hWnd) return true;
  if (!state.toolTip->Create(owner->GetTopLevelParent(), TTS_ALWAYSTIP)) return false;
  state.toolTip->SendMessage(TTM_ACTIVATE, TRUE);
  return true;
}

// The control starts its delay at a pointer move over the tool's own window.
void Relay(CToolTipCtrl* control, MSG message, HWND window) {
  message.hwnd = window;
  CPoint client(message.pt);
  ::ScreenToClient(window, &client);
  if (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCMBUTTONDBLCLK) {
    message.message = WM_MOUSEMOVE;
    message.wParam = 0;
  }
  message.lParam = MAKELPARAM(client.x, client.y);
  control->RelayEvent(&message);
}

bool AnyButtonDown() {
  return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 ||
         ::GetKeyState(VK_MBUTTON) < 0;
}

void TakeTool(AfxThreadState& state, CWnd* wnd, INT_PTR hit, TOOLINFO tool) {
  DropTool(state);
  if (hit == -1) return;
  tool.uFlags &= ~UINT(TTF_NOTBUTTON | TTF_ALWAYSTIP);
  state.toolTip->SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
  state.tipTool = tool;
  state.tipTool.lpszText = nullptr;
  state.tipHit = hit;
  state.tipWindow = wnd;
}
}  // namespace

void CWnd::FilterToolTipMessage(MSG* pMsg) {
  AfxThreadState& state = AfxGetThreadState();
  const UINT message = pMsg->message;
  if ((message >= WM_KEYFIRST && message <= WM_KEYLAST) || message == WM_LBUTTONDOWN ||
      message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN) {
    CancelToolTips();
    return;
  }
  if ((message != WM_MOUSEMOVE && message != WM_NCMOUSEMOVE) || AnyButtonDown()) return;
  CPoint point(pMsg->pt);
  ScreenToClient(&point);
  TOOLINFO tool{};
  tool.cbSize = sizeof tool;
  tool.lpszText = LPSTR_TEXTCALLBACK;
  tool.hwnd = m_hWnd;
  INT_PTR hit = OnToolHitTest(point, &tool);
  if (EnsureControl(state, this)) {
    if (hit != state.tipHit || (hit != -1 && this != state.tipWindow))
      TakeTool(state, this, hit, tool);
    if (hit != -1) Relay(state.toolTip, *pMsg, tool.uFlags & TTF_IDISHWND ? pMsg->hwnd : m_hWnd);
  }
  if (tool.lpszText != LPSTR_TEXTCALLBACK) std::free(tool.lpszText);
}

void CWnd::CancelToolTips(BOOL) {
  AfxThreadState& state = AfxGetThreadState();
  if (state.toolTip && state.toolTip->m_hWnd) state.toolTip->Pop();
  DropTool(state);
}
