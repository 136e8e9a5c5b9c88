// The palette as a real window in a real frame: docking, attaching a menu, sending a command after
// its wait, closing with and without the hint, saved settings, dragging its edge.
#include <gtest/gtest.h>

#include "afxpriv.h"

#include <psapi.h>

#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "tests/module/win/import_slot.h"
#include "tests/screenmenu/win/palette_fixture.h"
#include "refused_windows.h"
#include "screenmenu/win/describe_screen_menu.h"
#include "screenmenu/palette_settings.h"
#include "screenmenu/win/screen_menu.h"
#include "screenmenu/win/screen_menu_reactor.h"
#include "tests/doubles/win/palette_host.h"

namespace {

using namespace fixture;

TEST_F(Palette, WithoutOneTheExportsReturnHarmlessly) {
  EXPECT_EQ(ShowScreenMenu(1), 5100);
  EXPECT_EQ(IsScreenMenuVisible(), 0);
  EXPECT_EQ(GetScreenMenuWidth(), 0);
  InitScreenMenu(false, true);
}

TEST_F(Palette, IsCreatedDockedLeftAtItsSavedWidthWithoutATree) {
  ComeUp();
  ASSERT_NE(g_pScreenMenu, nullptr);
  EXPECT_EQ(IsScreenMenuVisible(), 1);
  EXPECT_FALSE(g_pScreenMenu->IsFloating());
  EXPECT_EQ(::GetDlgCtrlID(::GetParent(g_pScreenMenu->m_hWnd)), 59420);
  EXPECT_EQ(GetScreenMenuWidth(), 120);
  EXPECT_EQ(g_pScreenMenu->RootGroup(), nullptr);
}

TEST_F(Palette, DocksRightWhenThatWasSaved) {
  qvx::SavePaletteState({1, 0, {120, 80}, 0, 0, 1});
  ComeUp();
  EXPECT_EQ(::GetDlgCtrlID(::GetParent(g_pScreenMenu->m_hWnd)), 59421);
}

TEST_F(Palette, TakesTheScreenBlockFromTheMenuAndShowsIt) {
  ComeUp();
  Attach();
  EXPECT_EQ(menu.system.Length(), 0);
  EXPECT_EQ(Root().RowCount(), 3);
  EXPECT_TRUE(Root().Row(0)->IsWindowVisible());
  EXPECT_EQ(g_pScreenMenu->RootBar()->Length(), 3);
}

TEST_F(Palette, AMenuLoadedWithoutAPaletteLosesItsScreenBlock) {
  Attach();
  EXPECT_EQ(menu.system.Length(), 0);
  EXPECT_EQ(g_pScreenMenu, nullptr);
}

TEST_F(Palette, AMenuWithoutAScreenBlockKeepsTheShownOne) {
  ComeUp();
  Attach();
  Click(Root(), 1);
  const CMenuGroup* root = &Root();
  const std::string before = DescribeScreenMenu();
  auto* common = new TMenuBar;
  common->m_strName = L"COMMON";
  AddLine(*common, L"别", L"TOther\n");
  menu.system.Append(common);
  menu.system.m_strTitle = L"别的菜单";
  AttachScreenBar(menu.system);
  host.Pump();
  EXPECT_EQ(&Root(), root);
  EXPECT_EQ(DescribeScreenMenu(), before);
  EXPECT_EQ(menu.system.Length(), 1);
}

TEST_F(Palette, TheRootGroupIsFittedThreeBelowTheTopAndTwoAboveTheBottom) {
  ComeUp();
  Attach();
  CRect used, window = PlaceOf(*g_pScreenMenu), group = PlaceOf(Root());
  g_pScreenMenu->GetUsedRect(used);
  g_pScreenMenu->ClientToScreen(&used);
  EXPECT_EQ(group.left, used.left);
  EXPECT_EQ(group.right, used.right);
  EXPECT_EQ(group.top, used.top + 3);
  EXPECT_EQ(group.bottom, window.bottom - 2);
}

TEST_F(Palette, ACommandWaitsForTheTimerAndIsSentOnceWithTheFocusOnTheDrawing) {
  ComeUp();
  Attach();
  Click(Root(), 2);
  EXPECT_TRUE(Sent().empty());
  FireTimer();
  EXPECT_EQ(Sent(), (Words{L"TAxis\n"}));
  FireTimer();
  EXPECT_EQ(Sent().size(), 1u);
  EXPECT_EQ(menu.system.m_recent.Length(), 1);
}

TEST_F(Palette, TheSecondOfTwoClicksWithinTheWaitIsSent) {
  ComeUp();
  Attach();
  Click(*Root().Child(0), 0);
  Click(Root(), 2);
  FireTimer();
  EXPECT_EQ(Sent(), (Words{L"TAxis\n"}));
}

TEST_F(Palette, ARunningCommandIsCancelledFirst) {
  ComeUp();
  Attach();
  host.commandNames = L"LINE";
  Click(Root(), 2);
  FireTimer();
  EXPECT_EQ(Sent(), (Words{L"\x1B\x1BTAxis\n"}));
}

TEST_F(Palette, WithoutAWorkingDatabaseTheCommandKeepsWaiting) {
  ComeUp();
  Attach();
  host.hasDatabase = false;
  Click(Root(), 2);
  FireTimer();
  EXPECT_TRUE(Sent().empty());
  host.hasDatabase = true;
  FireTimer();
  EXPECT_EQ(Sent().size(), 1u);
}

TEST_F(Palette, WithoutADocumentTheTextIsLostButRemembered) {
  ComeUp();
  Attach();
  host.documents = 0;
  Click(Root(), 2);
  FireTimer();
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(menu.system.m_recent.Length(), 1);
}

TEST_F(Palette, ClosingByTheUserNamesTheHotKeyAndClosingByTheProgramPrintsNothing) {
  ComeUp();
  ShowScreenMenu(0);
  host.Pump();
  EXPECT_EQ(IsScreenMenuVisible(), 0);
  EXPECT_TRUE(host.diary.empty());
  ShowScreenMenu(1);
  host.Pump();
  EXPECT_EQ(IsScreenMenuVisible(), 1);
  g_pScreenMenu->OnClosing();
  EXPECT_EQ(host.diary, (Words{L"printed 热键<Ctrl +>显示屏幕菜单\n", L"prompt"}));
}

TEST_F(Palette, ShowingAVisiblePaletteDoesNotMoveTheFocus) {
  ComeUp();
  host.frame->SetFocus();
  const HWND focus = ::GetFocus();
  ShowScreenMenu(1);
  EXPECT_EQ(::GetFocus(), focus);
}

TEST_F(Palette, DestroyingItSavesItsSettings) {
  ComeUp();
  Attach();
  Click(Root(), 1);
  InitScreenMenu(false, true);
  EXPECT_EQ(g_pScreenMenu, nullptr);
  EXPECT_EQ(Saved(L"Visible"), 1);
  EXPECT_EQ(Saved(L"Alignment"), 1);
  EXPECT_EQ(Saved(L"SizeX"), 120);
  EXPECT_EQ(Saved(L"ActiveSubMenu"), 1);
  EXPECT_TRUE(host.diary.empty()) << "no hint";
  ComeUp();
  Attach();
  EXPECT_EQ(Root().OpenIndex(), 1);
  EXPECT_TRUE(Root().Child(1)->IsWindowVisible());
}

TEST_F(Palette, ASavedLeafIsWrittenBackUnlessAGroupWasOpened) {
  const auto upWithNothingOpen = [this] {
    ComeUp();
    Attach();
    for (int i : {0, 1}) EXPECT_FALSE(Root().Child(i)->IsWindowVisible());
  };
  qvx::SaveActiveSubMenu(2);
  upWithNothingOpen();
  InitScreenMenu(false, true);
  EXPECT_EQ(Saved(L"ActiveSubMenu"), 2);
  upWithNothingOpen();
  Click(Root(), 1);
  InitScreenMenu(false, true);
  EXPECT_EQ(Saved(L"ActiveSubMenu"), 1);
}

TEST_F(Palette, ASavedIndexBeyondTheMenuOpensNothing) {
  qvx::SaveActiveSubMenu(99);
  ComeUp();
  Attach();
  EXPECT_EQ(Root().OpenIndex(), -1);
  for (int i : {0, 1}) EXPECT_FALSE(Root().Child(i)->IsWindowVisible());
}

TEST_F(Palette, AWheelWithNothingToScrollIsHandledAndMovesNothing) {
  ComeUp();
  const auto turn = [] {
    return g_pScreenMenu->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), MAKELPARAM(60, 60));
  };
  EXPECT_TRUE(turn()) << "without a tree";
  Attach();
  ASSERT_FALSE(Root().HasScrollBar());
  const CRect before = PlaceOf(*Root().Row(0));
  EXPECT_TRUE(turn());
  EXPECT_EQ(PlaceOf(*Root().Row(0)), before);
}

