// The palette in a real frame, with doubles of the host and of the other rooms that record their
// calls. For the tests of the palette as a real window.
#pragma once

#include <gtest/gtest.h>

#include "afxpriv.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "tests/screenmenu/menu_fixture.h"
#include "screenmenu/palette_settings.h"
#include "screenmenu/win/screen_menu.h"
#include "tests/doubles/win/palette_host.h"
#include "tests/doubles/win/rooms.h"

namespace fixture {

using Words = std::vector<std::wstring>;

// Counts its instances, to check that the palette destroys its menu.
struct CountedBar : TMenuBar {
  CountedBar() { ++s_alive; }
  ~CountedBar() override { --s_alive; }
  inline static int s_alive = 0;
};

class Palette : public testing::Test {
 protected:
  Palette() : host(ThePaletteHost()), rooms(TheRooms()) {
    g_iMenuRowHeight = 25;
    g_bScrollBar = 1;
    g_bLimitHeight = g_bDefaultOpenFirst = g_nRunMode = 0;
    g_nProductId = 1;
    host.documents = 1;
    host.hasDatabase = true;
    host.commandActive = 0;
    host.commandNames.clear();
    host.functions.clear();
    qvx::SavePaletteState({1, 1, {120, 80}, 0, 0, 1});
    qvx::SaveActiveSubMenu(-1);
    host.OpenFrame();
    rooms = {};
    SetMenuInForce(&menu);
  }
  ~Palette() override {
    InitScreenMenu(false, true);
    SetMenuInForce(nullptr);
    rooms = {};
    host.CloseFrame();
    host.diary.clear();
  }
  void ComeUp(bool show = true) {
    InitScreenMenu(true, show);
    host.Pump();
  }
  // Two headers with a command each, one command beside them.
  void Attach() {
    auto* screen = new CountedBar;
    screen->m_strName = L"screen";
    AddLine(*AddHeader(*screen, L"墙体", new CountedBar), L"绘制墙体", L"TWall\n");
    AddLine(*AddHeader(*screen, L"门窗", new CountedBar), L"插入门", L"TDoor\n");
    AddLine(*screen, L"轴网", L"TAxis\n");
    menu.system.Append(screen);
    AttachScreenBar(menu.system);
    host.Pump();
  }
  CMenuGroup& Root() { return *g_pScreenMenu->RootGroup(); }
  void Click(CMenuGroup& group, int row) { group.Row(row)->SendMessage(BM_CLICK); }
  void FireTimer() { g_pScreenMenu->SendMessage(WM_TIMER, qvx::kSendTimer); }
  Words Sent() const {
    Words sent;
    for (const std::wstring& entry : host.diary)
      if (entry.rfind(L"sent ", 0) == 0) sent.push_back(entry.substr(5));
    return sent;
  }
  int Saved(const wchar_t* name) {
    CString path(GetRegLocation());
    TRegProperty key(path + L"\\Settings", L"ScreenMenu");
    int value = -99;
    key.GetValue(name, value);
    return value;
  }
  CRect PlaceOf(CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    return place;
  }

  PaletteHost& host;
  RoomsDouble& rooms;
  MenuDouble menu;
};

}  // namespace fixture
