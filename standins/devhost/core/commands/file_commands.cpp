// Commands for drawings, menu groups and the program: NEW, OPEN, SAVE, CLOSE, MENULOAD, QUIT.
#include <filesystem>

#include "aced.h"
#include "adslib.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/header_variables.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

void New() { TheHost().documents.New(); }

void Open() {
  ACHAR path[140];
  if (acedGetString(1, L"输入图形文件名: ", path) == RTNORM && *path)
    TheHost().documents.Open(path);
}

void Close() {
  Document* document = CurrentDocument();
  // CLOSE itself does not delay the closing; an enclosing command does.
  if (document->commands.size() == 1) document->commands.clear();
  TheHost().documents.Close(document);
}

void CloseAll() {
  if (CurrentDocument()->commands.size() == 1) CurrentDocument()->commands.clear();
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
  Document* document = CurrentDocument();
  ACHAR path[140];
  if (acedGetString(1, L"输入图形文件名: ", path) != RTNORM || !*path) return;
  std::error_code error;
  SaveTo(*document, std::filesystem::absolute(std::filesystem::path(path), error).wstring());
}

void Save() {
  Document* document = CurrentDocument();
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

constexpr NativeCommand kFile[] = {
    {L"CLOSE", 0, Close},       {L"CLOSEALL", 0, CloseAll},
    {L"MENULOAD", 0, MenuLoad}, {L"MENUUNLOAD", 0, MenuUnload},
    {L"NEW", 0, New},           {L"OPEN", 0, Open},
    {L"QNEW", 0, New},          {L"QSAVE", 0, Save},
    {L"QUIT", 0, Quit},         {L"SAVE", 0, Save},
    {L"SAVEAS", 0, SaveAs},
};

}  // namespace

std::span<const NativeCommand> FileCommands() { return kFile; }

}  // namespace devhost
