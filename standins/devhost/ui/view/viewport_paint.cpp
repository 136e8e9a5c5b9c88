// Painting in viewports; see the header.
#include "devhost/ui/view/viewport_paint.h"

#include "devhost/ui/painting/gdi.h"

namespace devhost {
namespace {

constexpr COLORREF kGridColor = RGB(150, 158, 168);
constexpr COLORREF kBorderColor = RGB(96, 104, 112);
constexpr COLORREF kCurrentBorderColor = RGB(225, 228, 232);
constexpr int kCurrentBorder = 3;  // pixels

void PaintBorder(HDC dc, RECT r, COLORREF color, int width) {
  Brush brush(::CreateSolidBrush(color));
  for (int i = 0; i < width; ++i) {
    ::FrameRect(dc, &r, brush.Get());
    ::InflateRect(&r, -1, -1);
  }
}

}  // namespace

void PaintGridDots(HDC dc, const std::vector<POINT>& dots) {
  for (const POINT& dot : dots) ::SetPixelV(dc, dot.x, dot.y, kGridColor);
}

void PaintViewportBorders(HDC dc, const std::vector<ViewportOnScreen>& viewports) {
  if (viewports.size() < 2) return;
  for (const ViewportOnScreen& viewport : viewports)
    if (viewport.isCurrent)
      PaintBorder(dc, viewport.pixels, kCurrentBorderColor, kCurrentBorder);
    else
      PaintBorder(dc, viewport.pixels, kBorderColor, 1);
}

}  // namespace devhost
