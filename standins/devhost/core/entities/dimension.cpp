// Dimensions; see dbents.h.
#include "dbents.h"
#include "devhost/core/entities/block_picture.h"
#include "devhost/core/entities/entity_io.h"

using namespace devhost;

ACRX_DXF_DEFINE_MEMBERS(AcDbDimension, AcDbEntity, 0, 0, 0, DIMENSION, host)

bool AcDbDimension::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcDbBlockTableRecord* block = BlockNamed(*this, m_block);
  if (block && !block->entities().empty())
    return DrawParts(draw, *block, AcGeMatrix3d::translation(m_blockShift));
  // Without a block in the file the dimension line shows the place.
  const AcGePoint3d ends[3] = {m_first, m_line, m_second};
  return draw->geometry().polyline(3, ends);
}

Acad::ErrorStatus AcDbDimension::subTransformBy(const AcGeMatrix3d& m) {
  if (m.a != 1 || m.b != 0 || m.c != 0 || m.d != 1) return Acad::eNotImplementedYet;
  for (AcGePoint3d* point : {&m_line, &m_textAt, &m_first, &m_second, &m_third, &m_arc})
    *point = m * *point;
  m_blockShift.x += m.tx;
  m_blockShift.y += m.ty;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDimension::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_block = m_text = m_style = L"";
  m_line = m_textAt = m_first = m_second = m_third = m_arc = {};
  m_blockShift = {};
  m_type = m_attachment = 0;
  m_measurement = m_rotation = m_textRotation = m_leader = 0;
  return ReadFields(filer, {{1, &m_text},
                            {2, &m_block},
                            {3, &m_style},
                            {10, &m_line},
                            {11, &m_textAt},
                            {12, &m_blockShift},
                            {13, &m_first},
                            {14, &m_second},
                            {15, &m_third},
                            {16, &m_arc},
                            {40, &m_leader},
                            {42, &m_measurement},
                            {50, &m_rotation, kDegree},
                            {53, &m_textRotation},
                            {70, &m_type},
                            {71, &m_attachment}});
}

Acad::ErrorStatus AcDbDimension::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbDimension");
  if (!m_block.empty()) filer->writeString(2, m_block.c_str());
  filer->writePoint(10, m_line);
  filer->writePoint(11, m_textAt);
  if (m_blockShift.length() > 0) filer->writePoint(12, AcGePoint3d() + m_blockShift);
  filer->writeInt(70, m_type);
  filer->writeString(1, m_text.c_str());
  if (m_attachment) filer->writeInt(71, m_attachment);
  filer->writeDouble(42, m_measurement);
  if (m_textRotation != 0) filer->writeDouble(53, m_textRotation);
  if (!m_style.empty()) filer->writeString(3, m_style.c_str());
  return WriteKind(filer);
}

// Each kind writes its own groups after its own subclass mark.
Acad::ErrorStatus AcDbDimension::WriteKind(AcDbDxfFiler* filer) const {
  switch (kind()) {
    case 2:
      filer->writeString(100, L"AcDb2LineAngularDimension");
      filer->writePoint(13, m_first);
      filer->writePoint(14, m_second);
      filer->writePoint(15, m_third);
      return filer->writePoint(16, m_arc);
    case 3:
    case 4:
      filer->writeString(100, kind() == 3 ? L"AcDbDiametricDimension" : L"AcDbRadialDimension");
      filer->writePoint(15, m_third);
      return filer->writeDouble(40, m_leader);
    case 5:
      filer->writeString(100, L"AcDb3PointAngularDimension");
      filer->writePoint(13, m_first);
      filer->writePoint(14, m_second);
      return filer->writePoint(15, m_third);
    case 6:
      filer->writeString(100, L"AcDbOrdinateDimension");
      filer->writePoint(13, m_first);
      return filer->writePoint(14, m_second);
    default:
      filer->writeString(100, L"AcDbAlignedDimension");
      filer->writePoint(13, m_first);
      filer->writePoint(14, m_second);
      if (kind() != 0) return Acad::eOk;
      filer->writeDouble(50, m_rotation / kDegree);
      return filer->writeString(100, L"AcDbRotatedDimension");
  }
}
