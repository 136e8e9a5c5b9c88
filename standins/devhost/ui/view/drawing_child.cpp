// The MDI child window; see the header.
#include "devhost/ui/view/drawing_child.h"

#include "devhost/ui/frame/host_actions.h"
#include "devhost/ui/frame/host_ui_impl.h"

namespace devhost {
namespace {

bool IsToAnotherChild(WPARAM command) {
  const WPARAM which = command & 0xFFF0;
  return which == SC_NEXTWINDOW || which == SC_PREVWINDOW;
}

}  // namespace

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

bool DrawingChild::IsActive() const {
  return reinterpret_cast<HWND>(::SendMessageW(::GetParent(m_hWnd), WM_MDIGETACTIVE, 0, 0)) ==
         m_hWnd;
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
    case WM_CLOSE:  // closed later: a window must not be destroyed in its own message
      RunHostCommand(m_document, L"CLOSE");
      return 0;
    case WM_SYSCOMMAND:  // Ctrl+Tab, Ctrl+F6
      if (IsToAnotherChild(wParam) && !TheHostUi().MayChangeDrawing()) return 0;
      break;
    case WM_MOUSEACTIVATE:
      if (!IsActive() && !TheHostUi().MayChangeDrawing()) return MA_NOACTIVATEANDEAT;
      break;
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
