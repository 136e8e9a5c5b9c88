// The real module with its strip of tabs in the host's frame, for tests.
#pragma once

#include "tests/module/win/module_test.h"

#include "acdocman.h"
#include "rxmfcapi.h"

using Json = nlohmann::json;

constexpr UINT kHide = 32842, kAlways = 32843, kAutomatic = 32844, kToBottom = 32845,
               kClose = 32846;

class ModuleTabs : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    SetNumber(L"Settings", L"g_bDwgTabBar", 1);
  }
  void TearDown() override {
    Module::TearDown();
    Forget(L"Settings", L"g_bDwgTabBar");
  }
  static HWND Strip() { return ::GetDlgItem(HostProcess::Get().Frame().m_hWnd, 64); }
  static Json Tabs() { return Json::parse(Shell())["tabs"]; }
  static std::string Texts() {
    std::string texts;
    const Json tabs = Tabs()["tabs"];
    for (const Json& tab : tabs) texts += tab["text"].get<std::string>() + " ";
    return texts;
  }
  static AcApDocument* New() { return devhost::TheHost().documents.New(); }
  static void FireTimer(UINT id) { ::SendMessageW(Strip(), WM_TIMER, id, 0); }
  static void Command(UINT id) { ::SendMessageW(Strip(), WM_COMMAND, id, 0); }
  static bool IsTimerSet(UINT id) { return ::KillTimer(Strip(), id); }
  // The middle of a tab in client coordinates.
  static POINT Middle(int tab) {
    const Json tabs = Tabs()["tabs"];
    POINT at{(tabs[tab]["left"].get<int>() + tabs[tab]["right"].get<int>()) / 2, 0};
    ::ScreenToClient(Strip(), &at);
    return {at.x, 5};
  }
  static void Click(int tab) {
    const POINT at = Middle(tab);
    ::SendMessageW(Strip(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageW(Strip(), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }
  static void RightClick(int tab) {
    POINT at = Middle(tab);
    ::ClientToScreen(Strip(), &at);
    ::SendMessageW(Strip(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Strip()),
                   MAKELPARAM(at.x, at.y));
  }
};
