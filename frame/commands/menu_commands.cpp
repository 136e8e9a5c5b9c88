#include "frame/commands/menu_commands.h"

#include "kernel/globals.h"
#include "kernel/tsplitpath.h"
#include "menu/menu_loading.h"

namespace {

TWCString With(const wchar_t* base, const wchar_t* extension) {
  TWCString name(base);
  name += extension;
  return name;
}

void PrepareFor(MenuSteps& steps, const wchar_t* base) {
  steps.ReplaceIconLibrary(With(base, L".dll"));
  steps.RecreateScreenMenu();
}

void LoadByExtension(MenuSteps& steps, const TWCString& path) {
  const TSplitpathOperator parts(path);
  if (TWCString(parts.Extension()).EqualsNoCase(L".qmc"))
    steps.LoadCompiledMenu(path);
  else
    steps.CompileMenu(path);
}

}  // namespace

void MenuCommands::Reload(MenuSteps& steps) {
  TWCString base(L"qvx"), path;
  steps.ReadMenuSetting(base);
  if (!steps.FindFile(With(base, L".qmn"), path)) {
    g_iMenuType = g_nRunMode = 0;
    return;
  }
  PrepareFor(steps, base);
  steps.CompileMenu(path);
  steps.PublishLispPath();
  steps.RefreshDocStatus();
}

void MenuCommands::ReloadBySearch(MenuSteps& steps) {
  TWCString base, path;
  if (!steps.FindMenuBase(base)) base = L"qvx";
  if (!steps.FindFile(With(base, L".qmn"), path)) {
    steps.ShowMessage(L"未找到菜单文件!");
    return;
  }
  PrepareFor(steps, base);
  LoadByExtension(steps, path);
}

bool MenuCommands::SetMenu(MenuSteps& steps, const wchar_t* file) {
  TWCString path;
  if (!file || !steps.FindFile(file, path)) return false;
  const TWCString base = TSplitpathOperator(path).Base();
  PrepareFor(steps, base);
  LoadByExtension(steps, path);
  steps.WriteMenuSetting(base);
  return true;
}

void MenuCommands::ToggleRunMode(MenuSteps& steps) {
  const int type = g_iMenuType, mode = g_nRunMode;
  g_nRunMode = !g_nRunMode;
  g_iMenuType = g_nRunMode ? 2 : 0;
  TWCString path;
  if (!steps.FindFile(MenuLoading::DefaultMenuFile(g_iMenuType), path)) {
    g_iMenuType = type;
    g_nRunMode = mode;
    return;
  }
  Reload(steps);
}

void MenuCommands::ToggleAviMode(MenuSteps& steps) {
  m_aviMode = !m_aviMode;
  TWCString path;
  if (!steps.FindHostFile(m_aviMode ? L"qvxavi.qmc" : L"qvx.qmc", path)) {
    m_aviMode = !m_aviMode;
    return;
  }
  PrepareFor(steps, L"qvx");
  steps.LoadCompiledMenu(path);
}
