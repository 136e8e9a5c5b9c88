// Pop-ups on the screen: rows of a real native menu, choices by real menu keys, help on the
// status line, and no leaks.
#include <gtest/gtest.h>

#include <functional>

#include "afxpriv.h"
#include "kernel/globals.h"
#include "popup/win/context_menu_wnd.h"
#include "popup/win/describe_popup.h"
#include "tests/doubles/win/palette_host.h"
#include "tests/doubles/win/rooms.h"
#include "tests/screenmenu/menu_fixture.h"

namespace {

using namespace fixture;
using Words = std::vector<std::wstring>;

std::vector<std::wstring> g_statusTexts;

// Called when the menu is idle: all is painted and no input waits.
std::function<void()> g_whenIdle;

LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (code >= 0 && sent.message == WM_ENTERIDLE && sent.wParam == MSGF_MENU && g_whenIdle)
    g_whenIdle();
  if (code >= 0 && sent.message == WM_SETMESSAGESTRING && sent.lParam)
    g_statusTexts.push_back(reinterpret_cast<const wchar_t*>(sent.lParam));
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

class PopupShow : public testing::Test {
 protected:
  PopupShow() : host(ThePaletteHost()) {
    host.OpenFrame();
    host.diary.clear();
    host.functions.clear();
    TheRooms() = {};
    InitContextWindow(true, [] {});
    g_nRunMode = 0;
    g_nSpeedMenu = 1;
    g_dHostVersion = 24.0;
    hook = ::SetWindowsHookExW(WH_CALLWNDPROC, OnSent, nullptr, ::GetCurrentThreadId());
    common = new TMenuBar;
    common->m_strName = L"COMMON";
    System().Append(common);
  }
  ~PopupShow() override {
    g_whenIdle = nullptr;
    ::UnhookWindowsHookEx(hook);
    InitContextWindow(false, nullptr);
    host.CloseFrame();
    g_hQvxDll = nullptr;
  }
  TMenuSystem& System() { return *LoadedMenu(); }
  static CContextMenuWnd& Window() { return *TheContextWindow(); }

  struct Step {
    Step(std::function<void()> look) : run(std::move(look)) {}
    explicit Step(UINT message, WPARAM key)
        : run([=] { ::PostMessageW(Window().m_hWnd, message, key, 0); }), isInput(true) {}
    std::function<void()> run;
    bool isInput = false;  // the next step waits until the menu is idle
  };
  static Step Key(WPARAM key) { return Step(WM_KEYDOWN, key); }
  static Step Letter(wchar_t letter) { return Step(WM_CHAR, letter); }

  // Runs the steps while the menu is shown; after the last one the menu is dismissed.
  int Show(std::vector<Step> idleSteps) {
    size_t next = 0;
    g_whenIdle = [&, steps = std::move(idleSteps)] {
      while (next < steps.size()) {
        const Step& step = steps[next++];
        step.run();
        if (step.isInput) return;
      }
      ::EndMenu();
    };
    const int result = ShowContextMenu(300, 200, 0);
    g_whenIdle = nullptr;
    host.Pump();
    return result;
  }
  Words Sent() const {
    Words sent;
    for (const std::wstring& entry : host.diary)
      if (entry.rfind(L"sent ", 0) == 0) sent.push_back(entry.substr(5));
    return sent;
  }

