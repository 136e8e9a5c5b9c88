// The drag on the screen; see the header. The layout is read and written by the command alone, in
// the context of the drawing; until then the viewports are asked for pixel by pixel.
#include "afxext.h"

#include "rxmfcapi.h"

#include "acdocman.h"
#include "kernel/qvxexport.h"
#include <algorithm>
#include <utility>

#include "kernel/tviewportresize.h"
#include "kernel/viewport_borders.h"
#include "kernel/viewport_layout.h"

namespace {

constexpr wchar_t kApply[] = L"TDragVp\n";

struct Drag {
  ViewportBorder border;  // at the press; no first viewport: no drag
  int grabbed = 0;        // where the border was taken
  int at = 0;             // where the line is shown
  HWND view = nullptr;
};

// What ApplyChange has to do.
struct Change {
  AcApDocument* document = nullptr;  // compared only
  ViewportBorder border;
  double place = 0;
};

Drag& TheDrag() {
  static Drag drag;
  return drag;
}

Change& TheChange() {
  static Change change;
  return change;
}

bool IsDragging() { return TheDrag().border.first != 0; }

int Along(const ViewportBorder& border, CPoint point) { return border.upright ? point.x : point.y; }

// An inverted line: the second time takes it away.
void InvertLine(const Drag& drag) {
  const ViewportBorder& b = drag.border;
  const HDC dc = ::GetDC(drag.view);
  if (!dc) return;
  constexpr int kWide = 2;
  if (b.upright)
    ::PatBlt(dc, drag.at - 1, b.from, kWide, b.to - b.from, DSTINVERT);
  else
    ::PatBlt(dc, b.from, drag.at - 1, b.to - b.from, kWide, DSTINVERT);
  ::ReleaseDC(drag.view, dc);
}

void ShowSizeCursor(bool upright) {
  ::SetCursor(::LoadCursorW(nullptr, upright ? IDC_SIZEWE : IDC_SIZENS));
}

// Forgets the drag first: releasing the capture sends messages.
Drag EndDrag() {
  const Drag ended = std::exchange(TheDrag(), Drag());
  InvertLine(ended);
  if (::GetCapture() == ended.view) ::ReleaseCapture();
  return ended;
}

int SizeAcross(const Drag& drag) {
  RECT client{};
  ::GetClientRect(drag.view, &client);
  return drag.border.upright ? client.right : client.bottom;
}

}  // namespace

bool TViewportResize::OnMouseMove(UINT flags, CPoint point) {
  Drag& drag = TheDrag();
  if (!IsDragging()) {
    const ViewportBorder found = flags & (MK_LBUTTON | MK_MBUTTON | MK_RBUTTON)
                                     ? ViewportBorder()
                                     : BorderNear(acedGetWinNum, point);
    if (found.first) ShowSizeCursor(found.upright);
    return found.first != 0;
  }
  // The release went to another window.
  if (!(flags & MK_LBUTTON) || !QvxExport::IsCurDwgView(drag.view)) {
    EndDrag();
    return false;
  }
  InvertLine(drag);
  const int wanted = drag.border.at + Along(drag.border, point) - drag.grabbed;
  drag.at = std::clamp(wanted, 0, SizeAcross(drag));
  InvertLine(drag);
  ShowSizeCursor(drag.border.upright);
  return true;
}

bool TViewportResize::OnLButtonDown(UINT, CPoint point) {
  if (IsDragging()) EndDrag();
  const CWnd* view = QvxExport::GetCurDwgView();
  const ViewportBorder found = view ? BorderNear(acedGetWinNum, point) : ViewportBorder();
  if (!found.first) return false;
  TheDrag() = {found, Along(found, point), found.at, view->m_hWnd};
  ::SetCapture(view->m_hWnd);
  InvertLine(TheDrag());
  ShowSizeCursor(found.upright);
  return true;
}

bool TViewportResize::OnLButtonUp(UINT, CPoint) {
  if (!IsDragging()) return false;
  const Drag drag = EndDrag();
  const int size = SizeAcross(drag);
  AcApDocument* document = acDocManagerPtr()->curDocument();
  if (drag.at == drag.border.at || size <= 0 || !document) return true;
  const double part = static_cast<double>(drag.at) / size;
  TheChange() = {document, drag.border, drag.border.upright ? part : 1 - part};
  acDocManagerPtr()->sendStringToExecute(document, kApply, true, false, true);
  return true;
}

void TViewportResize::OnEscape() {
  if (IsDragging()) EndDrag();
}

void TViewportResize::ApplyChange() {
  const Change change = std::exchange(TheChange(), Change());
  if (!change.document || change.document != acDocManagerPtr()->curDocument()) return;
  std::vector<ViewportTile> tiles;
  if (ReadLayout(tiles) && MoveBorder(tiles, change.border, change.place)) WriteLayout(tiles);
}
