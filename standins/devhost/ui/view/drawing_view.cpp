// The drawing window; see the header. The scene is cached in a bitmap; moving the pointer copies it
// and paints the overlay.
#include "devhost/ui/view/drawing_view.h"

#include <windowsx.h>

#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/view/pick_logic.h"

namespace devhost {
namespace {

constexpr UINT kViewId = 0xE900;  // identifier of a frame's only pane

CommandBar* Commands() { return TheFrame() ? &TheFrame()->Commands() : nullptr; }

bool IsTypingKey(WPARAM key) {
  return key == VK_UP || key == VK_DOWN || key == VK_LEFT || key == VK_RIGHT || key == VK_HOME ||
         key == VK_END;
}

}  // namespace

bool DrawingView::CreateIn(CWnd* parent) {
  const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
  return CWnd::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                      CRect(0, 0, 0, 0), parent, kViewId) != FALSE;
}

void DrawingView::PictureChanged() {
  m_sceneDirty = true;
  SelectionChanged();
}

void DrawingView::SelectionChanged() {
  if (m_hWnd) ::InvalidateRect(m_hWnd, nullptr, FALSE);
}

void DrawingView::HighlightChanged() {
  if (m_model.HighlightChanged()) m_sceneDirty = true;
  SelectionChanged();
}

// An open selection box keeps its first corner at the same place of the drawing.
template <class F>
void DrawingView::ChangeView(F change) {
  std::optional<AcGePoint3d> corner;
  if (m_boxFrom) corner = m_model.WorldAt(*m_boxFrom);
  change();
  if (corner) m_boxFrom = m_model.PixelOf(corner->x, corner->y);
  PictureChanged();
}

void DrawingView::ZoomAt(POINT pixel, double factor) {
  ChangeView([&] { m_model.ZoomAt(pixel, factor); });
}

void DrawingView::ZoomExtents() {
  ChangeView([this] { m_model.ZoomExtents(); });
}

// At the first size the whole drawing is shown; later sizes keep the scale.
void DrawingView::OnResize(int width, int height) {
  if (width <= 0 || height <= 0) return;
  m_model.Resize(width, height);
  if (!m_sized) m_model.ZoomExtents();
  m_sized = true;
  PictureChanged();
}

void DrawingView::MoveCursor(std::optional<POINT> at) {
  const bool wide = m_boxFrom || (at && m_model.RubberBandStart());
  if (wide) {
    ::InvalidateRect(m_hWnd, nullptr, FALSE);
  } else {
    for (const std::optional<POINT>& place : {m_cursor, at}) {
      if (!place) continue;
      const RECT r = CrosshairBounds(*place);
      ::InvalidateRect(m_hWnd, &r, FALSE);
    }
  }
  m_cursor = at;
}

void DrawingView::BeginPan(POINT at) {
  m_panFrom = at;
  m_panViewport = m_model.ViewportAt(at);
  ::SetCapture(m_hWnd);
  ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEALL));
}

void DrawingView::EndPan() {
  if (!m_panFrom) return;
  m_panFrom.reset();
  if (::GetCapture() == m_hWnd) ::ReleaseCapture();
}

void DrawingView::OnMove(WPARAM keys, POINT at) {
  if (m_panFrom) {
    ChangeView([&] { m_model.PanBy(m_panViewport, at.x - m_panFrom->x, at.y - m_panFrom->y); });
    m_panFrom = at;
  }
  if (m_orbitFrom) {
    m_model.OrbitBy(at.x - m_orbitFrom->x, at.y - m_orbitFrom->y);
    m_orbitFrom = at;
    PictureChanged();
  }
  if (m_press && !m_boxFrom && (keys & MK_LBUTTON) && IsDrag(*m_press, at) &&
      !m_model.WaitsForPoint())
    m_boxFrom = m_press;
  MoveCursor(at);
  m_model.PreviewAt(at);
  TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, m_hWnd, 0};
  ::TrackMouseEvent(&leave);
  if (MainFrame* frame = TheFrame()) frame->Status().ShowCoordinates(m_model.CoordinatesAt(at));
}

