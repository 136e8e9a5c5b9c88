#include "add_entity.h"

#include "adslib.h"
#include "dbapserv.h"
#include "dbents.h"
#include "kernel/drawing_scale.h"
#include "kernel/entities/tentitybase.h"

AcDbBlockTableRecord* CurrentSpace() {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  return database ? AcDbBlockTableRecord::cast(database->currentSpaceId().object()) : nullptr;
}

bool EnsureLayer(const wchar_t* layer, int color) {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbLayerTable* layers = nullptr;
  if (!database || database->getLayerTable(layers, AcDb::kForWrite) != Acad::eOk) return false;
  if (!layers->has(layer)) {
    auto* record = new AcDbLayerTableRecord;
    record->setName(layer);
    record->setColorIndex(color);
    layers->add(record);
  }
  layers->close();
  return true;
}

void AddEntity(std::unique_ptr<AcDbEntity> entity, const wchar_t* layer, int color) {
  if (!EnsureLayer(layer, color)) return;
  entity->setLayer(layer);
  if (TEntityBase* base = TEntityBase::Cast(entity.get())) base->SetPScale(DocGetPScale());
  if (CurrentSpace()->appendAcDbEntity(entity.get()) == Acad::eOk) entity.release();
  acedRedraw(nullptr, 0);
}

void AddLine(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* layer, int color) {
  AddEntity(std::make_unique<AcDbLine>(from, to), layer, color);
}

void AddPolyline(const std::vector<AcGePoint3d>& corners, bool closed, const wchar_t* layer,
                 int color) {
  auto line = std::make_unique<AcDbPolyline>();
  for (unsigned i = 0; i < corners.size(); ++i) line->addVertexAt(i, corners[i]);
  line->setClosed(closed);
  AddEntity(std::move(line), layer, color);
}

void AddBox(const AcGePoint3d& a, const AcGePoint3d& b, const wchar_t* layer, int color) {
  AddPolyline({a, {b.x, a.y, 0}, b, {a.x, b.y, 0}}, true, layer, color);
}

AcDbObjectId FindBlock(const wchar_t* name) {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbBlockTable* blocks = nullptr;
  AcDbObjectId block;
  if (!database || database->getBlockTable(blocks, AcDb::kForRead) != Acad::eOk) return block;
  if (blocks->getAt(name, block) != Acad::eOk) acutPrintf(L"\n没有块 %ls。\n", name);
  blocks->close();
  return block;
}

AcGePoint3d WorldPoint(const ads_point user) {
  resbuf from{}, to{};
  from.restype = to.restype = RTSHORT;
  from.resval.rint = 1;
  ads_point world = {user[0], user[1], user[2]};
  acedTrans(user, &from, &to, 0, world);
  return {world[0], world[1], world[2]};
}
