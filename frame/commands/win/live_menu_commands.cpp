#include "frame/commands/win/live_menu_commands.h"

#include "aced.h"
#include "adslib.h"
#include "frame/start/win/icon_library.h"
#include "frame/commands/lisp_path.h"
#include "frame/settings/menu_setting.h"
#include "frame/start/win/shell.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "screenmenu/win/screen_menu.h"

namespace {

class LiveMenuSteps : public MenuSteps {
 public:
  explicit LiveMenuSteps(ShellMenus& menus) : m_menus(menus) {}

  bool ReadMenuSetting(TWCString& value) override { return LoadMenuSetting(value); }
  void WriteMenuSetting(const wchar_t* base) override { SaveMenuSetting(base); }
  bool FindMenuBase(TWCString& base) override {
    wchar_t path[MenuLoading::kPathUnits];
    if (!m_menus.Loading().FindMenuBase(path)) return false;
    base = path;
    return true;
  }
  bool FindFile(const wchar_t* name, TWCString& path) override { return qvx::FindFile(name, path); }
  bool FindHostFile(const wchar_t* name, TWCString& path) override {
    return qvx::FindHostFile(name, path);
  }
  void ReplaceIconLibrary(const wchar_t* name) override { ::ReplaceIconLibrary(name); }
  void RecreateScreenMenu() override {
    InitScreenMenu(false, true);
    InitScreenMenu(true, true);
  }
  void CompileMenu(const wchar_t* path) override { m_menus.Loading().CompileMenu(path); }
  void LoadCompiledMenu(const wchar_t* path) override { m_menus.Loading().LoadCompiledMenu(path); }
  void PublishLispPath() override { ::PublishLispPath(); }
  void RefreshDocStatus() override { DocStatus(); }
  void ShowMessage(const wchar_t* text) override { m_menus.ShowMessage(text); }

 private:
  ShellMenus& m_menus;
};

void Run(void (MenuCommands::*command)(MenuSteps&)) {
  Shell* shell = TheShell();
  if (!shell) return;
  LiveMenuSteps steps(shell->Menus());
  (shell->Commands().*command)(steps);
}

}  // namespace

void ReloadMenu() { Run(&MenuCommands::Reload); }
void ReloadMenuBySearch() { Run(&MenuCommands::ReloadBySearch); }
void ToggleRunMode() { Run(&MenuCommands::ToggleRunMode); }
void ToggleAviMode() { Run(&MenuCommands::ToggleAviMode); }

bool SetMenuFile(const wchar_t* file) {
  Shell* shell = TheShell();
  if (!shell) return false;
  LiveMenuSteps steps(shell->Menus());
  return shell->Commands().SetMenu(steps, file);
}
