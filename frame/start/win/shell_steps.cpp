// The steps of both sequences, one after the other as the sequences name them. A step whose room is
// not built goes to unbuilt_rooms.
#include <string>

#include "acdocman.h"
#include "aced.h"
#include "dialogs/win/information_commands.h"
#include "ground/product_section.h"
#include "frame/settings/comma_list.h"
#include "frame/commands/win/command_table.h"
#include "frame/start/first_start.h"
#include "ground/host_registry.h"
#include "ground/support_files.h"
#include "frame/start/win/host_window.h"
#include "frame/start/win/icon_library.h"
#include "frame/settings/recent_commands.h"
#include "frame/start/win/shell.h"
#include "ground/unbuilt_rooms.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "kernel/tsplitpath.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"
#include "screenmenu/win/screen_menu.h"
#include "screenmenu/win/screen_menu_reactor.h"
#include "statusbar/win/status_panes.h"

namespace {

qvx::SwitchPane SwitchOf(StatusPane pane) {
  switch (pane) {
    case StatusPane::kBaseLine:
      return qvx::SwitchPane::kBaseLine;
    case StatusPane::kFill:
      return qvx::SwitchPane::kFill;
    case StatusPane::kBoldLine:
      return qvx::SwitchPane::kBoldLine;
    case StatusPane::kDynDim:
      return qvx::SwitchPane::kDynDim;
    case StatusPane::kMakeGroup:
      break;
  }
  return qvx::SwitchPane::kMakeGroup;
}

}  // namespace

int Shell::CustomFlags() { return GetCustomFlag(); }

void Shell::LoadKernel() {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->loadModule(L"qvx_kernal.arx", false, false);
}

void Shell::UnlockModule() { acrxUnlockApplication(m_packet); }

void Shell::RegisterMdiAware() {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->registerAppMDIAware(m_packet);
}

void Shell::ShowTipsAtStart() { ::ShowTipsAtStart(); }

void Shell::LoadIconLibrary() {
  wchar_t base[MenuLoading::kPathUnits];
  if (!m_menus.Loading().FindMenuBase(base)) {
    AfxMessageBox(L"\n找不到菜单文件!");
    return;
  }
  ReplaceIconLibrary((std::wstring(base) + L".dll").c_str());
}

void Shell::InitContextWindow(bool create) {
  ::InitContextWindow(create, this);
  CContextMenuWnd* window = TheContextWindow();
  if (window) window->m_menuSystem.m_recent.SetSources(&m_menus);
  qvx::SetScreenMenuHost(window ? this : nullptr);
}

void Shell::InitMessageFilter(bool add) { unbuilt::InitMessageFilter(add); }
void Shell::InitCommands(bool add) { add ? RegisterCommands() : RemoveCommands(); }
void Shell::InitScreenMenuReactor(bool add) { ::InitScreenMenuReactor(add); }

void Shell::RunFirstStartModules() {
  if (HasStartedBefore(g_dHostVersion)) return;
  TWCStringList names;
  FindFirstStartModules(names);
  for (int i = 0; i < names.Length(); ++i)
    if (!QvxExport::IsArxAppLoaded(TSplitpathOperator(names[i]).FileName()))
      acrxLoadModule(names[i], true, true);
}

void Shell::ReadProductFile() {
  const qvx::ProductSection product;
  if (!product.IsThere()) return;
  m_title = product.Value(L"Title");
  m_helpFile = product.Value(L"HelpFile");
}

void Shell::SetFrameTitle() { ::SetFrameTitle(m_title); }
bool Shell::HidesCaption() { return g_bHideCaption != 0; }
void Shell::HideFrameCaption() { ::HideFrameCaption(); }
bool Shell::ReopensRecentFiles() { return g_bAutoOpenRecent != 0; }

void Shell::QueueRecentFiles() {
  CContextMenuWnd* window = TheContextWindow();
  AcApDocManager* documents = acDocManagerPtr();
  if (window && documents && documents->isApplicationContext()) {
    TWCStringList files;
    SplitCommaList(g_sRecentFiles, files);
    for (int i = 0; i < files.Length(); ++i)
      if (qvx::FindFile(files[i])) window->m_openQueue.Append(new CString(files[i].c_str()));
  }
  g_sRecentFiles.Empty();
  if (window) window->StartOpening();
}

void Shell::CreateDocTabBar() {
  unbuilt::CreateDocTabBar();
  unbuilt::InitDocTabBar();
}

void Shell::InitPane(StatusPane pane, bool add) { ::InitStatusPane(SwitchOf(pane), add); }
void Shell::InitScalePane(bool add) { ::InitScalePane(add); }

void Shell::SaveSettings() { SaveGlobalToReg(); }

void Shell::SaveRecentCommands() {
  if (CContextMenuWnd* window = TheContextWindow())
    ::SaveRecentCommands(window->m_menuSystem.m_recent);
}

void Shell::RemoveScreenMenu() { InitScreenMenu(false, true); }
void Shell::FreeIconLibrary() { ::FreeIconLibrary(); }
void Shell::DestroyDocTabBar() { unbuilt::DestroyDocTabBar(); }

void Shell::UnloadKernel() {
  if (AcRxDynamicLinker* linker = HostLinker()) linker->unloadModule(L"qvx_kernal.arx", false);
}
