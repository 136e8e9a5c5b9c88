// LISP functions of the menu that load another one, or destroy the palette, while its
// tree is planned, its switches are refreshed or one is clicked. overwriting_delete.cpp
// makes a use after free fail.
#include "tests/screenmenu/win/palette_fixture.h"
#include "screenmenu/win/describe_screen_menu.h"

namespace {

using namespace fixture;

class ReplacedMenu : public Palette {
 protected:
  ReplacedMenu() {
    host.functions[L"get"] = [this] { return state; };
    host.functions[L"other"] = [] { return 1; };
  }
  // Rows before and after a switch on two levels, as in a loaded menu: the menu system owns its
  // switches and destroys them at the next load.
  void Load() {
    shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
    others = MakeSwitch(L"other", L"set", {L"甲", L"乙"});
    auto* screen = new TMenuBar;
    screen->m_strName = L"SCREEN";
    TMenuBar* nested = AddHeader(*screen, L"设置");
    AddSwitchLine(*nested, *shown);
    AddSwitchLine(*nested, *others);
    AddLine(*nested, L"帮助", L"THelp\n");
    AddSwitchLine(*screen, *shown);
    AddSwitchLine(*screen, *others);
    menu.system.Clear();
    menu.system.Append(screen);
    AttachScreenBar(menu.system);
  }
  // As the reload command does.
  void Reload() {
    ++reloads;
    InitScreenMenu(false, true);
    InitScreenMenu(true, true);
    Load();
  }
  // The function runs `act` at its next call only, then returns.
  void Once(const wchar_t* function, std::function<void()> act) {
    host.functions[function] = [act, done = false, this]() mutable {
      if (!std::exchange(done, true)) act();
      return state;
    };
  }
  void ExpectNoFunctionAskedSince(std::size_t entries) {
    for (std::size_t i = entries; i < host.diary.size(); ++i)
      EXPECT_NE(host.diary[i].substr(0, 5), L"lisp ") << host.diary[i].c_str();
  }
  void ExpectWholeTree() {
    host.Pump();
    ASSERT_NE(g_pScreenMenu, nullptr);
    ASSERT_NE(g_pScreenMenu->RootGroup(), nullptr);
    ASSERT_EQ(Root().RowCount(), 3);
    ASSERT_EQ(Root().Child(0)->RowCount(), 3);
    const std::wstring caption = state == 1 ? L"开" : L"关";
    for (CSMenuItem* row : {Root().Row(1), Root().Child(0)->Row(0)}) {
      CString text;
      row->GetWindowText(text);
      EXPECT_EQ(std::wstring(text), caption);
      EXPECT_TRUE(row->IsWindowEnabled());
    }
    int groups = 0;
    for (HWND child = ::GetWindow(g_pScreenMenu->m_hWnd, GW_CHILD); child;
         child = ::GetWindow(child, GW_HWNDNEXT))
      groups += DYNAMIC_DOWNCAST(CMenuGroup, CWnd::FromHandlePermanent(child)) != nullptr;
    EXPECT_EQ(groups, 1);
    EXPECT_NE(DescribeScreenMenu().find("\"rows\":["), std::string::npos);
  }

  std::unique_ptr<TMenuSwitchItem> shown, others;
  int state = 1, reloads = 0;
};

TEST_F(ReplacedMenu, AStateFunctionThatReloadsDuringPlanningLeavesTheSecondTree) {
  ComeUp();
  Once(L"get", [this] { Reload(); });
  Load();
  EXPECT_EQ(reloads, 1);
  ExpectWholeTree();
}

TEST_F(ReplacedMenu, AStateFunctionThatDestroysThePaletteDuringPlanningLeavesNone) {
  ComeUp();
  Once(L"other", [] { InitScreenMenu(false, true); });
  Load();
  EXPECT_EQ(g_pScreenMenu, nullptr);
}

TEST_F(ReplacedMenu, AMenuLoadedOnTheSamePaletteDuringPlanningReplacesTheFirst) {
  ComeUp();
  Once(L"other", [this] { Load(); });
  Load();
  ExpectWholeTree();
}

TEST_F(ReplacedMenu, AStateFunctionThatAlwaysReloadsTerminates) {
  ComeUp();
  host.functions[L"get"] = [this] {
    Reload();
    return 1;
  };
  Load();
  EXPECT_EQ(reloads, 8);
  host.functions[L"get"] = [this] { return state; };
  ASSERT_EQ(Root().RowCount(), 3);
  EXPECT_FALSE(Root().Row(1)->IsWindowEnabled()) << "it could not be asked";
}

TEST_F(ReplacedMenu, ReloadingDuringARefreshOfSwitchesEndsTheRefresh) {
  ComeUp();
  Load();
  state = 2;
  Once(L"get", [this] { Reload(); });
  RefreshScreenMenu();
  EXPECT_EQ(reloads, 1);
  ExpectWholeTree();
  Once(L"get", [] { InitScreenMenu(false, true); });
  RefreshScreenMenu();
  EXPECT_EQ(g_pScreenMenu, nullptr);
}

TEST_F(ReplacedMenu, AClickedSwitchMayReloadInItsSetOrItsStateFunction) {
  for (const wchar_t* function : {L"set", L"get"}) {
    for (int level : {0, 1}) {
      SCOPED_TRACE(testing::Message() << function << " on level " << level);
      host.functions[L"set"] = [this] { return state = 3 - state; };
      host.functions[L"get"] = [this] { return state; };
      InitScreenMenu(false, true);
      ComeUp();
      Load();
      reloads = 0;
      Once(function, [this, function] {
        if (std::wcscmp(function, L"set") == 0) state = 3 - state;
        Reload();
      });
      Click(level ? *Root().Child(0) : Root(), level ? 0 : 1);
      EXPECT_EQ(reloads, 1);
      ExpectWholeTree();
    }
  }
}

TEST_F(ReplacedMenu, ASwitchClickedWithTheMouseMayDestroyItsPalette) {
  ComeUp();
  Load();
  Once(L"set", [] { InitScreenMenu(false, true); });
  const HWND row = Root().Row(1)->m_hWnd;
  const LPARAM middle = MAKELPARAM(20, 10);
  ::SendMessageW(row, WM_MOUSEMOVE, 0, middle);
  ::SendMessageW(row, WM_LBUTTONDOWN, MK_LBUTTON, middle);
  ::SendMessageW(row, WM_LBUTTONUP, 0, middle);
  EXPECT_EQ(g_pScreenMenu, nullptr);
  EXPECT_FALSE(::IsWindow(row));
  EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ReplacedMenu, PanesThatReloadAfterASwitchEndTheRefreshOfTheOtherRows) {
  ComeUp();
  Load();
  host.functions[L"set"] = [this] { return state = 3 - state; };
  std::size_t before = 0;
  rooms.onPanes = [&] {
    Reload();
    before = host.diary.size();
  };
  Click(Root(), 1);
  rooms.onPanes = nullptr;
  EXPECT_EQ(reloads, 1);
  ExpectNoFunctionAskedSince(before);
  ExpectWholeTree();
}

TEST_F(ReplacedMenu, ASecondMenuOnThePaletteDetachesTheSwitchesFromTheOldRows) {
  ComeUp();
  Load();
  const std::size_t before = host.diary.size();
  Load();
  RefreshScreenMenu();
  Click(Root(), 1);
  ExpectNoFunctionAskedSince(before);
  EXPECT_EQ(Root().RowCount(), 3);
}

}  // namespace
