// Both menus of the strip as they are on the screen, what their timer does, and the tip.
#include "tests/doctabs/win/module_tabs.h"

#include <functional>

namespace {

constexpr UINT kSaveAll = 32848;
using Rows = std::vector<std::string>;

// Of the menu that opened last.
struct SeenMenu {
  int count = 0;  // menus opened
  HMENU menu = nullptr;
  HWND owner = nullptr;
  RECT place{};
  Rows rows;
};
SeenMenu g_seen;
std::function<void()> g_whenIdle;  // called once when the menu waits for input

Rows RowsOf(HMENU menu) {
  Rows rows;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
    wchar_t text[100] = L"";
    ::GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
    const UINT id = ::GetMenuItemID(menu, i);
    rows.push_back(id ? std::to_string(id) + " " + devhost::Utf8(text) : "-");
  }
  return rows;
}

LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (code >= 0 && sent.message == WM_INITMENUPOPUP) {
    ++g_seen.count;
    g_seen.menu = reinterpret_cast<HMENU>(sent.wParam);
    g_seen.owner = sent.hwnd;
    g_seen.rows = RowsOf(g_seen.menu);
  }
  if (code >= 0 && sent.message == WM_ENTERIDLE && sent.wParam == MSGF_MENU && g_whenIdle) {
    ::GetWindowRect(reinterpret_cast<HWND>(sent.lParam), &g_seen.place);
    std::exchange(g_whenIdle, nullptr)();
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

class TabMenus : public ModuleTabs {
 protected:
  void SetUp() override {
    ModuleTabs::SetUp();
    g_seen = {};
    m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, OnSent, nullptr, ::GetCurrentThreadId());
  }
  void TearDown() override {
    ::UnhookWindowsHookEx(m_hook);
    g_whenIdle = nullptr;
    ModuleTabs::TearDown();
  }
  // Calls `open`; a menu that opens meanwhile is dismissed after `look`.
  static void Show(
      const std::function<void()>& open, const std::function<void()>& look = [] {}) {
    g_whenIdle = [look] {
      look();
      ::EndMenu();
    };
    open();
    g_whenIdle = nullptr;
  }
  static void ContextMenu(int screenX, int screenY) {
    ::SendMessageW(Strip(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Strip()),
                   MAKELPARAM(screenX, screenY));
  }
  static RECT ScreenClient() {
    const Json tabs = Tabs();
    return {tabs["rect"][0], tabs["rect"][1], tabs["rect"][2], tabs["rect"][3]};
  }
  static void ShowStripMenu() {
    const RECT box = ScreenClient();
    ContextMenu(box.right - 2, box.top + 5);
  }

  HHOOK m_hook = nullptr;
};

// The tip control that has this tab as its tool; the text and the place of the tool.
bool FindTip(HWND strip, int tab, std::wstring* text, RECT* box) {
  for (HWND tip = nullptr; (tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr));) {
    wchar_t buffer[600] = L"";
    TOOLINFOW info{};
    info.cbSize = sizeof info;
    info.hwnd = strip;
    info.uId = static_cast<UINT_PTR>(tab);
    info.lpszText = buffer;
    if (!::SendMessageW(tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&info))) continue;
    *box = info.rect;
    info.lpszText = buffer;
    ::SendMessageW(tip, TTM_GETTEXTW, 600, reinterpret_cast<LPARAM>(&info));
    *text = buffer;
    return true;
  }
  return false;
}

// As the message loop does with a pointer move.
void MovePointer(HWND strip, int x) {
  POINT screen{x, 5};
  ::ClientToScreen(strip, &screen);
  MSG message{strip, WM_MOUSEMOVE, 0, MAKELPARAM(x, 5), 0, screen};
  CWnd::WalkPreTranslateTree(nullptr, &message);
}

}  // namespace

