// The module's diagnostic exports: the state of its windows as JSON, and its settings as text.
// "handles" is the number of owned handles; those left without a screen menu and a dialog are
// leaks.
#include <string>

#include "doctabs/doc_tab_bar_door.h"
#include "editor/editor_door.h"
#include "frame/settings/settings_report.h"
#include "ground/guard.h"
#include "ground/json_text.h"
#include "ground/win/owned_handle.h"
#include "menu/menu_in_force.h"
#include "popup/win/context_menu_wnd.h"
#include "popup/win/describe_popup.h"
#include "screenmenu/win/describe_screen_menu.h"
#include "statusbar/win/status_panes.h"

namespace {

std::string RecentSection() {
  std::string json = "[";
  const TMenuSystem* system = LoadedMenu();
  for (int i = 0; system && i < system->m_recent.Length(); ++i) {
    if (i) json += ",";
    const TWCString& command = system->m_recent.At(i)->m_strCommand;
    json += qvx::JsonString(std::wstring(command));
  }
  return json + "]";
}

std::string PanesSection() {
  std::string json = "[";
  for (const ShownPane& pane : ShownPanes()) {
    if (json.size() > 1) json += ",";
    json +=
        std::string("{\"name\":\"") + pane.name + "\",\"style\":" + std::to_string(pane.style) +
        ",\"icon\":" + std::to_string(pane.icon) + ",\"tooltip\":" + qvx::JsonString(pane.toolTip) +
        ",\"text\":" + qvx::JsonString(pane.text) + ",\"rect\":" + qvx::JsonRect(pane.rect) + "}";
  }
  return json + "]";
}

}  // namespace

// UTF-8, valid until the next call; main thread only.
extern "C" __declspec(dllexport) const char* QvxDescribeShell() {
  return qvx::GuardedOr("{}", [] {
    static std::string json;
    json = "{\"screenmenu\":" + DescribeScreenMenu() + ",\"popup\":" + DescribePopup() +
           ",\"tabs\":" + DescribeDocTabs() + ",\"panes\":" + PanesSection() +
           ",\"editor\":" + DescribeInPlaceEdit() + ",\"recent\":" + RecentSection() +
           ",\"handles\":" + std::to_string(qvx::LiveHandles::Count()) +
           ",\"faults\":" + std::to_string(qvx::FaultCount()) + "}";
    return json.c_str();
  });
}

// The present settings, also while the module is not started; UTF-8, valid until the next call.
extern "C" __declspec(dllexport) const char* QvxDescribeSettings() {
  return qvx::GuardedOr("", [] {
    static std::string report;
    report = SettingsReport();
    return report.c_str();
  });
}
