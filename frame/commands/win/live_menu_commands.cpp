#include "frame/commands/win/live_menu_commands.h"

#include "afxwin.h"

#include "aced.h"
#include "adslib.h"
#include "frame/start/win/icon_library.h"
#include "frame/commands/lisp_path.h"
#include "frame/settings/menu_setting.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "screenmenu/win/screen_menu.h"
#include "frame/start/shell.h"

namespace {

void Run(void (MenuCommands::*command)()) {
  if (Shell* shell = TheShell()) (shell->commands.*command)();
}

}  // namespace

void ReloadMenu() { Run(&MenuCommands::Reload); }
void ReloadMenuBySearch() { Run(&MenuCommands::ReloadBySearch); }
void ToggleRunMode() { Run(&MenuCommands::ToggleRunMode); }
void ToggleAviMode() { Run(&MenuCommands::ToggleAviMode); }

bool SetMenuFile(const wchar_t* file) {
  Shell* shell = TheShell();
  return shell && shell->commands.SetMenu(file);
}
