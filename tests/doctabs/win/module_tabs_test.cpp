// The strip of the real module in the host's real frame: drawings come and go, tabs follow.
#include "tests/doctabs/win/module_tabs.h"

TEST_F(ModuleTabs, TheStripIsAHiddenChildOfTheFrameAtStart) {
  New();
  ASSERT_TRUE(LoadModule());
  ASSERT_NE(Strip(), nullptr);
  wchar_t name[40] = L"";
  ::GetClassNameW(Strip(), name, 40);
  EXPECT_STRCASEEQ(CStringA(name), "msctls_statusbar32");
  EXPECT_EQ(::GetWindowLongW(Strip(), GWL_STYLE) & 0x5200004E, 0x4200004E);
  EXPECT_FALSE(Tabs()["visible"].get<bool>());
  EXPECT_EQ(Tabs()["tabs"].size(), 1u) << Shell();
  EXPECT_EQ(Tabs()["active"], 0);
}

TEST_F(ModuleTabs, TheClientAreaFillsTheStripAtTheTopOfTheFrame) {
  New();
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  ASSERT_TRUE(::IsWindowVisible(Strip()));
  RECT strip, client;
  ::GetWindowRect(Strip(), &strip);
  ::GetClientRect(Strip(), &client);
  EXPECT_EQ(client.bottom, strip.bottom - strip.top);
  EXPECT_EQ(client.right, strip.right - strip.left);
  EXPECT_GT(client.bottom, 10);
  EXPECT_LT(client.bottom, 40);
}

TEST_F(ModuleTabs, TheSecondDrawingShowsTheStripWhenTheTimerFires) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  EXPECT_FALSE(::IsWindowVisible(Strip()));
  FireTimer(1);
  EXPECT_TRUE(::IsWindowVisible(Strip()));
  EXPECT_EQ(Tabs()["tabs"].size(), 2u);
}

TEST_F(ModuleTabs, AClickOnATabActivatesItsDrawing) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  AcApDocument* b = New();
  FireTimer(1);
  ASSERT_EQ(acDocManager->curDocument(), b);
  Click(0);
  EXPECT_EQ(acDocManager->curDocument(), a);
  EXPECT_EQ(Tabs()["active"], 0);
  Click(1);
  EXPECT_EQ(acDocManager->curDocument(), b);
}

TEST_F(ModuleTabs, AnActivationByTheHostMakesItsTabActive) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  acDocManager->activateDocument(a);
  EXPECT_EQ(Tabs()["active"], 0);
  EXPECT_EQ(Tabs()["order"].dump(), "[0,1]");
}

TEST_F(ModuleTabs, ClosingTheActiveAndABackgroundDrawingRemovesTheirTabs) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  AcApDocument* b = New();
  AcApDocument* c = New();
  FireTimer(1);
  acDocManager->closeDocument(b);
  EXPECT_EQ(Tabs()["tabs"].size(), 2u);
  EXPECT_EQ(Tabs()["active"], 1);
  acDocManager->closeDocument(c);
  EXPECT_EQ(Tabs()["tabs"].size(), 1u);
  EXPECT_FALSE(::IsWindowVisible(Strip()));
  acDocManager->closeDocument(a);
  EXPECT_EQ(Tabs()["tabs"].size(), 0u);
  EXPECT_EQ(Tabs()["active"], -1);
}

TEST_F(ModuleTabs, TheStartDrawingClosedInTheBackgroundLosesItsTab) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  acDocManager->closeDocument(a);
  EXPECT_EQ(Tabs()["tabs"].size(), 1u);
}

TEST_F(ModuleTabs, HidingByItsCommandPrintsTheHotKeyAndTheHostBringsItBack) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  Command(kHide);
  EXPECT_FALSE(::IsWindowVisible(Strip()));
  EXPECT_EQ(Tabs()["mode"], 1);
  EXPECT_EQ(KernelSetting(L"g_bDwgTabBar"), L"0");
  EXPECT_TRUE(Contains(Told("printed", "text"), "热键<Ctrl ->显示文档标签"))
      << Told("printed", "text");
  const auto hide = Export<void (*)(int)>(L"qvx_initstart.arx", "HideTabBar");
  ASSERT_NE(hide, nullptr);
  hide(0);
  EXPECT_TRUE(::IsWindowVisible(Strip()));
  EXPECT_EQ(Tabs()["mode"], 0);
  EXPECT_EQ(KernelSetting(L"g_bDwgTabBar"), L"0") << "showing leaves the wish";
  hide(1);
  EXPECT_FALSE(::IsWindowVisible(Strip()));
}

TEST_F(ModuleTabs, AlwaysModeShowsOneTabAndAutomaticHidesItAgain) {
  New();
  ASSERT_TRUE(LoadModule());
  Command(kAlways);
  EXPECT_TRUE(::IsWindowVisible(Strip()));
  EXPECT_EQ(Tabs()["mode"], -1);
  Command(kAutomatic);
  EXPECT_FALSE(::IsWindowVisible(Strip()));
}

TEST_F(ModuleTabs, AUserWithoutTheWishStartsWithTheStripHidden) {
  SetNumber(L"Settings", L"g_bDwgTabBar", 0);
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  EXPECT_EQ(Tabs()["mode"], 1);
  EXPECT_FALSE(::IsWindowVisible(Strip()));
}

