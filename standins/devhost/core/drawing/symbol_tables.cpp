// Layers and blocks; see dbsymtb.h.
#include "dbsymtb.h"

#include "dbents.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTableRecord, AcDbObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbAbstractViewTableRecord, AcDbSymbolTableRecord)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbViewTableRecord, AcDbAbstractViewTableRecord)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTable, AcDbObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable)

Acad::ErrorStatus AcDbSymbolTableRecord::dxfInFields(AcDbDxfFiler* filer) {
  resbuf item{};
  while (filer->readItem(&item) == Acad::eOk)
    if (item.restype == 2) m_name = item.resval.rstring;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::dxfOutFields(AcDbDxfFiler* filer) const {
  return filer->writeString(2, m_name.c_str());
}

Acad::ErrorStatus AcDbLayerTableRecord::dxfInFields(AcDbDxfFiler* filer) {
  resbuf item{};
  while (filer->readItem(&item) == Acad::eOk) switch (item.restype) {
      case 2:
        m_name = item.resval.rstring;
        break;
      case 6:
        m_linetype = item.resval.rstring;
        break;
      case 62:
        m_color = item.resval.rint;
        break;
      case 70:
        m_flags = item.resval.rint;
        break;
      default:
        break;
    }
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbSymbolTableRecord::dxfOutFields(filer);
  filer->writeInt(70, m_flags);
  filer->writeInt(62, m_color);
  return filer->writeString(6, m_linetype.c_str());
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbObjectId& id) const {
  const auto at = m_byName.find(devhost::UpperCase(name ? name : L""));
  if (at == m_byName.end() || at->second.isErased()) return Acad::eKeyNotFound;
  id = at->second;
  return Acad::eOk;
}

bool AcDbSymbolTable::has(const ACHAR* name) const {
  AcDbObjectId id;
  return getAt(name, id) == Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* record) {
  if (has(record->getName())) return Acad::eDuplicateKey;
  AcDbObjectId id;
  if (!record->database() && database()->addAcDbObject(id, record) != Acad::eOk)
    return Acad::eInvalidInput;
  record->setOwnerId(objectId());
  m_byName[devhost::UpperCase(record->getName())] = record->objectId();
  m_records.push_back(record->objectId());
  if (database()->body().onAdded) database()->body().onAdded(record);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity) {
  AcDbObjectId id;
  return appendAcDbEntity(id, entity);
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity) {
  if (!entity || !database()) return Acad::eInvalidInput;
  if (!entity->database() && database()->addAcDbObject(id, entity) != Acad::eOk)
    return Acad::eInvalidInput;
  id = entity->objectId();
  entity->setOwnerId(objectId());
  m_entities.push_back(id);
  AcDbObjectAccess::NotifyWatcher(*entity);
  if (database()->body().onAdded) database()->body().onAdded(entity);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::newIterator(AcDbBlockTableRecordIterator*& iterator) const {
  iterator = new AcDbBlockTableRecordIterator(m_entities);
  return Acad::eOk;
}

bool AcDbObjectAccess::IsEnhanced(const AcDbBlockTableRecord& block) { return block.m_enhanced; }
void AcDbObjectAccess::SetEnhanced(AcDbBlockTableRecord& block) { block.m_enhanced = true; }

void AcDbBlockTableRecordIterator::skip() {
  while (m_at < m_ids.size() && m_ids[m_at].isErased()) ++m_at;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntityId(AcDbObjectId& id) const {
  if (done()) return Acad::eKeyNotFound;
  id = m_ids[m_at];
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntity(AcDbEntity*& entity,
                                                          AcDb::OpenMode mode) const {
  if (done()) return Acad::eKeyNotFound;
  return acdbOpenAcDbEntity(entity, m_ids[m_at], mode);
}
