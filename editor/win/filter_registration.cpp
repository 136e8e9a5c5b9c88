// The module's one message filter and its registration with the host.
#include "editor/editor_door.h"

#include "afxwin.h"

#include "editor/in_place_edit.h"
#include "editor/message_filter.h"
#include "editor/win/grip_tip_wnd.h"
#include "editor/win/live_filter_host.h"
#include "ground/guard.h"
#include "rxmfcapi.h"

namespace {

bool g_isInstalled = false;

LiveFilterHost& TheFilterHost() {
  static LiveFilterHost host;
  return host;
}

qvx::MessageFilter& TheFilter() {
  static qvx::MessageFilter filter(TheFilterHost(), TheInPlaceEdit());
  return filter;
}

BOOL FilterMessage(MSG* message) {
  return qvx::GuardedOr(FALSE, [&] { return TheFilter().Filter(*message) ? TRUE : FALSE; });
}

}  // namespace

void InitMessageFilter(bool add) {
  if (add) {
    g_isInstalled = acedRegisterFilterWinMsg(FilterMessage) != FALSE;
    return;
  }
  CloseGripTip();
  if (!g_isInstalled) return;
  acedRemoveFilterWinMsg(FilterMessage);
  g_isInstalled = false;
}

void SetCommandHelpFile(const wchar_t* name) { TheFilterHost().SetHelpFile(name); }
