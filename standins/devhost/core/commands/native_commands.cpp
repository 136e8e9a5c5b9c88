// The host's own commands; see the header. They use the published interface as modules do.
#include "devhost/core/commands/native_commands.h"

#include <cwchar>
#include <cstdarg>
#include <filesystem>
#include <memory>

#include "aced.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/selection/selection.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

Document* Here() { return TheHost().documents.Current(); }

AcGePoint3d Of(const ads_point p) { return {p[0], p[1], p[2]}; }

void Add(AcDbEntity* entity) {
  Document* document = Here();
  std::wstring layer = L"0";
  TheHost().variables.Get(L"CLAYER", &layer);
  entity->setLayer(layer.c_str());
  auto* space = AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object());
  if (space->appendAcDbEntity(entity) != Acad::eOk) {
    delete entity;
    return;
  }
  TheHost().Ui().PictureChanged(*document);
}

void Line() {
  ads_point from{}, to{};
  if (acedGetPoint(nullptr, L"指定第一点: ", from) != RTNORM) return;
  while (acedGetPoint(from, L"指定下一点: ", to) == RTNORM) {
    Add(new AcDbLine(Of(from), Of(to)));
    std::copy(to, to + 3, from);
  }
}

void Circle() {
  ads_point center{};
  ads_real radius = 0;
  if (acedGetPoint(nullptr, L"指定圆的圆心: ", center) != RTNORM) return;
  acedInitGet(6, nullptr);
  if (acedGetDist(center, L"指定圆的半径: ", &radius) == RTNORM)
    Add(new AcDbCircle(Of(center), radius));
}

void PLine() {
  ads_point from{}, to{};
  if (acedGetPoint(nullptr, L"指定起点: ", from) != RTNORM) return;
  auto polyline = std::make_unique<AcDbPolyline>();
  polyline->addVertexAt(0, Of(from));
  for (;;) {
    acedInitGet(0, L"Close");
    const int status = acedGetPoint(from, L"指定下一点或 [闭合(C)]: ", to);
    if (status == RTKWORD) polyline->setClosed(true);
    if (status != RTNORM) break;
    polyline->addVertexAt(polyline->numVerts(), Of(to));
    std::copy(to, to + 3, from);
  }
  if (polyline->numVerts() > 1) Add(polyline.release());
}

void Text() {
  ads_point at{};
  ads_real height = 2.5, angle = 0;
  ACHAR text[140];
  std::wstring stored;
  if (TheHost().variables.Get(L"TEXTSIZE", &stored) == VarResult::Ok)
    height = std::wcstod(stored.c_str(), nullptr);
  if (acedGetPoint(nullptr, L"指定文字的起点: ", at) != RTNORM) return;
  acedInitGet(6, nullptr);
  int status = acedGetDist(at, L"指定高度: ", &height);
  if (status != RTNORM && status != RTNONE) return;
  status = acedGetAngle(at, L"指定旋转角度 <0>: ", &angle);
  if (status != RTNORM && status != RTNONE) return;
  if (acedGetString(1, L"输入文字: ", text) == RTNORM && *text)
    Add(new AcDbText(Of(at), text, height, angle));
}

// Runs over what is selected, or asks for it.
template <class F>
int ForSelected(F each) {
  ads_name set{};
  if (acedSSGet(nullptr, nullptr, nullptr, nullptr, set) != RTNORM) return 0;
  const std::vector<AcDbObjectId> ids = *SetOf(set);
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
  Document* document = Here();
  ForSelected([](AcDbEntity& entity) { entity.erase(); });
  SetPickFirst(*document, {});
}

void Move() {
  ads_name set{};
  ads_point from{}, to{};
  if (acedSSGet(nullptr, nullptr, nullptr, nullptr, set) != RTNORM) return;
  if (acedGetPoint(nullptr, L"指定基点: ", from) == RTNORM &&
      acedGetPoint(from, L"指定第二个点: ", to) == RTNORM)
    for (AcDbObjectId id : *SetOf(set))
      if (AcDbEntity* entity = AcDbEntity::cast(id.object()))
        entity->transformBy(AcGeMatrix3d::translation(Of(to) - Of(from)));
  acedSSFree(set);
}

