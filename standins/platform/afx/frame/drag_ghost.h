// The frame that shows the target of a dragged bar or edge. A topmost window instead of inverted
// screen lines, because windows below may repaint at any time. Used by the dock bar and the dock
// context while a mouse button is held.
#pragma once

#include "../afxwin.h"

class DragGhost {
 public:
  explicit DragGhost(HWND owner);
  ~DragGhost();
  DragGhost(const DragGhost&) = delete;
  DragGhost& operator=(const DragGhost&) = delete;

  void Show(const CRect& screenRect, bool solid);  // solid: a bar; otherwise an outline
  HWND Window() const { return m_window; }

 private:
  HWND m_window = nullptr;
  CRect m_shown;
  bool m_solid = false;
};

// Dispatches the messages of a drag until the left button is released. `moved` is called with the
// pointer in screen coordinates. False: Escape, the right button, or the capture was lost.
template <class Moved>
bool FollowPointer(HWND capture, Moved moved) {
  ::SetCapture(capture);
  bool dropped = false;
  while (::GetCapture() == capture) {
    MSG message;
    if (!::GetMessage(&message, nullptr, 0, 0)) {
      ::PostQuitMessage(int(message.wParam));
      break;
    }
    if (message.message == WM_LBUTTONUP) {
      moved(CPoint(message.pt));
      dropped = true;
      break;
    }
    if (message.message == WM_RBUTTONDOWN ||
        (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE))
      break;
    if (message.message == WM_MOUSEMOVE)
      moved(CPoint(message.pt));
    else
      ::DispatchMessage(&message);
  }
  if (::GetCapture() == capture) ::ReleaseCapture();
  return dropped;
}
