#include "tests/doubles/frame_steps.h"

#include "dialogs/win/information_commands.h"
#include "editor/editor_door.h"
#include "frame/commands/lisp_path.h"
#include "frame/commands/win/command_table.h"
#include "frame/settings/menu_setting.h"
#include "frame/settings/recent_commands.h"
#include "frame/start/first_start.h"
#include "frame/start/host_modules.h"
#include "frame/start/menu_engine.h"
#include "frame/start/product_names.h"
#include "frame/start/recent_files.h"
#include "frame/start/shell.h"
#include "frame/start/win/host_window.h"
#include "frame/start/win/icon_library.h"
#include "ground/command_line.h"
#include "ground/message_box.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "popup/popup_door.h"
#include "screenmenu/screen_menu_door.h"
#include "statusbar/win/status_panes.h"

namespace {

void Note(const std::wstring& entry) { TheFrameSteps().diary.push_back(entry); }
void Note(const wchar_t* entry, const wchar_t* argument) {
  Note(std::wstring(entry) + L" " + argument);
}
void Note(bool on, const wchar_t* entry) { Note(std::wstring(on ? L"+" : L"-") + entry); }

const wchar_t* NameOf(qvx::SwitchPane pane) {
  switch (pane) {
    case qvx::SwitchPane::kMakeGroup:
      return L"group";
    case qvx::SwitchPane::kBaseLine:
      return L"baseline";
    case qvx::SwitchPane::kFill:
      return L"fill";
    case qvx::SwitchPane::kBoldLine:
      return L"bold";
    case qvx::SwitchPane::kDynDim:
      return L"dyndim";
  }
  return L"?";
}

}  // namespace

FrameSteps& TheFrameSteps() {
  static FrameSteps steps;
  return steps;
}

// Load and unload.
Shell* TheShell() { return nullptr; }
void LoadKernel() { Note(L"kernel"); }
void UnloadKernel() { Note(L"unload kernel"); }
void UnlockModule(void* packet) { Note(packet ? L"unlock" : L"unlock without its packet"); }
void RegisterMdiAware(void* packet) { Note(packet ? L"mdi aware" : L"mdi aware without packet"); }
void ShowTipsAtStart() { Note(L"tips"); }
void InitContextWindow(bool create, void (*onReadiness)()) {
  Note(create, create && !onReadiness ? L"window without readiness" : L"window");
}
void InitMessageFilter(bool add) { Note(add, L"filter"); }
void CommitInPlaceEdit() { Note(L"commit edit"); }
void RegisterCommands() { Note(L"+commands"); }
void RemoveCommands() { Note(L"-commands"); }
void InitScreenMenuReactor(bool add) { Note(add, L"reactor"); }
void RunFirstStartModules() { Note(L"first start"); }
ProductNames ReadProductNames() {
  Note(L"product file");
  return {TWCString(L"Title"), TWCString(L"a.chm")};
}
void SetScreenMenuHelpFile(const wchar_t* name) { Note(L"help file", name); }
void SetCommandHelpFile(const wchar_t* name) { Note(L"command help", name); }
void SetFrameTitle(const wchar_t* title) { Note(L"title", title); }
void HideFrameCaption() { Note(L"caption"); }
void ReopenRecentFiles() { Note(L"recent files"); }
CWnd* HostFrame() { return nullptr; }
void CreateDocTabBar(CWnd*, bool top, unsigned) { Note(top, L"tabs"); }
void InitDocTabBar() { Note(L"init tabs"); }
void DestroyDocTabBar() { Note(L"destroy tabs"); }
void InitStatusPane(qvx::SwitchPane pane, bool add) { Note(add, NameOf(pane)); }
void InitScalePane(bool add) { Note(add, L"scale"); }
void SaveGlobalToReg() { Note(L"save settings"); }
void SaveRecentCommands() { Note(L"save recent"); }
void LoadRecentCommands() { Note(L"recent"); }
void FreeIconLibrary() { Note(L"free icons"); }
void ReplaceIconLibrary(const wchar_t* name) { Note(L"icons", name); }

// The menu.
bool FindMenuBase(TWCString& base) {
  if (TheFrameSteps().base.empty()) return false;
  base = TheFrameSteps().base.c_str();
  return true;
}
void CompileMenu(const wchar_t* path) { Note(L"compile", path); }
void LoadCompiledMenu(const wchar_t* path) { Note(L"compiled", path); }
bool LoadMenuSetting(TWCString& value) {
  if (TheFrameSteps().menuSetting.empty()) return false;
  value = TheFrameSteps().menuSetting.c_str();
  return true;
}
void SaveMenuSetting(const wchar_t* base) { Note(L"remember", base); }
void InitScreenMenu(bool create, bool show) {
  Note(!create ? L"palette gone" : show ? L"palette shown" : L"palette hidden");
  TheFrameSteps().screenMenuHasWindow = create;
}
bool ScreenMenuHasWindow() { return TheFrameSteps().screenMenuHasWindow; }
void StopReadinessTimer() { Note(L"stop"); }
void PublishLispPath() { Note(L"lisp path"); }
void DocStatus() { Note(L"doc status"); }

// The host.
bool qvx::FindFile(const wchar_t* name, TWCString& path) {
  if (!TheFrameSteps().files.count(name)) return false;
  path = std::wstring(name).find(L'\\') == std::wstring::npos
             ? (std::wstring(L"C:\\s\\") + name).c_str()
             : name;
  return true;
}
bool qvx::FindHostFile(const wchar_t* name, TWCString& path) { return FindFile(name, path); }
void qvx::PrintOutsideCommand(const wchar_t* text) { Note(L"print", text); }
void qvx::SendToHost(const wchar_t* text) { Note(L"send", text); }
void qvx::ShowMessageBox(const wchar_t* text) { Note(L"box", text); }
