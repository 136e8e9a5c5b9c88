#include "kernel/tdbentity.h"

#include "kernel/text_place.h"
#include "kernel/tsubtext.h"

TTextOwner::~TTextOwner() = default;

int TTextOwner::NextSubText(int index, bool, bool backward) const {
  const int next = backward ? index - 1 : index + 1;
  return next >= 0 && next < static_cast<int>(SubTexts().size()) ? next : -1;
}

TSubText* TTextOwner::MakeSubText(const AcDbEntity& object, int index) const {
  if (index < 0 || index >= static_cast<int>(SubTexts().size())) return nullptr;
  return new TSubText(object.objectId(), const_cast<AcDbEntity*>(&object), index, false, false);
}

// A text may be wider than its place and reach into the next one, which then has the point.
TSubText* TTextOwner::MakeSubTextAt(const AcDbEntity& object, const AcGePoint3d& at) const {
  const std::vector<QvxTextPlace> places = SubTexts();
  for (const auto contains : {&QvxTextPlace::IsInside, &QvxTextPlace::Contains})
    for (std::size_t i = 0; i < places.size(); ++i)
      if ((places[i].*contains)(at)) return MakeSubText(object, static_cast<int>(i));
  return nullptr;
}

// An interface is a second base class of an object, so that this is a cast across the bases.
TDbEntity* TDbEntity::cast(const AcRxObject* object) {
  return dynamic_cast<TDbEntity*>(const_cast<AcRxObject*>(object));
}

TDbCurveEntity* TDbCurveEntity::cast(const AcRxObject* object) {
  return dynamic_cast<TDbCurveEntity*>(const_cast<AcRxObject*>(object));
}