TEST_F(TabMenus, TheMenuOfATabHasItsRowsInOrderAndTheStripAsOwner) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  RightClick(0);
  EXPECT_EQ(g_seen.count, 0) << "it waits for its timer";
  Show([] { FireTimer(2); });
  EXPECT_EQ(g_seen.count, 1);
  EXPECT_EQ(g_seen.owner, Strip());
  EXPECT_EQ(g_seen.rows, (Rows{"32846 关闭文档", "32850 整图导出", "-", "32848 保存所有文档",
                               "32849 保存所有文档退出", "32847 关闭所有文档", "-",
                               "32842 隐藏 (Ctrl - 恢复)"}));
  EXPECT_FALSE(IsTimerSet(2)) << "the timer fires once";
}

TEST_F(TabMenus, TheMenuOfATabShowsAtThePointOfTheClick) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  POINT at = Middle(0);
  ::ClientToScreen(Strip(), &at);
  RightClick(0);
  ::SetCursorPos(at.x + 200, at.y + 100);
  Show([] { FireTimer(2); });
  EXPECT_EQ(g_seen.place.left, at.x);
  EXPECT_EQ(g_seen.place.top, at.y);
}

TEST_F(TabMenus, BesideTheTabsTheStripMenuShowsAtOnce) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  Show([] { ShowStripMenu(); });
  EXPECT_EQ(g_seen.count, 1);
  EXPECT_EQ(g_seen.owner, Strip());
  EXPECT_EQ(g_seen.rows, (Rows{"32848 保存所有文档", "32849 保存所有文档退出", "32847 关闭所有文档",
                               "-", "32842 隐藏 (Ctrl - 恢复)"}));
  EXPECT_FALSE(IsTimerSet(2));
  EXPECT_EQ(Tabs()["active"], 1);
}

TEST_F(TabMenus, FromTheKeyboardTheStripMenuShowsFivePixelsInsideItsCornerAndHitsNoTab) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  const RECT box = ScreenClient();
  Show([] { ContextMenu(-1, -1); });
  EXPECT_EQ(g_seen.rows.size(), 5u);
  EXPECT_EQ(g_seen.place.left, box.left + 5);
  EXPECT_EQ(g_seen.place.top, box.top + 5);
  EXPECT_EQ(Tabs()["active"], 1) << "the first tab lies there";
}

TEST_F(TabMenus, ADrawingThatClosesWhileItsMenuIsOpenIsNotReplacedByAnother) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  RightClick(0);
  Show([] { FireTimer(2); }, [a] { acDocManager->closeDocument(a); });
  ASSERT_EQ(g_seen.count, 1);
  Command(kClose);
  EXPECT_FALSE(Contains(Told("sent", "text"), "Close")) << "it would reach the other drawing";
}

TEST_F(TabMenus, SavingAllPostsInEveryDrawingAndReturnsToTheCurrentOne) {
  New();
  ASSERT_TRUE(LoadModule());
  AcApDocument* b = New();
  New();
  acDocManager->activateDocument(b);
  FireTimer(1);
  Command(kSaveAll);
  EXPECT_EQ(Told("sent", "text"), "QSAVE\nQSAVE\nQSAVE\n");
  EXPECT_EQ(acDocManager->curDocument(), b);
  EXPECT_EQ(Tabs()["active"], 1);
}

TEST_F(TabMenus, FiftyMenusLeaveNoHandle) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  Show([] { ShowStripMenu(); });
  const Json before = Json::parse(Shell())["handles"];
  const DWORD objects = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  for (int i = 0; i < 50; ++i) Show([] { ShowStripMenu(); });
  EXPECT_EQ(g_seen.count, 51);
  EXPECT_EQ(Json::parse(Shell())["handles"], before);
  EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS), objects + 2);
  EXPECT_FALSE(::IsMenu(g_seen.menu));
}

