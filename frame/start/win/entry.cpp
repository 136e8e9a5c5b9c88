// The module's entry point and its exports for sibling modules. The result of every message is
// kRetOK; errors and exceptions are not reported to the host.
#include <memory>

#include "afxwin.h"

#include "doctabs/doc_tab_bar_door.h"
#include "frame/commands/win/lisp_functions.h"
#include "frame/commands/win/live_menu_commands.h"
#include "frame/start/load_sequence.h"
#include "frame/start/shell.h"
#include "ground/guard.h"
#include "kernel/globals.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"
#include "screenmenu/win/screen_menu.h"
#include "statusbar/status_bar_door.h"
#include "statusbar/win/cad_status_pane.h"

#define QVX_EXPORT extern "C" __declspec(dllexport)

namespace {

std::unique_ptr<Shell> g_shell;

void Load(void* packet) {
  g_shell = std::make_unique<Shell>();
  SetPaneMenuRefresh(RefreshScreenMenu);
  RunLoadSequence(packet);
}

void Unload() {
  if (!g_shell) return;
  RunUnloadSequence();
  g_shell.reset();
}

void StartDrawing() {
  int count = 0;
  const LispRow* rows = LispFunctions(&count);
  DefineLispFunctions(rows, count);
  DocStatus();
}

void RunLispFunction() {
  int count = 0;
  const LispRow* rows = LispFunctions(&count);
  DispatchLisp(rows, count);
}

void Dispatch(AcRx::AppMsgCode message, void* packet) {
  switch (message) {
    case AcRx::kInitAppMsg:
      Load(packet);
      break;
    case AcRx::kUnloadAppMsg:
      Unload();
      break;
    case AcRx::kLoadDwgMsg:
      StartDrawing();
      break;
    case AcRx::kInvkSubrMsg:
      RunLispFunction();
      break;
    case AcRx::kSaveMsg:
      StartTabCaptionTimer();
      break;
    default:
      break;
  }
}

}  // namespace

Shell* TheShell() { return g_shell.get(); }

QVX_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet) {
  qvx::Guarded([&] { Dispatch(message, packet); });
  return AcRx::kRetOK;
}

QVX_EXPORT void LoadContexMenu() { qvx::Guarded(ReloadMenu); }

QVX_EXPORT void LoadMenuForSun() {
  qvx::Guarded([] {
    if (!g_shell) return;
    g_shell->bringUp.Run();
    ShowScreenMenu(1);
  });
}

QVX_EXPORT void HideTabBar(int hide) {
  qvx::Guarded([&] { HideDocTabBar(hide); });
}
QVX_EXPORT void UpdateStatusBar() { qvx::Guarded(UpdateStatusPanes); }