void Zoom() {
  Document* document = Here();
  ACHAR word[40] = L"";
  ads_real factor = 0;
  acedInitGet(128, L"All Extents");
  const int status = acedGetReal(L"指定窗口或 [全部(A)/范围(E)/比例(nX)]: ", &factor);
  if (status == RTKWORD)
    acedGetInput(word);
  else if (status != RTNORM)
    return;
  wchar_t* end = nullptr;
  if (status == RTKWORD && (word[0] == L'A' || word[0] == L'E')) {
    document->view.ZoomTo(ExtentsOf(*document->database()));
  } else {
    if (status == RTKWORD) factor = std::wcstod(word, &end);  // "2X"
    if (!(factor > 0) || (end && *end && UpperCase(end) != L"X" && UpperCase(end) != L"XP")) {
      TheHost().Print(L"\n需要点或选项关键字。\n");
      return;
    }
    document->view.ZoomAt({document->view.Width() / 2, document->view.Height() / 2}, factor);
  }
  TheHost().Ui().PictureChanged(*document);
}

void Pan() {
  ads_point from{}, to{};
  Document* document = Here();
  if (acedGetPoint(nullptr, L"指定基点: ", from) != RTNORM ||
      acedGetPoint(from, L"指定第二点: ", to) != RTNORM)
    return;
  const POINT a = document->view.ToPixel(Of(from)), b = document->view.ToPixel(Of(to));
  document->view.PanBy(b.x - a.x, b.y - a.y);
  TheHost().Ui().PictureChanged(*document);
}

void Regen() {
  TheHost().Print(L"正在重生成模型。\n");
  TheHost().Ui().PictureChanged(*Here());
}