TEST_F(Palette, TheFirstDrawingEnablesItAndTheLastOneDisablesIt) {
  ComeUp();
  TScreenMenuReactor reactor;
  host.documents = 2;
  reactor.documentToBeDestroyed(nullptr);
  EXPECT_TRUE(g_pScreenMenu->IsWindowEnabled());
  host.documents = 1;
  reactor.documentToBeDestroyed(nullptr);
  EXPECT_FALSE(g_pScreenMenu->IsWindowEnabled());
  reactor.documentCreated(nullptr);
  EXPECT_TRUE(g_pScreenMenu->IsWindowEnabled());
  EXPECT_EQ(rooms.order, "");
  reactor.documentActivated(nullptr);
  EXPECT_EQ(rooms.order, "abcd");
  host.documents = 0;
  reactor.documentActivated(nullptr);
  EXPECT_EQ(rooms.order, "abcd");
}

TEST_F(Palette, ARowUnderThePointerReleasesTheCaptureWithTheLastDrawing) {
  ComeUp();
  Attach();
  CSMenuItem& row = *Root().Row(2);
  row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  ASSERT_EQ(::GetCapture(), row.m_hWnd);
  TScreenMenuReactor().documentToBeDestroyed(nullptr);
  EXPECT_EQ(::GetCapture(), nullptr);
  EXPECT_FALSE(row.IsMouseOn());
}

