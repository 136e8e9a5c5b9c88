#include "frame/start/menu_bring_up.h"

void MenuBringUp::Run(BringUpSteps& steps) {
  if (m_done) return;
  if (steps.ScreenMenuSetting(L"Obsolete", 0) != 0) return;
  m_done = true;
  TWCString base;
  if (!steps.FindMenu(base)) return;
  const int visible = steps.ScreenMenuSetting(L"Visible", 1);
  steps.CreateScreenMenu(visible != 0);
  base += L".qmn";
  TWCString path;
  if (steps.FindFile(base, path)) steps.LoadMenuFile(path);
  if (m_firstRun && visible == 0)
    steps.Print(L"\n屏幕菜单初始关闭,热键<Ctrl +>显示菜单,运行命令<QmnLoad>重新加载菜单");
  steps.PublishLispPath();
  steps.RefreshDocStatus();
  steps.RestoreRecentCommands();
}

void MenuBringUp::StepReadiness(BringUpSteps& steps) {
  TWCString base;
  if (!steps.FindMenu(base)) {
    steps.Print(steps.IsLimitedProduct() ? kNoMenuFound : kNoMenuFoundUseQmnLoad);
    steps.StopReadinessTimer();
  } else if (steps.ScreenMenuHasWindow()) {
    steps.StopReadinessTimer();
    if (!m_showBarPending) return;
    m_showBarPending = false;
    steps.SendToHost(L"\ntshowbar ");
  } else {
    Run(steps);
  }
}