TEST_F(TabMenus, TheTipOfATabHasTheWholeTitleAndThePlaceOfTheTab) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  ::SetWindowTextW(adsw_acadDocWnd(), L"C:\\图\\平面.dwg");
  FireTimer(1);
  ASSERT_EQ(Tabs()["tabs"][1]["text"], "平面");
  const Json tab = Tabs()["tabs"][1];
  const int left = ScreenClient().left;
  MovePointer(Strip(), Middle(1).x);
  std::wstring text;
  RECT box{};
  ASSERT_TRUE(FindTip(Strip(), 1, &text, &box));
  EXPECT_EQ(text, L"C:\\图\\平面.dwg");
  EXPECT_EQ(box.left, tab["left"].get<int>() - left);
  EXPECT_EQ(box.right, tab["right"].get<int>() - left);
  EXPECT_EQ(box.top, 0);
  EXPECT_EQ(box.bottom, 100);
  MovePointer(Strip(), ScreenClient().right - left - 2);
  EXPECT_FALSE(FindTip(Strip(), 1, &text, &box)) << "beside the tabs there is no tip";
}

TEST_F(TabMenus, ATipOfTwoDrawingsWithOneNameShowsTheirFolders) {
  New();
  ASSERT_TRUE(LoadModule());
  ::SetWindowTextW(adsw_acadDocWnd(), L"C:\\A\\plan.dwg");
  FireTimer(1);
  New();
  ::SetWindowTextW(adsw_acadDocWnd(), L"C:\\B\\plan.dwg");
  FireTimer(1);
  EXPECT_EQ(Texts(), "plan plan* ");
  std::wstring text;
  RECT box{};
  MovePointer(Strip(), Middle(0).x);
  ASSERT_TRUE(FindTip(Strip(), 0, &text, &box));
  EXPECT_EQ(text, L"C:\\A\\plan.dwg");
  MovePointer(Strip(), Middle(1).x);
  ASSERT_TRUE(FindTip(Strip(), 1, &text, &box));
  EXPECT_EQ(text, L"C:\\B\\plan.dwg");
}

TEST_F(TabMenus, ATipOf300CharactersIsCutTo255) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  const std::wstring title(300, L'字');
  ::SetWindowTextW(adsw_acadDocWnd(), title.c_str());
  MovePointer(Strip(), Middle(1).x);
  std::wstring text;
  RECT box{};
  ASSERT_TRUE(FindTip(Strip(), 1, &text, &box));
  EXPECT_EQ(text, title.substr(0, 255));
}

TEST_F(TabMenus, TitlesEmptyLongAndFromRightToLeftAreKept) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  const std::wstring titles[] = {L"", std::wstring(4000, L'宽'), L"שלום 😀.dwg"};
  for (const std::wstring& title : titles) {
    ::SetWindowTextW(adsw_acadDocWnd(), title.c_str());
    FireTimer(1);
    ::UpdateWindow(Strip());
    const std::wstring shown = title.substr(0, title.find(L'.'));
    EXPECT_EQ(Tabs()["tabs"][1]["text"], devhost::Utf8(shown));
  }
}

namespace {

// Refuses the arrows, without which the strip's window is not made.
LRESULT CALLBACK RefuseArrows(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_CREATEWND) {
    wchar_t name[40] = L"";
    ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 40);
    if (!_wcsicmp(name, UPDOWN_CLASSW)) return 1;
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

TEST_F(ModuleTabs, AStripWhoseWindowCannotBeMadeFollowsDrawingsWithoutIt) {
  New();
  const HHOOK hook = ::SetWindowsHookExW(WH_CBT, RefuseArrows, nullptr, ::GetCurrentThreadId());
  const bool loaded = LoadModule();
  ::UnhookWindowsHookEx(hook);
  ASSERT_TRUE(loaded);
  ASSERT_EQ(Strip(), nullptr);
  EXPECT_TRUE(Tabs().is_null());
  AcApDocument* b = New();
  Export<int (*)(int, void*)>(L"qvx_initstart.arx", "acrxEntryPoint")(AcRx::kSaveMsg, nullptr);
  const auto hide = Export<void (*)(int)>(L"qvx_initstart.arx", "HideTabBar");
  hide(1);
  hide(0);
  acDocManager->closeDocument(b);
  EXPECT_EQ(acDocManager->documentCount(), 1);
  EXPECT_EQ(Json::parse(Shell())["faults"], 0);
}