TEST_F(ModuleTabs, TheCommandMovesTheStripBelowItsSiblings) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  EXPECT_EQ(::GetWindow(Strip(), GW_HWNDNEXT), nullptr);
  ::SetWindowPos(Strip(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ASSERT_NE(::GetWindow(Strip(), GW_HWNDNEXT), nullptr);
  Command(kToBottom);
  EXPECT_EQ(::GetWindow(Strip(), GW_HWNDNEXT), nullptr);
}

TEST_F(ModuleTabs, FifteenDrawingsShowTheArrowsAndTheNewestIsScrolledIntoView) {
  New();
  ASSERT_TRUE(LoadModule());
  for (int i = 0; i < 39; ++i) New();
  FireTimer(1);
  EXPECT_TRUE(Tabs()["arrows"].get<bool>());
  const HWND arrows = ::GetWindow(Strip(), GW_CHILD);
  ASSERT_TRUE(::IsWindowVisible(arrows));
  RECT place, client;
  ::GetWindowRect(arrows, &place);
  ::GetClientRect(Strip(), &client);
  EXPECT_EQ(place.bottom - place.top, client.bottom);
  EXPECT_EQ(place.right - place.left, 2 * client.bottom);
  const int first = Tabs()["first"].get<int>();
  EXPECT_GT(first, 0);
  EXPECT_EQ(LOWORD(::SendMessageW(arrows, UDM_GETPOS, 0, 0)), first);
  EXPECT_EQ(LOWORD(::SendMessageW(arrows, UDM_GETRANGE, 0, 0)), first);
  ::SendMessageW(Strip(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 2),
                 reinterpret_cast<LPARAM>(arrows));
  EXPECT_EQ(Tabs()["first"], 2);
  ::SendMessageW(Strip(), WM_HSCROLL, MAKEWPARAM(SB_ENDSCROLL, 0),
                 reinterpret_cast<LPARAM>(arrows));
  EXPECT_EQ(Tabs()["first"], 2);
}

TEST_F(ModuleTabs, ARightClickOnAnInactiveTabActivatesItAndStartsTheMenuTimer) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  RightClick(0);
  EXPECT_EQ(acDocManager->curDocument(), a);
  EXPECT_TRUE(IsTimerSet(2));
}

TEST_F(ModuleTabs, TheMenuOfADrawingThatClosedBeforeItShowsDoesNotShow) {
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  New();
  FireTimer(1);
  RightClick(0);
  acDocManager->closeDocument(a);
  FireTimer(2);  // a menu would block this test
  EXPECT_FALSE(IsTimerSet(2));
}

TEST_F(ModuleTabs, TheSaveMessageStartsTheCaptionTimerAndTheTimerFollowsTheTitle) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  const auto entry = Export<int (*)(int, void*)>(L"qvx_initstart.arx", "acrxEntryPoint");
  ASSERT_NE(entry, nullptr);
  entry(AcRx::kSaveMsg, nullptr);
  EXPECT_TRUE(IsTimerSet(1));
  const HWND child = adsw_acadDocWnd();
  ::SetWindowTextW(child, L"C:\\A\\Section.dwg");
  FireTimer(1);
  EXPECT_TRUE(Contains(Texts(), "Section ")) << Texts();
}

TEST_F(ModuleTabs, TheCloseCommandIsSentToTheCurrentDrawing) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  Command(kClose);
  EXPECT_EQ(Told("sent", "text"), "Close\n");
}

TEST_F(ModuleTabs, UnloadingDestroysTheStripAndLoadingAgainBringsItBack) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(Strip(), nullptr);
  New();
  ASSERT_TRUE(LoadModule());
  EXPECT_NE(Strip(), nullptr);
}

TEST_F(ModuleTabs, AModuleLoadedWithoutADrawingHasNoTabUntilOneComes) {
  ASSERT_TRUE(LoadModule());
  EXPECT_EQ(Tabs()["tabs"].size(), 0u);
  New();
  EXPECT_EQ(Tabs()["tabs"].size(), 1u);
}

TEST_F(ModuleTabs, ActiveAndInactiveTabsHaveTheirColours) {
  New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  ::UpdateWindow(Strip());
  RECT client;
  ::GetClientRect(Strip(), &client);
  const Json tabs = Tabs()["tabs"];
  const int width = tabs[0]["right"].get<int>() - tabs[0]["left"].get<int>();
  const int bottom = client.bottom - 1, left = width, right = 2 * width - 3;
  const HDC dc = ::GetDC(Strip());
  // The corner pixel belongs to the context window.
  EXPECT_EQ(::GetPixel(dc, 1, 0), 0xFAFAFAu) << "raised: light above";
  EXPECT_EQ(::GetPixel(dc, 0, bottom - 1), 0xFAFAFAu);
  EXPECT_EQ(::GetPixel(dc, width - 3, bottom), 0x323232u);
  EXPECT_EQ(::GetPixel(dc, 3, 2), ::GetSysColor(COLOR_BTNFACE)) << "not filled";
  EXPECT_EQ(::GetPixel(dc, width - 2, 5), ::GetSysColor(COLOR_BTNFACE)) << "the gap";
  EXPECT_EQ(::GetPixel(dc, width - 1, 5), ::GetSysColor(COLOR_BTNFACE)) << "the gap";
  EXPECT_EQ(::GetPixel(dc, left, 0), 0x323232u) << "pressed in: dark above";
  EXPECT_EQ(::GetPixel(dc, right, bottom), 0xFAFAFAu);
  EXPECT_EQ(::GetPixel(dc, left + 3, 2), 15132410u) << "filled";
  ::ReleaseDC(Strip(), dc);
}
