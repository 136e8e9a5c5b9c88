// Picks, fragments and own edit routines of both commands. Blocks are in live_block_text.cpp.
#include "editor/live_text_objects.h"

#include "adslib.h"
#include "editor/kernel_fragment.h"
#include "kernel/pick_object.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"

namespace qvx {
namespace {

using OpenedEntity = TAcDbObjectPtr<AcDbEntity>;

const TTextOwner* CarrierOf(TextCarrier carrier, const AcDbEntity* entity) {
  if (carrier == TextCarrier::kEntity) return TDbEntity::cast(entity);
  return TDbCurveEntity::cast(entity);
}

}  // namespace

bool IsTextCarrier(TextCarrier carrier, AcDbObjectId object) {
  const OpenedEntity entity(object, AcDb::kForRead);
  return CarrierOf(carrier, entity.Get()) != nullptr;
}

std::unique_ptr<EditFragment> FindSubText(TextCarrier carrier, AcDbObjectId object, long index) {
  const OpenedEntity entity(object, AcDb::kForRead);
  const TTextOwner* owner = CarrierOf(carrier, entity.Get());
  return owner ? MakeFragment(owner->GetSubText(static_cast<int>(index))) : nullptr;
}

std::unique_ptr<EditFragment> FindSubTextAt(TextCarrier carrier, AcDbObjectId object,
                                            const AcGePoint3d& at) {
  const OpenedEntity entity(object, AcDb::kForRead);
  const TTextOwner* owner = CarrierOf(carrier, entity.Get());
  return owner ? MakeFragment(owner->GetSubTextAt(at)) : nullptr;
}

// The object is closed when the routine runs.
TextObjects::EditFunction FindEditFunction(TextCarrier carrier, AcDbObjectId object) {
  const OpenedEntity entity(object, AcDb::kForRead);
  const TTextOwner* owner = CarrierOf(carrier, entity.Get());
  const TTextOwner::EditFunction function = owner ? owner->GetEditFunction() : nullptr;
  return function ? TextObjects::EditFunction(function) : nullptr;
}

void ClearPickFirstSet() { acedSSSetFirst(nullptr, nullptr); }

int LiveTextCommandHost::PickOne(const wchar_t* prompt, const wchar_t* types,
                                 AcDbObjectId& object) {
  TRBList filter;
  filter.AppendString(0, types);
  TEntitySet entity;
  const int answer = TaPh23shdLhsj1(prompt, entity, filter);
  object = entity.ObjectId();
  return answer;
}

}  // namespace qvx
