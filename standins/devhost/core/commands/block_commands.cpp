// Commands for blocks: BLOCK, ATTDEF, EATTEDIT, and those for dynamic blocks: BDYNMAKE, BDYNFLIP,
// BDYNSTRETCH, BDYNRESET.
#include <cmath>
#include <cwchar>
#include <memory>

#include "adslib.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/blocks/dynamic_block.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

AcDbBlockTable& Blocks() {
  return *AcDbBlockTable::cast(CurrentDocument()->database()->blockTableId().object());
}

bool IsAnswered(int status) { return status == RTNORM || status == RTNONE; }

void Define(const ACHAR* name, const AcGePoint3d& base, const std::vector<AcDbObjectId>& ids) {
  auto made = std::make_unique<AcDbBlockTableRecord>();
  made->setName(name);
  made->setOrigin(base);
  if (Blocks().add(made.get()) != Acad::eOk) return;
  AcDbBlockTableRecord* block = made.release();
  for (AcDbObjectId id : ids) {
    AcDbEntity* entity = AcDbEntity::cast(id.object());
    if (entity && !entity->isErased() && CopyInto(*block, *entity, AcGeMatrix3d())) entity->erase();
  }
}

// The selected entities become the block; unlike in a drawing file, they are erased.
void Block() {
  ACHAR name[140];
  ads_point base{};
  ads_name set{};
  if (acedGetString(1, L"输入块名: ", name) != RTNORM || !*name) return;
  if (name[0] == L'*' || Blocks().has(name)) {
    TheHost().Print(std::wstring(L"\n块名无效或已经存在: ") + name + L"\n");
    return;
  }
  if (acedGetPoint(nullptr, L"指定插入基点: ", base) != RTNORM ||
      acedSSGet(nullptr, nullptr, nullptr, nullptr, set) != RTNORM)
    return;
  Define(name, WorldOfUser(base), *FindSet(set));
  acedSSFree(set);
  SetPickFirst(*CurrentDocument(), {});
}

void AttDef() {
  ACHAR tag[140], prompt[140], value[140];
  ads_point at{};
  ads_real height = 2.5, angle = 0;
  std::wstring stored;
  if (TheHost().variables.Get(L"TEXTSIZE", &stored) == VarResult::Ok)
    height = std::wcstod(stored.c_str(), nullptr);
  if (acedGetString(0, L"输入属性标记名: ", tag) != RTNORM || !*tag ||
      acedGetString(1, L"输入属性提示: ", prompt) != RTNORM ||
      acedGetString(1, L"输入属性缺省值: ", value) != RTNORM ||
      acedGetPoint(nullptr, L"指定文字的起点: ", at) != RTNORM)
    return;
  acedInitGet(6, nullptr);
  if (!IsAnswered(acedGetDist(at, L"指定高度: ", &height)) ||
      !IsAnswered(acedGetAngle(at, L"指定旋转角度 <0>: ", &angle)))
    return;
  const AcGeVector3d x = CurrentUserSystem().x;
  AddToDrawing(new AcDbAttributeDefinition(WorldOfUser(at), value, tag, prompt, height,
                                           angle + std::atan2(x.y, x.x)));
}

// The reference among the selected objects, or the one that the user picks; null: none.
AcDbObjectId AskForReference(const wchar_t* prompt) {
  ads_name name{};
  ads_point at{};
  AcDbObjectId id;
  if (const auto given = TheHost().engine.TakeGivenObjects()) {
    for (AcDbObjectId each : *given)
      if (!each.isErased() && AcDbBlockReference::cast(each.object())) return each;
  } else if (acedEntSel(prompt, name, at) != RTNORM || acdbGetObjectId(id, name) != Acad::eOk) {
    return {};
  }
  if (!id.isNull() && AcDbBlockReference::cast(id.object())) return id;
  TheHost().Print(L"\n选定的对象不是块。\n");
  return {};
}

