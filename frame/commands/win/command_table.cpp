#include "frame/commands/win/command_table.h"

#include "afxwin.h"

#include "accmd.h"
#include "dialogs/win/information_commands.h"
#include "editor/editor_door.h"
#include "ground/guard.h"
#include "ground/host_registry.h"
#include "frame/commands/win/live_menu_commands.h"
#include "frame/start/shell.h"
#include "frame/commands/win/show_bar.h"
#include "screenmenu/screen_menu_door.h"

namespace {

constexpr const wchar_t* kGroup = L"QVX_INITSTART";

void LoadMenu() {
  if (Shell* shell = TheShell()) shell->bringUp.Run();
}

struct CommandRow {
  const wchar_t* name;
  void (*handler)();
  int flags;
};
const CommandRow kCommands[] = {
    {L"TShowBar", qvx::GuardedHandler<ShowBar>, ACRX_CMD_MODAL},
    {L"QmnLoad", qvx::GuardedHandler<ReloadMenu>, ACRX_CMD_MODAL},
    {L"QmnLoad1", qvx::GuardedHandler<ReloadMenuBySearch>, ACRX_CMD_MODAL},
    {L"TSetRunMode", qvx::GuardedHandler<ToggleRunMode>, ACRX_CMD_MODAL},
    {L"TSetAviMode", qvx::GuardedHandler<ToggleAviMode>, ACRX_CMD_MODAL},
    {L"TFloatMenuBar", qvx::GuardedHandler<DockFloatingScreenMenu>, ACRX_CMD_MODAL},
    {L"TLoadMenu", qvx::GuardedHandler<LoadMenu>, ACRX_CMD_MODAL},
    {L"TInPlaceEdit", qvx::GuardedHandler<RunInPlaceEdit>, ACRX_CMD_USEPICKSET},
    {L"TTextEditInBlock", qvx::GuardedHandler<RunTextEditInBlock>, ACRX_CMD_TRANSPARENT},
    {L"TCurTips", qvx::GuardedHandler<ShowCurrentTips>, ACRX_CMD_TRANSPARENT},
    {L"TAbout", qvx::GuardedHandler<ShowAbout>, ACRX_CMD_TRANSPARENT},
    {L"TReportBug", qvx::GuardedHandler<ReportBug>, ACRX_CMD_TRANSPARENT},
    {L"THelp", qvx::GuardedHandler<OpenHelp>, ACRX_CMD_TRANSPARENT},
    {L"TReScreenMenu", qvx::GuardedHandler<RefreshScreenMenu>, ACRX_CMD_TRANSPARENT},
};

}  // namespace

void RegisterCommands() {
  for (const CommandRow& row : kCommands)
    if (AcEdCommandStack* stack = HostCommands())
      stack->addCommand(kGroup, row.name, row.name, row.flags, row.handler, nullptr, -1);
}

void RemoveCommands() {
  if (AcEdCommandStack* stack = HostCommands()) stack->removeGroup(kGroup);
}
