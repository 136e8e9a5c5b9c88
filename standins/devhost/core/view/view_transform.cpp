// The view transform; see the header.
#include "devhost/core/view/view_transform.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace devhost {
namespace {

constexpr double kMaxPixels = 1 << 27;  // GDI and sums of two such values do not overflow
constexpr double kMinScale = 1e-9, kMaxScale = 1e9;
constexpr double kOrbitStep = std::numbers::pi / 360;         // radians a pixel of the drag
constexpr double kMostTilted = 80 * std::numbers::pi / 180.;  // near 90 the plane has no inverse

LONG Clamped(double v) {
  return static_cast<LONG>(std::lround(std::clamp(v, -kMaxPixels, kMaxPixels)));
}

}  // namespace

void ViewTransform::Place(const RECT& pixels) {
  m_left = pixels.left;
  m_top = pixels.top;
  m_width = std::max<int>(pixels.right - pixels.left, 1);
  m_height = std::max<int>(pixels.bottom - pixels.top, 1);
}

void ViewTransform::Resize(int width, int height) { Place({0, 0, width, height}); }

ViewTransform::Flat ViewTransform::ToDisplay(const AcGePoint3d& p) const {
  if (m_plan) return {p.x, p.y};
  return {p.x * m_right.x + p.y * m_right.y + p.z * m_right.z,
          p.x * m_up.x + p.y * m_up.y + p.z * m_up.z};
}

POINT ViewTransform::ToPixel(const AcGePoint3d& world) const {
  const Flat at = ToDisplay(world);
  return {Clamped(m_left + m_width / 2.0 + (at.x - m_center.x) * m_scale),
          Clamped(m_top + m_height / 2.0 - (at.y - m_center.y) * m_scale)};
}

AcGePoint3d ViewTransform::ToWorld(POINT pixel) const {
  return OnPlane({m_center.x + (pixel.x - m_left - m_width / 2.0) / m_scale,
                  m_center.y - (pixel.y - m_top - m_height / 2.0) / m_scale});
}

AcGePoint3d ViewTransform::OnPlane(const Flat& at) const {
  if (m_plan) return {at.x, at.y, 0};
  const double det = m_right.x * m_up.y - m_right.y * m_up.x;  // at least cos(kMostTilted)
  return {(at.x * m_up.y - at.y * m_right.y) / det, (at.y * m_right.x - at.x * m_up.x) / det, 0};
}

void ViewTransform::ZoomAt(POINT pixel, double factor) {
  const Flat kept = ToDisplay(ToWorld(pixel));
  m_scale = std::clamp(m_scale * factor, kMinScale, kMaxScale);
  const Flat now = ToDisplay(ToWorld(pixel));
  m_center = {m_center.x + kept.x - now.x, m_center.y + kept.y - now.y};
}

void ViewTransform::ZoomTo(const AcDbExtents& extents, double share) {
  if (!extents.isValid()) return;
  AcDbExtents seen;
  const AcGePoint3d ends[] = {extents.minPoint(), extents.maxPoint()};
  for (int corner = 0; corner < 8; ++corner) {
    const Flat at =
        ToDisplay({ends[corner & 1].x, ends[corner >> 1 & 1].y, ends[corner >> 2 & 1].z});
    seen.addPoint({at.x, at.y, 0});
  }
  const AcGePoint3d lo = seen.minPoint(), hi = seen.maxPoint();
  const double w = std::max(hi.x - lo.x, 1e-6), h = std::max(hi.y - lo.y, 1e-6);
  m_center = {(lo.x + hi.x) / 2, (lo.y + hi.y) / 2};
  m_scale = std::clamp(std::min(m_width / w, m_height / h) * share, kMinScale, kMaxScale);
}

void ViewTransform::ShowAt(double x, double y, double height) {
  m_center.x = x;
  m_center.y = y;
  m_scale = std::clamp(m_height / height, kMinScale, kMaxScale);
}

void ViewTransform::PanBy(int dx, int dy) {
  m_center.x -= dx / m_scale;
  m_center.y += dy / m_scale;
}

void ViewTransform::SetDirection(double turn, double tilt) {
  const AcGePoint3d kept = Center();
  m_turn = turn;
  m_tilt = tilt;
  m_plan = turn == 0 && tilt == 0;
  const double c = std::cos(turn), s = std::sin(turn);
  m_right = {c, s, 0};
  m_up = {-s * std::cos(tilt), c * std::cos(tilt), std::sin(tilt)};
  m_center = ToDisplay(kept);
}

void ViewTransform::OrbitBy(int dx, int dy) {
  SetDirection(std::remainder(m_turn - dx * kOrbitStep, 2 * std::numbers::pi),
               std::clamp(m_tilt - dy * kOrbitStep, 0.0, kMostTilted));
}

void ViewTransform::LookDown() { SetDirection(0, 0); }

}  // namespace devhost
