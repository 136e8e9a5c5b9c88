// Lines, circles, arcs, ellipses, points, solids and faces; see dbents.h.
#include "dbents.h"
#include "devhost/core/entities/entity_io.h"

using namespace devhost;

ACRX_DXF_DEFINE_MEMBERS(AcDbLine, AcDbCurve, 0, 0, 0, LINE, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbCircle, AcDbCurve, 0, 0, 0, CIRCLE, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbArc, AcDbCircle, 0, 0, 0, ARC, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbEllipse, AcDbCurve, 0, 0, 0, ELLIPSE, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbPoint, AcDbEntity, 0, 0, 0, POINT, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbTrace, AcDbEntity, 0, 0, 0, SOLID, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbFace, AcDbTrace, 0, 0, 0, 3DFACE, host)

bool AcDbLine::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGePoint3d ends[2] = {m_start, m_end};
  return draw->geometry().polyline(2, ends);
}
Acad::ErrorStatus AcDbLine::subTransformBy(const AcGeMatrix3d& m) {
  m_start = m * m_start;
  m_end = m * m_end;
  return Acad::eOk;
}
Acad::ErrorStatus AcDbLine::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(filer, {{10, &m_start}, {11, &m_end}});
}
Acad::ErrorStatus AcDbLine::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbLine");
  filer->writePoint(10, m_start);
  return filer->writePoint(11, m_end);
}

bool AcDbCircle::subWorldDraw(AcGiWorldDraw* draw) const {
  return draw->geometry().circle(m_center, m_radius, AcGeVector3d::kZAxis);
}
Acad::ErrorStatus AcDbCircle::subTransformBy(const AcGeMatrix3d& m) {
  m_center = m * m_center;
  m_radius *= m.scale();
  return Acad::eOk;
}
Acad::ErrorStatus AcDbCircle::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(filer, {{10, &m_center}, {40, &m_radius}});
}
Acad::ErrorStatus AcDbCircle::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbCircle");
  filer->writePoint(10, m_center);
  return filer->writeDouble(40, m_radius);
}

bool AcDbArc::subWorldDraw(AcGiWorldDraw* draw) const {
  return draw->geometry().circularArc(m_center, m_radius, AcGeVector3d::kZAxis,
                                      {std::cos(m_from), std::sin(m_from), 0}, Sweep(m_from, m_to));
}
Acad::ErrorStatus AcDbArc::subTransformBy(const AcGeMatrix3d& m) {
  // In a mirror the angles are measured clockwise: the ends are exchanged.
  const double from = m_from, to = m_to, turn = m.rotation();
  m_from = Mirrors(m) ? turn - to : turn + from;
  m_to = Mirrors(m) ? turn - from : turn + to;
  return AcDbCircle::subTransformBy(m);
}
Acad::ErrorStatus AcDbArc::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(
      filer, {{10, &m_center}, {40, &m_radius}, {50, &m_from, kDegree}, {51, &m_to, kDegree}});
}
Acad::ErrorStatus AcDbArc::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbCircle::dxfOutFields(filer);
  filer->writeString(100, L"AcDbArc");
  filer->writeDouble(50, m_from / kDegree);
  return filer->writeDouble(51, m_to / kDegree);
}

bool AcDbEllipse::subWorldDraw(AcGiWorldDraw* draw) const {
  const double sweep = Sweep(m_from, m_to);
  AcGePoint3d points[73];
  for (int i = 0; i <= 72; ++i) {
    const double t = m_from + sweep * i / 72, c = std::cos(t), s = std::sin(t) * m_ratio;
    points[i] = {m_center.x + m_major.x * c - m_major.y * s,
                 m_center.y + m_major.y * c + m_major.x * s, 0};
  }
  return draw->geometry().polyline(73, points);
}
Acad::ErrorStatus AcDbEllipse::subTransformBy(const AcGeMatrix3d& m) {
  m_center = m * m_center;
  m_major = m * m_major;
  if (Mirrors(m)) {
    const double from = m_from;
    m_from = -m_to;
    m_to = -from;
  }
  return Acad::eOk;
}
Acad::ErrorStatus AcDbEllipse::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(filer,
                    {{10, &m_center}, {11, &m_major}, {40, &m_ratio}, {41, &m_from}, {42, &m_to}});
}
Acad::ErrorStatus AcDbEllipse::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbEllipse");
  filer->writePoint(10, m_center);
  filer->writePoint(11, AcGePoint3d() + m_major);
  filer->writeDouble(40, m_ratio);
  filer->writeDouble(41, m_from);
  return filer->writeDouble(42, m_to);
}

bool AcDbPoint::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGePoint3d twice[2] = {m_at, m_at};
  return draw->geometry().polyline(2, twice);
}
Acad::ErrorStatus AcDbPoint::subTransformBy(const AcGeMatrix3d& m) {
  m_at = m * m_at;
  return Acad::eOk;
}
Acad::ErrorStatus AcDbPoint::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(filer, {{10, &m_at}});
}
Acad::ErrorStatus AcDbPoint::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbPoint");
  return filer->writePoint(10, m_at);
}

// The corners of a SOLID are stored in the order of a Z, those of a 3DFACE around the outline.
bool AcDbTrace::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGePoint3d round[5] = {m_corner[0], m_corner[1], m_corner[filled() ? 3 : 2],
                                m_corner[filled() ? 2 : 3], m_corner[0]};
  return filled() ? draw->geometry().polygon(4, round) : draw->geometry().polyline(5, round);
}
Acad::ErrorStatus AcDbTrace::subTransformBy(const AcGeMatrix3d& m) {
  for (AcGePoint3d& corner : m_corner) corner = m * corner;
  return Acad::eOk;
}
Acad::ErrorStatus AcDbTrace::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  bool fourth = false;
  const Acad::ErrorStatus status = ForEachItem(filer, [&](const resbuf& item) {
    if (item.restype < 10 || item.restype > 13) return;
    m_corner[item.restype - 10] = PointOfItem(item);
    fourth |= item.restype == 13;
  });
  if (!fourth) m_corner[3] = m_corner[2];
  return status;
}
Acad::ErrorStatus AcDbTrace::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, filled() ? L"AcDbTrace" : L"AcDbFace");
  for (short i = 0; i < 4; ++i) filer->writePoint(static_cast<short>(10 + i), m_corner[i]);
  return Acad::eOk;
}