std::vector<AttributeValue> ValuesOf(const AcDbBlockReference& reference,
                                     std::vector<AcDbObjectId>* ids) {
  std::vector<AttributeValue> values;
  const auto* block = AcDbBlockTableRecord::cast(reference.blockTableRecord().object());
  for (AcDbObjectId id : reference.attributes()) {
    const auto* attribute = id.isErased() ? nullptr : AcDbAttribute::cast(id.object());
    if (!attribute) continue;
    const AcDbAttributeDefinition* definition =
        block ? AttributeNamed(*block, attribute->tagConst()) : nullptr;
    values.push_back({attribute->tagConst(), definition ? definition->promptConst() : L"",
                      attribute->textStringConst()});
    ids->push_back(id);
  }
  return values;
}

void SetValue(AcDbObjectId id, const std::wstring& value) {
  AcDbAttribute* attribute = nullptr;
  if (acdbOpenObject(attribute, id, AcDb::kForWrite) != Acad::eOk) return;
  attribute->setTextString(value.c_str());
  attribute->close();
}

// The dialog processes messages: the drawing may close, attributes may be erased.
void EAttEdit() {
  Document* document = CurrentDocument();
  const AcDbObjectId id = AskForReference(L"选择块: ");
  if (id.isNull()) return;
  const auto& reference = *AcDbBlockReference::cast(id.object());
  std::vector<AcDbObjectId> ids;
  const std::vector<AttributeValue> before = ValuesOf(reference, &ids);
  if (before.empty()) {
    TheHost().Print(L"\n选定的块没有可编辑的属性。\n");
    return;
  }
  const auto* block = AcDbBlockTableRecord::cast(reference.blockTableRecord().object());
  std::vector<AttributeValue> values = before;
  if (!TheHost().Ui().EditAttributes(block ? block->getName() : L"", values)) return;
  if (!TheHost().documents.FindDocument(document)) return;
  for (std::size_t i = 0; i < ids.size(); ++i)
    if (values[i].value != before[i].value) SetValue(ids[i], values[i].value);
}

void MakeBlockDynamic() {
  ACHAR name[140];
  AcDbObjectId id;
  if (acedGetString(1, L"输入块名: ", name) != RTNORM || !*name) return;
  if (name[0] == L'*' || Blocks().getAt(name, id) != Acad::eOk)
    TheHost().Print(std::wstring(L"\n找不到块: ") + name + L"\n");
  else
    MakeDynamic(*AcDbBlockTableRecord::cast(id.object()));
}

// Changes the state of a reference that the user picks.
template <class Change>
void ChangeState(Change change) {
  const AcDbObjectId id = AskForReference(L"选择动态块: ");
  AcDbBlockReference* reference = nullptr;
  if (id.isNull() || acdbOpenObject(reference, id, AcDb::kForWrite) != Acad::eOk) return;
  const auto* block = AcDbBlockTableRecord::cast(reference->blockTableRecord().object());
  BlockState state = block ? StateOf(*block) : BlockState();
  if (change(state) && !SetState(*reference, state)) TheHost().Print(L"\n选定的块不是动态块。\n");
  reference->close();
}

void FlipBlock() {
  ChangeState([](BlockState& state) {
    state.flipped = !state.flipped;
    return true;
  });
}

void StretchBlock() {
  ChangeState([](BlockState& state) {
    ads_real by = 0;
    if (acedGetReal(L"指定拉伸距离: ", &by) != RTNORM) return false;
    state.stretch += by;
    return true;
  });
}

void ResetBlock() {
  ChangeState([](BlockState& state) {
    state = {};
    return true;
  });
}

constexpr NativeCommand kBlock[] = {
    {L"ATTDEF", 0, AttDef},
    {L"BDYNFLIP", 0, FlipBlock},
    {L"BDYNMAKE", 0, MakeBlockDynamic},
    {L"BDYNRESET", 0, ResetBlock},
    {L"BDYNSTRETCH", 0, StretchBlock},
    {L"BLOCK", ACRX_CMD_USEPICKSET, Block},
    {L"EATTEDIT", 0, EAttEdit},
};

}  // namespace

std::span<const NativeCommand> BlockCommands() { return kBlock; }

}  // namespace devhost
