#include "frame/commands/win/command_table.h"

#include "afxwin.h"

#include "accmd.h"
#include "dialogs/win/information_commands.h"
#include "ground/host_registry.h"
#include "frame/commands/win/live_menu_commands.h"
#include "frame/start/shell.h"
#include "frame/commands/win/show_bar.h"
#include "ground/unbuilt_rooms.h"
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
    {L"TShowBar", ShowBar, ACRX_CMD_MODAL},
    {L"QmnLoad", ReloadMenu, ACRX_CMD_MODAL},
    {L"QmnLoad1", ReloadMenuBySearch, ACRX_CMD_MODAL},
    {L"TSetRunMode", ToggleRunMode, ACRX_CMD_MODAL},
    {L"TSetAviMode", ToggleAviMode, ACRX_CMD_MODAL},
    {L"TFloatMenuBar", DockFloatingScreenMenu, ACRX_CMD_MODAL},
    {L"TLoadMenu", LoadMenu, ACRX_CMD_MODAL},
    {L"TInPlaceEdit", unbuilt::InPlaceEdit, ACRX_CMD_USEPICKSET},
    {L"TTextEditInBlock", unbuilt::TextEditInBlock, ACRX_CMD_TRANSPARENT},
    {L"TCurTips", ShowCurrentTips, ACRX_CMD_TRANSPARENT},
    {L"TAbout", ShowAbout, ACRX_CMD_TRANSPARENT},
    {L"TReportBug", ReportBug, ACRX_CMD_TRANSPARENT},
    {L"THelp", OpenHelp, ACRX_CMD_TRANSPARENT},
    {L"TReScreenMenu", RefreshScreenMenu, ACRX_CMD_TRANSPARENT},
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
