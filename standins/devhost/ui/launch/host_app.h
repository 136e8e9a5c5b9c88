// The application object: uses MessagePump, records message boxes in the journal, runs waiting
// input at idle time.
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
  bool RunIdle();
  DialogWatch m_dialogs;
  LONG m_idleCount = 0;
};

}  // namespace devhost
