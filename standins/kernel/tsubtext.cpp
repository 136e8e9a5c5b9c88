// Text fragments; see the header.
#include "kernel/tsubtext.h"

#include "adslib.h"
#include "dbents.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"
#include "kernel/text_lines.h"
#include "kernel/text_place.h"

namespace {
constexpr int kHighlight = 3, kUnhighlight = 4;

CString EditedText(const QvxTextPlace& place) { return TextToEdit(place.text).c_str(); }

}  // namespace

TSubText::TSubText(AcDbObjectId object, AcDbEntity* entity, long index, bool owned, bool multiLine)
    : m_object(object), m_copy(owned ? entity : nullptr), m_index(index), m_multiLine(multiLine) {
  QvxTextPlace place;
  if (!entity || !TextPlaceOf(*entity, index, place)) return;
  m_multiLine |= place.multiLine;
  m_menu = place.menu;
  m_text = EditedText(place);
}

TSubText::~TSubText() = default;

bool TSubText::FindPlace(QvxTextPlace& place) const {
  if (m_copy) return TextPlaceOf(*m_copy, m_index, place);
  const TAcDbObjectPtr<AcDbEntity> object(m_object, AcDb::kForRead);
  return object && TextPlaceOf(*object.Get(), m_index, place);
}

CString TSubText::GetText() const {
  QvxTextPlace place;
  return !m_textIsSet && FindPlace(place) ? EditedText(place) : m_text;
}

void TSubText::SetText(CString text) {
  m_text = text;
  m_textIsSet = true;
}

void TSubText::Update(CString text) {
  const TAcDbObjectPtr<AcDbEntity> object(m_object, AcDb::kForWrite);
  if (!object) return;
  ChangeTextOf(*object.Get(), m_index, text.GetString());
  object->draw();
  m_text = text;
  m_textIsSet = m_copy != nullptr;  // the copy keeps its text
}

void TSubText::GetExtent2d(TADSGePoint3d& lower, TADSGePoint3d& upper) const {
  lower = upper = AcGePoint3d();
  QvxTextPlace place;
  if (!FindPlace(place)) return;
  if (m_textIsSet) place.text = TextToStore(m_text.GetString(), place.multiLine);
  const AcDbExtents box = place.Extents();
  lower = box.isValid() ? box.minPoint() : place.at;
  upper = box.isValid() ? box.maxPoint() : place.at;
}

TSubText* TSubText::GetNext(bool vertical, bool backward) const {
  const TAcDbObjectPtr<AcDbEntity> object(m_object, AcDb::kForRead);
  const TTextOwner* owner = TextOwnerOf(object.Get());
  const int next = owner ? owner->NextSubText(static_cast<int>(m_index), vertical, backward) : -1;
  return next < 0 ? nullptr : owner->GetSubText(next);
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

TSubText* HitTestOnText(TPickEntSet& set, TADSGePoint3d at) {
  const int length = set.Length();
  for (int i = 0; i < length; ++i) {
    const TAcDbObjectPtr<AcDbEntity> entity(set[i].ObjectId(), AcDb::kForRead);
    TSubText* found = entity ? TextAt(*entity.Get(), at) : nullptr;
    if (found) return found;
  }
  return nullptr;
}