// A press in another viewport makes that one current, and does nothing else.
bool DrawingView::OnPressElsewhere(POINT at) {
  if (!m_model.MakeCurrentAt(at)) return false;
  m_boxFrom.reset();
  m_press.reset();
  MoveCursor(at);
  return true;
}

bool DrawingView::BeginOrbit(POINT at) {
  if (!m_model.WaitsForView()) return false;
  m_orbitFrom = at;
  ::SetCapture(m_hWnd);
  return true;
}

void DrawingView::EndOrbit() {
  if (!m_orbitFrom) return;
  m_orbitFrom.reset();
  if (::GetCapture() == m_hWnd) ::ReleaseCapture();
}

// A click enters a point if a command requests one. Otherwise it picks an entity; on empty space it
// begins a selection box, which a second click or the end of a drag closes.
void DrawingView::OnPress(WPARAM keys, POINT at) {
  ::SetFocus(m_hWnd);
  if (OnPressElsewhere(at) || BeginOrbit(at)) return;
  if (m_model.CommandIsActive()) m_boxFrom.reset();  // a command was started meanwhile
  if (m_model.WaitsForPoint()) {
    m_model.EnterPoint(at);
    return;
  }
  if (m_boxFrom) {
    PickBox(keys, *m_boxFrom, at);
    return;
  }
  if (m_model.CommandIsActive()) return;
  if (m_model.PressGrip(at)) {
    m_gripPress = at;
    return;
  }
  m_press = at;
  if (m_model.PickAt(at, (keys & MK_SHIFT) != 0)) {
    m_press.reset();
    SelectionChanged();
    return;
  }
  m_boxFrom = at;
  SelectionChanged();
}

void DrawingView::OnRelease(WPARAM keys, POINT at) {
  EndOrbit();
  const bool dragged = m_press && IsDrag(*m_press, at);
  if (dragged && m_boxFrom) PickBox(keys, *m_boxFrom, at);
  m_press.reset();
  // A grip that was dragged is released at its new place; one that was clicked waits for a click.
  if (m_gripPress && IsDrag(*m_gripPress, at) && m_model.WaitsForPoint()) m_model.EnterPoint(at);
  m_gripPress.reset();
}

void DrawingView::OnDoubleClick(WPARAM keys, POINT at) {
  if (!m_model.EditTextAt(at)) return OnPress(keys, at);
  m_boxFrom.reset();
  m_press.reset();
}

void DrawingView::PickBox(WPARAM keys, POINT from, POINT to) {
  m_boxFrom.reset();
  m_press.reset();
  m_model.PickIn(BoxOf(from, to), IsCrossing(from, to), (keys & MK_SHIFT) != 0);
  SelectionChanged();
}

void DrawingView::OnWheel(int delta, POINT screen) {
  ::ScreenToClient(m_hWnd, &screen);
  ZoomAt(screen, WheelZoom(delta));
}

bool DrawingView::OnMouse(UINT message, WPARAM keys, POINT at) {
  switch (message) {
    case WM_MOUSEMOVE:
      OnMove(keys, at);
      return true;
    case WM_LBUTTONDOWN:
      OnPress(keys, at);
      return true;
    case WM_LBUTTONUP:
      OnRelease(keys, at);
      return true;
    case WM_LBUTTONDBLCLK:
      OnDoubleClick(keys, at);
      return true;
    case WM_MBUTTONDOWN:
      BeginPan(at);
      return true;
    case WM_MBUTTONUP:
      EndPan();
      return true;
    case WM_MBUTTONDBLCLK:
      ZoomExtents();
      return true;
    case WM_MOUSEWHEEL:
      OnWheel(static_cast<short>(HIWORD(keys)), at);
      return true;
    case WM_RBUTTONUP:  // as Enter on the command line does
      if (CommandBar* commands = Commands()) commands->EndLine();
      return true;
  }
  return false;
}

