// The MDI child window; see the header.
#include "devhost/ui/view/drawing_child.h"

#include "devhost/ui/frame/host_ui_impl.h"

namespace devhost {

DrawingChild::DrawingChild(Document& document) : m_document(document), m_view(document) {}

bool DrawingChild::CreateIn(CMDIFrameWnd* frame, const std::wstring& title) {
  BOOL maximized = TRUE;
  const LRESULT active = ::SendMessageW(frame->m_hWndMDIClient, WM_MDIGETACTIVE, 0,
                                        reinterpret_cast<LPARAM>(&maximized));
  if (!Create(nullptr, title.c_str(), WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
              CRect(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0), frame))
    return false;
  if (!m_view.CreateIn(this)) return false;
  // Set before maximizing: the frame's menu bar copies the icon then.
  SetIcon(frame->GetIcon(FALSE), FALSE);
  if (!active || maximized)
    ::SendMessageW(frame->m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
  RECT client{};
  ::GetClientRect(m_hWnd, &client);
  ::MoveWindow(m_view.m_hWnd, 0, 0, client.right, client.bottom, TRUE);
  // The child got the focus when it was created, before the view existed.
  if (::GetFocus() == m_hWnd) ::SetFocus(m_view.m_hWnd);
  return true;
}

void DrawingChild::Activate() {
  const HWND client = ::GetParent(m_hWnd);
  ::SendMessageW(client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void DrawingChild::DestroyMdiWindow() {
  ::SendMessageW(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

LRESULT DrawingChild::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      TheHostUi().OnUserClose(*this);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_MDIACTIVATE: {
      const LRESULT result = CMDIChildWnd::WindowProc(message, wParam, lParam);
      if (reinterpret_cast<HWND>(lParam) == m_hWnd) TheHostUi().OnUserActivate(*this);
      return result;
    }
    case WM_SIZE: {
      const LRESULT result = CMDIChildWnd::WindowProc(message, wParam, lParam);
      if (m_view.m_hWnd) ::MoveWindow(m_view.m_hWnd, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
      return result;
    }
    case WM_SETFOCUS:
      if (m_view.m_hWnd) ::SetFocus(m_view.m_hWnd);
      return 0;
  }
  return CMDIChildWnd::WindowProc(message, wParam, lParam);
}

}  // namespace devhost
