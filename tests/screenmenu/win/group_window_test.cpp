// The tree of groups as real windows: building, folding, scrolling, the limited height, clicks,
// painting, handles. The parent is a plain window that records the calls of the palette.
#include <gtest/gtest.h>

#include "tree_fixture.h"

namespace {

using namespace fixture;

using GroupWindows = TreeWindows;

TEST_F(GroupWindows, ButtonsAndNestedGroupsShareOneSequenceOfIdentifiersInEachGroup) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  EXPECT_EQ(group.Row(0)->GetDlgCtrlID(), 5000);
  EXPECT_EQ(group.Child(0)->GetDlgCtrlID(), 5001);
  EXPECT_EQ(group.Row(1)->GetDlgCtrlID(), 5002);
  EXPECT_EQ(group.Child(0)->Row(0)->GetDlgCtrlID(), 5000);
}

TEST_F(GroupWindows, TheTreeIsBuiltHiddenAndARowHasItsFixedStyle) {
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(bar, L"--");
  CMenuGroup group(&bar, CRect(0, 0, 120, 300), &palette, 5000, false, &owner);
  EXPECT_FALSE(group.GetStyle() & WS_VISIBLE);
  EXPECT_EQ(group.Row(0)->GetStyle(), 0x5001400Bu);
  EXPECT_TRUE(group.Row(0)->IsWindowEnabled());
  EXPECT_FALSE(group.Row(1)->IsWindowEnabled());
}

TEST_F(GroupWindows, RowsAreAtTheirLayoutPositionsFromTheStart) {
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(bar, L"--");
  AddLine(bar, L"标注", L"TDim\n");
  CMenuGroup& group = Build();
  EXPECT_EQ(PlaceOf(group.Row(0)), CRect(0, 2, 120, 26));
  EXPECT_EQ(PlaceOf(group.Row(1)), CRect(0, 26, 120, 34));
  EXPECT_EQ(PlaceOf(group.Row(2)), CRect(0, 34, 120, 58));
}

TEST_F(GroupWindows, AClickOnAHeaderOpensItsGroupAndASecondOneFoldsIt) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  Click(group, 0);
  EXPECT_EQ(group.OpenIndex(), 0);
  EXPECT_TRUE(group.Child(0)->IsWindowVisible());
  EXPECT_EQ(PlaceOf(group.Child(0)), CRect(0, 28, 120, 56));
  EXPECT_EQ(PlaceOf(group.Row(1)).top, 26 + 4 + 28);
  EXPECT_EQ(group.Row(0)->ShownBitmap(), owner.Arrow(0, true));
  Click(group, 0);
  EXPECT_EQ(group.OpenIndex(), -1);
  EXPECT_FALSE(group.Child(0)->IsWindowVisible());
  EXPECT_EQ(PlaceOf(group.Row(1)).top, 26);
  EXPECT_EQ(group.Row(0)->ShownBitmap(), owner.Arrow(0, false));
}

TEST_F(GroupWindows, AClickOnAnotherHeaderFoldsTheFirstAndOpensTheSecondInOneStep) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  AddLine(*AddHeader(bar, L"门窗"), L"画门", L"TDoor\n");
  CMenuGroup& group = Build();
  Click(group, 0);
  Click(group, 1);
  EXPECT_FALSE(group.Child(0)->IsWindowVisible());
  EXPECT_TRUE(group.Child(1)->IsWindowVisible());
  EXPECT_EQ(PlaceOf(group.Row(1)).top, 26);
  EXPECT_EQ(PlaceOf(group.Child(1)).top, 52);
}

// Counts the moves and resizes of a window by subclassing it.
class MoveCounter {
 public:
  explicit MoveCounter(HWND window) : m_window(window) {
    s_moves = 0;
    s_procedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Count)));
  }
  ~MoveCounter() {
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_procedure));
  }
  int Moves() const { return s_moves; }

 private:
  static LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_WINDOWPOSCHANGED) ++s_moves;
    return ::CallWindowProcW(s_procedure, window, message, wParam, lParam);
  }
  HWND m_window;
  inline static WNDPROC s_procedure = nullptr;
  inline static int s_moves = 0;
};

