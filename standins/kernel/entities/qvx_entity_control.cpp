// What drawing objects of the family do beside drawing themselves: control states, texts, layers.
#include <optional>

#include "acdocman.h"
#include "axlock.h"
#include "dbsymtb.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbconfig.h"

// Groups are numbered from 1. Without one the key comes from the handle, below 0.
long QvxDbEntity::GroupKey() const {
  constexpr std::uint64_t kKeyBits = 0x7FFFFFFF;
  return group > 0 ? group : -static_cast<long>(handle().value() & kKeyBits);
}

void QvxDbEntity::ToggleCtrl() {
  std::optional<AcAxDocLock> lock;
  if (acDocManagerPtr()->isApplicationContext()) lock.emplace(database());
  if (upgradeOpen() != Acad::eOk) return;
  const int state = control = !control;
  const long key = GroupKey();
  downgradeOpen();
  const auto* space = AcDbBlockTableRecord::cast(ownerId().object());
  if (space && key > 0)
    for (const AcDbObjectId id : space->entities()) {
      const QvxDbEntity* other = id.isErased() ? nullptr : QvxDbEntity::cast(id.object());
      if (!other || other == this || other->GroupKey() != key) continue;
      const TAcDbObjectPtr<QvxDbEntity> open(id, AcDb::kForWrite);
      if (open) open->control = state;
    }
  draw();
}

bool QvxDbEntity::IsOnLockedLayer() const {
  AcDbLayerTable* layers = nullptr;
  if (!database() || database()->getLayerTable(layers, AcDb::kForRead) != Acad::eOk) return false;
  AcDbObjectId id;
  const Acad::ErrorStatus found = layers->getAt(layer(), id);
  layers->close();
  const TAcDbObjectPtr<AcDbLayerTableRecord> record(found == Acad::eOk ? id : AcDbObjectId::kNull,
                                                    AcDb::kForRead);
  return record && record->isLocked();
}

bool QvxDbEntity::ShowsModelNumbers() const {
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, database());
  if (!config) return false;
  const bool shown = (config->Flags() & TDbConfig::kModelNumbers) != 0;
  config->close();
  return shown;
}

const std::wstring& QvxDbEntity::Stored(int slot) const {
  static const std::wstring none;
  if (slot == 0) return label;
  return slot > 0 && slot <= static_cast<int>(cells.size()) ? cells[slot - 1] : none;
}

void QvxDbEntity::ChangeText(int index, const std::wstring& text) {
  const std::vector<QvxTextPlace> places = TextPlaces();
  if (index < 0 || index >= static_cast<int>(places.size())) return;
  const std::size_t slot = static_cast<std::size_t>(places[index].slot);
  if (cells.size() < slot) cells.resize(slot);
  (slot == 0 ? label : cells[slot - 1]) = text;
}
