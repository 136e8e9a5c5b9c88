// Commands that change entities and settings: ERASE, MOVE, U, UNDO, REDO, LAYER, SETVAR.
#include "aced.h"
#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

AcGePoint3d Of(const ads_point p) { return WorldOfUser(p); }

// Calls `each` for every selected entity; prompts for a selection if there is none.
template <class F>
int ForSelected(F each) {
  ads_name set{};
  if (acedSSGet(nullptr, nullptr, nullptr, nullptr, set) != RTNORM) return 0;
  const std::vector<AcDbObjectId> ids = *FindSet(set);
  acedSSFree(set);
  int count = 0;
  for (AcDbObjectId id : ids)
    if (AcDbEntity* entity = AcDbEntity::cast(id.object())) {
      each(*entity);
      ++count;
    }
  return count;
}

void Erase() {
  Document* document = CurrentDocument();
  ForSelected([](AcDbEntity& entity) { entity.erase(); });
  SetPickFirst(*document, {});
}

void Move() {
  ads_name set{};
  ads_point from{}, to{};
  if (acedSSGet(nullptr, nullptr, nullptr, nullptr, set) != RTNORM) return;
  if (acedGetPoint(nullptr, L"指定基点: ", from) == RTNORM &&
      acedGetPoint(from, L"指定第二个点: ", to) == RTNORM)
    for (AcDbObjectId id : *FindSet(set))
      if (AcDbEntity* entity = AcDbEntity::cast(id.object()))
        entity->transformBy(AcGeMatrix3d::translation(Of(to) - Of(from)));
  acedSSFree(set);
}

void Layer() {
  ACHAR name[140];
  if (acedGetString(0, L"输入图层名: ", name) != RTNORM || !*name) return;
  auto* table = AcDbLayerTable::cast(CurrentDocument()->database()->layerTableId().object());
  if (!table->has(name)) {
    auto* layer = new AcDbLayerTableRecord;
    layer->setName(name);
    table->add(layer);
  }
  TheHost().variables.Set(L"CLAYER", name);
}

void SetVar() {
  ACHAR name[140], value[140];
  if (acedGetString(0, L"输入变量名: ", name) != RTNORM || !*name) return;
  std::wstring old;
  if (TheHost().variables.Get(name, &old) != VarResult::Ok) {
    TheHost().Print(std::wstring(L"\n未知变量名: ") + name + L"\n");
    return;
  }
  const std::wstring prompt = std::wstring(L"输入 ") + name + L" 的新值 <" + old + L">: ";
  if (acedGetString(1, prompt.c_str(), value) != RTNORM || !*value) return;
  switch (TheHost().variables.Set(name, value)) {
    case VarResult::Ok:
      break;
    case VarResult::ReadOnly:
      TheHost().Print(std::wstring(L"\n变量 ") + name + L" 只读。\n");
      break;
    default:
      TheHost().Print(L"\n值超出范围。\n");
      break;
  }
}

void UndoSteps(Document& document, int count) {
  for (int i = 0; i < count; ++i) {
    const std::wstring command = UndoLatestStep(document);
    TheHost().Print(command.empty() ? L"所有内容都已放弃。\n" : command + L"\n");
    if (command.empty()) break;
  }
  SetPickFirst(document, {});
}

void UndoOne() { UndoSteps(*CurrentDocument(), 1); }

void Redo() {
  Document& document = *CurrentDocument();
  const std::wstring command = RedoLatestStep(document);
  TheHost().Print(command.empty() ? L"没有可重做的内容。\n" : command + L"\n");
  SetPickFirst(document, {});
}

void Undo() {
  Document* document = CurrentDocument();
  int count = 1;
  ACHAR word[40];
  acedInitGet(6, L"Begin End");
  const int status = acedGetInt(L"输入要放弃的操作数目或 [开始(BE)/结束(E)] <1>: ", &count);
  if (status == RTNORM || status == RTNONE) return UndoSteps(*document, count);
  if (status != RTKWORD) return;
  acedGetInput(word);
  word[0] == L'B' ? BeginUndoGroup(*document) : EndUndoGroup(*document);
}

constexpr NativeCommand kEdit[] = {
    {L"ERASE", ACRX_CMD_USEPICKSET, Erase},
    {L"LAYER", ACRX_CMD_TRANSPARENT, Layer},
    {L"MOVE", ACRX_CMD_USEPICKSET, Move},
    {L"REDO", 0, Redo},
    {L"SETVAR", ACRX_CMD_TRANSPARENT, SetVar},
    {L"U", 0, UndoOne},
    {L"UNDO", 0, Undo},
};

}  // namespace

std::span<const NativeCommand> EditCommands() { return kEdit; }

}  // namespace devhost