  PaletteHost& host;
  TMenuBar* common = nullptr;
  HHOOK hook = nullptr;
};

TEST_F(PopupShow, AChosenLineSendsItsCommandAndIsAddedToTheRecentOnes) {
  AddLine(*common, L"甲", L"A\n");
  AddLine(*common, L"乙", L"B\n");
  Show({Key(VK_DOWN), Key(VK_DOWN), Key(VK_DOWN), Key(VK_RETURN)});
  EXPECT_EQ(Sent(), Words{L"B\n"}) << "the second row is that of the recent commands";
  ASSERT_EQ(System().m_recent.Length(), 1);
  EXPECT_EQ(System().m_recent.At(0)->m_strLabel, L"乙") << "of the line it came from";
  EXPECT_NE(Window().Bar(), nullptr) << "kept until the next one";
  EXPECT_GT(Window().Popups().Length(), 0);
}

TEST_F(PopupShow, TheDescriptionHasEveryRowWithItsStateAndItsRectangle) {
  AddLine(*common, L"甲(&A)\tF1", L"A\n");
  AddLine(*common, L"--");
  AddLine(*common, L"空");
  AddLine(*AddHeader(*common, L"下"), L"底", L"D\n");
  std::string seen;
  Show({Step([&] { seen = DescribePopup(); })});
  EXPECT_NE(seen.find("\"open\":true"), std::string::npos);
  EXPECT_NE(seen.find("{\"label\":\"甲(&A)\\u0009F1\",\"id\":2000,\"enabled\":true"),
            std::string::npos)
      << seen;
  EXPECT_NE(seen.find("\"label\":\"最近命令\",\"id\":0,\"enabled\":true"), std::string::npos);
  EXPECT_NE(seen.find("\"separator\":true"), std::string::npos);
  EXPECT_NE(seen.find("{\"label\":\"空\",\"id\":2002,\"enabled\":false"), std::string::npos)
      << seen;
  EXPECT_NE(seen.find("\"rows\":[{\"label\":\"底\",\"id\":2003"), std::string::npos);
  EXPECT_EQ(seen.find("\"rect\":[0,0,0,0],\"rows\":[{"), std::string::npos) << seen;
  EXPECT_EQ(DescribePopup(), "{\"open\":false,\"rows\":[]}");
}

TEST_F(PopupShow, ALetterRunsTheFirstRowThatUnderlinesIt) {
  AddLine(*common, L"O 甲", L"A\n");
  AddLine(*common, L"乙(&o)", L"B\n");
  AddLine(*common, L"丙(&O)", L"C\n");
  Show({Letter(L'O')});
  EXPECT_EQ(Sent(), Words{L"B\n"});
}

TEST_F(PopupShow, ASubMenuIsReachedByKeysAloneAndItsLineRuns) {
  AddLine(*AddHeader(*AddHeader(*common, L"下"), L"更下"), L"底", L"D\n");
  Show({Key(VK_DOWN), Key(VK_RIGHT), Key(VK_RIGHT), Key(VK_RETURN)});
  EXPECT_EQ(Sent(), Words{L"D\n"});
}

TEST_F(PopupShow, ASwitchAdvancesSilentlyDuringACommand) {
  System().m_switches.Append(MakeSwitch(L"get", L"set", {L"关", L"开"}).release());
  AddSwitchLine(*common, *System().m_switches.At(0));
  int state = 1;
  host.functions[L"get"] = [&] { return state; };
  host.functions[L"set"] = [&] { return state = 3 - state; };
  host.commandActive = 1;
  host.commandNames = L"LINE";
  std::string shown;
  Show({Step([&] { shown = DescribePopup(); }), Key(VK_DOWN), Key(VK_RETURN)});
  EXPECT_NE(shown.find("\"label\":\"关\""), std::string::npos) << shown;
  EXPECT_EQ(state, 2);
  EXPECT_EQ(TheRooms().panesUpdated, 1);
  EXPECT_TRUE(Sent().empty());
  Show({Step([&] { shown = DescribePopup(); })});
  EXPECT_NE(shown.find("\"label\":\"开\""), std::string::npos) << shown;
  host.commandActive = 0;
  host.commandNames.clear();
}

TEST_F(PopupShow, ARowsHelpIsShownOnTheStatusLineWhileItIsSelected) {
  AddResource(System(), L"a", L"", L"画墙");
  AddLine(*common, L"甲", L"A\n")->m_nIconIndex = 0;
  AddLine(*common, L"乙", L"B\n");
  g_hQvxDll = ::GetModuleHandleW(nullptr);
  g_statusTexts.clear();
  int during = 0;
  Show({Key(VK_DOWN), Step([&] { during = Window().IsHelpShown(); })});
  EXPECT_EQ(during, 1);
  EXPECT_EQ(Window().IsHelpShown(), 0) << "given back as the loop ends";
  EXPECT_EQ(g_statusTexts, Words{L"画墙"});
  Show({Key(VK_DOWN), Key(VK_UP)});
  EXPECT_EQ(g_statusTexts, (Words{L"画墙", L"画墙", L""})) << "no help clears the line";
  g_hQvxDll = nullptr;
  Show({Key(VK_DOWN), Step([&] { during = Window().IsHelpShown(); })});
  EXPECT_EQ(during, 0) << "without an icon library there are no helps";
}

TEST_F(PopupShow, InRunModeAndInOtherBlocksThereIsNoLineOfRecentCommands) {
  AddLine(*common, L"甲", L"A\n");
  g_nRunMode = 1;
  Show({});
  EXPECT_EQ(common->Length(), 1);
  g_nRunMode = 0;
  common->m_strName = L"Common";
  Show({});
  EXPECT_EQ(common->Length(), 1) << "found whatever its case, but not the one of that very name";
  common->m_strName = L"COMMON";
  Show({});
  Show({});
  EXPECT_EQ(common->Length(), 2);
}

TEST_F(PopupShow, WithoutAViewThereIsNoMenuAtAPointAndWithoutABlockNoContextMenu) {
  AddLine(*common, L"甲", L"A\n");
  const HWND view = host.view.Detach();
  EXPECT_EQ(ShowBlockMenu(*common, 300, 200, 0), 0);
  EXPECT_EQ(Window().Menu(), nullptr);
  host.view.Attach(view);
  common->m_strName = L"OTHER";
  EXPECT_EQ(Show({}), 0);
  EXPECT_EQ(Window().Bar(), nullptr);
  g_nSpeedMenu = 2;
  common->m_strName = L"COMMON";
  EXPECT_EQ(Show({}), 0);
}

TEST_F(PopupShow, ABlockOfAnotherModuleIsNumberedFromThreeThousand) {
  TMenuBar other;
  TMenuItem* line = AddLine(other, L"甲", L"A\n");
  g_whenIdle = [] { ::EndMenu(); };
  ShowBlockMenu(other, 300, 200, TPM_LEFTALIGN);
  EXPECT_EQ(line->m_nCommandId, 3000);
  EXPECT_EQ(Window().Bar(), &other);
  EXPECT_EQ(other.FindItemByLabel(L"最近命令"), nullptr);
  Window().ResetPopups();
}

TEST_F(PopupShow, ASecondPopUpInsideTheFirstIsRefusedAndTheFirstStays) {
  AddLine(*common, L"甲", L"A\n");
  int second = -1, alive = 0;
  Show({Step([&] {
    second = ShowContextMenu(10, 10, 1);
    Window().ResetPopups();
    alive = Window().Popups().Length();
  })});
  EXPECT_EQ(second, 0);
  EXPECT_EQ(alive, 2);
}

TEST_F(PopupShow, AMenuThatIsReplacedWhileItsPopUpShowsClosesIt) {
  AddLine(*common, L"甲", L"A\n");
  Show({Step([&] {
    System().EmptyLists();
    ForgetMenuLines();
  })});
  EXPECT_EQ(Window().Bar(), nullptr);
  ::SendMessageW(Window().m_hWnd, WM_COMMAND, 2000, 0);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(PopupShow, AStoredPopUpDropsLinesThatAreDestroyed) {
  auto bar = std::make_unique<TMenuBar>();
  AddLine(*bar, L"甲", L"A\n");
  g_whenIdle = [] { ::EndMenu(); };
  ShowBlockMenu(*bar, 300, 200, 0);
  ForgetMenuLines();
  bar.reset();
  EXPECT_EQ(Window().Bar(), nullptr);
  EXPECT_EQ(Window().Popups().Length(), 0);
  ::SendMessageW(Window().m_hWnd, WM_COMMAND, 3000, 0);
  EXPECT_TRUE(Sent().empty());
}

TEST_F(PopupShow, OnlyItsOwnMenusHandleLetters) {
  AddLine(*common, L"甲(&A)", L"A\n");
  Show({});
  CBitmapMenu foreign;
  foreign.CreatePopupMenu();
  const auto ask = [](HMENU menu) {
    return ::SendMessageW(Window().m_hWnd, WM_MENUCHAR, MAKEWPARAM(L'a', MF_POPUP),
                          reinterpret_cast<LPARAM>(menu));
  };
  EXPECT_EQ(ask(foreign.m_hMenu), 0);
  EXPECT_EQ(ask(Window().Menu()->m_hMenu), MAKELRESULT(0, MNC_EXECUTE));
}

TEST_F(PopupShow, ABlockOfFiveHundredLinesAndThirtyNestedSubMenusIsShown) {
  for (int i = 0; i < 500; ++i) AddLine(*common, std::wstring(255, L'墙').c_str(), L"A\n");
  TMenuBar* at = common;
  for (int depth = 0; depth < 30; ++depth) at = AddHeader(*at, L"下");
  AddLine(*at, L"底", L"D\n");
  std::string shown;
  Show({Step([&] { shown = DescribePopup(); })});
  EXPECT_NE(shown.find("\"label\":\"底\",\"id\":2501"), std::string::npos);
  EXPECT_EQ(Window().Popups().Length(), 32);
}

TEST_F(PopupShow, MissingFunctionsAndIconsStillShowTheirRows) {
  AddResource(System(), L"a", L"BMP_NO_SUCH");
  System().m_switches.Append(MakeSwitch(L"missing", L"missing", {L"关"}).release());
  AddSwitchLine(*common, *System().m_switches.At(0));
  TMenuItem* line = AddLine(*common, L"甲", L"A\n");
  line->m_nIconIndex = 0;
  line->m_nFlags = TMenuItem::kHasGrayFn | TMenuItem::kHasCheckFn;
  line->m_strGrayFn = line->m_strCheckFn = L"missing";
  g_hQvxDll = ::GetModuleHandleW(nullptr);
  std::string shown;
  Show({Step([&] { shown = DescribePopup(); })});
  EXPECT_NE(shown.find("\"label\":\"开关\",\"id\":2000,\"enabled\":false"), std::string::npos)
      << shown;
  EXPECT_NE(shown.find("\"label\":\"甲\",\"id\":2002,\"enabled\":true,\"checked\":false"),
            std::string::npos)
      << shown;
}

int ThreadWindows() {
  int count = 0;
  ::EnumThreadWindows(
      ::GetCurrentThreadId(),
      [](HWND, LPARAM counter) {
        ++*reinterpret_cast<int*>(counter);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

TEST_F(PopupShow, AThousandPopUpsLeakNothing) {
  System().m_switches.Append(MakeSwitch(L"get", L"set", {L"关", L"开"}).release());
  host.functions[L"get"] = [] { return 1; };
  AddSwitchLine(*common, *System().m_switches.At(0));
  AddLine(*common, L"甲\tF1", L"A\n");
  AddLine(*AddHeader(*common, L"下"), L"底", L"D\n");
  Show({});
  Window().ResetPopups();
  const int handles = qvx::LiveHandles::Count(), menus = CBitmapMenu::Alive();
  const int windows = ThreadWindows();
  std::vector<HMENU> gone;
  for (int i = 0; i < 1000; ++i) {
    Show({});
    for (const CBitmapMenu* menu : Window().Popups()) gone.push_back(menu->m_hMenu);
    if (i % 100 == 0) host.diary.clear();
  }
  EXPECT_EQ(CBitmapMenu::Alive(), menus + 3) << "the last one is kept";
  Window().ResetPopups();
  EXPECT_EQ(CBitmapMenu::Alive(), menus);
  EXPECT_EQ(qvx::LiveHandles::Count(), handles);
  EXPECT_EQ(ThreadWindows(), windows);
  for (const HMENU menu : gone) EXPECT_FALSE(::IsMenu(menu));
}

}  // namespace
