// The module's one living object: what is alive from load to unload and belongs to no single room.
// It implements what the sequences, the menu commands and the rooms below ask of the module; each
// member function is one step told in one call. Made by the entry function, gone after unload.
#pragma once

#include "frame/start/load_sequence.h"
#include "frame/start/menu_bring_up.h"
#include "frame/commands/menu_commands.h"
#include "menu/menu_loading.h"
#include "popup/win/context_menu_wnd.h"
#include "screenmenu/screen_menu_host.h"

// The menu engine's view of the module: files, settings, printing, boxes, and who uses the blocks.
class ShellMenus : public MenuUsers,
                   public MenuFiles,
                   public MenuPrinter,
                   public MenuBoxes,
                   public RecentSources {
 public:
  MenuLoading& Loading() { return m_loading; }

  TMenuSystem* CurrentSystem() override;
  void AttachScreenBar(TMenuSystem& system) override;
  void AttachToolBar(TMenuSystem& system) override;
  bool FindFile(const wchar_t* name, wchar_t* out) override;
  bool ReadMenuSetting(wchar_t* out) override;
  int MenuType() override;
  void TempFolder(wchar_t* out) override;
  void Print(const wchar_t* text) override;
  void ShowMessage(const wchar_t* text) override;
  bool IsRunMode() override;
  TMenuBar* ScreenRoot() override;

 private:
  MenuLoading m_loading{*this, *this, *this, *this};
};

class Shell : public ShellSteps, public StartupSteps, public qvx::ScreenMenuHost {
 public:
  explicit Shell(void* packet) : m_packet(packet) {}

  void BringUpMenu();
  MenuCommands& Commands() { return m_commands; }
  ShellMenus& Menus() { return m_menus; }

  // ShellSteps.
  int CustomFlags() override;
  void LoadKernel() override;
  void UnlockModule() override;
  void RegisterMdiAware() override;
  void ShowTipsAtStart() override;
  void LoadIconLibrary() override;
  void RunFirstStartModules() override;
  void ReadProductFile() override;
  void SetFrameTitle() override;
  bool HidesCaption() override;
  void HideFrameCaption() override;
  bool ReopensRecentFiles() override;
  void QueueRecentFiles() override;
  void CreateDocTabBar() override;
  void InitContextWindow(bool create) override;
  void InitMessageFilter(bool add) override;
  void InitCommands(bool add) override;
  void InitScreenMenuReactor(bool add) override;
  void InitPane(StatusPane pane, bool add) override;
  void InitScalePane(bool add) override;
  void SaveSettings() override;
  void SaveRecentCommands() override;
  void RemoveScreenMenu() override;
  void FreeIconLibrary() override;
  void DestroyDocTabBar() override;
  void UnloadKernel() override;

  // StartupSteps.
  void OnMenuReadiness() override;

  // ScreenMenuHost.
  TMenuSystem* MenuSystem() override { return m_menus.CurrentSystem(); }
  void ShowMenuAt(TMenuBar& bar, POINT at, UINT flags) override;
  void ForgetPopups() override;
  void UpdateStatusBar() override;
  const wchar_t* HelpFile() override { return m_helpFile; }
  void WriteDrawingScale() override;
  void RefreshDrawingPanes() override;
  void RefreshScaleText() override;
  void ResetPreviewCounters() override;

 private:
  void* m_packet;  // of the host, valid during the load
  ShellMenus m_menus;
  MenuCommands m_commands;
  MenuBringUp m_bringUp;
  TWCString m_title, m_helpFile;  // of the product file
};

Shell* TheShell();  // null before load and after unload
