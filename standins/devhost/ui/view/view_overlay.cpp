// Painting the overlay; see the header.
#include "devhost/ui/view/view_overlay.h"

#include <cmath>

#include "devhost/ui/painting/gdi.h"
#include "devhost/ui/view/pick_logic.h"
#include "devhost/ui/view/viewport_paint.h"

namespace devhost {
namespace {

constexpr COLORREF kBackground = RGB(33, 40, 48);
constexpr COLORREF kCursorColor = RGB(235, 235, 235);
constexpr COLORREF kGripColor = RGB(30, 120, 255);
constexpr COLORREF kWindowColor = RGB(60, 110, 220);
constexpr COLORREF kCrossingColor = RGB(60, 170, 90);

void Line(HDC dc, int x1, int y1, int x2, int y2) {
  ::MoveToEx(dc, x1, y1, nullptr);
  ::LineTo(dc, x2, y2);
}

void Frame(HDC dc, const RECT& r) {
  Selected hollow(dc, ::GetStockObject(NULL_BRUSH));
  ::Rectangle(dc, r.left, r.top, r.right, r.bottom);
}

void PaintCrosshair(HDC dc, POINT at, bool pickBox) {
  Pen pen(::CreatePen(PS_SOLID, 1, kCursorColor));
  Selected selected(dc, pen.Get());
  const int half = Scaled(kCrosshair), gap = pickBox ? kPickBox : 0;
  if (pickBox) Frame(dc, {at.x - gap, at.y - gap, at.x + gap + 1, at.y + gap + 1});
  if (!pickBox) {
    Line(dc, at.x - half, at.y, at.x + half + 1, at.y);
    Line(dc, at.x, at.y - half, at.x, at.y + half + 1);
    return;
  }
  Line(dc, at.x - half, at.y, at.x - gap, at.y);
  Line(dc, at.x + gap, at.y, at.x + half + 1, at.y);
  Line(dc, at.x, at.y - half, at.x, at.y - gap);
  Line(dc, at.x, at.y + gap, at.x, at.y + half + 1);
}

void PaintGrips(HDC dc, const std::vector<POINT>& grips) {
  Brush brush(::CreateSolidBrush(kGripColor));
  for (const POINT& p : grips) {
    const RECT r = {p.x - kGripHalf, p.y - kGripHalf, p.x + kGripHalf + 1, p.y + kGripHalf + 1};
    ::FillRect(dc, &r, brush.Get());
  }
}

// A tinted rectangle with a border: solid for a window, dashed for a crossing box.
void PaintBox(HDC dc, POINT from, POINT to) {
  const RECT r = BoxOf(from, to);
  const bool crossing = IsCrossing(from, to);
  const COLORREF color = crossing ? kCrossingColor : kWindowColor;
  const HDC tint = ::CreateCompatibleDC(dc);
  {
    Bitmap bitmap(::CreateCompatibleBitmap(dc, 1, 1));
    Selected selected(tint, bitmap.Get());
    ::SetPixel(tint, 0, 0, color);
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 60, 0};
    ::AlphaBlend(dc, r.left, r.top, r.right - r.left, r.bottom - r.top, tint, 0, 0, 1, 1, blend);
  }
  ::DeleteDC(tint);
  Pen pen(::CreatePen(crossing ? PS_DASH : PS_SOLID, 1, RGB(200, 210, 220)));
  Selected selected(dc, pen.Get());
  Frame(dc, r);
}

// One axis with its arrow head and letter.
void PaintAxis(HDC dc, POINT from, const AxisMark::Direction& axis, const wchar_t* letter) {
  const int size = Scaled(40);
  const double x = axis.x * size, y = axis.y * size;
  const POINT end = {from.x + std::lround(x), from.y + std::lround(y)};
  Line(dc, from.x, from.y, end.x, end.y);
  const double length = std::hypot(axis.x, axis.y);
  if (length > 0.2) {  // an axis seen nearly from its end has no head
    const double ux = axis.x / length, uy = axis.y / length;
    for (const int side : {-3, 3})
      Line(dc, end.x, end.y, end.x + std::lround(-6 * ux - side * uy),
           end.y + std::lround(-6 * uy + side * ux));
  }
  const int away = Scaled(10);
  ::TextOutW(dc, end.x + std::lround(axis.x * away), end.y + std::lround(axis.y * away) + Scaled(5),
             letter, 1);
}

// The axis mark, at the origin or else at the lower left of the viewport.
void PaintAxes(HDC dc, const RECT& clip, const AxisMark& axes) {
  const int size = Scaled(40), margin = Scaled(18);
  RECT inner = clip;
  ::InflateRect(&inner, -size, -size);
  const bool inside = ::PtInRect(&inner, axes.origin) != FALSE;
  const POINT at = inside ? axes.origin : POINT{clip.left + margin, clip.bottom - margin};
  Pen pen(::CreatePen(PS_SOLID, 1, RGB(150, 160, 170)));
  Selected selectedPen(dc, pen.Get());
  Font font = MenuFont();
  Selected selectedFont(dc, font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, RGB(150, 160, 170));
  ::SetTextAlign(dc, TA_CENTER | TA_BASELINE);
  PaintAxis(dc, at, axes.x, L"X");
  PaintAxis(dc, at, axes.y, L"Y");
  ::SetTextAlign(dc, TA_LEFT | TA_TOP);
}

}  // namespace

COLORREF ViewBackground() { return kBackground; }

RECT CrosshairBounds(POINT cursor) {
  const int half = Scaled(kCrosshair) + 2;
  return {cursor.x - half, cursor.y - half, cursor.x + half, cursor.y + half};
}

void PaintOverlay(HDC dc, const ViewOverlay& overlay) {
  ClipScope clip(dc, overlay.clip);
  PaintAxes(dc, overlay.clip, overlay.axes);
  PaintGrips(dc, overlay.grips);
  if (!overlay.cursor) return;
  const POINT cursor = *overlay.cursor;
  if (overlay.boxFrom) PaintBox(dc, *overlay.boxFrom, cursor);
  if (overlay.rubberFrom) {
    Pen pen(::CreatePen(PS_SOLID, 1, RGB(240, 200, 80)));
    Selected selected(dc, pen.Get());
    Line(dc, overlay.rubberFrom->x, overlay.rubberFrom->y, cursor.x, cursor.y);
  }
  PaintCrosshair(dc, cursor, overlay.pickBox);
}

}  // namespace devhost