void Layer() {
  ACHAR name[140];
  if (acedGetString(0, L"输入图层名: ", name) != RTNORM || !*name) return;
  auto* table = AcDbLayerTable::cast(Here()->database()->layerTableId().object());
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

void TakeBackSteps(Document& document, int count) {
  for (int i = 0; i < count; ++i) {
    const std::wstring command = TakeBackLatest(document);
    TheHost().Print(command.empty() ? L"所有内容都已放弃。\n" : command + L"\n");
    if (command.empty()) break;
  }
  SetPickFirst(document, {});
}

void UndoOne() { TakeBackSteps(*Here(), 1); }

void Undo() {
  Document* document = Here();
  int count = 1;
  ACHAR word[40];
  acedInitGet(6, L"Begin End");
  const int status = acedGetInt(L"输入要放弃的操作数目或 [开始(BE)/结束(E)] <1>: ", &count);
  if (status == RTNORM || status == RTNONE) return TakeBackSteps(*document, count);
  if (status != RTKWORD) return;
  acedGetInput(word);
  word[0] == L'B' ? BeginUndoGroup(*document) : EndUndoGroup(*document);
}

void New() { TheHost().documents.New(); }

void Open() {
  ACHAR path[140];
  if (acedGetString(1, L"输入图形文件名: ", path) == RTNORM && *path)
    TheHost().documents.Open(path);
}

void Close() {
  Document* document = Here();
  // Alone on the drawing's stack this command may take it away; inside another it waits for that.
  if (document->commands.size() == 1) document->commands.clear();
  TheHost().documents.Close(document);
}

void CloseAll() {
  if (Here()->commands.size() == 1) Here()->commands.clear();
  std::vector<Document*> open;
  for (const auto& document : TheHost().documents.All()) open.push_back(document.get());
  for (Document* document : open) TheHost().documents.Close(document);
}

void SaveTo(Document& document, const std::wstring& path) {
  std::wstring why;
  SaveHeaderVariables(document);
  if (!WriteDrawing(path, *document.database(), &why)) {
    TheHost().Print(L"\n" + why + L"\n");
    return;
  }
  document.SetPath(path);
  document.SetHasFile();
  TheHost().Ui().DocumentTitled(document);
  TheHost().modules.SendToAll(AcRx::kSaveMsg, &document);
}

void SaveAs() {
  Document* document = Here();
  ACHAR path[140];
  if (acedGetString(1, L"输入图形文件名: ", path) != RTNORM || !*path) return;
  std::error_code error;
  SaveTo(*document, std::filesystem::absolute(std::filesystem::path(path), error).wstring());
}

void Save() {
  Document* document = Here();
  if (document->HasFile())
    SaveTo(*document, document->fileName());
  else
    SaveAs();
}

void MenuLoad() {
  ACHAR path[512];
  if (acedGetString(1, L"输入菜单文件名: ", path) != RTNORM || !*path) return;
  const std::wstring found = TheHost().FindFile(path);
  const std::wstring group = found.empty() ? L"" : TheHost().menuGroups.Load(found);
  TheHost().Print(group.empty() ? L"\n找不到菜单文件: " + std::wstring(path) + L"\n"
                                : L"\n菜单组已加载: " + group + L"\n");
}

void MenuUnload() {
  ACHAR group[512];
  if (acedGetString(1, L"输入菜单组名: ", group) != RTNORM || !*group) return;
  if (!TheHost().menuGroups.Unload(group))
    TheHost().Print(L"\n没有加载菜单组: " + std::wstring(group) + L"\n");
}

void Quit() { TheHost().Ui().EndProgram(); }

struct NativeCommand {
  const wchar_t* name;
  int flags;
  AcRxFunctionPtr function;
};

constexpr NativeCommand kNative[] = {
    {L"CIRCLE", 0, Circle},
    {L"CLOSE", 0, Close},
    {L"CLOSEALL", 0, CloseAll},
    {L"ERASE", ACRX_CMD_USEPICKSET, Erase},
    {L"LAYER", ACRX_CMD_TRANSPARENT, Layer},
    {L"LINE", 0, Line},
    {L"MENULOAD", 0, MenuLoad},
    {L"MENUUNLOAD", 0, MenuUnload},
    {L"MOVE", ACRX_CMD_USEPICKSET, Move},
    {L"NEW", 0, New},
    {L"OPEN", 0, Open},
    {L"PAN", ACRX_CMD_TRANSPARENT, Pan},
    {L"PLINE", 0, PLine},
    {L"QNEW", 0, New},
    {L"QSAVE", 0, Save},
    {L"QUIT", 0, Quit},
    {L"REGEN", 0, Regen},
    {L"SAVE", 0, Save},
    {L"SAVEAS", 0, SaveAs},
    {L"SETVAR", ACRX_CMD_TRANSPARENT, SetVar},
    {L"TEXT", 0, Text},
    {L"U", 0, UndoOne},
    {L"UNDO", 0, Undo},
    {L"ZOOM", ACRX_CMD_TRANSPARENT, Zoom},
};

}  // namespace

void RegisterNativeCommands(CommandStack& stack) {
  for (const NativeCommand& c : kNative) stack.AddNative(c.name, c.flags, c.function);
}

}  // namespace devhost

// Pairs of a type and a value: the command's name, then its input. RTNONE ends them.
int acedCommandS(int type, ...) {
  va_list args;
  va_start(args, type);
  std::vector<std::wstring> words;
  while (type != RTNONE && type != 0) {
    wchar_t number[40];
    if (type == RTSTR) {
      const ACHAR* text = va_arg(args, const ACHAR*);
      words.emplace_back(text ? text : L"");
    } else if (type == RTSHORT || type == RTLONG) {
      words.push_back(std::to_wstring(va_arg(args, int)));
    } else if (type == RTREAL) {
      std::swprintf(number, 40, L"%.16g", va_arg(args, double));
      words.emplace_back(number);
    } else {
      break;
    }
    type = va_arg(args, int);
  }
  va_end(args);
  if (words.empty()) return RTERROR;
  const std::wstring name = words[0];
  words.erase(words.begin());
  return devhost::TheHost().engine.RunNested(name, words) ? RTNORM : RTERROR;
}
