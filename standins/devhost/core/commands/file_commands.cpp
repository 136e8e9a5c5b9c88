// Commands for drawings, menu groups and the program: NEW, OPEN, SAVE, CLOSE, MENULOAD, QUIT.
#include "aced.h"
#include "adslib.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/commands/close_drawings.h"
#include "devhost/core/commands/save_drawing.h"
#include "devhost/core/host/host.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

void New() { TheHost().documents.New(); }

void Open() {
  const std::wstring path = TheHost().engine.AskForFileName(L"输入图形文件名: ");
  if (!path.empty()) TheHost().documents.Open(path);
}

void Close() { CloseAsUser(*CurrentDocument()); }

void CloseAll() { CloseAllAsUser(); }

// Closes another drawing, which stays in the background.
void CloseOther() {
  const std::wstring name = TheHost().engine.AskForFileName(L"输入要关闭的图形名: ");
  if (name.empty()) return;
  Document* other = TheHost().documents.FindByName(name);
  if (!other)
    TheHost().Print(L"\n没有打开图形: " + name + L"\n");
  else
    CloseAsUser(*other);
}

void SaveAs() { SaveDrawingAs(*CurrentDocument()); }

void Save() { SaveDrawing(*CurrentDocument()); }

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

void Quit() {
  if (MayQuit()) TheHost().Ui().EndProgram();
}

constexpr NativeCommand kFile[] = {
    {L"CLOSE", 0, Close},
    {L"CLOSEALL", 0, CloseAll},
    {L"CLOSEOTHER", 0, CloseOther},
    {L"MENULOAD", 0, MenuLoad},
    {L"MENUUNLOAD", 0, MenuUnload},
    {L"NEW", 0, New},
    {L"OPEN", 0, Open},
    {L"QNEW", 0, New},
    {L"QSAVE", 0, Save},
    {L"QUIT", 0, Quit},
    {L"SAVE", 0, Save},
    {L"SAVEAS", 0, SaveAs},
};

}  // namespace

std::span<const NativeCommand> FileCommands() { return kFile; }

}  // namespace devhost