TEST_F(Palette, ADrawingThatClosesBeforeThePaletteExistsIsIgnored) {
  TScreenMenuReactor().documentToBeDestroyed(nullptr);
  ComeUp();
  EXPECT_TRUE(g_pScreenMenu->IsWindowEnabled());
}

TEST_F(Palette, TheDraggedEdgeSetsTheNewWidthAndStopsAtTheMinimum) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  CRect place = PlaceOf(*g_pScreenMenu);
  ::MapWindowPoints(nullptr, dockBar, reinterpret_cast<POINT*>(&place), 2);
  const int edge = place.right + ::GetSystemMetrics(SM_CXFRAME) / 2;
  const auto drag = [dockBar](int from, int to) {
    ::SendMessageW(dockBar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from, 50));
    ::SendMessageW(dockBar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to, 50));
    ::SendMessageW(dockBar, WM_LBUTTONUP, 0, MAKELPARAM(to, 50));
  };
  drag(edge, edge + 60);
  host.Pump();
  EXPECT_EQ(GetScreenMenuWidth(), 180);
  drag(edge + 60, edge - 100);
  host.Pump();
  EXPECT_EQ(GetScreenMenuWidth(), 180) << "a jump beyond the least size is refused whole";
}

TEST_F(Palette, ADraggedEdgeSetsTheStyleThatThePaletteFloatsWith) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  ASSERT_NE(g_pScreenMenu->m_pDockContext, nullptr);
  EXPECT_EQ(g_pScreenMenu->m_pDockContext->m_dwMRUFloatStyle & 0x0Cu, 0u);
  CRect place = PlaceOf(*g_pScreenMenu);
  ::MapWindowPoints(nullptr, dockBar, reinterpret_cast<POINT*>(&place), 2);
  ::SendMessageW(dockBar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.right + 1, 50));
  ::SendMessageW(dockBar, WM_LBUTTONUP, 0, MAKELPARAM(place.right + 1, 50));
  EXPECT_EQ(g_pScreenMenu->m_pDockContext->m_dwMRUFloatStyle & 0x0Cu, 0x0Cu);
}

