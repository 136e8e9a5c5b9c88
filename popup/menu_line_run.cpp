#include "popup/menu_line_run.h"

int ExecuteMenuLine(TMenuBar& bar, int id, MenuLineHost& host) {
  const TMenuItem* line = bar.FindItemById(id);
  if (!line) return 0;
  if (line->m_pSwitch) {
    qvx::AskLine(line->m_pSwitch->m_strSetFn, host.Lines());
    host.UpdateStatusBar();
    host.RefreshSwitches();
    return 1;
  }
  if (line->m_strCommand.IsEmpty()) {
    host.Print(line->m_strLabel);
    return 1;
  }
  // A copy: AddRecent may replace the line when it is an entry of the recent list.
  const TWCString command(line->m_strCommand);
  if (command[0] == L'*') {
    host.TailCommand(command + 1);
    return 1;
  }
  host.AddRecent(command);
  host.SendToHost(command);
  return 1;
}
