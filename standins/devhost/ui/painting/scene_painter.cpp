// Painting shapes; see the header.
#include "devhost/ui/painting/scene_painter.h"

#include <algorithm>
#include <cmath>

#include "devhost/ui/painting/aci_color.h"

namespace devhost {
namespace {

constexpr double kCapHeight = 0.72;  // height of capitals relative to the font height
constexpr int kMinText = 3;          // pixels; smaller texts are painted as a line
constexpr int kMaxText = 3000;
constexpr COLORREF kHighlight = RGB(110, 170, 255);

LOGFONTW MenuFace() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return metrics.lfMenuFont;
}

COLORREF ColorFor(int color, bool highlighted) {
  return highlighted ? kHighlight : ColorOfAci(color, true);
}

}  // namespace

ScenePainter::ScenePainter(HDC dc, const RECT& client, const ViewTransform& view)
    : m_dc(dc), m_client(client), m_view(view), m_face(MenuFace()) {
  ::SetBkMode(m_dc, TRANSPARENT);
}

void ScenePainter::Paint(const Shape& shape, bool highlighted) {
  if (shape.points.empty()) return;
  switch (shape.kind) {
    case Shape::Kind::Polyline:
      PaintLine(shape, highlighted);
      break;
    case Shape::Kind::Polygon:
      PaintArea(shape, highlighted);
      break;
    case Shape::Kind::Text:
      PaintText(shape, highlighted);
      break;
  }
}

bool ScenePainter::ToPixels(const Shape& shape) {
  m_points.clear();
  RECT box = {LONG_MAX, LONG_MAX, LONG_MIN, LONG_MIN};
  for (const AcGePoint3d& point : shape.points) {
    const POINT p = m_view.ToPixel(point);
    box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x),
           std::max(box.bottom, p.y)};
    m_points.push_back(p);
  }
  return box.right >= 0 && box.bottom >= 0 && box.left <= m_client.right &&
         box.top <= m_client.bottom;
}

void ScenePainter::PaintLine(const Shape& shape, bool highlighted) {
  if (!ToPixels(shape)) return;
  Selected pen(m_dc, PenFor(shape.color, shape.dashed, highlighted));
  ::Polyline(m_dc, m_points.data(), static_cast<int>(m_points.size()));
  // Polyline omits the last pixel, and a line of length 0 entirely.
  const POINT last = m_points.back();
  ::SetPixelV(m_dc, last.x, last.y, ColorFor(shape.color, highlighted));
}

void ScenePainter::PaintArea(const Shape& shape, bool highlighted) {
  if (!ToPixels(shape) || m_points.size() < 3) return;
  Brush brush(::CreateSolidBrush(ColorFor(shape.color, highlighted)));
  Selected pen(m_dc, PenFor(shape.color, false, highlighted));
  Selected fill(m_dc, brush.Get());
  ::Polygon(m_dc, m_points.data(), static_cast<int>(m_points.size()));
}

void ScenePainter::PaintText(const Shape& shape, bool highlighted) {
  const POINT at = m_view.ToPixel(shape.points[0]);
  const double cap = shape.height * m_view.PixelsPerUnit();
  const double reach = cap * (2 + 1.2 * shape.text.size());
  if (at.x + reach < 0 || at.y + reach < 0 || at.x - reach > m_client.right ||
      at.y - reach > m_client.bottom)
    return;
  if (cap < kMinText) {
    const double length = cap * 0.8 * shape.text.size();
    Selected pen(m_dc, PenFor(shape.color, false, highlighted));
    ::MoveToEx(m_dc, at.x, at.y, nullptr);
    ::LineTo(m_dc, at.x + std::lround(length * std::cos(shape.rotation)),
             at.y - std::lround(length * std::sin(shape.rotation)));
    return;
  }
  const int pixels = static_cast<int>(std::lround(cap / kCapHeight));
  if (pixels > kMaxText) return;
  Selected font(m_dc, FontFor(pixels, shape.rotation, shape.widthFactor));
  ::SetTextColor(m_dc, ColorFor(shape.color, highlighted));
  ::SetTextAlign(m_dc, TA_BASELINE | TA_LEFT);
  ::TextOutW(m_dc, at.x, at.y, shape.text.c_str(), static_cast<int>(shape.text.size()));
  ::SetTextAlign(m_dc, TA_TOP | TA_LEFT);
}

HPEN ScenePainter::PenFor(int color, bool dashed, bool highlighted) {
  Pen& pen = m_pens[{highlighted ? 0 : color, dashed, highlighted}];
  if (!pen)
    pen = Pen(::CreatePen(dashed ? PS_DASH : PS_SOLID, highlighted && !dashed ? 2 : 1,
                          ColorFor(color, highlighted)));
  return pen.Get();
}

HFONT ScenePainter::FontFor(int pixels, double rotation, double widthFactor) {
  const int tenths = static_cast<int>(std::lround(rotation * 1800 / 3.14159265358979323846));
  const int percent = static_cast<int>(std::lround(widthFactor * 100));
  Font& font = m_fonts[{pixels, tenths, percent}];
  if (font) return font.Get();
  LOGFONTW face = m_face;
  face.lfHeight = -pixels;
  face.lfWidth = 0;
  face.lfEscapement = face.lfOrientation = tenths;
  face.lfQuality = ANTIALIASED_QUALITY;
  font = Font(::CreateFontIndirectW(&face));
  if (percent == 100 || percent <= 0) return font.Get();
  TEXTMETRICW metrics{};
  {
    LOGFONTW level = face;
    level.lfEscapement = level.lfOrientation = 0;
    Font upright(::CreateFontIndirectW(&level));
    Selected selected(m_dc, upright.Get());
    ::GetTextMetricsW(m_dc, &metrics);
  }
  face.lfWidth = std::max(1, ::MulDiv(metrics.tmAveCharWidth, percent, 100));
  font = Font(::CreateFontIndirectW(&face));
  return font.Get();
}

}  // namespace devhost
