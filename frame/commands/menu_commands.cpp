#include "frame/commands/menu_commands.h"

#include "frame/commands/lisp_path.h"
#include "frame/settings/menu_setting.h"
#include "frame/start/menu_engine.h"
#include "frame/start/win/icon_library.h"
#include "ground/message_box.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "kernel/tsplitpath.h"
#include "menu/menu_loading.h"
#include "screenmenu/screen_menu_door.h"

namespace {

TWCString With(const wchar_t* base, const wchar_t* extension) {
  TWCString name(base);
  name += extension;
  return name;
}

void PrepareFor(const wchar_t* base) {
  ReplaceIconLibrary(With(base, L".dll"));
  InitScreenMenu(false, true);
  InitScreenMenu(true, true);
}

void LoadByExtension(const TWCString& path) {
  const TSplitpathOperator parts(path);
  if (TWCString(parts.Extension()).EqualsNoCase(L".qmc"))
    LoadCompiledMenu(path);
  else
    CompileMenu(path);
}

}  // namespace

void MenuCommands::Reload() {
  TWCString base(L"qvx"), path;
  LoadMenuSetting(base);
  if (!qvx::FindFile(With(base, L".qmn"), path)) {
    g_iMenuType = g_nRunMode = 0;
    return;
  }
  PrepareFor(base);
  CompileMenu(path);
  PublishLispPath();
  DocStatus();
}

void MenuCommands::ReloadBySearch() {
  TWCString base, path;
  if (!FindMenuBase(base)) base = L"qvx";
  // The base may be that of a compiled file without its source.
  if (!qvx::FindFile(With(base, L".qmn"), path) && !qvx::FindFile(With(base, L".qmc"), path)) {
    qvx::ShowMessageBox(L"未找到菜单文件!");
    return;
  }
  PrepareFor(base);
  LoadByExtension(path);
}

bool MenuCommands::SetMenu(const wchar_t* file) {
  TWCString path;
  if (!file || !qvx::FindFile(file, path)) return false;
  const TWCString base = TSplitpathOperator(path).Base();
  PrepareFor(base);
  LoadByExtension(path);
  SaveMenuSetting(base);
  return true;
}

void MenuCommands::ToggleRunMode() {
  const int type = g_iMenuType, mode = g_nRunMode;
  g_nRunMode = !g_nRunMode;
  g_iMenuType = g_nRunMode ? 2 : 0;
  TWCString path;
  if (!qvx::FindFile(MenuLoading::DefaultMenuFile(g_iMenuType), path)) {
    g_iMenuType = type;
    g_nRunMode = mode;
    return;
  }
  Reload();
}

void MenuCommands::ToggleAviMode() {
  m_aviMode = !m_aviMode;
  TWCString path;
  if (!qvx::FindHostFile(m_aviMode ? L"qvxavi.qmc" : L"qvx.qmc", path)) {
    m_aviMode = !m_aviMode;
    return;
  }
  PrepareFor(L"qvx");
  LoadCompiledMenu(path);
}
