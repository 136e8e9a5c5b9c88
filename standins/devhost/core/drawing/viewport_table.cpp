// The viewport table; see dbsymtb.h.
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbViewportTableRecord, AcDbSymbolTableRecord)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbViewportTable, AcDbSymbolTable)

Acad::ErrorStatus AcDbViewportTableRecord::dxfInFields(AcDbDxfFiler* filer) {
  m_lowerLeft = {0, 0};
  m_upperRight = {1, 1};
  resbuf item{};
  while (filer->readItem(&item) == Acad::eOk) {
    if (item.restype == 2) m_name = item.resval.rstring;
    if (item.restype == 10) m_lowerLeft = {item.resval.rpoint[0], item.resval.rpoint[1]};
    if (item.restype == 11) m_upperRight = {item.resval.rpoint[0], item.resval.rpoint[1]};
    if (item.restype == 69) m_number = item.resval.rint;
  }
  return Acad::eOk;
}

Acad::ErrorStatus AcDbViewportTableRecord::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbSymbolTableRecord::dxfOutFields(filer);
  filer->writePoint(10, {m_lowerLeft.x, m_lowerLeft.y, 0});
  filer->writePoint(11, {m_upperRight.x, m_upperRight.y, 0});
  return filer->writeInt(69, m_number);
}

Acad::ErrorStatus AcDbViewportTable::newIterator(AcDbViewportTableIterator*& iterator) const {
  iterator = new AcDbViewportTableIterator(m_active);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbViewportTable::getAt(const ACHAR* name, AcDbObjectId& id) const {
  for (AcDbObjectId record : m_active)
    if (name &&
        devhost::SameName(AcDbViewportTableRecord::cast(record.object())->getName(), name)) {
      id = record;
      return Acad::eOk;
    }
  return Acad::eKeyNotFound;
}

Acad::ErrorStatus AcDbViewportTableIterator::getRecordId(AcDbObjectId& id) const {
  if (done()) return Acad::eKeyNotFound;
  id = m_ids[m_at];
  return Acad::eOk;
}

Acad::ErrorStatus AcDbViewportTableIterator::getRecord(AcDbViewportTableRecord*& record,
                                                       AcDb::OpenMode mode) const {
  record = nullptr;
  return done() ? Acad::eKeyNotFound : acdbOpenObject(record, m_ids[m_at], mode);
}

void AcDbViewportTableAccess::SetCount(AcDbViewportTable& table, std::size_t count) {
  while (table.m_all.size() < count) {
    auto* record = new AcDbViewportTableRecord;
    record->setName(L"*Active");
    AcDbObjectId id;
    table.database()->addAcDbObject(id, record);
    record->setOwnerId(table.objectId());
    table.m_all.push_back(id);
  }
  table.m_active.assign(table.m_all.begin(), table.m_all.begin() + static_cast<long>(count));
}

AcDbViewportTableRecord& AcDbViewportTableAccess::At(const AcDbViewportTable& table,
                                                     std::size_t i) {
  return *AcDbViewportTableRecord::cast(table.m_active[i].object());
}

std::size_t AcDbViewportTableAccess::Count(const AcDbViewportTable& table) {
  return table.m_active.size();
}

void AcDbViewportTableAccess::SetNumber(AcDbViewportTableRecord& record, int number) {
  record.m_number = static_cast<Adesk::Int16>(number);
}