// Both groups have the same height: one pass for the fold and another for the opening would move
// the last row up and down again.
TEST_F(GroupWindows, ChangingTheOpenGroupIsOneLayoutPass) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  AddLine(*AddHeader(bar, L"门窗"), L"画门", L"TDoor\n");
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  Click(group, 0);
  const MoveCounter last(group.Row(2)->m_hWnd);
  Click(group, 1);
  EXPECT_EQ(group.OpenIndex(), 1);
  EXPECT_EQ(last.Moves(), 0);
  Click(group, 1);
  EXPECT_EQ(last.Moves(), 1) << "a fold alone moves it";
}

TEST_F(GroupWindows, OpeningTheFirstOnALeafOpensNothingAndAClickOnAHeaderOpensIt) {
  g_bDefaultOpenFirst = 1;
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  CMenuGroup& group = Build();
  EXPECT_EQ(group.OpenIndex(), 0);
  EXPECT_FALSE(group.Child(1)->IsWindowVisible());
  Click(group, 1);
  EXPECT_EQ(group.OpenIndex(), 1);
  EXPECT_TRUE(group.Child(1)->IsWindowVisible());
}

TEST_F(GroupWindows, AnEmptyBarIsAGroupOfFourPixelsWithoutButtons) {
  CMenuGroup& group = Build();
  EXPECT_EQ(group.RowCount(), 0);
  EXPECT_EQ(group.ContentHeight(), 4);
  EXPECT_EQ(::GetWindow(group.m_hWnd, GW_CHILD), nullptr);
}

TEST_F(GroupWindows, AParentOpenedAgainKeepsTheStateOfItsInnerGroups) {
  AddLine(*AddHeader(*AddHeader(bar, L"一"), L"二"), L"叶", L"x");
  CMenuGroup& group = Build();
  Click(group, 0);
  Click(*group.Child(0), 0);
  Click(group, 0);
  EXPECT_FALSE(group.Child(0)->Child(0)->IsWindowVisible());
  Click(group, 0);
  EXPECT_TRUE(group.Child(0)->Child(0)->IsWindowVisible());
  EXPECT_EQ(PlaceOf(group.Child(0)).Height(), 28 + 4 + 28);
}

TEST_F(GroupWindows, TheSavedGroupIsOpenFromTheStart) {
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  qvx::SaveActiveSubMenu(1);
  CMenuGroup& group = Build();
  EXPECT_TRUE(group.Child(1)->IsWindowVisible());
  EXPECT_EQ(PlaceOf(group.Child(1)), CRect(0, 52, 120, 80));
  EXPECT_EQ(group.Row(1)->ShownBitmap(), owner.Arrow(0, true));
}

TEST_F(GroupWindows, ATreeExactlyAsTallAsTheClientHasNoBarAndOnePixelMoreHasOne) {
  g_bScrollBar = 1;
  Fill(4);
  EXPECT_FALSE(Build(100).HasScrollBar());
  root.reset();
  CMenuGroup& group = Build(99);
  ASSERT_TRUE(group.HasScrollBar());
  EXPECT_EQ(PlaceOf(&group.ScrollBar()), CRect(112, 0, 120, 99));
  EXPECT_EQ(PlaceOf(group.Row(0)).right, 112);
}

TEST_F(GroupWindows, ABarOfZeroWidthStillScrollsByTheWheel) {
  Fill(40);
  CMenuGroup& group = Build(200);
  ASSERT_TRUE(group.HasScrollBar());
  EXPECT_EQ(PlaceOf(&group.ScrollBar()).Width(), 0);
  EXPECT_EQ(PlaceOf(group.Row(0)).right, 120);
  EXPECT_EQ(group.WheelGroup(0, -120, CPoint()), 1);
  EXPECT_EQ(group.ScrollBar().GetScrollPos(), 40);
  EXPECT_EQ(PlaceOf(group.Row(0)).top, 2 - 40);
}

TEST_F(GroupWindows, ABarOfZeroWidthStillScrollsAnOpenedGroupIntoView) {
  Fill(10);
  AddLine(*AddHeader(bar, L"组"), L"行", L"x");
  CMenuGroup& group = Build(200);
  group.ScrollGroup(SB_BOTTOM, 0);
  Click(group, 10);
  EXPECT_EQ(PlaceOf(group.Child(10)).bottom, 200);
  EXPECT_EQ(PlaceOf(group.Child(10)).right, 120);
}

