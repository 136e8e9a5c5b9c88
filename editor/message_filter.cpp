#include "editor/message_filter.h"

#include "editor/double_click.h"
#include "editor/filter_host.h"
#include "editor/in_place_edit.h"
#include "editor/text_search.h"
#include "editor/viewport_resize.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr int kNoViewportResize = 0x10;  // of the custom flags

bool ClosesGripTip(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONDOWN ||
         message == WM_RBUTTONDOWN;
}

}  // namespace

bool MessageFilter::Filter(const MSG& message) {
  if (!Accepts(message) || g_bDisableHook) return false;
  if (!(GetCustomFlag() & kNoViewportResize) && StepViewportResize(m_host, message)) return true;
  if (m_host.RunsCommand(L"3DORBIT")) return false;
  const bool isSwallowed = Dispatch(message);
  if (ClosesGripTip(message.message)) m_host.CloseGripTip();
  return isSwallowed;
}

bool MessageFilter::Accepts(const MSG& message) {
  return m_host.HasCurrentDocument() && m_host.HasWorkingDatabase() &&
         m_host.IsHostWindow(message.hwnd) && m_host.IsDrawingReady();
}

bool MessageFilter::Dispatch(const MSG& message) {
  switch (message.message) {
    case WM_MOUSEMOVE:
      return OnMouseMove(message);
    case WM_KEYDOWN:
      return m_keys.Down(m_host, message);
    case WM_KEYUP:
      return m_keys.Up(m_host, message);
    case WM_CHAR:
      return OnChar(message);
    case WM_LBUTTONDOWN:
      return OnLeftButtonDown(message);
    case WM_LBUTTONDBLCLK:
      return HandleDoubleClick(m_host, m_edit, message);
    case WM_RBUTTONDOWN:
      return m_rightButton.Press(m_host, message);
    case WM_RBUTTONUP:
      return m_rightButton.Release(m_host, m_edit, message);
    case WM_MBUTTONDOWN:
      if (m_edit.IsVisible()) m_edit.HideCaret();
      return false;
    case WM_MBUTTONUP:
      return OnMiddleButtonUp();
    case WM_MOUSEWHEEL:
      return OnWheel(message);
    default:
      return false;
  }
}

bool MessageFilter::OnMouseMove(const MSG& message) {
  if (m_edit.IsVisible()) {
    if (!(message.wParam & MK_MBUTTON)) m_host.SetEditCursor();
    return false;
  }
  if (!m_host.IsIdle())
    m_host.CloseGripTip();
  else if (m_host.IsDrawingView(message.hwnd))
    m_host.RestartPreviewTimer();
  return false;
}

// A click during an edit never reaches the host.
bool MessageFilter::OnLeftButtonDown(const MSG& message) {
  if (!m_edit.IsVisible()) return false;
  DrawingPoint point;
  TSubText* fragment =
      FindDrawingPoint(m_host, message.pt, point) ? FindText(m_host, point) : nullptr;
  if (fragment)
    m_edit.BeginEdit(fragment, AcGeMatrix3d());
  else
    m_edit.EndEdit(true);
  return true;
}

// The view was panned or zoomed: the box has to follow its text.
bool MessageFilter::OnMiddleButtonUp() {
  if (m_edit.IsVisible()) m_edit.PostMove();
  return false;
}

// Over the screen menu the wheel never reaches the host, whether a group scrolls or not.
bool MessageFilter::OnWheel(const MSG& message) {
  const POINT at = m_host.CursorPosition();
  if (!m_host.IsInScreenMenu(at)) return OnMiddleButtonUp();
  if (m_host.IsInWheelGroup(at)) m_host.WheelGroup(static_cast<short>(HIWORD(message.wParam)), at);
  return true;
}

bool MessageFilter::OnChar(const MSG& message) {
  m_host.ForwardChar(static_cast<char>(message.wParam), LOWORD(message.lParam),
                     HIWORD(message.lParam));
  return false;
}

}  // namespace qvx
