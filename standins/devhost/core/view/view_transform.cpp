// The view transform; see the header.
#include "devhost/core/view/view_transform.h"

#include <algorithm>
#include <cmath>

namespace devhost {
namespace {

constexpr double kMaxPixels = 1 << 27;  // GDI and sums of two such values do not overflow
constexpr double kMinScale = 1e-9, kMaxScale = 1e9;

LONG Clamped(double v) {
  return static_cast<LONG>(std::lround(std::clamp(v, -kMaxPixels, kMaxPixels)));
}

}  // namespace

void ViewTransform::Resize(int width, int height) {
  m_width = std::max(width, 1);
  m_height = std::max(height, 1);
}

POINT ViewTransform::ToPixel(const AcGePoint3d& world) const {
  return {Clamped(m_width / 2.0 + (world.x - m_center.x) * m_scale),
          Clamped(m_height / 2.0 - (world.y - m_center.y) * m_scale)};
}

AcGePoint3d ViewTransform::ToWorld(POINT pixel) const {
  return {m_center.x + (pixel.x - m_width / 2.0) / m_scale,
          m_center.y - (pixel.y - m_height / 2.0) / m_scale, 0};
}

void ViewTransform::ZoomAt(POINT pixel, double factor) {
  const AcGePoint3d kept = ToWorld(pixel);
  m_scale = std::clamp(m_scale * factor, kMinScale, kMaxScale);
  const AcGePoint3d now = ToWorld(pixel);
  m_center = m_center + (kept - now);
}

void ViewTransform::ZoomTo(const AcDbExtents& extents) {
  if (!extents.isValid()) return;
  const AcGePoint3d lo = extents.minPoint(), hi = extents.maxPoint();
  const double w = std::max(hi.x - lo.x, 1e-6), h = std::max(hi.y - lo.y, 1e-6);
  m_center = {(lo.x + hi.x) / 2, (lo.y + hi.y) / 2, 0};
  m_scale = std::clamp(std::min(m_width / w, m_height / h) * 0.95, kMinScale, kMaxScale);
}

void ViewTransform::PanBy(int dx, int dy) {
  m_center.x -= dx / m_scale;
  m_center.y += dy / m_scale;
}

}  // namespace devhost