TEST_F(GroupWindows, ASeparatorIsTransparentToThePointer) {
  AddLine(bar, L"--");
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  const auto under = [&group](int row) {
    CPoint middle = PlaceOf(group.Row(row)).CenterPoint();
    return ::RealChildWindowFromPoint(group.m_hWnd, middle) == group.Row(row)->m_hWnd &&
           group.Row(row)->IsWindowEnabled();
  };
  EXPECT_FALSE(under(0));
  EXPECT_TRUE(under(1));
  CPoint onScreen = PlaceOf(group.Row(0)).CenterPoint();
  group.ClientToScreen(&onScreen);
  EXPECT_EQ(::WindowFromPoint(onScreen), group.m_hWnd);
}

TEST_F(GroupWindows, ATipIsSetAtItsFirstUseAndStaysWhenTheStateChanges) {
  g_hQvxDll = ::GetModuleHandleW(nullptr);
  const int shows = g_bShowMenuTip;
  g_bShowMenuTip = 1;
  AddResource(owner.system, L"ID_ON", L"", L"帮助一");
  AddResource(owner.system, L"ID_OFF", L"", L"帮助二");
  const auto made = MakeSwitch(L"get-a", L"set-a", {L"开", L"关"});
  owner.lisp.Number(L"get-a", 1);
  AddSwitchLine(bar, *made);
  CMenuGroup& group = Build();
  CSMenuItem& row = *group.Row(0);
  const auto hover = [&row] {
    row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-5, 5));
    return TipOf(row);
  };
  EXPECT_EQ(hover(), L"帮助一");
  owner.lisp.Number(L"get-a", 2);
  group.RefreshSwitches();
  EXPECT_EQ(row.Help(), L"帮助二");
  EXPECT_EQ(hover(), L"帮助一");
  g_bShowMenuTip = shows;
  g_hQvxDll = nullptr;
}

TEST_F(GroupWindows, WithoutTipsInTheSettingsARowHasNone) {
  g_hQvxDll = ::GetModuleHandleW(nullptr);
  const int shows = g_bShowMenuTip;
  g_bShowMenuTip = 0;
  AddResource(owner.system, L"ID_A", L"", L"帮助");
  AddLine(bar, L"轴网", L"TAxis\n")->m_nIconIndex = 0;
  CMenuGroup& group = Build();
  group.Row(0)->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  EXPECT_TRUE(group.Row(0)->IsMouseOn());
  EXPECT_EQ(TipOf(*group.Row(0)), L"");
  ::ReleaseCapture();
  g_bShowMenuTip = shows;
  g_hQvxDll = nullptr;
}

TEST_F(GroupWindows, ScrollingMovesTheRowsAndNotTheBar) {
  g_bScrollBar = 1;
  Fill(40);
  CMenuGroup& group = Build(200);
  group.ScrollGroup(SB_PAGEDOWN, 0);
  EXPECT_EQ(PlaceOf(group.Row(39)).top, 2 + 39 * 24 - 100);
  EXPECT_EQ(PlaceOf(&group.ScrollBar()), CRect(112, 0, 120, 200));
  group.ScrollGroup(SB_BOTTOM, 0);
  EXPECT_EQ(group.ScrollBar().GetScrollPos(), 40 * 24 + 4 - 200);
  EXPECT_EQ(PlaceOf(group.Row(39)).bottom, 200 - 2);
  group.ScrollGroup(SB_TOP, 0);
  EXPECT_EQ(PlaceOf(group.Row(0)).top, 2);
}

TEST_F(GroupWindows, FoldingScrollsBackAndHidesABarThatIsNotNeeded) {
  TMenuBar* nested = AddHeader(bar, L"长");
  for (int i = 0; i < 20; ++i) AddLine(*nested, L"行", L"x");
  Fill(5);
  CMenuGroup& group = Build(100);
  Click(group, 0);
  group.ScrollGroup(SB_BOTTOM, 0);
  Click(group, 0);
  EXPECT_EQ(group.ScrollBar().GetScrollPos(), 6 * 24 + 4 - 100);
  EXPECT_EQ(PlaceOf(group.Row(5)).bottom, 98);
  group.MoveWindow(0, 0, 120, 400);
  EXPECT_FALSE(group.HasScrollBar());
  EXPECT_EQ(PlaceOf(group.Row(0)).top, 2);
}

