// What the menu engine is given.
#include "aced.h"
#include "afxwin.h"
#include "frame/settings/menu_setting.h"
#include "frame/start/win/shell.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"
#include "screenmenu/win/screen_menu.h"

TMenuSystem* ShellMenus::CurrentSystem() {
  CContextMenuWnd* window = TheContextWindow();
  return window ? &window->m_menuSystem : nullptr;
}

void ShellMenus::AttachScreenBar(TMenuSystem& system) { ::AttachScreenBar(system); }

void ShellMenus::AttachToolBar(TMenuSystem& system) {
  CContextMenuWnd* window = TheContextWindow();
  if (!window) return;
  window->m_pToolBar = PrepareToolBar(system);
  window->ForgetLines();
}

bool ShellMenus::FindFile(const wchar_t* name, wchar_t* out) {
  TWCString path;
  if (!qvx::FindFile(name, path)) return false;
  std::wcscpy(out, path);
  return true;
}

bool ShellMenus::ReadMenuSetting(wchar_t* out) {
  TWCString value;
  if (!LoadMenuSetting(value) || value.Length() >= kPathUnits) return false;
  std::wcscpy(out, value);
  return true;
}

int ShellMenus::MenuType() { return g_iMenuType; }

void ShellMenus::TempFolder(wchar_t* out) {
  if (!::GetTempPathW(kPathUnits, out)) out[0] = 0;
}

void ShellMenus::Print(const wchar_t* text) { adsout << text; }

void ShellMenus::ShowMessage(const wchar_t* text) { AfxMessageBox(text); }

bool ShellMenus::IsRunMode() { return g_nRunMode != 0; }

TMenuBar* ShellMenus::ScreenRoot() { return g_pScreenMenu ? g_pScreenMenu->RootBar() : nullptr; }
