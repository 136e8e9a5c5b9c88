// A host for the commands that edit text, over plain tables, with the diary of edit_double.h.
#pragma once

#include <deque>
#include <set>

#include "editor/block_text.h"
#include "editor/text_command.h"
#include "tests/editor/edit_double.h"

namespace edittest {

std::string PointText(const AcGePoint3d& at);

// An entity that can be picked.
struct PickedEntity {
  std::wstring name;             // group 0
  std::set<std::wstring> kinds;  // types for which Is is true
  bool isEntity = true, isReference = false;
  std::set<qvx::TextCarrier> carriers;
  std::map<qvx::TextCarrier, std::set<long>> texts;  // indices of the text interface
  std::set<qvx::TextCarrier> hits, editFunctions;
  std::set<qvx::PlainTextClass> plain;
};

// Both command hosts: the operations of TextObjects are the same.
template <class Host>
class TextObjectsDouble : public Host {
 public:
  explicit TextObjectsDouble(EditDiary& diary) : m_diary(diary) {}

  std::map<std::uintptr_t, PickedEntity> entities;
  bool isGone = false;
  TextObject object{.number = 1, .texts = {L"a", L"b"}};  // of every fragment

  bool IsGone() const override { return isGone; }
  bool IsCarrier(qvx::TextCarrier carrier, AcDbObjectId id) const override {
    return Of(id).carriers.count(carrier) != 0;
  }
  std::unique_ptr<qvx::EditFragment> GetSubText(qvx::TextCarrier carrier, AcDbObjectId id,
                                                long index) override {
    Note(Name(carrier) + " text " + std::to_string(index) + " of " + Number(id));
    const auto found = Of(id).texts.find(carrier);
    if (found == Of(id).texts.end() || !found->second.count(index)) return nullptr;
    return Fragment();
  }
  std::unique_ptr<qvx::EditFragment> GetSubTextAt(qvx::TextCarrier carrier, AcDbObjectId id,
                                                  const AcGePoint3d& at) override {
    Note(Name(carrier) + " text of " + Number(id) + " at " + PointText(at));
    return Of(id).hits.count(carrier) ? Fragment() : nullptr;
  }
  qvx::TextObjects::EditFunction GetEditFunction(qvx::TextCarrier carrier,
                                                 AcDbObjectId id) override {
    Note(Name(carrier) + " edit function of " + Number(id));
    if (!Of(id).editFunctions.count(carrier)) return nullptr;
    return [this](AcDbObjectId of) { Note("edit " + Number(of)); };
  }
  void ClearSelection() override { Note("clear selection"); }
  void BeginEdit(std::unique_ptr<qvx::EditFragment> text, const AcGeMatrix3d& toWorld) override {
    Note("begin edit at " + PointText(toWorld * AcGePoint3d()));
    text.reset();
  }

 protected:
  const PickedEntity& Of(AcDbObjectId id) const {
    static const PickedEntity none{.name = L"",
                                   .kinds = {},
                                   .isEntity = false,
                                   .carriers = {},
                                   .texts = {},
                                   .hits = {},
                                   .editFunctions = {},
                                   .plain = {}};
    const auto it = entities.find(NumberOf(id));
    return it == entities.end() ? none : it->second;
  }
  std::unique_ptr<qvx::EditFragment> Fragment() {
    return std::make_unique<FragmentDouble>(m_diary, object, 0);
  }
  void Note(const std::string& entry) const { m_diary.Note(entry); }
  static std::string Number(AcDbObjectId id) { return std::to_string(NumberOf(id)); }
  static std::string Name(qvx::TextCarrier carrier) {
    return carrier == qvx::TextCarrier::kEntity ? "entity" : "curve";
  }

  EditDiary& m_diary;
};

class TextCommandDouble : public TextObjectsDouble<qvx::TextCommandHost> {
 public:
  using TextObjectsDouble::TextObjectsDouble;
  int answer = 5100;
  std::uintptr_t picked = 10;
  int PickOne(const wchar_t* prompt, const wchar_t* types, AcDbObjectId& id) override;
};

struct BlockReference {
  std::uintptr_t record = 0, definition = 0;  // 0: not dynamic
};

class BlockTextDouble : public TextObjectsDouble<qvx::BlockTextHost> {
 public:
  using TextObjectsDouble::TextObjectsDouble;

  // One answer for each prompt; a cancel after the last.
  std::deque<std::pair<int, qvx::NestedPick>> picks;
  double aperture = 2;
  std::vector<std::uintptr_t> crossing{20};
  bool canCross = true;
  std::map<std::uintptr_t, BlockReference> blocks;
  std::map<std::uintptr_t, std::wstring> names;                    // of records
  std::map<std::uintptr_t, std::vector<std::uintptr_t>> contents;  // of records
  std::vector<std::uintptr_t> sameName{20, 21, 22};

  int PickNested(const wchar_t* prompt, const wchar_t* types, qvx::NestedPick& pick) override;
  double Aperture() const override { return aperture; }
  AcGePoint3d UserToWorld(const AcGePoint3d& p) const override { return {p.x + 1000, p.y, p.z}; }
  AcGePoint3d WorldToUser(const AcGePoint3d& p) const override { return {p.x - 1000, p.y, p.z}; }
  std::unique_ptr<qvx::ReferenceSet> SelectCrossing(const AcGePoint3d& from, const AcGePoint3d& to,
                                                    const wchar_t* types) override;
  std::unique_ptr<qvx::ReferenceSet> SelectReferences(const wchar_t* types,
                                                      const std::wstring& pattern) override;
  std::wstring EscapeWildCards(const std::wstring& name) const override;
  bool IsReference(AcDbObjectId id) const override {
    return blocks.count(NumberOf(id)) || Of(id).isReference;
  }
  AcDbObjectId RecordOf(AcDbObjectId id) const override;
  AcDbObjectId DynamicRecordOf(AcDbObjectId id) const override;
  std::optional<std::wstring> NameOf(AcDbObjectId record) const override;
  std::vector<AcDbObjectId> EntitiesOf(AcDbObjectId record) const override;
  bool IsEntity(AcDbObjectId id) const override { return Of(id).isEntity; }
  std::wstring TypeName(AcDbObjectId id) const override { return Of(id).name; }
  bool Is(AcDbObjectId id, const wchar_t* type) const override {
    return Of(id).kinds.count(type) != 0;
  }
  void Highlight(AcDbObjectId id, bool on) override {
    Note((on ? "highlight " : "unhighlight ") + Number(id));
  }
  std::unique_ptr<qvx::EditFragment> NewFragment(AcDbObjectId id,
                                                 qvx::PlainTextClass type) override;
  void RunAttributeEditor(const qvx::ReferenceSet& references) override;
};

}  // namespace edittest