TEST_F(GroupWindows, AnOpenedGroupIsScrolledIntoViewWithItsHeader) {
  Fill(10);
  TMenuBar* nested = AddHeader(bar, L"组");
  for (int i = 0; i < 3; ++i) AddLine(*nested, L"行", L"x");
  CMenuGroup& group = Build(200);
  group.ScrollGroup(SB_BOTTOM, 0);
  Click(group, 10);
  const CRect shown = PlaceOf(group.Child(10));
  EXPECT_EQ(shown.bottom, 200);
  EXPECT_GE(PlaceOf(group.Row(10)).top, 0);
}

TEST_F(GroupWindows, WithLimitedHeightTheRootStaysAndTheOpenGroupTakesAndScrollsTheRest) {
  TMenuBar* nested = AddHeader(bar, L"长");
  for (int i = 0; i < 20; ++i) AddLine(*nested, L"行", L"x");
  Fill(2);
  CMenuGroup& group = Build(300, true);
  Click(group, 0);
  CMenuGroup& open = *group.Child(0);
  EXPECT_FALSE(group.HasScrollBar());
  EXPECT_TRUE(open.HasScrollBar());
  EXPECT_EQ(PlaceOf(&open).Height(), 300 - (3 * 24 + 4) - 4);
  EXPECT_EQ(PlaceOf(group.Row(2)).bottom, 298);
  EXPECT_EQ(open.WheelGroup(0, -120, CPoint()), 1);
  EXPECT_EQ(PlaceOf(open.Row(0)).top, 2 - 40);
  EXPECT_EQ(PlaceOf(group.Row(2)).bottom, 298);
}

TEST_F(GroupWindows, RowsThatFillALimitedRootLeaveItsOpenGroupNoHeight) {
  AddLine(*AddHeader(bar, L"组"), L"行", L"x");
  Fill(10);
  CMenuGroup& group = Build(100, true);
  Click(group, 0);
  EXPECT_EQ(PlaceOf(group.Child(0)).Height(), 0);
}

// Forty headers of 24 pixels in a window of 300: the open group's height is negative, so the rows
// after it overlap those before it.
TEST_F(GroupWindows, ARowThatIsCoveredInALimitedRootPaintsNothingAndGetsNoClick) {
  for (int i = 0; i < 40; ++i) AddLine(*AddHeader(bar, L"组"), L"行", L"x");
  CMenuGroup& group = Build(300, true);
  for (int i = 0; i < 40; ++i) {
    EXPECT_EQ(PlaceOf(group.Row(i)).top, 2 + 24 * i) << i;
    EXPECT_FALSE(group.Row(i)->GetStyle() & WS_CLIPSIBLINGS) << i;
  }
  Click(group, 30);
  const int rest = 300 - (40 * 24 + 4) - 4;
  ASSERT_LT(rest, 0);
  for (int i = 0; i < 40; ++i) {
    const CRect place = PlaceOf(group.Row(i));
    EXPECT_EQ(place.top, i <= 30 ? 2 + 24 * i : 2 + 24 * i + 4 + rest) << i;
    EXPECT_EQ(place.Height(), 24) << i;
    // The earlier row is on top, for the pointer and for the eye.
    const CPoint middle = place.CenterPoint();
    int top = i;
    for (int j = i - 1; j >= 0; --j)
      if (PlaceOf(group.Row(j)).PtInRect(middle)) top = j;
    const bool seen = middle.y >= 0 && middle.y < 300;
    if (seen) {
      EXPECT_EQ(group.ChildWindowFromPoint(middle), static_cast<CWnd*>(group.Row(top))) << i;
    }
    const HDC dc = ::GetDC(group.Row(i)->m_hWnd);
    EXPECT_EQ(::PtVisible(dc, middle.x - place.left, middle.y - place.top) != FALSE,
              top == i && seen)
        << i;
    ::ReleaseDC(group.Row(i)->m_hWnd, dc);
  }
  Click(group, 30);
  for (int i = 0; i < 40; ++i) EXPECT_EQ(PlaceOf(group.Row(i)).top, 2 + 24 * i) << i;
}