TEST_F(Palette, AnEdgeDraggedPastTheMinimumWidthStopsThereAndSetsIt) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  CRect place = PlaceOf(*g_pScreenMenu);
  ::MapWindowPoints(nullptr, dockBar, reinterpret_cast<POINT*>(&place), 2);
  int x = place.right + ::GetSystemMetrics(SM_CXFRAME) / 2;
  ::SendMessageW(dockBar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 50));
  for (int step = 0; step < 60; ++step)
    ::SendMessageW(dockBar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(--x, 50));
  ::SendMessageW(dockBar, WM_LBUTTONUP, 0, MAKELPARAM(x, 50));
  host.Pump();
  EXPECT_EQ(GetScreenMenuWidth(), 74);
}

class Neighbour : public CControlBar {
 public:
  bool DockIn(CFrameWnd* frame) {
    m_dwStyle = CBRS_LEFT;
    if (!CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), frame,
                  901))
      return false;
    EnableDocking(CBRS_ALIGN_ANY);
    return true;
  }
  CSize CalcFixedLayout(BOOL, BOOL) override { return CSize(50, 50); }
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
};

TEST_F(Palette, AVisibleNeighbourReturnsTheEdgeToTheHostAtTheNextLayout) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  const HWND otherSide = ::GetDlgItem(::GetParent(dockBar), AFX_IDW_DOCKBAR_RIGHT);
  const auto isTaken = [dockBar, otherSide] {
    return ::GetWindowLongPtrW(dockBar, GWLP_WNDPROC) !=
           ::GetWindowLongPtrW(otherSide, GWLP_WNDPROC);
  };
  EXPECT_TRUE(isTaken()) << "it stands alone";
  Neighbour bar;
  ASSERT_TRUE(bar.DockIn(host.frame));
  CRect beside = PlaceOf(*g_pScreenMenu);
  beside.top += beside.Height() / 2;
  host.frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT, &beside);
  ASSERT_EQ(::GetParent(bar.m_hWnd), dockBar);
  g_pScreenMenu->CalcFixedLayout(TRUE, FALSE);
  EXPECT_FALSE(isTaken());
  host.frame->ShowControlBar(&bar, FALSE, FALSE);
  g_pScreenMenu->CalcFixedLayout(TRUE, FALSE);
  EXPECT_TRUE(isTaken()) << "a hidden bar is no neighbour";
  bar.DestroyWindow();
}

TEST_F(Palette, BeforeRelease172TheDockBarIsNotChanged) {
  host.releaseMajor = 17;
  host.releaseMinor = 1;
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  const HWND otherSide = ::GetDlgItem(::GetParent(dockBar), AFX_IDW_DOCKBAR_RIGHT);
  ASSERT_TRUE(otherSide) << "the bar on the other side has the procedure that all bars have";
  EXPECT_EQ(::GetWindowLongPtrW(dockBar, GWLP_WNDPROC),
            ::GetWindowLongPtrW(otherSide, GWLP_WNDPROC));
  host.releaseMajor = 24;
  host.releaseMinor = 0;
}

TEST_F(Palette, RightClicksOnPaletteOfferJumpsAndCustomising) {
  ComeUp();
  Attach();
  g_pScreenMenu->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_pScreenMenu->m_hWnd),
                             MAKELPARAM(60, 60));
  EXPECT_EQ(rooms.shownLines, 2 + 1 + 1);
  g_pScreenMenu->TailCommand(L"门窗");
  EXPECT_EQ(Root().OpenIndex(), 1);
  g_pScreenMenu->TailCommand(L"门窗");
  EXPECT_EQ(Root().OpenIndex(), -1) << "a jump to the open group folds it";
}

