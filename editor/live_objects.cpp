#include "editor/live_objects.h"

#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"
#include "kernel/tdbfloorrect.h"

namespace qvx {
namespace {

using OpenedEntity = TAcDbObjectPtr<AcDbEntity>;

int Select(TPickEntSet& set, const wchar_t* mode, const AcGePoint3d* first,
           const AcGePoint3d* second, const wchar_t* types) {
  TRBList filter;
  if (types) filter.AppendString(0, types);
  return set.Get(mode, first, second, filter.Head()) == RTNORM ? set.Length() : -1;
}

}  // namespace

int SelectAtPoint(const AcGePoint3d& at, const wchar_t* types, TPickEntSet& set) {
  return Select(set, nullptr, &at, nullptr, types);
}

int SelectAlongFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                     TPickEntSet& set) {
  return Select(set, L"F", &from, &to, types);
}

int SelectImpliedObjects(const wchar_t* types, TPickEntSet& set) {
  return Select(set, L"I", nullptr, nullptr, types);
}

bool IsFloorRectangle(const TPickEntSet& set) {
  const OpenedEntity entity(set[0].ObjectId(), AcDb::kForRead);
  return entity && entity->isKindOf(TDbFloorRect::desc());
}

bool IsEditableObject(const TPickEntSet& set) {
  const OpenedEntity entity(set[0].ObjectId(), AcDb::kForRead);
  if (const TDbEntity* object = TDbEntity::cast(entity.Get()); object && object->IsEditable())
    return true;
  const TDbCurveEntity* curve = TDbCurveEntity::cast(entity.Get());
  return curve && curve->IsEditable();
}

}  // namespace qvx