TEST_F(GroupWindows, AStateThatAPopupCopiedIntoALineIsShownByItsRow) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuBar* nested = AddHeader(bar, L"组");
  AddSwitchLine(*nested, *shown);
  owner.lisp.Number(L"get", 1);
  CMenuGroup& group = Build();
  CSMenuItem* row = group.Child(0)->Row(0);
  CString text;
  row->GetWindowText(text);
  ASSERT_EQ(text, L"开");
  owner.lisp.Number(L"get", 2);
  qvx::RefreshSwitchLine(*nested->At(0), owner.Lines());  // as a pop-up does
  group.ShowLineStates();
  row->GetWindowText(text);
  EXPECT_EQ(text, L"关");
}

TEST_F(GroupWindows, ImagesOfAllRowsAreLoadedAgainAfterAChangeOfTheColours) {
  TMenuBar* nested = AddHeader(bar, L"组");
  AddLine(*nested, L"行", L"x");
  CMenuGroup& group = Build();
  Click(group, 0);
  owner.arrowsAsked.clear();
  group.ReloadImages();
  EXPECT_EQ(owner.arrowsAsked, (std::vector<std::pair<int, bool>>{{0, true}}));
  Click(group, 0);
  owner.arrowsAsked.clear();
  group.ReloadImages();
  EXPECT_EQ(owner.arrowsAsked, (std::vector<std::pair<int, bool>>{{0, false}}));
}

TEST_F(GroupWindows, AClickOnACommandStartsItsWaitAndOneOnASeparatorDoesNothing) {
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(bar, L"--");
  AddLine(bar, L"空");
  CMenuGroup& group = Build();
  Click(group, 0);
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"arm TAxis\n"}));
  EXPECT_FALSE(group.Row(1)->IsWindowEnabled());
  EXPECT_FALSE(group.Row(2)->IsWindowEnabled()) << "real clicks never reach it";
  group.SendMessage(WM_COMMAND, MAKEWPARAM(5001, BN_CLICKED),
                    reinterpret_cast<LPARAM>(group.Row(1)->m_hWnd));
  EXPECT_EQ(owner.notes.size(), 1u);
}

// Both groups have a row with the identifier 5000.
TEST_F(GroupWindows, AClickIsLookedUpOnlyInTheGroupThatReceivesIt) {
  AddLine(bar, L"轴网", L"TAxis\n");
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  CMenuGroup& group = Build();
  ASSERT_EQ(group.Row(0)->GetDlgCtrlID(), group.Child(1)->Row(0)->GetDlgCtrlID());
  Click(group, 1);
  Click(*group.Child(1), 0);
  Click(group, 0);
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"arm TWall\n", L"arm TAxis\n"}));
}

TEST_F(GroupWindows, FocusNotificationsAndUnknownIdentifiersAreIgnored) {
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  const LPARAM button = reinterpret_cast<LPARAM>(group.Row(0)->m_hWnd);
  group.SendMessage(WM_COMMAND, MAKEWPARAM(5000, BN_SETFOCUS), button);
  group.SendMessage(WM_COMMAND, MAKEWPARAM(5099, BN_CLICKED), button);
  group.SendMessage(WM_COMMAND, MAKEWPARAM(5000, BN_CLICKED), 0);
  EXPECT_TRUE(owner.notes.empty());
}

TEST_F(GroupWindows, ASwitchIsRefusedWhileACommandRuns) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  AddSwitchLine(bar, *shown);
  owner.lisp.Number(L"get", 1);
  CMenuGroup& group = Build();
  owner.busy = true;
  owner.lisp.diary.clear();
  Click(group, 0);
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"busy"}));
  EXPECT_TRUE(owner.lisp.diary.empty());
}

TEST_F(GroupWindows, ASwitchClickShowsTheNewStateAndRefreshesTheOthers) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  AddSwitchLine(bar, *shown);
  owner.lisp.Number(L"get", 1);
  CMenuGroup& group = Build();
  owner.lisp.Nil(L"set");
  owner.lisp.Number(L"get", 2);
  Click(group, 0);
  CString text;
  group.Row(0)->GetWindowText(text);
  EXPECT_EQ(text, L"关");
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"flipped"}));
}