TEST_F(Palette, ARightClickOnALeafOffersHelpUnlessTheRunModeIsOn) {
  ComeUp();
  Attach();
  const auto linesOffered = [this](CMenuGroup& group, int row) {
    group.Row(row)->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(group.Row(row)->m_hWnd),
                                MAKELPARAM(60, 60));
    return rooms.shownLines;
  };
  EXPECT_EQ(linesOffered(Root(), 2), 2 + 2 + 1 + 1) << "help, jumps, customising";
  EXPECT_EQ(linesOffered(*Root().Child(0), 0), 2 + 2 + 1 + 1) << "the jumps are the root's";
  g_nRunMode = 1;
  EXPECT_EQ(linesOffered(Root(), 2), 2 + 1 + 1);
  g_nRunMode = 0;
  g_bLimitHeight = 1;
  EXPECT_EQ(linesOffered(Root(), 2), 2 + 1) << "no jumps";
  g_bLimitHeight = 0;
}

TEST_F(Palette, TheKeyboardsMenuOfThePaletteOpensBelowItsCaption) {
  ComeUp();
  Attach();
  g_pScreenMenu->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_pScreenMenu->m_hWnd),
                             MAKELPARAM(-1, -1));
  CRect used;
  g_pScreenMenu->GetUsedRect(used);
  g_pScreenMenu->ClientToScreen(&used);
  EXPECT_EQ(rooms.shownLines, 2 + 1 + 1);
  EXPECT_EQ(rooms.shownAt.x, used.left);
  EXPECT_EQ(rooms.shownAt.y, used.top);
  g_pScreenMenu->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_pScreenMenu->m_hWnd),
                             MAKELPARAM(-1, 60));
  EXPECT_EQ(rooms.shownAt.x, -1) << "a position on a screen to the left";
}

// In place of LoadImageW: this program has no bitmaps.
HANDLE WINAPI MakeBitmap(HINSTANCE, LPCWSTR, UINT, int, int, UINT) {
  return ::CreateBitmap(16, 16, 1, 1, nullptr);
}

TEST_F(Palette, AChangeOfTheSystemsColoursLoadsArrowsAgain) {
  void** slot = ImportSlot(::GetModuleHandleW(nullptr), "LoadImageW");
  ASSERT_NE(slot, nullptr);
  void* const before = *slot;
  StoreSlot(slot, reinterpret_cast<void*>(&MakeBitmap));
  ComeUp();
  Attach();
  Root().ToggleSubMenu(0);
  const HBITMAP open = Root().Row(0)->ShownBitmap(), folded = Root().Row(1)->ShownBitmap();
  ASSERT_TRUE(open);
  g_pScreenMenu->SendMessage(WM_SYSCOLORCHANGE);
  const HBITMAP newOpen = Root().Row(0)->ShownBitmap(), newFolded = Root().Row(1)->ShownBitmap();
  StoreSlot(slot, before);
  EXPECT_NE(newOpen, open);
  EXPECT_NE(newFolded, folded);
  EXPECT_NE(newOpen, newFolded);
  EXPECT_EQ(::GetObjectType(newOpen), static_cast<DWORD>(OBJ_BITMAP));
  EXPECT_EQ(::GetObjectType(newFolded), static_cast<DWORD>(OBJ_BITMAP));
  EXPECT_EQ(::GetObjectType(open), 0u) << "the old ones are freed";
  EXPECT_EQ(::GetObjectType(folded), 0u);
}

