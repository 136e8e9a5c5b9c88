#include "frame/start/load_sequence.h"

#include "dialogs/win/information_commands.h"
#include "doctabs/doc_tab_bar_door.h"
#include "editor/editor_door.h"
#include "frame/commands/win/command_table.h"
#include "frame/settings/recent_commands.h"
#include "frame/start/first_start.h"
#include "frame/start/host_modules.h"
#include "frame/start/menu_engine.h"
#include "frame/start/product_names.h"
#include "frame/start/recent_files.h"
#include "frame/start/shell.h"
#include "frame/start/win/host_window.h"
#include "frame/start/win/icon_library.h"
#include "ground/message_box.h"
#include "kernel/globals.h"
#include "popup/popup_door.h"
#include "screenmenu/screen_menu_door.h"
#include "statusbar/win/status_panes.h"

namespace {

using qvx::SwitchPane;

constexpr unsigned kTabBarId = 0xE8FF;

// Not cached: the kernel, which holds the flags, is loaded by the first step.
bool Has(CustomFlag flag) { return (GetCustomFlag() & flag) != 0; }

void OnMenuReadiness() {
  if (Shell* shell = TheShell()) shell->bringUp.StepReadiness();
}

void LoadMenuIcons() {
  TWCString base;
  if (!FindMenuBase(base)) return qvx::ShowMessageBox(L"\n找不到菜单文件!");
  base += L".dll";
  ReplaceIconLibrary(base);
}

void RunCoreStart() {
  if (!Has(kNoTipsAtStart)) ShowTipsAtStart();
  LoadMenuIcons();
  InitContextWindow(true, OnMenuReadiness);
  InitMessageFilter(true);
  RegisterCommands();
  InitScreenMenuReactor(true);
  if (!Has(kNoFirstStart)) RunFirstStartModules();
  const ProductNames names = ReadProductNames();
  SetScreenMenuHelpFile(names.helpFile);
  SetCommandHelpFile(names.helpFile);
  SetFrameTitle(names.title);
  if (g_bHideCaption) HideFrameCaption();
  if (g_bAutoOpenRecent) ReopenRecentFiles();
}

void AddPanes() {
  InitStatusPane(SwitchPane::kMakeGroup, true);
  if (!Has(kNoDrawingPanes)) {
    InitStatusPane(SwitchPane::kBaseLine, true);
    InitStatusPane(SwitchPane::kFill, true);
    InitStatusPane(SwitchPane::kBoldLine, true);
    InitStatusPane(SwitchPane::kDynDim, true);
  }
  if (!Has(kNoScalePane)) InitScalePane(true);
}

// Deliberate: not the reverse of AddPanes. The base line and dynamic dimension panes are removed
// even when they were not added. The user sees no difference.
void RemovePanes() {
  InitStatusPane(SwitchPane::kMakeGroup, false);
  InitStatusPane(SwitchPane::kBaseLine, false);
  if (!Has(kNoDrawingPanes)) {
    InitStatusPane(SwitchPane::kFill, false);
    InitStatusPane(SwitchPane::kBoldLine, false);
  }
  InitStatusPane(SwitchPane::kDynDim, false);
  if (!Has(kNoScalePane)) InitScalePane(false);
}

}  // namespace

void RunLoadSequence(void* packet) {
  LoadKernel();
  UnlockModule(packet);
  RegisterMdiAware(packet);
  RunCoreStart();
  CreateDocTabBar(HostFrame(), true, kTabBarId);
  InitDocTabBar();
  AddPanes();
}

void RunUnloadSequence() {
  CommitInPlaceEdit();
  SaveGlobalToReg();
  SaveRecentCommands();
  InitScreenMenuReactor(false);
  InitScreenMenu(false, true);
  InitContextWindow(false, nullptr);
  InitMessageFilter(false);
  RemoveCommands();
  FreeIconLibrary();
  DestroyDocTabBar();
  RemovePanes();
  UnloadKernel();
}