TEST_F(GroupWindows, RefreshingIncludesHiddenGroupsAndKeepsEveryOpenIndex) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  AddLine(*AddHeader(bar, L"一"), L"行", L"x");
  TMenuBar* hidden = AddHeader(bar, L"二");
  AddSwitchLine(*hidden, *shown);
  owner.lisp.Number(L"get", 1);
  CMenuGroup& group = Build();
  Click(group, 0);
  owner.lisp.Number(L"get", 2);
  group.RefreshSwitches();
  CString text;
  group.Child(1)->Row(0)->GetWindowText(text);
  EXPECT_EQ(text, L"关");
  EXPECT_EQ(group.OpenIndex(), 0);
  EXPECT_EQ(group.Child(1)->OpenIndex(), -1);
}

TEST_F(GroupWindows, ASwitchThatFailedStaysDisabledAfterEveryRefresh) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  AddSwitchLine(bar, *shown);
  CMenuGroup& group = Build();
  EXPECT_FALSE(group.Row(0)->IsWindowEnabled());
  owner.lisp.Number(L"get", 2);
  group.RefreshSwitches();
  EXPECT_FALSE(group.Row(0)->IsWindowEnabled());
  root.reset();
  EXPECT_TRUE(Build().Row(0)->IsWindowEnabled()) << "until the tree is built anew";
}

TEST_F(GroupWindows, ARightClickOpensTheMenuOfTheHeaderOrOfTheLine) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  for (int i : {0, 1})
    group.Row(i)->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(group.Row(i)->m_hWnd),
                              MAKELPARAM(60, 60));
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"header menu 1", L"line menu 轴网"}));
  EXPECT_EQ(group.OpenIndex(), -1) << "the fold state is left alone";
}

TEST_F(GroupWindows, TheKeyboardsMenuOfARowOpensBelowIt) {
  AddLine(bar, L"轴网", L"TAxis\n");
  CMenuGroup& group = Build();
  group.Row(0)->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(group.Row(0)->m_hWnd),
                            MAKELPARAM(-1, -1));
  CRect row;
  group.Row(0)->GetWindowRect(&row);
  EXPECT_EQ(owner.menuAt, CPoint(row.left, row.bottom));
}

TEST_F(GroupWindows, ARowPaintsItsGroupsColourAndTheHoverColourUnderThePointer) {
  AddLine(*AddHeader(bar, L"墙体"), L"行", L"x");
  CMenuGroup& group = Build();
  Click(group, 0);
  CSMenuItem& row = *group.Child(0)->Row(0);
  const qvx::OwnedMemoryDc memory(::CreateCompatibleDC(nullptr));
  HDC screen = ::GetDC(nullptr);
  const qvx::OwnedBitmap bitmap(::CreateCompatibleBitmap(screen, 120, 24));
  ::ReleaseDC(nullptr, screen);
  qvx::SelectedObject selected(memory.Get(), bitmap.Get());
  DRAWITEMSTRUCT draw{};
  draw.CtlType = ODT_BUTTON;
  draw.hDC = memory.Get();
  draw.rcItem = {0, 0, 120, 24};
  row.DrawItem(&draw);
  EXPECT_EQ(::GetPixel(memory.Get(), 110, 12), g_menuColors[1]);
  row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  EXPECT_TRUE(row.IsMouseOn());
  row.DrawItem(&draw);
  EXPECT_EQ(::GetPixel(memory.Get(), 110, 12), qvx::kHoverColor);
  EXPECT_EQ(::GetPixel(memory.Get(), 3, 12), ::GetSysColor(COLOR_BTNHIGHLIGHT));
  draw.itemState = ODS_SELECTED;
  row.DrawItem(&draw);
  EXPECT_EQ(::GetPixel(memory.Get(), 3, 12), ::GetSysColor(COLOR_BTNSHADOW));
  ::ReleaseCapture();
}

