// Objects of a database: handles, opening, erasing; see dbmain.h. Erasing only sets a flag, so that
// undo can restore the object.
#include <cwchar>
#include <utility>

#include "acdocman.h"
#include "adslib.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbObject, AcRxObject)

namespace {

// Writing requires a lock of the drawing: a running command holds one, other code takes
// it with lockDocument.
bool IsWritable(const AcDbDatabase* database) {
  const AcApDocument* document = acDocManagerPtr()->document(database);
  return !document || document->lockMode() != AcAp::kNotLocked;
}

template <class Map>
void MoveKey(Map& map, std::uint64_t from, std::uint64_t to) {
  auto node = map.extract(from);
  if (node.empty()) return;
  node.key() = to;
  map.insert(std::move(node));
}

}  // namespace

bool AcDbHandle::getIntoAsciiBuffer(ACHAR* buffer) const {
  std::swprintf(buffer, 17, L"%llX", static_cast<unsigned long long>(m_value));
  return true;
}

bool AcDbObjectId::isErased() const { return m_object && m_object->isErased(); }
AcDbHandle AcDbObjectId::handle() const { return m_object ? m_object->handle() : AcDbHandle(); }
AcDbDatabase* AcDbObjectId::database() const { return m_object ? m_object->database() : nullptr; }

AcDbObject::~AcDbObject() { acutRelRb(m_xdata); }

Acad::ErrorStatus AcDbObject::close() {
  if (m_openCount == 0) return Acad::eNotApplicable;
  --m_openCount;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::upgradeOpen() {
  if (m_openCount == 0) return Acad::eNotOpenForWrite;
  if (!IsWritable(m_database)) return Acad::eLockViolation;
  AcDbObjectAccess::NotifyChanging(*this);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeOpen() {
  return m_openCount > 0 ? Acad::eOk : Acad::eNotOpenForWrite;
}

void AcDbObject::assertWriteEnabled(bool autoUndo, bool recordModified) {
  if (m_openCount == 0 || !m_database) return;
  if (autoUndo) AcDbObjectAccess::NotifyChanging(*this);
  if (recordModified) m_database->body().modified |= kObjectsModified;
}

Acad::ErrorStatus AcDbObject::erase(bool erasing) {
  if (m_erased == erasing) return erasing ? Acad::eWasErased : Acad::eNotApplicable;
  m_erased = erasing;
  AcDbObjectAccess::NotifyWatcher(*this);
  if (erasing && m_database && m_database->body().onErased) m_database->body().onErased(this);
  return Acad::eOk;
}

void AcDbObjectAccess::ClearLinetype(AcDbEntity& entity) {
  acutDelString(entity.m_linetype);
  entity.m_linetype = nullptr;
}

void AcDbObjectAccess::NotifyChanging(AcDbObject& object) {
  if (object.m_database && object.m_database->body().onChanging)
    object.m_database->body().onChanging(&object);
  NotifyWatcher(object);
}

void AcDbObjectAccess::NotifyWatcher(AcDbObject& object) {
  if (object.m_database && object.m_database->body().watcher)
    object.m_database->body().watcher->OnChange(object);
}

Acad::ErrorStatus AcDbObject::dxfInFields(AcDbDxfFiler*) { return Acad::eOk; }
Acad::ErrorStatus AcDbObject::dxfOutFields(AcDbDxfFiler*) const { return Acad::eOk; }

void AcDbObjectAccess::AddObject(AcDbDatabase& database, AcDbObject* object, AcDbHandle wanted) {
  AcDbDatabase::Body& body = database.body();
  std::uint64_t handle = wanted.value();
  if (!handle || body.byHandle.count(handle)) handle = body.NextHandle();
  if (handle >= body.nextHandle && handle < (std::uint64_t{1} << 62)) body.nextHandle = handle + 1;
  object->m_handle = AcDbHandle(handle);
  object->m_database = &database;
  body.byHandle[handle] = object;
  body.objects.emplace_back(object);
}

bool AcDbObjectAccess::ChangeHandle(AcDbObject* object, AcDbHandle wanted) {
  if (!object->m_database || wanted.isNull()) return false;
  AcDbDatabase::Body& body = object->m_database->body();
  if (!body.byHandle.emplace(wanted.value(), object).second)
    return object->m_handle.value() == wanted.value();
  const std::uint64_t before = object->m_handle.value();
  body.byHandle.erase(before);
  object->m_handle = wanted;
  MoveKey(body.kept, before, wanted.value());
  MoveKey(body.parts, before, wanted.value());
  return true;
}

std::vector<KeptGroup>& AcDbObjectAccess::CommonGroups(AcDbEntity& entity) {
  if (!entity.m_commonGroups) entity.m_commonGroups = new std::vector<KeptGroup>;
  return *entity.m_commonGroups;
}

void AcDbObjectAccess::Replace(AcDbDatabase::Body& body, std::unique_ptr<AcDbObject>& held,
                               AcDbObject* fresh) {
  fresh->m_handle = held->m_handle;
  fresh->m_database = held->m_database;
  fresh->m_owner = held->m_owner;
  fresh->m_erased = held->m_erased;
  body.byHandle[fresh->m_handle.value()] = fresh;
  if (auto* block = AcDbBlockTableRecord::cast(fresh->m_owner.object()))
    for (AcDbObjectId& id : block->m_entities)
      if (id == held->objectId()) id = fresh->objectId();
  held.reset(fresh);
  if (body.watcher) body.watcher->OnReplace();
}

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased) {
  object = nullptr;
  if (id.isNull()) return Acad::eNullObjectId;
  if (id.isErased() && !openErased) return Acad::eWasErased;
  if (mode == AcDb::kForWrite && !IsWritable(id.database())) return Acad::eLockViolation;
  object = id.object();
  AcDbObjectAccess::CountOpen(object);
  if (mode == AcDb::kForWrite) AcDbObjectAccess::NotifyChanging(*object);
  return Acad::eOk;
}

Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased) {
  return acdbOpenObject(entity, id, mode, openErased);
}

Acad::ErrorStatus acdbGetAdsName(ads_name name, AcDbObjectId id) {
  if (id.isNull()) return Acad::eNullObjectId;
  name[0] = static_cast<long long>(reinterpret_cast<std::uintptr_t>(id.object()));
  name[1] = 0;
  return Acad::eOk;
}

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name) {
  if (!name || !name[0]) return Acad::eInvalidInput;
  id = AcDbObjectId(reinterpret_cast<AcDbObject*>(static_cast<std::uintptr_t>(name[0])));
  return Acad::eOk;
}
