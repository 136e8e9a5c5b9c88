// Objects, handles and the database; see dbmain.h. Objects live until their database goes; erasing
// only marks, so that undo can bring them back.
#include "devhost/core/drawing/database_body.h"

#include <cstdlib>
#include <cwchar>

#include "acdocman.h"
#include "adslib.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/dxf_groups.h"
#include "devhost/core/base/text_case.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbObject, AcRxObject)

namespace {

// A change needs the drawing's lock: a running command holds it, code outside one takes it by
// itself.
bool MayWrite(const AcDbDatabase* database) {
  const AcApDocument* document = acDocManagerPtr()->document(database);
  return !document || document->lockMode() != AcAp::kNotLocked;
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
  if (!MayWrite(m_database)) return Acad::eLockViolation;
  AcDbObjectAccess::TellChanging(*this);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::erase(bool erasing) {
  if (m_erased == erasing) return erasing ? Acad::eWasErased : Acad::eNotApplicable;
  m_erased = erasing;
  if (erasing && m_database && m_database->body().onErased) m_database->body().onErased(this);
  return Acad::eOk;
}

namespace {

resbuf* CopyChain(const resbuf* from, const std::wstring* application) {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  bool inside = application == nullptr;
  for (; from; from = from->rbnext) {
    if (application && from->restype == 1001)
      inside = from->resval.rstring && devhost::SameName(from->resval.rstring, *application);
    if (!inside) continue;
    resbuf* node = acutNewRb(from->restype);
    node->resval = from->resval;
    const bool text = from->restype == RTSTR || from->restype == -4 ||
                      devhost::KindOfGroup(from->restype) == devhost::GroupKind::String;
    if (text)
      acutNewString(from->resval.rstring ? from->resval.rstring : L"", node->resval.rstring);
    *tail = node;
    tail = &node->rbnext;
  }
  return head;
}

}  // namespace

resbuf* AcDbObject::xData(const ACHAR* application) const {
  if (!application) return CopyChain(m_xdata, nullptr);
  const std::wstring wanted = application;
  return CopyChain(m_xdata, &wanted);
}

// Replaces the data of the applications named in the chain and leaves that of others.
Acad::ErrorStatus AcDbObject::setXData(const resbuf* data) {
  if (!data || data->restype != 1001 || !data->resval.rstring) return Acad::eInvalidInput;
  AcDbObjectAccess::TellChanging(*this);
  const std::wstring application = data->resval.rstring;
  resbuf* kept = nullptr;
  resbuf** tail = &kept;
  resbuf* all = m_xdata;
  m_xdata = nullptr;
  for (bool skip = false; all;) {
    resbuf* next = all->rbnext;
    all->rbnext = nullptr;
    if (all->restype == 1001)
      skip = all->resval.rstring && devhost::SameName(all->resval.rstring, application);
    if (skip) {
      acutRelRb(all);
    } else {
      *tail = all;
      tail = &all->rbnext;
    }
    all = next;
  }
  *tail = data->rbnext ? CopyChain(data, nullptr) : nullptr;
  m_xdata = kept;
  return Acad::eOk;
}

void AcDbObjectAccess::SetXData(AcDbObject& object, const resbuf* all) {
  acutRelRb(object.m_xdata);
  object.m_xdata = CopyChain(all, nullptr);
}

void AcDbObjectAccess::ClearLinetype(AcDbEntity& entity) {
  acutDelString(entity.m_linetype);
  entity.m_linetype = nullptr;
}

void AcDbObjectAccess::TellChanging(AcDbObject& object) {
  if (object.m_database && object.m_database->body().onChanging)
    object.m_database->body().onChanging(&object);
}

Acad::ErrorStatus AcDbObject::dxfInFields(AcDbDxfFiler*) { return Acad::eOk; }
Acad::ErrorStatus AcDbObject::dxfOutFields(AcDbDxfFiler*) const { return Acad::eOk; }

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
  AcDbObjectAccess::Adopt(*this, object, AcDbHandle());
  id = object->objectId();
  return Acad::eOk;
}

void AcDbObjectAccess::Adopt(AcDbDatabase& database, AcDbObject* object, AcDbHandle wanted) {
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
  body.byHandle.erase(object->m_handle.value());
  object->m_handle = wanted;
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
}

std::uint64_t AcDbDatabase::Body::NextHandle() {
  while (byHandle.count(nextHandle)) ++nextHandle;
  return nextHandle++;
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

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode) {
  return acdbOpenObject(table, m_body->blockTable, mode);
}
Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode) {
  return acdbOpenObject(table, m_body->layerTable, mode);
}

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased) {
  object = nullptr;
  if (id.isNull()) return Acad::eNullObjectId;
  if (id.isErased() && !openErased) return Acad::eWasErased;
  if (mode == AcDb::kForWrite && !MayWrite(id.database())) return Acad::eLockViolation;
  object = id.object();
  AcDbObjectAccess::CountOpen(object);
  if (mode == AcDb::kForWrite) AcDbObjectAccess::TellChanging(*object);
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

Acad::ErrorStatus acdbSetDbmod(AcDbDatabase* database, int flags) {
  if (!database) return Acad::eInvalidInput;
  database->body().modified = flags;
  return Acad::eOk;
}
