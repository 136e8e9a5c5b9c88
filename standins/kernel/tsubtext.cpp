// Text fragments; see the header.
#include "kernel/tsubtext.h"

#include <memory>

#include "adslib.h"
#include "dbents.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tacdbobjectptr.h"

namespace {
constexpr int kHighlight = 3, kUnhighlight = 4;
}

TSubText::TSubText(AcDbObjectId object, AcDbEntity* entity, long index, bool owned, bool multiLine)
    : m_object(object),
      m_copy(owned ? entity : nullptr),
      m_index(index),
      m_multiLine(multiLine || AcDbMText::cast(entity)) {
  QvxTextPlace place;
  if (!entity) return;
  if (const AcDbMText* lines = AcDbMText::cast(entity))
    m_text = lines->contents();
  else if (TextPlaceOf(*entity, index, place))
    m_text = place.text.c_str();
}

TSubText::~TSubText() = default;

void TSubText::GetExtent2d(TADSGePoint3d& lower, TADSGePoint3d& upper) const {
  lower = upper = AcGePoint3d();
  const TAcDbObjectPtr<AcDbEntity> object(m_copy ? AcDbObjectId::kNull : m_object, AcDb::kForRead);
  const AcDbEntity* entity = m_copy ? m_copy.get() : object.Get();
  QvxTextPlace place;
  if (!entity || !TextPlaceOf(*entity, m_index, place)) return;
  place.text = m_text.GetString();
  const AcDbExtents box = place.Extents();
  lower = box.isValid() ? box.minPoint() : place.at;
  upper = box.isValid() ? box.maxPoint() : place.at;
}

void TSubText::Highlight(bool on) const {
  ads_name name{};
  if (!m_object.isErased() && acdbGetAdsName(name, m_object) == Acad::eOk)
    acedRedraw(name, on ? kHighlight : kUnhighlight);
}

namespace {

TSubText* TextAt(AcDbEntity& entity, const AcGePoint3d& at) {
  if (const TDbEntity* object = TDbEntity::cast(&entity))
    if (TSubText* found = object->GetSubTextAt(at)) return found;
  if (const TDbCurveEntity* curve = TDbCurveEntity::cast(&entity))
    if (TSubText* found = curve->GetSubTextAt(at)) return found;
  QvxTextPlace place;
  if (!AcDbText::cast(&entity) || !TextPlaceOf(entity, 0, place) || !place.Contains(at))
    return nullptr;
  return new TSubText(entity.objectId(), &entity, 0, false, false);
}

}  // namespace

TSubText* HitTestOnText(const TPickEntSet& set, const AcGePoint3d& at) {
  const int length = set.Length();
  for (int i = 0; i < length; ++i) {
    const TAcDbObjectPtr<AcDbEntity> entity(set[i].ObjectId(), AcDb::kForRead);
    TSubText* found = entity ? TextAt(*entity.Get(), at) : nullptr;
    if (found) return found;
  }
  return nullptr;
}