TEST_F(Palette, WhileAPopupIsShownARightClickShowsNothingAndChangesNoHelp) {
  ComeUp();
  Attach();
  const auto rightClick = [this](int row) {
    Root().Row(row)->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Root().Row(row)->m_hWnd),
                                 MAKELPARAM(60, 60));
  };
  rightClick(2);
  rooms.shownLines = -1;
  rooms.popupShown = true;
  rightClick(2);
  g_pScreenMenu->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_pScreenMenu->m_hWnd),
                             MAKELPARAM(60, 60));
  EXPECT_EQ(rooms.shownLines, -1);
  rooms.popupShown = false;
  rightClick(2);
  EXPECT_EQ(rooms.shownLines, 2 + 2 + 1 + 1);
}

TEST_F(Palette, SettingsOutOfRangeDoNotPreventIt) {
  for (int odd : {0, -1, -100000, 1, 77, 65536, 0x7FFFFFFF, static_cast<int>(0x80000000)}) {
    qvx::SavePaletteState({odd, odd, {odd, odd}, odd, odd, odd});
    qvx::SaveActiveSubMenu(odd);
    ComeUp();
    ASSERT_NE(g_pScreenMenu, nullptr) << odd;
    Attach();
    Root().WheelGroup(0, -120, CPoint());
    Root().ToggleSubMenu(0);
    Root().ToggleSubMenu(1);
    EXPECT_EQ(Root().OpenIndex(), 1) << odd;
    EXPECT_GT(GetScreenMenuWidth(), 0) << odd;
    EXPECT_LE(GetScreenMenuWidth(), ::GetSystemMetrics(SM_CXVIRTUALSCREEN)) << odd;
    host.Pump();
    InitScreenMenu(false, true);
    g_bLimitHeight = g_bDefaultOpenFirst = 0;
    g_bScrollBar = 1;
  }
}

TEST_F(Palette, WhenItsWindowFailsThereIsNoPaletteAndNoMessage) {
  {
    const RefusedWindows refused(0, true);
    InitScreenMenu(true, true);
  }
  EXPECT_EQ(g_pScreenMenu, nullptr);
  EXPECT_TRUE(host.diary.empty());
  ComeUp();
  EXPECT_NE(g_pScreenMenu, nullptr) << "the next attempt may do better";
}

TEST_F(Palette, WhenTheWindowOfItsTreeFailsItStaysEmptyAndWorks) {
  ComeUp();
  {
    const RefusedWindows refused(0, true);
    Attach();
  }
  g_pScreenMenu->TailCommand(L"墙体");
  g_pScreenMenu->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
  RefreshScreenMenu();
  host.frame->SetWindowPos(nullptr, 0, 0, 900, 600, SWP_NOMOVE | SWP_NOZORDER);
  host.Pump();
  EXPECT_NE(DescribeScreenMenu().find("\"rows\":[]"), std::string::npos);
  EXPECT_TRUE(host.diary.empty());
}

TEST_F(Palette, WithLimitedHeightTheWheelScrollsItsOpenGroupAndNothingWithoutOne) {
  g_bLimitHeight = 1;
  qvx::SavePaletteState({1, 1, {120, 80}, 1, 0, 1});
  ComeUp();
  auto* screen = new TMenuBar;
  screen->m_strName = L"SCREEN";
  TMenuBar* tall = AddHeader(*screen, L"长");
  for (int i = 0; i < 60; ++i) AddLine(*tall, L"行", L"x");
  menu.system.Append(screen);
  AttachScreenBar(menu.system);
  const auto turn = [] {
    return g_pScreenMenu->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), MAKELPARAM(60, 60));
  };
  EXPECT_TRUE(turn());
  Click(Root(), 0);
  ASSERT_TRUE(Root().Child(0)->HasScrollBar());
  EXPECT_TRUE(turn());
  EXPECT_EQ(Root().Child(0)->ScrollBar().GetScrollPos(), 40);
  g_bLimitHeight = 0;
}

