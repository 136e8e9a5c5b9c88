// Block references and viewports; see dbents.h.
#include <algorithm>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/entities/block_picture.h"
#include "devhost/core/entities/entity_io.h"

using namespace devhost;

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockReference, AcDbEntity, 0, 0, 0, INSERT, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbViewport, AcDbEntity, 0, 0, 0, VIEWPORT, host)

namespace {

constexpr int kMaxCopies = 10000;  // of one reference: a damaged file may ask for billions

}  // namespace

AcDbBlockReference::AcDbBlockReference(const AcGePoint3d& at, AcDbObjectId blockRecord) : m_at(at) {
  if (const auto* record = AcDbBlockTableRecord::cast(blockRecord.object()))
    m_block = record->getName();
}

AcDbObjectId AcDbBlockReference::blockTableRecord() const {
  const AcDbBlockTableRecord* record = BlockNamed(*this, m_block);
  return record ? record->objectId() : AcDbObjectId();
}

Acad::ErrorStatus AcDbBlockReference::setBlockTableRecord(AcDbObjectId blockRecord) {
  const auto* record = AcDbBlockTableRecord::cast(blockRecord.object());
  if (!record) return Acad::eInvalidInput;
  m_block = record->getName();
  return Acad::eOk;
}

AcGeMatrix3d AcDbBlockReference::blockTransform() const {
  const AcDbBlockTableRecord* record = BlockNamed(*this, m_block);
  return AcGeMatrix3d::insertion(m_at, m_rotation, m_sx, m_sy,
                                 record ? record->origin() : AcGePoint3d());
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbAttribute* attribute) {
  AcDbObjectId id;
  if (!database() || !attribute) return Acad::eInvalidInput;
  if (!attribute->database() && database()->addAcDbObject(id, attribute) != Acad::eOk)
    return Acad::eInvalidInput;
  attribute->setOwnerId(objectId());
  m_attributes.push_back(attribute->objectId());
  return Acad::eOk;
}

bool AcDbBlockReference::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcDbBlockTableRecord* block = BlockNamed(*this, m_block);
  if (block) {
    const double c = std::cos(m_rotation), s = std::sin(m_rotation);
    int copies = 0;
    for (int row = 0; row < m_rows; ++row)
      for (int column = 0; column < m_columns && copies < kMaxCopies; ++column, ++copies) {
        const double dx = column * m_columnGap, dy = row * m_rowGap;
        const AcGePoint3d at(m_at.x + dx * c - dy * s, m_at.y + dx * s + dy * c, m_at.z);
        DrawParts(draw, *block,
                  AcGeMatrix3d::insertion(at, m_rotation, m_sx, m_sy, block->origin()));
      }
  }
  for (AcDbObjectId id : m_attributes)
    if (!id.isErased()) draw->geometry().draw(AcDbEntity::cast(id.object()));
  return block || !m_attributes.empty();
}

Acad::ErrorStatus AcDbBlockReference::subTransformBy(const AcGeMatrix3d& m) {
  m_at = m * m_at;
  // A mirror reflects the direction of the first axis and turns the second one to the other side.
  m_rotation = Mirrors(m) ? m.rotation() - m_rotation : m.rotation() + m_rotation;
  m_sx *= m.scale();
  m_sy *= Mirrors(m) ? -m.scale() : m.scale();
  m_sz *= m.scale();
  for (AcDbObjectId id : m_attributes)
    if (AcDbEntity* attribute = AcDbEntity::cast(id.object())) attribute->subTransformBy(m);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_columns = m_rows = 1;
  m_columnGap = m_rowGap = 0;
  const Acad::ErrorStatus status = ReadFields(filer, {{2, &m_block},
                                                      {10, &m_at},
                                                      {41, &m_sx},
                                                      {42, &m_sy},
                                                      {43, &m_sz},
                                                      {44, &m_columnGap},
                                                      {45, &m_rowGap},
                                                      {50, &m_rotation, kDegree},
                                                      {70, &m_columns},
                                                      {71, &m_rows}});
  m_columns = std::max(m_columns, 1);
  m_rows = std::max(m_rows, 1);
  return status;
}

Acad::ErrorStatus AcDbBlockReference::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbBlockReference");
  if (std::any_of(m_attributes.begin(), m_attributes.end(),
                  [](AcDbObjectId id) { return !id.isErased(); }))
    filer->writeInt(66, 1);
  filer->writeString(2, m_block.c_str());
  filer->writePoint(10, m_at);
  filer->writeDouble(41, m_sx);
  filer->writeDouble(42, m_sy);
  filer->writeDouble(43, m_sz);
  filer->writeDouble(50, m_rotation / kDegree);
  if (m_columns == 1 && m_rows == 1) return Acad::eOk;
  filer->writeInt(70, m_columns);
  filer->writeInt(71, m_rows);
  filer->writeDouble(44, m_columnGap);
  return filer->writeDouble(45, m_rowGap);
}

bool AcDbViewport::subWorldDraw(AcGiWorldDraw* draw) const {
  if (m_number == 1) return false;  // viewport 1 is the sheet of paper
  const double w = m_width / 2, h = m_height / 2;
  const AcGePoint3d frame[5] = {{m_center.x - w, m_center.y - h, 0},
                                {m_center.x + w, m_center.y - h, 0},
                                {m_center.x + w, m_center.y + h, 0},
                                {m_center.x - w, m_center.y + h, 0},
                                {m_center.x - w, m_center.y - h, 0}};
  return draw->geometry().polyline(5, frame);
}

Acad::ErrorStatus AcDbViewport::subTransformBy(const AcGeMatrix3d& m) {
  m_center = m * m_center;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbViewport::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  return ReadFields(filer, {{10, &m_center},
                            {12, &m_viewCenter},
                            {40, &m_width},
                            {41, &m_height},
                            {45, &m_viewHeight},
                            {68, &m_status},
                            {69, &m_number}});
}

Acad::ErrorStatus AcDbViewport::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbViewport");
  filer->writePoint(10, m_center);
  filer->writeDouble(40, m_width);
  filer->writeDouble(41, m_height);
  filer->writeInt(68, m_status);
  filer->writeInt(69, m_number);
  filer->writeDouble(12, m_viewCenter.x);
  filer->writeDouble(22, m_viewCenter.y);
  return filer->writeDouble(45, m_viewHeight);
}
