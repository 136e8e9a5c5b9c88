// Plane transforms and extents; see gepnt3d.h.
#include "gepnt3d.h"

#include <algorithm>

AcGeMatrix3d AcGeMatrix3d::insertion(const AcGePoint3d& at, double rotation, double sx, double sy,
                                     const AcGePoint3d& base) {
  AcGeMatrix3d m;
  const double c = std::cos(rotation), s = std::sin(rotation);
  m.a = c * sx;
  m.b = -s * sy;
  m.c = s * sx;
  m.d = c * sy;
  m.tx = at.x - (m.a * base.x + m.b * base.y);
  m.ty = at.y - (m.c * base.x + m.d * base.y);
  return m;
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& by) {
  AcGeMatrix3d m;
  m.tx = by.x;
  m.ty = by.y;
  return m;
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& o) const {
  AcGeMatrix3d m;
  m.a = a * o.a + b * o.c;
  m.b = a * o.b + b * o.d;
  m.c = c * o.a + d * o.c;
  m.d = c * o.b + d * o.d;
  m.tx = a * o.tx + b * o.ty + tx;
  m.ty = c * o.tx + d * o.ty + ty;
  return m;
}

bool AcGeMatrix3d::invert(AcGeMatrix3d* inverse) const {
  const double det = a * d - b * c;
  if (!(std::fabs(det) > 1e-300)) return false;
  AcGeMatrix3d m;
  m.a = d / det;
  m.b = -b / det;
  m.c = -c / det;
  m.d = a / det;
  m.tx = -(m.a * tx + m.b * ty);
  m.ty = -(m.c * tx + m.d * ty);
  *inverse = m;
  return true;
}

void AcDbExtents::addPoint(const AcGePoint3d& p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
  if (!m_valid) {
    m_min = m_max = p;
    m_valid = true;
    return;
  }
  m_min = {std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z)};
  m_max = {std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z)};
}

void AcDbExtents::addExt(const AcDbExtents& other) {
  if (!other.m_valid) return;
  addPoint(other.m_min);
  addPoint(other.m_max);
}
