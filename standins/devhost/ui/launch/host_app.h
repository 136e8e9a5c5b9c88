// The application object of the development host: its pump is MessagePump, its message boxes are
// kept in the journal, its idle work runs what waits in the host core.
#pragma once

#include "afxwin.h"
#include "devhost/ui/messages/dialog_watch.h"

namespace devhost {

class HostApp : public CWinApp {
 public:
  explicit HostApp(LPCTSTR name) : CWinApp(name) {}

  BOOL InitInstance() override;
  int Run() override;  // until WM_QUIT; the exit code
  BOOL PumpMessage() override;
  int DoMessageBox(LPCTSTR text, UINT flags, UINT helpId) override;

 private:
  bool IdleTurn();
  DialogWatch m_dialogs;
  LONG m_idleCount = 0;
};

}  // namespace devhost