void DrawingView::OnKey(WPARAM key) {
  if (key == VK_ESCAPE) {
    m_boxFrom.reset();
    m_press.reset();
    if (CommandBar* commands = Commands()) commands->Escape();
    SelectionChanged();
  } else if (key == VK_F7) {
    m_model.ToggleGrid();
  } else if (IsTypingKey(key)) {
    if (CommandBar* commands = Commands()) commands->SendKey(key);
  } else if (key == VK_DELETE) {
    if (CommandBar* commands = Commands()) commands->SendKey(key);
  }
}

// The crosshair is painted; other viewports than the current one have an arrow.
void DrawingView::ShowPointer() {
  POINT at{};
  ::GetCursorPos(&at);
  ::ScreenToClient(m_hWnd, &at);
  const LPCWSTR shape = m_panFrom || m_orbitFrom  ? IDC_SIZEALL
                        : m_model.IsInCurrent(at) ? nullptr
                                                  : IDC_ARROW;
  ::SetCursor(shape ? ::LoadCursorW(nullptr, shape) : nullptr);
}

ViewOverlay DrawingView::Overlay() const {
  ViewOverlay overlay;
  overlay.clip = m_model.CurrentPixels();
  if (m_cursor && !m_panFrom && m_model.IsInCurrent(*m_cursor)) overlay.cursor = m_cursor;
  overlay.pickBox = !m_model.WaitsForPoint();
  overlay.grips = m_model.Grips();
  if (m_model.WaitsForCorner()) {
    overlay.boxFrom = m_model.RubberBandStart();
  } else {
    if (!m_model.CommandIsActive()) overlay.boxFrom = m_boxFrom;
    overlay.rubberFrom = m_model.RubberBandStart();
  }
  overlay.axes = m_model.Axes();
  return overlay;
}

void DrawingView::PaintScene(HDC like, const RECT& client) {
  if (!m_scene || m_sceneSize.cx != client.right || m_sceneSize.cy != client.bottom) {
    m_scene = Bitmap(::CreateCompatibleBitmap(like, client.right, client.bottom));
    m_sceneSize = {client.right, client.bottom};
    m_sceneDirty = true;
  }
  const HDC memory = ::CreateCompatibleDC(like);
  {
    Selected bitmap(memory, m_scene.Get());
    if (m_sceneDirty) {
      Brush ground(::CreateSolidBrush(ViewBackground()));
      ::FillRect(memory, &client, ground.Get());
      m_model.PaintScene(memory);
      m_sceneDirty = false;
    }
    ::BitBlt(like, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
  }
  ::DeleteDC(memory);
}

void DrawingView::Paint() {
  PaintScope dc(m_hWnd);
  if (dc.Client().right <= 0 || dc.Client().bottom <= 0) return;
  PaintScene(dc, dc.Client());
  m_model.PaintHighlights(dc);
  PaintOverlay(dc, Overlay());
}

LRESULT DrawingView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST &&
      OnMouse(message, wParam, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}))
    return 0;
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      OnResize(LOWORD(lParam), HIWORD(lParam));
      break;
    case WM_MOUSELEAVE:
      MoveCursor(std::nullopt);
      m_model.EndPreview();
      break;
    case WM_CAPTURECHANGED:
      m_panFrom.reset();
      m_orbitFrom.reset();
      break;
    case WM_KEYDOWN:
      OnKey(wParam);
      break;
    case WM_CHAR:
      if (CommandBar* commands = Commands(); commands && wParam != VK_ESCAPE)
        commands->SendChar(static_cast<wchar_t>(wParam));
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(lParam) != HTCLIENT) break;
      ShowPointer();
      return TRUE;
  }
  return CWnd::WindowProc(message, wParam, lParam);
}

}  // namespace devhost
