#include "tests/editor/block_text_double.h"

#include <cmath>

#include "adscodes.h"

namespace edittest {

std::string PointText(const AcGePoint3d& at) {
  return std::to_string(std::llround(at.x)) + "," + std::to_string(std::llround(at.y)) + "," +
         std::to_string(std::llround(at.z));
}

int TextCommandDouble::PickOne(const wchar_t* prompt, const wchar_t* types, AcDbObjectId& id) {
  Note("pick " + Narrow(prompt) + " of " + Narrow(types));
  id = Id(picked);
  return answer;
}

int BlockTextDouble::PickNested(const wchar_t* prompt, const wchar_t* types,
                                qvx::NestedPick& pick) {
  Note("pick " + Narrow(prompt) + " of " + Narrow(types));
  if (picks.empty()) return RTCAN;
  const auto next = picks.front();
  picks.pop_front();
  pick = next.second;
  return next.first;
}
std::unique_ptr<qvx::ReferenceSet> BlockTextDouble::SelectCrossing(const AcGePoint3d& from,
                                                                   const AcGePoint3d& to,
                                                                   const wchar_t* types) {
  Note("cross " + PointText(from) + " " + PointText(to) + " " + Narrow(types));
  if (!canCross) return nullptr;
  return std::make_unique<ReferenceSetDouble>(m_diary, crossing);
}
std::unique_ptr<qvx::ReferenceSet> BlockTextDouble::SelectReferences(const wchar_t* types,
                                                                     const std::wstring& pattern) {
  Note("all " + Narrow(types) + " named " + Narrow(pattern));
  return std::make_unique<ReferenceSetDouble>(m_diary, sameName);
}
std::wstring BlockTextDouble::EscapeWildCards(const std::wstring& name) const {
  std::wstring escaped;
  for (const wchar_t c : name) {
    if (std::wstring(L"#@.*?~[]-,`").find(c) != std::wstring::npos) escaped += L'`';
    escaped += c;
  }
  return escaped;
}
AcDbObjectId BlockTextDouble::RecordOf(AcDbObjectId id) const {
  return Id(blocks.at(NumberOf(id)).record);
}
AcDbObjectId BlockTextDouble::DynamicRecordOf(AcDbObjectId id) const {
  const std::uintptr_t definition = blocks.at(NumberOf(id)).definition;
  return definition ? Id(definition) : AcDbObjectId();
}
std::optional<std::wstring> BlockTextDouble::NameOf(AcDbObjectId record) const {
  const auto it = names.find(NumberOf(record));
  return it == names.end() ? std::nullopt : std::optional(it->second);
}
std::vector<AcDbObjectId> BlockTextDouble::EntitiesOf(AcDbObjectId record) const {
  Note("entities of " + Number(record));
  std::vector<AcDbObjectId> ids;
  const auto it = contents.find(NumberOf(record));
  if (it != contents.end())
    for (const std::uintptr_t number : it->second) ids.push_back(Id(number));
  return ids;
}
std::unique_ptr<qvx::EditFragment> BlockTextDouble::NewFragment(AcDbObjectId id,
                                                                qvx::PlainTextClass type) {
  Note((type == qvx::PlainTextClass::kText ? "new text of " : "new mtext of ") + Number(id));
  return Of(id).plain.count(type) ? Fragment() : nullptr;
}
void BlockTextDouble::RunAttributeEditor(const qvx::ReferenceSet& references) {
  Note("attribute editor on " + Number(references.At(0)));
}

}  // namespace edittest
