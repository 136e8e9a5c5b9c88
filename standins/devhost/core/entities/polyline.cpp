// Polylines, LWPOLYLINE and POLYLINE; see dbents.h.
#include "dbents.h"
#include "devhost/core/entities/entity_io.h"

using namespace devhost;

ACRX_DXF_DEFINE_MEMBERS(AcDbPolyline, AcDbCurve, 0, 0, 0, LWPOLYLINE, host)
ACRX_DXF_DEFINE_MEMBERS(AcDb2dPolyline, AcDbPolyline, 0, 0, 0, POLYLINE, host)

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned index, const AcGePoint3d& point,
                                            double bulge) {
  if (index > m_vertices.size()) return Acad::eInvalidInput;
  m_vertices.insert(m_vertices.begin() + index, {point, bulge});
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned index, AcGePoint3d& point) const {
  if (index >= m_vertices.size()) return Acad::eInvalidInput;
  point = m_vertices[index].point;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned index, const AcGePoint3d& point) {
  if (index >= m_vertices.size()) return Acad::eInvalidInput;
  m_vertices[index].point = point;
  return Acad::eOk;
}

bool AcDbPolyline::subWorldDraw(AcGiWorldDraw* draw) const {
  if (m_vertices.empty()) return false;
  std::vector<AcGePoint3d> points{m_vertices[0].point};
  const std::size_t count = m_vertices.size();
  for (std::size_t i = 0; i + 1 < count + (m_closed ? 1 : 0); ++i)
    AddBulge(m_vertices[i].point, m_vertices[(i + 1) % count].point, m_vertices[i].bulge,
             [&](const AcGePoint3d& p) { points.push_back(p); });
  return draw->geometry().polyline(static_cast<unsigned>(points.size()), points.data());
}

Acad::ErrorStatus AcDbPolyline::subTransformBy(const AcGeMatrix3d& m) {
  for (AcDbPolylineVertex& v : m_vertices) {
    v.point = m * v.point;
    if (Mirrors(m)) v.bulge = -v.bulge;
  }
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_vertices.clear();
  return ForEachItem(filer, [&](const resbuf& item) {
    if (item.restype == 10) m_vertices.push_back({PointOfItem(item), 0});
    if (item.restype == 42 && !m_vertices.empty()) m_vertices.back().bulge = item.resval.rreal;
    if (item.restype == 70) m_closed = (item.resval.rint & 1) != 0;
  });
}

Acad::ErrorStatus AcDbPolyline::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbPolyline");
  filer->writeInt(90, static_cast<int>(m_vertices.size()));
  filer->writeInt(70, m_closed ? 1 : 0);
  for (const AcDbPolylineVertex& v : m_vertices) {
    filer->writeDouble(10, v.point.x);
    filer->writeDouble(20, v.point.y);
    if (v.bulge != 0) filer->writeDouble(42, v.bulge);
  }
  return Acad::eOk;
}

// The groups of the vertices follow those of the polyline; each vertex begins with a group 0.
Acad::ErrorStatus AcDb2dPolyline::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_vertices.clear();
  bool inVertex = false;
  int vertexFlags = 0;
  return ForEachItem(filer, [&](const resbuf& item) {
    if (item.restype == 0) {
      inVertex = true;
      vertexFlags = 0;
      m_vertices.push_back({});
      return;
    }
    if (!inVertex) {
      if (item.restype != 70) return;
      m_flags = item.resval.rint;
      m_closed = (m_flags & 1) != 0;
      m_mesh = (m_flags & (16 | 64)) != 0;
      return;
    }
    if (item.restype == 10) m_vertices.back().point = PointOfItem(item);
    if (item.restype == 42) m_vertices.back().bulge = item.resval.rreal;
    // Spline control points and face records are not points of the curve.
    if (item.restype == 70 && ((vertexFlags = item.resval.rint) & 16))
      m_vertices.pop_back(), inVertex = false;
    if (item.restype == 70 && (vertexFlags & 128) && !(vertexFlags & 64))
      m_vertices.pop_back(), inVertex = false;
  });
}

Acad::ErrorStatus AcDb2dPolyline::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDb2dPolyline");
  filer->writeInt(66, 1);
  filer->writeInt(70, m_flags);
  for (const AcDbPolylineVertex& v : m_vertices) {
    filer->writeString(0, L"VERTEX");
    filer->writeString(100, L"AcDbEntity");
    filer->writeString(8, layer());
    filer->writeString(100, L"AcDbVertex");
    filer->writeString(100, m_mesh ? L"AcDbPolygonMeshVertex" : L"AcDb2dVertex");
    filer->writePoint(10, v.point);
    if (v.bulge != 0) filer->writeDouble(42, v.bulge);
  }
  filer->writeString(0, L"SEQEND");
  filer->writeString(100, L"AcDbEntity");
  return filer->writeString(8, layer());
}
