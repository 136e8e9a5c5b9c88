#include "kernel/tdbentity.h"

#include "kernel/entities/qvx_entity.h"

TTextOwner::~TTextOwner() = default;

TDbEntity* TDbEntity::cast(const AcRxObject* object) {
  QvxDbEntity* entity = QvxDbEntity::cast(object);
  return entity ? entity->AsEntity() : nullptr;
}

TDbCurveEntity* TDbCurveEntity::cast(const AcRxObject* object) {
  QvxDbEntity* entity = QvxDbEntity::cast(object);
  return entity ? entity->AsCurveEntity() : nullptr;
}
