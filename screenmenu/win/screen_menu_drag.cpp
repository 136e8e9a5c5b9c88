// CScreenMenu: dragging the edge of a docked palette. From a certain host release on the palette
// handles the mouse for its dock bar while no other bar is docked beside it, by replacing the bar's
// window procedure. The arithmetic is in edge_drag.
#include "afxpriv.h"
#include "dbapserv.h"
#include "screenmenu/win/screen_menu.h"

namespace {

// Styles of the frame in which a bar with a dragged edge floats later.
constexpr DWORD kSizedByUser = CBRS_SIZE_DYNAMIC | CBRS_HIDE_INPLACE;

}  // namespace

// Handles the mouse only while no other bar is docked beside the palette: with a neighbour the host
// handles the edge again from the next layout on.
CSize CScreenMenu::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
  qvx::Guarded([this] { FollowDockBar(); });
  return qvx::GuardedOr(CSize(),
                        [&] { return CAdUiPaletteSet::CalcFixedLayout(stretch, horizontal); });
}

void CScreenMenu::FollowDockBar() {
  const AcDbHostApplicationServices* services = acdbHostApplicationServices();
  if (!services ||
      !qvx::HostLetsTakeEdge(services->releaseMajorVersion(), services->releaseMinorVersion()))
    return;
  CDockBar* bar = DYNAMIC_DOWNCAST(CDockBar, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
  if (IsFloating() || (bar && !StandsAlone(*bar)))
    RestoreDockBar();
  else if (bar)
    TakeDockBar(bar->m_hWnd);
}

bool CScreenMenu::StandsAlone(CDockBar& bar) {
  const auto isNeighbour = [&bar](int position) {
    if (position < 0 || position >= bar.m_arrBars.GetSize()) AfxThrowInvalidArgException();
    const void* entry = bar.m_arrBars[position];
    return qvx::IsBarEntry(entry) && static_cast<const CControlBar*>(entry)->IsVisible();
  };
  const int position = bar.FindBar(this);
  const bool left = position > 0 && isNeighbour(position - 1);
  const bool right = isNeighbour(position + 1);  // the array always ends in a row marker
  return !left && !right;
}

void CScreenMenu::TakeDockBar(HWND bar) {
  if (bar == m_hDockBar) return;
  RestoreDockBar();
  m_hDockBar = bar;
  m_pfnDockBarProc = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DockBarProc)));
}

void CScreenMenu::RestoreDockBar() {
  if (!m_hDockBar || !m_pfnDockBarProc) return;
  ::SetWindowLongPtrW(m_hDockBar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnDockBarProc));
  m_hDockBar = nullptr;
  m_pfnDockBarProc = nullptr;
}

LRESULT CALLBACK CScreenMenu::DockBarProc(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!g_pScreenMenu) return ::DefWindowProcW(bar, message, wParam, lParam);
  return qvx::GuardedOr(
      LRESULT{0}, [&] { return g_pScreenMenu->OnDockBarMessage(bar, message, wParam, lParam); });
}

LRESULT CScreenMenu::OnDockBarMessage(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  const CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
  switch (message) {
    case WM_MOUSEMOVE:
      if (!m_bTracking) break;
      TrackMove(point);
      return 0;
    case WM_LBUTTONDOWN: {
      const int code = m_bTracking ? 0 : qvx::EdgeHit(point, MeasureDock());
      if (!code) break;
      TrackBegin(code);
      return 0;
    }
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
      if (!m_bTracking) break;
      TrackEnd();
      return 0;
    case WM_CAPTURECHANGED:
      if (m_bTracking && reinterpret_cast<HWND>(lParam) != bar) TrackEnd();
      break;
  }
  return ::CallWindowProcW(m_pfnDockBarProc, bar, message, wParam, lParam);
}

qvx::DockGeometry CScreenMenu::MeasureDock() const {
  CRect palette, client;
  GetWindowRect(&palette);
  ::MapWindowPoints(nullptr, m_hDockBar, reinterpret_cast<POINT*>(&palette), 2);
  ::GetClientRect(m_hDockBar, &client);
  return {::GetDlgCtrlID(m_hDockBar), palette, client, ::GetSystemMetrics(SM_CXFRAME),
          ::GetSystemMetrics(SM_CYFRAME)};
}

SIZE CScreenMenu::LeastSize() {
  long width = 0, height = 0;
  GetFloatingMinSize(&width, &height);
  return {width, height};
}

void CScreenMenu::TrackBegin(int code) {
  m_bTracking = 1;
  ::SetCapture(m_hDockBar);
  ::RedrawWindow(m_hDockBar, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  qvx::EdgeRect(code, MeasureDock(), &m_rcTracker);
  DrawTracker();
}

// XOR: a second call erases it.
void CScreenMenu::DrawTracker() {
  CRect screen(m_rcTracker);
  ::MapWindowPoints(m_hDockBar, nullptr, reinterpret_cast<POINT*>(&screen), 2);
  const HWND desktop = ::GetDesktopWindow();
  const qvx::WindowDc dc(
      desktop, ::GetDCEx(desktop, nullptr, DCX_WINDOW | DCX_CACHE | DCX_LOCKWINDOWUPDATE));
  if (!dc.Get()) return;
  qvx::SelectedObject brush(dc.Get(), CDC::GetHalftoneBrush()->m_hObject);
  ::PatBlt(dc.Get(), screen.left, screen.top, screen.Width(), screen.Height(), PATINVERT);
}

void CScreenMenu::TrackMove(CPoint point) {
  POINT way{};
  if (!qvx::TrackOffset(point, m_rcTracker, MeasureDock(), LeastSize(), &way)) return;
  DrawTracker();
  m_rcTracker.OffsetRect(way);
  DrawTracker();
}

void CScreenMenu::TrackEnd() {
  m_bTracking = 0;
  ::ReleaseCapture();
  DrawTracker();
  CRect window;
  GetWindowRect(&window);
  const qvx::DockGeometry dock = MeasureDock();
  const CRect dragged(qvx::DraggedRect(m_rcTracker, dock, window));
  DockControlBar(static_cast<UINT>(dock.dockBar), &dragged);
  if (m_pDockContext) m_pDockContext->m_dwMRUFloatStyle |= kSizedByUser;
}

void CScreenMenu::TrackCancel() {
  if (!m_bTracking) return;
  m_bTracking = 0;
  ::ReleaseCapture();
  DrawTracker();
}
