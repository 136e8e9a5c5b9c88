// Extreme trees: huge, deep, with odd labels and broken icons, on a host without free window
// handles. Windows that can be created are shown, without messages to the user or leaks.
#include <string>

#include "tests/doubles/win/palette_host.h"
#include "refused_windows.h"
#include "screenmenu/group_plan.h"
#include "tree_fixture.h"

namespace {

using namespace fixture;

class HostileTrees : public TreeWindows {
 protected:
  // 200 lines: 20 headers with nine lines each, one of them a switch.
  void FillTwoHundred() {
    state = MakeSwitch(L"get-a", L"set-a", {L"开", L"关"});
    owner.lisp.Number(L"get-a", 1);
    for (int h = 0; h < 20; ++h) {
      TMenuBar* below = AddHeader(bar, L"组");
      for (int i = 0; i < 8; ++i) AddLine(*below, L"行", L"TLine\n");
      AddSwitchLine(*below, *state);
    }
  }
  // Processes messages as a host does between two menus.
  static void TakeMessages() {
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
    ThePaletteHost().Pump();
  }
  // Operates every row that exists.
  void UseAll() {
    CMenuGroup& group = Build();
    for (int i = 0; i < group.RowCount(); i += 7) {
      group.ToggleSubMenu(static_cast<unsigned>(i));
      if (group.Row(i)->GetSafeHwnd()) Click(group, i);
    }
    group.ScrollGroup(SB_BOTTOM, 0);
    group.WheelGroup(0, -120, CPoint(5, 5));
    group.RevealRect(CRect(0, 500, 50, 600));
    group.RefreshSwitches();
    group.MoveWindow(CRect(0, 0, 90, 200));
    group.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  }
  std::unique_ptr<TMenuSwitchItem> state;
};

TEST_F(HostileTrees, AnyOneWindowMayFail) {
  FillTwoHundred();
  const int bitmaps = qvx::OwnedBitmap::Alive(), fonts = qvx::OwnedFont::Alive();
  int asked = 0;
  for (int number = 0; number == 0 || number <= asked; ++number) {
    {
      const RefusedWindows refused(number, false);
      Build();
      asked = refused.Asked();
    }
    root.reset();
    ASSERT_EQ(CountWindows(palette.m_hWnd), 0) << "window " << number;
    TakeMessages();
  }
  EXPECT_GT(asked, 10);
  EXPECT_EQ(qvx::OwnedBitmap::Alive(), bitmaps);
  EXPECT_EQ(qvx::OwnedFont::Alive(), fonts);
  EXPECT_TRUE(owner.notes.empty());
}

TEST_F(HostileTrees, TheRestWorksWhenSomeWindowsFailed) {
  FillTwoHundred();
  for (int number : {0, 1, 2, 3, 11, 12, 60, 199}) {
    const RefusedWindows refused(number, false);
    UseAll();
    root.reset();
    ASSERT_EQ(CountWindows(palette.m_hWnd), 0) << "window " << number;
  }
}

TEST_F(HostileTrees, WithoutFreeWindowHandlesTheWindowsCreatedBeforeAreShown) {
  FillTwoHundred();
  for (int number : {0, 1, 2, 40, 150}) {
    const RefusedWindows refused(number, true);
    UseAll();
    EXPECT_EQ(CountWindows(palette.m_hWnd), number);
    root.reset();
    ASSERT_EQ(CountWindows(palette.m_hWnd), 0);
  }
}

TEST_F(HostileTrees, RowsAreInOrderAroundOneThatFailed) {
  Fill(5);
  const RefusedWindows refused(3, false);  // the group, two rows, then this one
  CMenuGroup& group = Build();
  EXPECT_EQ(group.Row(2)->GetSafeHwnd(), nullptr);
  EXPECT_EQ(PlaceOf(group.Row(3)).top, 2 + 3 * 24) << "the gap stays";
  Click(group, 3);
  EXPECT_EQ(owner.notes, (std::vector<std::wstring>{L"arm TLine\n"}));
}

TEST_F(HostileTrees, TwentyThousandRowsAreShownAndScrollToTheirEnd) {
  Fill(20000);
  g_bScrollBar = 1;
  CMenuGroup& group = Build();
  ASSERT_TRUE(group.HasScrollBar());
  EXPECT_NE(group.Row(19999)->GetSafeHwnd(), nullptr);
  group.ScrollGroup(SB_BOTTOM, 0);
  EXPECT_EQ(group.ScrollBar().GetScrollPos(), 20000 * 24 + 4 - 300) << "beyond 16 bits";
  EXPECT_EQ(PlaceOf(group.Row(19999)).bottom, 300 - 2);
  group.ScrollGroup(SB_TOP, 0);
  EXPECT_EQ(PlaceOf(group.Row(0)), CRect(0, 2, 112, 26));
}

TEST_F(HostileTrees, RowsFarFromTheViewAreMovedWhenTheyComeNear) {
  Fill(400);
  CMenuGroup& group = Build();
  group.ScrollGroup(SB_THUMBTRACK, 5000);
  const int first = (5000 - 2) / 24;
  for (int i = first; i < first + 13; ++i)
    ASSERT_EQ(PlaceOf(group.Row(i)).top, 2 + i * 24 - 5000) << i;
  CRect seen;
  for (int i = 0; i < 400; ++i) {
    const bool wanted = i >= first && i < first + 13;
    EXPECT_EQ(seen.IntersectRect(PlaceOf(group.Row(i)), CRect(0, 0, 120, 300)) != FALSE, wanted)
        << "row " << i;
  }
  for (int step = 0; step < 60; ++step) group.WheelGroup(0, 120, CPoint(5, 5));
  const int pos = group.ScrollBar().GetScrollPos();
  EXPECT_EQ(pos, 5000 - 60 * 40);
  for (int i = pos / 24; i < pos / 24 + 12; ++i)
    ASSERT_EQ(PlaceOf(group.Row(i)).top, 2 + i * 24 - pos) << i;
}

TEST_F(HostileTrees, RowsNearTheViewMoveWithEveryScroll) {
  Fill(60);
  CMenuGroup& group = Build();
  for (int to : {40, 700, 1000, 333, 0}) {
    group.ScrollGroup(SB_THUMBTRACK, to);
    for (int i = 0; i < 60; ++i) ASSERT_EQ(PlaceOf(group.Row(i)).top, 2 + i * 24 - to) << i;
  }
}

TEST_F(HostileTrees, FiveThousandSwitchesAreReadOnceEach) {
  state = MakeSwitch(L"get-a", L"set-a", {L"开", L"关"});
  owner.lisp.Number(L"get-a", 2);
  for (int i = 0; i < 5000; ++i) AddSwitchLine(bar, *state);
  CMenuGroup& group = Build();
  EXPECT_EQ(owner.lisp.diary.size(), 5000u);
  CString caption;
  group.Row(4999)->GetWindowText(caption);
  EXPECT_EQ(caption, L"关");
  owner.lisp.Number(L"get-a", 1);
  group.RefreshSwitches();
  EXPECT_EQ(owner.lisp.diary.size(), 10000u);
  group.Row(4999)->GetWindowText(caption);
  EXPECT_EQ(caption, L"开");
}

TEST_F(HostileTrees, FunctionsThatFailDuringBuildingDoNotStopIt) {
  state = MakeSwitch(L"get-a", L"set-a", {L"开", L"关"});
  AddSwitchLine(bar, *state);
  TMenuItem* gray = AddLine(bar, L"灰", L"TGray\n");
  gray->m_nFlags = TMenuItem::kHasGrayFn;
  gray->m_strGrayFn = L"no-such";
  TMenuItem* check = AddLine(bar, L"勾", L"TCheck\n");
  check->m_nFlags = TMenuItem::kHasCheckFn;
  check->m_strCheckFn = L"no-such";
  CMenuGroup& group = Build();
  EXPECT_FALSE(group.Row(0)->IsWindowEnabled()) << "its state is unknown";
  EXPECT_TRUE(group.Row(1)->IsWindowEnabled());
  EXPECT_TRUE(group.Row(2)->IsWindowEnabled());
  EXPECT_EQ(group.Row(2)->ShownBitmap(), nullptr) << "no mark";
}

TEST_F(HostileTrees, OddLabelsAreShownAndPainted) {
  const std::wstring longest(255, L'墙');
  const std::wstring labels[] = {
      L"",       longest, L"&",  L"&&&", L"a&b&&c", L"مرحبا", L"\xD840\xDC0B 四字节",
      L"\xD840", L"\t\n", L"--&"};
  for (const std::wstring& label : labels) AddLine(bar, label.c_str(), L"TLine\n");
  CMenuGroup& group = Build();
  group.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  for (int i = 0; i < group.RowCount(); ++i) {
    CString shown;
    group.Row(i)->GetWindowText(shown);
    EXPECT_EQ(std::wstring(static_cast<const wchar_t*>(shown)), labels[i]) << i;
    EXPECT_EQ(PlaceOf(group.Row(i)).Height(), 24);
  }
}

TEST_F(HostileTrees, MissingOrBrokenIconsLeaveTheRowWithoutOne) {
  g_hQvxDll = ::GetModuleHandleW(nullptr);  // a module without bitmaps
  AddResource(owner.system, L"ID_A", L"NoSuchBitmap", L"");
  AddLine(bar, L"甲", L"TLine\n")->m_nIconIndex = 0;
  AddLine(bar, L"乙", L"TLine\n")->m_nIconIndex = 7;  // beyond the table
  CMenuGroup& group = Build();
  group.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  for (int i : {0, 1}) EXPECT_EQ(group.Row(i)->ShownBitmap(), nullptr);
  group.Row(1)->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  ::ReleaseCapture();
  g_hQvxDll = nullptr;
}

TEST_F(HostileTrees, RowHeightsOutOfRangeAreHarmless) {
  FillTwoHundred();
  for (int height : {0, 1, 2, 3, -1, -1000, 30000, 1 << 28}) {
    g_iMenuRowHeight = height;
    UseAll();
    root.reset();
  }
  g_iMenuRowHeight = 25;
}

}  // namespace
