// The database of a drawing; see dbmain.h. Objects live as long as their database.
#include "devhost/core/drawing/database_body.h"

#include "dbsymtb.h"

AcDbDatabase::AcDbDatabase() : m_body(new Body) {
  auto add = [&](AcDbObject* object) {
    AcDbObjectId id;
    addAcDbObject(id, object);
    return id;
  };
  m_body->blockTable = add(new AcDbBlockTable);
  m_body->layerTable = add(new AcDbLayerTable);
  for (const wchar_t* space : {ACDB_MODEL_SPACE, ACDB_PAPER_SPACE}) {
    auto* record = new AcDbBlockTableRecord;
    record->setName(space);
    AcDbBlockTable::cast(m_body->blockTable.object())->add(record);
  }
  auto* layer = new AcDbLayerTableRecord;
  layer->setName(L"0");
  AcDbLayerTable::cast(m_body->layerTable.object())->add(layer);
}

AcDbDatabase::~AcDbDatabase() {
  m_body->onErased = m_body->onChanging = nullptr;
  m_body->onMoved = nullptr;
  delete m_body;
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObjectId& id, AcDbObject* object) {
  if (!object || object->m_database) return Acad::eInvalidInput;
  AcDbObjectAccess::AddObject(*this, object, AcDbHandle());
  id = object->objectId();
  return Acad::eOk;
}

std::uint64_t AcDbDatabase::Body::NextHandle() {
  while (byHandle.count(nextHandle)) ++nextHandle;
  return nextHandle++;
}

std::uint64_t AcDbDatabase::Body::AddedHandle(const std::wstring& what) {
  std::uint64_t& handle = addedHandles[what];
  if (handle == 0) handle = NextHandle();
  return handle;
}

KeptPart& AcDbDatabase::Body::Part(std::uint64_t owner, std::size_t index) {
  std::vector<KeptPart>& all = parts[owner];
  if (all.size() <= index) all.resize(index + 1);
  if (all[index].handle == 0) all[index].handle = NextHandle();
  return all[index];
}

Acad::ErrorStatus AcDbDatabase::getAcDbObjectId(AcDbObjectId& id, bool,
                                                const AcDbHandle& handle) const {
  const auto at = m_body->byHandle.find(handle.value());
  if (at == m_body->byHandle.end()) return Acad::eKeyNotFound;
  id = at->second->objectId();
  return Acad::eOk;
}

AcDbObjectId AcDbDatabase::blockTableId() const { return m_body->blockTable; }
AcDbObjectId AcDbDatabase::layerTableId() const { return m_body->layerTable; }
int AcDbDatabase::approxNumObjects() const { return static_cast<int>(m_body->objects.size()); }

AcDbObjectId AcDbDatabase::currentSpaceId() const {
  AcDbObjectId id;
  AcDbBlockTable::cast(m_body->blockTable.object())
      ->getAt(m_body->paperIsCurrent ? ACDB_PAPER_SPACE : ACDB_MODEL_SPACE, id);
  return id;
}

AcGePoint3d AcDbDatabase::ucsorg() const { return m_body->CurrentSystem().origin; }
AcGeVector3d AcDbDatabase::ucsxdir() const { return m_body->CurrentSystem().x; }
AcGeVector3d AcDbDatabase::ucsydir() const { return m_body->CurrentSystem().y; }

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode) {
  return acdbOpenObject(table, m_body->blockTable, mode);
}
Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode) {
  return acdbOpenObject(table, m_body->layerTable, mode);
}

// Made late, so that the handles of a new drawing's first objects do not depend on it.
Acad::ErrorStatus AcDbDatabase::getViewportTable(AcDbViewportTable*& table, AcDb::OpenMode mode) {
  if (m_body->viewportTable.isNull()) addAcDbObject(m_body->viewportTable, new AcDbViewportTable);
  return acdbOpenObject(table, m_body->viewportTable, mode);
}

Acad::ErrorStatus acdbSetDbmod(AcDbDatabase* database, int flags) {
  if (!database) return Acad::eInvalidInput;
  database->body().modified = flags;
  return Acad::eOk;
}
