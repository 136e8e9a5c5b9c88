#include "add_entity.h"

#include "adslib.h"
#include "dbapserv.h"
#include "kernel/drawing_scale.h"
#include "kernel/entities/tentitybase.h"

AcDbBlockTableRecord* CurrentSpace() {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  return database ? AcDbBlockTableRecord::cast(database->currentSpaceId().object()) : nullptr;
}

void AddEntity(std::unique_ptr<AcDbEntity> entity, const wchar_t* layer, int color) {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbLayerTable* layers = nullptr;
  if (!database || database->getLayerTable(layers, AcDb::kForWrite) != Acad::eOk) return;
  if (!layers->has(layer)) {
    auto* record = new AcDbLayerTableRecord;
    record->setName(layer);
    record->setColorIndex(color);
    layers->add(record);
  }
  layers->close();
  entity->setLayer(layer);
  if (TEntityBase* base = TEntityBase::Cast(entity.get())) base->SetPScale(DocGetPScale());
  if (CurrentSpace()->appendAcDbEntity(entity.get()) == Acad::eOk) entity.release();
  acedRedraw(nullptr, 0);
}

AcGePoint3d WorldPoint(const ads_point user) {
  resbuf from{}, to{};
  from.restype = to.restype = RTSHORT;
  from.resval.rint = 1;
  ads_point world = {user[0], user[1], user[2]};
  acedTrans(user, &from, &to, 0, world);
  return {world[0], world[1], world[2]};
}