TEST_F(GroupWindows, TheOpenGroupHasASunkenEdgeOfTwoPixels) {
  AddLine(*AddHeader(bar, L"墙体"), L"行", L"x");
  AddLine(bar, L"轴网", L"x");
  CMenuGroup& group = Build();
  Click(group, 0);
  group.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  const CRect open = PlaceOf(group.Child(0));
  const qvx::WindowDc dc(group.m_hWnd, ::GetDCEx(group.m_hWnd, nullptr, DCX_CACHE));
  const auto at = [&dc](int y) { return ::GetPixel(dc.Get(), 60, y); };
  EXPECT_EQ(at(open.top - 2), ::GetSysColor(COLOR_BTNSHADOW));
  EXPECT_EQ(at(open.top - 1), ::GetSysColor(COLOR_3DDKSHADOW));
  EXPECT_EQ(at(open.bottom), ::GetSysColor(COLOR_3DLIGHT));
  EXPECT_EQ(at(open.bottom + 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(at(PlaceOf(group.Row(1)).bottom + 5), g_menuColors[0]);
}

TEST_F(GroupWindows, AHundredTreesLeakNoHandle) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  Fill(5);
  Build();
  root.reset();
  const int bitmaps = qvx::OwnedBitmap::Alive(), fonts = qvx::OwnedFont::Alive(),
            pens = qvx::OwnedPen::Alive();
  for (int i = 0; i < 100; ++i) {
    Click(Build(), 0);
    root->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    root.reset();
  }
  EXPECT_EQ(qvx::OwnedBitmap::Alive(), bitmaps);
  EXPECT_EQ(qvx::OwnedFont::Alive(), fonts);
  EXPECT_EQ(qvx::OwnedPen::Alive(), pens);
  EXPECT_EQ(::GetWindow(palette.m_hWnd, GW_CHILD), nullptr);
}

TEST_F(GroupWindows, AMenuDeeperThanWindowsCanNestIsShownUpToTheLimit) {
  TMenuBar* at = &bar;
  for (int i = 0; i < 90; ++i) at = AddHeader(*at, L"组");
  AddLine(bar, L"末", L"TLast\n");
  CMenuGroup& group = Build();
  Click(group, 0);
  EXPECT_TRUE(group.Child(0)->IsWindowVisible());
  Click(group, 1);
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"arm TLast\n"}));
}

// A group that counts messages with default handling.
class CountedGroup : public CMenuGroup {
 public:
  using CMenuGroup::CMenuGroup;
  int defaults = 0;

 protected:
  LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    ++defaults;
    return CMenuGroup::DefWindowProc(message, wParam, lParam);
  }
};

TEST_F(GroupWindows, ScrollingAGroupIntoViewRunsTheDefaultHandlingOfAScrollFirst) {
  Fill(30);
  CountedGroup group(&bar, CRect(0, 0, 120, 300), &palette, 5000, false, &owner);
  ASSERT_TRUE(group.HasScrollBar());
  group.defaults = 0;
  group.RevealRect(CRect(0, 10, 120, 60));
  EXPECT_EQ(group.defaults, 1);
  EXPECT_EQ(group.ScrollBar().GetScrollPos(), 0) << "it shows whole";
}

TEST_F(GroupWindows, WithoutAScrollBarScrollingIntoViewHandlesNoMessage) {
  Fill(2);
  CountedGroup group(&bar, CRect(0, 0, 120, 300), &palette, 5000, false, &owner);
  ASSERT_FALSE(group.HasScrollBar());
  group.defaults = 0;
  group.RevealRect(CRect(0, 10, 120, 900));
  EXPECT_EQ(group.defaults, 0);
}

TEST_F(GroupWindows, APressOnARowReleasedOutsideIsNoClickAndLeavesNoHover) {
  AddLine(bar, L"轴网", L"TAxis\n");
  CSMenuItem& row = *Build().Row(0);
  row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  row.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(::GetCapture(), row.m_hWnd) << "a press keeps the mouse";
  row.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-5, 5));
  EXPECT_EQ(::GetCapture(), row.m_hWnd) << "so does carrying it off";
  EXPECT_FALSE(row.IsMouseOn());
  row.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-5, 5));
  EXPECT_EQ(::GetCapture(), nullptr);
  EXPECT_FALSE(row.IsMouseOn());
  EXPECT_TRUE(owner.notes.empty());
}

TEST_F(GroupWindows, APressOnARowDraggedOffAndBackIsAClick) {
  AddLine(bar, L"轴网", L"TAxis\n");
  CSMenuItem& row = *Build().Row(0);
  row.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  row.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  row.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-5, 5));
  row.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
  row.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"arm TAxis\n"}));
}

}  // namespace