TEST_F(Palette, DestroyingItDuringADragReleasesTheCapture) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  CRect place = PlaceOf(*g_pScreenMenu);
  ::MapWindowPoints(nullptr, dockBar, reinterpret_cast<POINT*>(&place), 2);
  ::SendMessageW(dockBar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.right + 1, 50));
  ASSERT_EQ(::GetCapture(), dockBar);
  InitScreenMenu(false, true);
  EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(Palette, AnEdgeDragEndsWithARightPressOrWhenTheCaptureIsLost) {
  ComeUp();
  const HWND dockBar = ::GetParent(g_pScreenMenu->m_hWnd);
  const auto press = [this, dockBar] {
    CRect place = PlaceOf(*g_pScreenMenu);
    ::MapWindowPoints(nullptr, dockBar, reinterpret_cast<POINT*>(&place), 2);
    ::SendMessageW(dockBar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.right + 1, 50));
    EXPECT_EQ(::GetCapture(), dockBar);
    ::SendMessageW(dockBar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(place.right + 21, 50));
  };
  press();
  ::SendMessageW(dockBar, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 50));
  host.Pump();
  EXPECT_EQ(::GetCapture(), nullptr);
  const int wider = GetScreenMenuWidth();
  EXPECT_GT(wider, 120);
  press();
  ::SetCapture(host.frame->m_hWnd);
  host.Pump();
  EXPECT_GT(GetScreenMenuWidth(), wider);
  ::ReleaseCapture();
}

TEST_F(Palette, F4GoesBackOnlyWhenSomethingWasEntered) {
  ComeUp();
  Attach();
  MSG key{g_pScreenMenu->m_hWnd, WM_KEYDOWN, VK_F4, 0, 0, {}};
  EXPECT_FALSE(g_pScreenMenu->PreTranslateMessage(&key));
  EXPECT_EQ(g_pScreenMenu->StepBack(), 0);
  EXPECT_EQ(g_pScreenMenu->RootBar()->Length(), 3);
}

TEST_F(Palette, TheShellStateShowsTheCurrentRows) {
  ComeUp();
  Attach();
  Click(Root(), 0);
  const std::string json = DescribeScreenMenu();
  EXPECT_NE(json.find("\"exists\":true,\"visible\":true,\"enabled\":true,\"floating\":false,"
                      "\"dock\":\"left\""),
            std::string::npos)
      << json;
  EXPECT_NE(json.find("\"label\":\"绘制墙体\",\"kind\":\"command\",\"enabled\":true,"
                      "\"visible\":true,\"depth\":1"),
            std::string::npos)
      << json;
  EXPECT_NE(json.find("\"label\":\"插入门\",\"kind\":\"command\",\"enabled\":true,"
                      "\"visible\":false"),
            std::string::npos);
}

