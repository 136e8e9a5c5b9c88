#include "frame/start/menu_bring_up.h"

#include "frame/commands/lisp_path.h"
#include "frame/settings/recent_commands.h"
#include "frame/start/menu_engine.h"
#include "ground/command_line.h"
#include "ground/product_registry.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "popup/popup_door.h"
#include "screenmenu/screen_menu_door.h"

namespace {

constexpr const wchar_t* kNoMenuFound = L"\n未找到所需的qmn菜单文件!请重新安装奇维软件。";
constexpr const wchar_t* kNoMenuFoundUseQmnLoad =
    L"\n未找到所需的qmn菜单文件!请重新安装奇维软件，或在命令行运行<QMNLOAD>命令加载菜单文件。";

int ScreenMenuSetting(const wchar_t* name, int value) {
  qvx::ScreenMenuKey().GetValue(name, value);
  return value;
}

// Product 17 has no QMNLOAD from version 7 on, so the message does not name it.
bool IsLimitedProduct() { return g_nProductId == 17 && g_nVersion > 6.9; }

}  // namespace

void MenuBringUp::Run() {
  if (m_done) return;
  if (ScreenMenuSetting(L"Obsolete", 0) != 0) return;
  m_done = true;
  TWCString base;
  if (!FindMenuBase(base)) return;
  const int visible = ScreenMenuSetting(L"Visible", 1);
  InitScreenMenu(true, visible != 0);
  base += L".qmn";
  TWCString path;
  if (qvx::FindFile(base, path)) CompileMenu(path);
  if (m_firstRun && visible == 0)
    qvx::PrintOutsideCommand(
        L"\n屏幕菜单初始关闭,热键<Ctrl +>显示菜单,运行命令<QmnLoad>重新加载菜单");
  PublishLispPath();
  DocStatus();
  LoadRecentCommands();
}

void MenuBringUp::StepReadiness() {
  TWCString base;
  if (!FindMenuBase(base)) {
    qvx::PrintOutsideCommand(IsLimitedProduct() ? kNoMenuFound : kNoMenuFoundUseQmnLoad);
    StopReadinessTimer();
  } else if (ScreenMenuHasWindow()) {
    StopReadinessTimer();
    if (!m_showBarPending) return;
    m_showBarPending = false;
    qvx::SendToHost(L"\ntshowbar ");
  } else {
    Run();
  }
}
