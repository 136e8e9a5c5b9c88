// The drag frame; see the header.
#include "drag_ghost.h"

namespace {

constexpr int kLine = 3;  // width of the outline

HBRUSH GhostBrush() { return ::GetSysColorBrush(COLOR_HIGHLIGHT); }

LPCTSTR GhostClass() {
  static const wchar_t* const name = [] {
    WNDCLASS wc{};
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hbrBackground = GhostBrush();
    wc.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = L"AfxDragGhost";
    ::RegisterClass(&wc);
    return wc.lpszClassName;
  }();
  return name;
}

// For SetWindowRgn, which takes ownership of the region.
HRGN OutlineRegion(const CRect& rect) {
  CRgn all, hole;
  all.CreateRectRgn(0, 0, rect.Width(), rect.Height());
  hole.CreateRectRgn(kLine, kLine, rect.Width() - kLine, rect.Height() - kLine);
  all.CombineRgn(&all, &hole, RGN_DIFF);
  return static_cast<HRGN>(all.Detach());
}

}  // namespace

DragGhost::DragGhost(HWND owner) {
  m_window = ::CreateWindowEx(
      WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, GhostClass(),
      nullptr, WS_POPUP | WS_DISABLED, 0, 0, 0, 0, owner, nullptr, AfxGetInstanceHandle(), nullptr);
}

DragGhost::~DragGhost() {
  if (m_window) ::DestroyWindow(m_window);
}

void DragGhost::Show(const CRect& screenRect, bool solid) {
  if (!m_window || (m_shown == screenRect && m_solid == solid)) return;
  const bool sameSize = m_shown.Size() == screenRect.Size() && m_solid == solid;
  m_shown = screenRect;
  m_solid = solid;
  if (!sameSize) ::SetWindowRgn(m_window, solid ? nullptr : OutlineRegion(screenRect), FALSE);
  ::SetWindowPos(m_window, HWND_TOPMOST, screenRect.left, screenRect.top, screenRect.Width(),
                 screenRect.Height(), SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOCOPYBITS);
  ::UpdateWindow(m_window);
}
