// Blocks, references and nested picks over the host and the kernel.
#include <memory>

#include "acdocman.h"
#include "acedcmdnf.h"
#include "adslib.h"
#include "dbdynblk.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "editor/kernel_fragment.h"
#include "editor/live_text_objects.h"
#include "ground/command_line.h"
#include "kernel/pick_object.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tadsprintf.h"
#include "kernel/tsubtext.h"

namespace qvx {
namespace {

template <class T>
using Opened = TAcDbObjectPtr<T>;

constexpr int kHighlight = 3, kUnhighlight = 4;
constexpr short kWorldCode = 0, kUserCode = 1;

TEntitySet EntityOf(AcDbObjectId object) {
  ads_name name;
  if (acdbGetAdsName(name, object) != Acad::eOk) return TEntitySet();
  return TEntitySet(name);
}

class PickedReferences final : public ReferenceSet {
 public:
  int Length() const override { return m_set.Length(); }
  AcDbObjectId At(int index) const override { return m_set[index].ObjectId(); }
  TPickEntSet& Set() { return m_set; }
  const TPickEntSet& Set() const { return m_set; }

 private:
  TPickEntSet m_set{TPickEntSet::kOwned};
};

std::unique_ptr<ReferenceSet> Select(const wchar_t* mode, const AcGePoint3d* from,
                                     const AcGePoint3d* to, const TRBList& filter) {
  auto found = std::make_unique<PickedReferences>();
  if (found->Set().Get(mode, from, to, filter.Head()) != RTNORM) return nullptr;
  return found;
}

AcGePoint3d Converted(const AcGePoint3d& point, short fromCode, short toCode) {
  resbuf from{}, to{};
  from.restype = to.restype = RTSHORT;
  from.resval.rint = fromCode;
  to.resval.rint = toCode;
  const ads_point in = {point.x, point.y, point.z};
  ads_point out = {point.x, point.y, point.z};  // the point itself when the host does not convert
  acedTrans(in, &from, &to, 0, out);
  return {out[0], out[1], out[2]};
}

}  // namespace

int LiveBlockTextHost::PickNested(const wchar_t* prompt, const wchar_t* types, NestedPick& pick) {
  TRBList filter;
  filter.AppendString(0, types);
  TEntitySet entity;
  const int answer = TaPhsU12hdLhsj3(prompt, entity, pick.user, pick.toWorld, true, filter);
  pick.entity = entity.ObjectId();
  return answer;
}

double LiveBlockTextHost::Aperture() const { return GetApertureWcs(); }

AcGePoint3d LiveBlockTextHost::UserToWorld(const AcGePoint3d& user) const {
  return Converted(user, kUserCode, kWorldCode);
}

AcGePoint3d LiveBlockTextHost::WorldToUser(const AcGePoint3d& world) const {
  return Converted(world, kWorldCode, kUserCode);
}

std::unique_ptr<ReferenceSet> LiveBlockTextHost::SelectCrossing(const AcGePoint3d& from,
                                                                const AcGePoint3d& to,
                                                                const wchar_t* types) {
  TRBList filter;
  filter.AppendString(0, types);
  return Select(L"C", &from, &to, filter);
}

std::unique_ptr<ReferenceSet> LiveBlockTextHost::SelectReferences(const wchar_t* types,
                                                                  const std::wstring& namePattern) {
  TRBList filter;
  filter.AppendString(0, types);
  filter.AppendString(2, namePattern.c_str());
  return Select(L"X", nullptr, nullptr, filter);
}

std::wstring LiveBlockTextHost::EscapeWildCards(const std::wstring& name) const {
  CString escaped(name.c_str());
  SpringStrHasSpecialChar(&escaped);
  return escaped.GetString();
}

bool LiveBlockTextHost::IsReference(AcDbObjectId object) const {
  return static_cast<bool>(Opened<AcDbBlockReference>(object, AcDb::kForRead));
}

AcDbObjectId LiveBlockTextHost::RecordOf(AcDbObjectId reference) const {
  const Opened<AcDbBlockReference> opened(reference, AcDb::kForRead);
  return opened ? opened->blockTableRecord() : AcDbObjectId();
}

AcDbObjectId LiveBlockTextHost::DynamicRecordOf(AcDbObjectId reference) const {
  const AcDbDynBlockReference dynamic(reference);
  return dynamic.isDynamicBlock() ? dynamic.dynamicBlockTableRecord() : AcDbObjectId();
}

std::optional<std::wstring> LiveBlockTextHost::NameOf(AcDbObjectId record) const {
  const Opened<AcDbBlockTableRecord> opened(record, AcDb::kForRead);
  const ACHAR* name = nullptr;
  if (!opened || opened->getName(name) != Acad::eOk || !name) return std::nullopt;
  return name;
}

std::vector<AcDbObjectId> LiveBlockTextHost::EntitiesOf(AcDbObjectId record) const {
  std::vector<AcDbObjectId> entities;
  const Opened<AcDbBlockTableRecord> opened(record, AcDb::kForRead);
  AcDbBlockTableRecordIterator* iterator = nullptr;
  if (!opened || opened->newIterator(iterator) != Acad::eOk) return entities;
  const std::unique_ptr<AcDbBlockTableRecordIterator> at(iterator);
  for (; !at->done(); at->step()) {
    AcDbObjectId entity;
    if (at->getEntityId(entity) == Acad::eOk) entities.push_back(entity);
  }
  return entities;
}

bool LiveBlockTextHost::IsEntity(AcDbObjectId object) const {
  return static_cast<bool>(Opened<AcDbEntity>(object, AcDb::kForRead));
}

std::wstring LiveBlockTextHost::TypeName(AcDbObjectId object) const {
  wchar_t name[TEntitySet::kDataUnits] = {};
  EntityOf(object).GetData(0, name);
  return name;
}

bool LiveBlockTextHost::Is(AcDbObjectId object, const wchar_t* type) const {
  return EntityOf(object).Is(type);
}

void LiveBlockTextHost::Highlight(AcDbObjectId object, bool on) {
  EntityOf(object).Redraw(on ? kHighlight : kUnhighlight);
}

std::unique_ptr<EditFragment> LiveBlockTextHost::NewFragment(AcDbObjectId object,
                                                             PlainTextClass type) {
  const Opened<AcDbEntity> entity(object, AcDb::kForRead);
  const AcRxClass* wanted = type == PlainTextClass::kText ? AcDbText::desc() : AcDbMText::desc();
  if (!entity || !entity->isKindOf(wanted)) return nullptr;
  auto* copy = static_cast<AcDbEntity*>(entity->clone());
  return MakeFragment(new TSubText(object, copy, 0, true, false));
}

void LiveBlockTextHost::RunAttributeEditor(const ReferenceSet& references) {
  const TPickEntSet& set = static_cast<const PickedReferences&>(references).Set();
  acedCommandS(RTSTR, L"eattedit", RTPICKS, set.Name(), RTNONE);
}

// ---- the references of a changed block

AcApDocument* LiveReferenceHost::CurrentDocument() const {
  return acDocManager ? acDocManager->curDocument() : nullptr;
}

void LiveReferenceHost::ActivateCurrentDocument() {
  if (AcApDocument* document = CurrentDocument()) acDocManager->activateDocument(document);
}

std::unique_ptr<DocumentLock> LiveReferenceHost::LockCurrentDocument() {
  return LockCurrentForWrite();
}

void LiveReferenceHost::MarkChanged(AcDbObjectId reference) {
  const Opened<AcDbEntity> opened(reference, AcDb::kForWrite);
  if (opened) opened->assertWriteEnabled(true, true);
}

std::optional<std::vector<AcDbObjectId>> LiveReferenceHost::ReferencesOf(
    AcDbObjectId record) const {
  const Opened<AcDbBlockTableRecord> opened(record, AcDb::kForRead);
  if (!opened) return std::nullopt;
  std::vector<AcDbObjectId> references;
  AcDbBlockReferenceIdIterator* iterator = nullptr;
  if (opened->newBlockReferenceIdIterator(iterator) != Acad::eOk) return references;
  const std::unique_ptr<AcDbBlockReferenceIdIterator> at(iterator);
  for (; !at->done(); at->step()) {
    AcDbObjectId reference;
    if (at->getBlockReferenceId(reference) == Acad::eOk) references.push_back(reference);
  }
  return references;
}

void LiveReferenceHost::MarkGraphicsModified(AcDbObjectId reference) {
  const Opened<AcDbBlockReference> opened(reference, AcDb::kForWrite);
  if (opened) opened->recordGraphicsModified(true);
}

void LiveReferenceHost::UpdateAnonymousBlocks(AcDbObjectId record) {
  AcDbDynBlockTableRecord(record).updateAnonymousBlocks();
}

void LiveReferenceHost::PrintWithPrompt(const std::wstring& text) {
  adsout << text.c_str();
  PostPrompt();
}

}  // namespace qvx