// All windows of this thread, with or without a parent.
int WindowsOfThread() {
  int count = 0;
  ::EnumThreadWindows(
      ::GetCurrentThreadId(),
      [](HWND window, LPARAM n) -> BOOL {
        *reinterpret_cast<int*>(n) += 1 + CountWindows(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

SIZE_T PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX memory{};
  memory.cb = sizeof memory;
  ::GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                         sizeof memory);
  return memory.PrivateUsage;
}

TEST_F(Palette, TheShellStateReportsThePlacesOfRowsFarFromTheViewAfterScrolling) {
  ComeUp();
  auto* screen = new TMenuBar;
  screen->m_strName = L"SCREEN";
  for (int i = 0; i < 200; ++i) AddLine(*screen, L"前", L"x");
  TMenuBar* group = AddHeader(*screen, L"组");
  for (int i = 0; i < 100; ++i) AddLine(*group, L"内", L"x");
  for (int i = 0; i < 200; ++i) AddLine(*screen, L"后", L"x");
  AddLine(*screen, L"末", L"x");
  AddLine(*group, L"内末", L"x");
  menu.system.Append(screen);
  AttachScreenBar(menu.system);
  Click(Root(), 200);
  Root().WheelGroup(0, 120 * 250, CPoint());
  Root().WheelGroup(0, -120 * 50, CPoint());
  ASSERT_EQ(Root().ScrollBar().GetScrollPos(), 2000);
  const std::string json = DescribeScreenMenu();
  const int top = PlaceOf(Root()).top + 2 - 2000;
  const auto topTold = [&json](const char* label) {
    const std::size_t row = json.find(std::string("\"label\":\"") + label + "\"");
    const std::size_t rect = json.find("\"rect\":[", row);
    int left = 0, at = -1;
    EXPECT_EQ(std::sscanf(json.c_str() + rect, "\"rect\":[%d,%d", &left, &at), 2);
    return at;
  };
  EXPECT_EQ(topTold("前"), top);
  const int inner = top + 201 * 24 + 2 + 2;
  EXPECT_EQ(topTold("内"), inner);
  EXPECT_EQ(topTold("内末"), inner + 100 * 24);
  const int behind = top + 201 * 24 + 101 * 24 + 4 + 4;
  EXPECT_EQ(topTold("后"), behind);
  EXPECT_EQ(topTold("末"), behind + 200 * 24);
}

// Kills all timers of all windows of this thread and returns their number. Windows cannot enumerate
// timers, but KillTimer returns whether one was running.
int EndTimers() {
  constexpr UINT_PTR kIds = 64;  // palette: 10, tips: less
  int count = 0;
  const auto end = [](HWND window, LPARAM n) -> BOOL {
    for (UINT_PTR id = 0; id < kIds; ++id)
      *reinterpret_cast<int*>(n) += ::KillTimer(window, id) != FALSE;
    return TRUE;
  };
  struct Walk {
    WNDENUMPROC end;
    int* count;
  } walk{end, &count};
  ::EnumThreadWindows(
      ::GetCurrentThreadId(),
      [](HWND window, LPARAM parameter) -> BOOL {
        const auto& step = *reinterpret_cast<Walk*>(parameter);
        step.end(window, reinterpret_cast<LPARAM>(step.count));
        ::EnumChildWindows(window, step.end, reinterpret_cast<LPARAM>(step.count));
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&walk));
  return count;
}

struct Held {
  int timers, windows, bitmaps, fonts, pens, brushes, icons, dcs;
  int bars;  // of the menus
  bool operator==(const Held&) const = default;
};
Held HeldNow() {
  return {EndTimers(),
          WindowsOfThread(),
          qvx::OwnedBitmap::Alive(),
          qvx::OwnedFont::Alive(),
          qvx::OwnedPen::Alive(),
          qvx::OwnedBrush::Alive(),
          qvx::OwnedIcon::Alive(),
          qvx::OwnedMemoryDc::Alive(),
          CountedBar::s_alive};
}

TEST_F(Palette, AThousandReloadsKeepTheResourceCountsOfTheFifth) {
  const auto reload = [this] {
    InitScreenMenu(false, true);
    InitScreenMenu(true, true);
    Attach();
    Click(Root(), 0);
    Click(Root(), 2);  // a waiting command when the palette is destroyed
    g_pScreenMenu->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_pScreenMenu->m_hWnd),
                               MAKELPARAM(60, 60));  // the palette owns the pop-up's lines
    host.diary.clear();
    g_pScreenMenu->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  };
  for (int i = 0; i < 5; ++i) reload();
  const Held fifth = HeldNow();
  const SIZE_T bytes = PrivateBytes();
  for (int i = 0; i < 995; ++i) reload();
  EXPECT_EQ(HeldNow(), fifth);
  EXPECT_EQ(fifth.timers, 1) << "that of the command that waits";
  EXPECT_EQ(fifth.bars, 3);
  EXPECT_LT(PrivateBytes(), bytes + (4 << 20));
  g_pScreenMenu->SetTimer(qvx::kSendTimer, qvx::kSendDelay, nullptr);
  InitScreenMenu(false, true);
  EXPECT_EQ(EndTimers(), 0);
  EXPECT_EQ(CountedBar::s_alive, 0);
  CDockBar* bar = host.frame->GetDockBar(AFX_IDW_DOCKBAR_LEFT);
  EXPECT_EQ(::GetWindow(bar->m_hWnd, GW_CHILD), nullptr);
}

}  // namespace
