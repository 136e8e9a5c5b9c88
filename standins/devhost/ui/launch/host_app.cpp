// The application object; see the header.
#include "devhost/ui/launch/host_app.h"

#include "devhost/core/base/journal.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/messages/message_pump.h"

namespace devhost {

BOOL HostApp::InitInstance() {
  ThePump().SetPreTranslate([this](MSG* message) { return PreTranslateMessage(message) != FALSE; });
  ThePump().SetIdleWork([this] { return RunIdle(); });
  return TRUE;
}

// Idle work of the class library, which lays out bars shown with delay; then one item of
// the core's queue.
bool HostApp::RunIdle() {
  const bool more = OnIdle(m_idleCount++) != FALSE;
  if (TheHostUi().RunWaiting()) {
    m_idleCount = 0;
    return true;
  }
  if (!more) m_idleCount = 0;
  return more;
}

int HostApp::Run() {
  while (ThePump().RunOnce()) {
  }
  MSG quit{};
  ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
  return static_cast<int>(quit.wParam);
}

BOOL HostApp::PumpMessage() { return ThePump().PumpOne(); }

int HostApp::DoMessageBox(LPCTSTR text, UINT flags, UINT helpId) {
  DialogWatch::MessageBoxScope scope;
  const int answer = CWinApp::DoMessageBox(text, flags, helpId);
  TheJournal().Record("messagebox", {{"text", Utf8(text)}, {"flags", flags}, {"answer", answer}});
  return answer;
}

}  // namespace devhost
