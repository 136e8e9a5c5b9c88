// Painting the overlay; see the header.
#include "devhost/ui/view/view_overlay.h"

#include "devhost/ui/painting/gdi.h"
#include "devhost/ui/view/pick_logic.h"

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

// The axis mark, at the origin or else at the lower left: x to the right, y up.
void PaintAxes(HDC dc, const RECT& client, POINT origin) {
  const int size = Scaled(40), margin = Scaled(18);
  const bool inside =
      origin.x > 0 && origin.y > size && origin.x + size < client.right && origin.y < client.bottom;
  const POINT at = inside ? origin : POINT{margin, client.bottom - margin};
  Pen pen(::CreatePen(PS_SOLID, 1, RGB(150, 160, 170)));
  Selected selectedPen(dc, pen.Get());
  Line(dc, at.x, at.y, at.x + size, at.y);
  Line(dc, at.x, at.y, at.x, at.y - size);
  Line(dc, at.x + size, at.y, at.x + size - 6, at.y - 3);
  Line(dc, at.x + size, at.y, at.x + size - 6, at.y + 3);
  Line(dc, at.x, at.y - size, at.x - 3, at.y - size + 6);
  Line(dc, at.x, at.y - size, at.x + 3, at.y - size + 6);
  Font font = MenuFont();
  Selected selectedFont(dc, font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, RGB(150, 160, 170));
  ::TextOutW(dc, at.x + size + 4, at.y - Scaled(8), L"X", 1);
  ::TextOutW(dc, at.x - 3, at.y - size - Scaled(17), L"Y", 1);
}

}  // namespace

COLORREF ViewBackground() { return kBackground; }

RECT CrosshairBounds(POINT cursor) {
  const int half = Scaled(kCrosshair) + 2;
  return {cursor.x - half, cursor.y - half, cursor.x + half, cursor.y + half};
}

void PaintOverlay(HDC dc, const RECT& client, const ViewOverlay& overlay) {
  PaintAxes(dc, client, overlay.origin);
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
