// Commands that the view starts on one object: GRIP_STRETCH, TEXTEDIT and its older name DDEDIT.
#include <utility>

#include "aced.h"
#include "adslib.h"
#include "dbents.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/entities/grips.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

void GripStretch() {
  const std::optional<HotGrip> grip = std::exchange(CurrentDocument()->hotGrip, std::nullopt);
  if (!grip || grip->entity.isErased()) {
    TheHost().Print(L"没有按下夹点。\n");
    return;
  }
  ads_point from{}, to{};
  UserOfWorld(grip->at, from);
  AcDbEntity* entity = nullptr;
  if (acedGetPoint(from, L"** 拉伸 **\n指定拉伸点: ", to) != RTNORM ||
      acdbOpenAcDbEntity(entity, grip->entity, AcDb::kForWrite) != Acad::eOk)
    return;
  MoveGrip(*entity, grip->at, WorldOfUser(to));
  entity->close();
}

std::wstring TextOf(const AcDbEntity& entity) {
  if (const auto* text = AcDbText::cast(&entity)) return text->textStringConst();
  const auto* paragraphs = AcDbMText::cast(&entity);
  return paragraphs ? paragraphs->contents() : L"";
}

void SetText(AcDbObjectId id, const ACHAR* by) {
  AcDbEntity* entity = nullptr;
  if (acdbOpenAcDbEntity(entity, id, AcDb::kForWrite) != Acad::eOk) return;
  if (auto* text = AcDbText::cast(entity)) text->setTextString(by);
  if (auto* paragraphs = AcDbMText::cast(entity)) paragraphs->setContents(by);
  entity->close();
}

AcDbObjectId AskForText() {
  ads_name name{};
  ads_point at{};
  AcDbObjectId id;
  if (acedEntSel(L"选择注释对象: ", name, at) == RTNORM) acdbGetObjectId(id, name);
  return id;
}

// Enter alone keeps the text.
void TextEdit() {
  AcDbObjectId id = std::exchange(CurrentDocument()->textToEdit, AcDbObjectId());
  if (id.isNull() || id.isErased()) id = AskForText();
  if (id.isNull()) return;
  const AcDbEntity* entity = AcDbEntity::cast(id.object());
  if (!entity || !IsPlainText(*entity)) {
    TheHost().Print(L"选定的对象不是文字。\n");
    return;
  }
  ACHAR text[140];
  const std::wstring prompt = L"输入文字 <" + TextOf(*entity) + L">: ";
  if (acedGetString(1, prompt.c_str(), text) == RTNORM && *text) SetText(id, text);
}

// Enter does not repeat GRIP_STRETCH, which has no grip then.
constexpr NativeCommand kObject[] = {
    {L"DDEDIT", ACRX_CMD_USEPICKSET, TextEdit},
    {L"GRIP_STRETCH", ACRX_CMD_USEPICKSET | kNotRepeated, GripStretch},
    {L"TEXTEDIT", ACRX_CMD_USEPICKSET, TextEdit},
};

}  // namespace

bool IsPlainText(const AcDbEntity& entity) {
  return entity.isA() == AcDbText::desc() || entity.isA() == AcDbMText::desc();
}

std::span<const NativeCommand> ObjectCommands() { return kObject; }

}  // namespace devhost
