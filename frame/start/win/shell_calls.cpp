// What rooms below ask of the module while it runs, and the bring-up of the menu.
#include "aced.h"
#include "frame/commands/lisp_path.h"
#include "frame/settings/recent_commands.h"
#include "frame/start/win/shell.h"
#include "ground/unbuilt_rooms.h"
#include "ground/product_registry.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "ground/command_line.h"
#include "screenmenu/win/screen_menu.h"
#include "statusbar/drawing_scale_change.h"
#include "statusbar/win/status_panes.h"

namespace {

class LiveBringUp : public BringUpSteps {
 public:
  explicit LiveBringUp(Shell& shell) : m_shell(shell) {}

  bool FindMenu(TWCString& base) override {
    wchar_t path[MenuLoading::kPathUnits];
    if (!m_shell.Menus().Loading().FindMenuBase(path)) return false;
    base = path;
    return true;
  }
  bool FindFile(const wchar_t* name, TWCString& path) override { return qvx::FindFile(name, path); }
  int ScreenMenuSetting(const wchar_t* name, int value) override {
    qvx::ScreenMenuKey().GetValue(name, value);
    return value;
  }
  void CreateScreenMenu(bool show) override { InitScreenMenu(true, show); }
  void LoadMenuFile(const wchar_t* path) override { m_shell.Menus().Loading().CompileMenu(path); }
  void PublishLispPath() override { ::PublishLispPath(); }
  void RefreshDocStatus() override { DocStatus(); }
  void RestoreRecentCommands() override {
    if (TMenuSystem* system = m_shell.MenuSystem()) LoadRecentCommands(system->m_recent);
  }
  bool ScreenMenuHasWindow() override { return g_pScreenMenu && ::IsWindow(g_pScreenMenu->m_hWnd); }
  bool IsLimitedProduct() override { return g_nProductId == 17 && g_nVersion > 6.9; }
  void Print(const wchar_t* text) override { qvx::PrintOutsideCommand(text); }
  void StopReadinessTimer() override {
    if (CContextMenuWnd* window = TheContextWindow()) window->StopReadinessTimer();
  }
  void SendToHost(const wchar_t* text) override { qvx::SendToHost(text); }

 private:
  Shell& m_shell;
};

}  // namespace

void Shell::BringUpMenu() {
  LiveBringUp steps(*this);
  m_bringUp.Run(steps);
}

void Shell::OnMenuReadiness() {
  LiveBringUp steps(*this);
  m_bringUp.StepReadiness(steps);
}

void Shell::ShowMenuAt(TMenuBar& bar, POINT at, UINT flags) {
  ShowBlockMenu(bar, at.x, at.y, flags);
}
void Shell::ForgetPopups() {
  if (CContextMenuWnd* window = TheContextWindow()) window->ForgetLines();
}
void Shell::UpdateStatusBar() { ::UpdateStatusPanes(); }
void Shell::WriteDrawingScale() { qvx::WriteHatchScale(); }
void Shell::RefreshDrawingPanes() { ::RefreshDrawingPanes(); }
void Shell::RefreshScaleText() { ::RefreshScaleText(); }
void Shell::ResetPreviewCounters() { unbuilt::ResetPreviewCounters(); }
