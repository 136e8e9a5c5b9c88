#include "editor/win/live_filter_host.h"

#include "afxwin.h"

#include <htmlhelp.h>

#include "acdocman.h"
#include "adslib.h"
#include "doctabs/doc_tab_bar_door.h"
#include "editor/live_objects.h"
#include "editor/win/grip_tip_wnd.h"
#include "ground/command_line.h"
#include "ground/host_variables.h"
#include "ground/support_files.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/host_state.h"
#include "kernel/model_number.h"
#include "kernel/native_file.h"
#include "kernel/qvxexport.h"
#include "kernel/tadsprintf.h"
#include "kernel/tsubtext.h"
#include "popup/popup_door.h"
#include "screenmenu/screen_menu_door.h"

bool LiveFilterHost::HasCurrentDocument() {
  return acDocManager && acDocManager->curDocument() != nullptr;
}
bool LiveFilterHost::HasWorkingDatabase() { return qvx::HasWorkingDatabase(); }
bool LiveFilterHost::IsHostWindow(HWND window) { return QvxExport::Tasdh1sh1ddhsj123(window); }
bool LiveFilterHost::IsDrawingReady() {
  const TDocData* data = GetCurDocData();
  return data && data->m_bReady != 0;
}

bool LiveFilterHost::IsIdle() { return IsAcadIdle(); }
bool LiveFilterHost::IsCommandLineEmpty() { return ::IsCommandLineEmpty(); }
bool LiveFilterHost::IsLispExpression() { return IsLispExpress(); }
bool LiveFilterHost::RunsCommand(const wchar_t* part) { return qvx::RunsCommand(part); }
int LiveFilterHost::CommandActive() { return qvx::CommandActive(); }
int LiveFilterHost::ShortVariable(const wchar_t* name) {
  return qvx::ShortVariable(name).value_or(0);
}
bool LiveFilterHost::IsKeyDown(int key) { return QvxExport::IsKeyPressed(key); }
TWCString LiveFilterHost::CurrentCommand() {
  const TDocData* data = GetCurDocData();
  return data ? data->CurCmdName() : L"";
}
TWCString LiveFilterHost::FullCommandName(const wchar_t* name) {
  return QvxExport::GetFullCmdName(name);
}

int LiveFilterHost::SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) {
  return qvx::SelectAtPoint(user, types, set);
}
int LiveFilterHost::SelectFence(const AcGePoint3d& from, const AcGePoint3d& to,
                                const wchar_t* types, TPickEntSet& set) {
  return qvx::SelectAlongFence(from, to, types, set);
}
int LiveFilterHost::SelectImplied(const wchar_t* types, TPickEntSet& set) {
  return qvx::SelectImpliedObjects(types, set);
}
void LiveFilterHost::ClearSelection() { acedSSSetFirst(nullptr, nullptr); }
TSubText* LiveFilterHost::HitTestOnText(TPickEntSet& set, const AcGePoint3d& world) {
  return ::HitTestOnText(set, world);
}
bool LiveFilterHost::IsFloorRectangle(const TPickEntSet& set) { return qvx::IsFloorRectangle(set); }
bool LiveFilterHost::IsEditable(const TPickEntSet& set) { return qvx::IsEditableObject(set); }
std::unique_ptr<qvx::ToggleObjects> LiveFilterHost::ObjectsToToggle(qvx::ToggleSource source) {
  return qvx::OpenToggleObjects(source);
}

void LiveFilterHost::SendToHost(const wchar_t* text) { qvx::SendToHost(text); }
void LiveFilterHost::PrintWithPrompt(const wchar_t* text) {
  adsout << text;
  qvx::PostPrompt();
}
void LiveFilterHost::ClearKeyboardBuffer() { ::ClearKeyboardBuffer(); }
void LiveFilterHost::ForwardChar(char code, int repeat, int flags) {
  if (TDocData* data = GetCurDocData()) data->OnAcadChar(code, repeat, flags);
}
void LiveFilterHost::ToggleModelNumber() { ::ToggleModelNumber(); }

bool LiveFilterHost::FindFile(const wchar_t* name, TWCString& path) {
  return qvx::FindFile(name, path);
}
bool LiveFilterHost::FindHelpFile(TWCString& path) { return qvx::FindFile(m_helpFile, path); }
bool LiveFilterHost::ReadBytes(const wchar_t* path, std::string& bytes) {
  return ReadWholeFile(path, bytes);
}
void LiveFilterHost::ShowHelp(qvx::HelpCall call, const wchar_t* helpFile, const wchar_t* keyword) {
  HH_AKLINK link{};
  link.cbStruct = sizeof link;
  link.pszKeywords = keyword;
  link.fIndexOnFail = TRUE;
  switch (call) {
    case qvx::HelpCall::kTopic:
      ::HtmlHelpW(nullptr, helpFile, HH_DISPLAY_TOPIC, 0);
      break;
    case qvx::HelpCall::kKeywordLookup:
      ::HtmlHelpW(nullptr, helpFile, HH_KEYWORD_LOOKUP, reinterpret_cast<DWORD_PTR>(&link));
      break;
    case qvx::HelpCall::kIndex:
      ::HtmlHelpW(nullptr, helpFile, HH_DISPLAY_INDEX, reinterpret_cast<DWORD_PTR>(keyword));
      break;
  }
}

void LiveFilterHost::CloseGripTip() { ::CloseGripTip(); }
bool LiveFilterHost::IsScreenMenuVisible() { return IsPaletteVisible(); }
void LiveFilterHost::ShowScreenMenu(bool show) { ShowPalette(show); }
void LiveFilterHost::HideTabBar(bool hide) { HideDocTabBar(hide); }
bool LiveFilterHost::IsInScreenMenu(POINT screen) { return ::IsInScreenMenu(screen.x, screen.y); }
bool LiveFilterHost::IsInWheelGroup(POINT screen) { return ::IsInWheelGroup(screen.x, screen.y); }
void LiveFilterHost::WheelGroup(int delta, POINT screen) {
  WheelScreenMenu(delta, screen.x, screen.y);
}
bool LiveFilterHost::HasContextWindow() { return g_pContextMenu && g_pContextMenu->GetSafeHwnd(); }
bool LiveFilterHost::ShowContextMenu(POINT screen, bool force) {
  return ::ShowContextMenu(screen.x, screen.y, force) != 0;
}
