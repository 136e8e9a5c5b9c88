// The host's palettes: caption and content, closing, what is remembered, rolling up.
#include "dock_fixture.h"

#include <objbase.h>

#include "afxext.h"

#include "acui.h"
#include "devhost/ui/palette/palette_layout.h"
#include "devhost/ui/palette/palette_store.h"

namespace {

const CLSID kTool = {0x7d0a3c11, 0x52fa, 0x4c1e, {0x9a, 0x10, 0x3b, 0x44, 0x20, 0x91, 0x7f, 0x01}};

struct Palettes : DockTest {
  void SetUp() override {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, devhost::PaletteStoreKey());
    DockTest::SetUp();
  }
};

CRect UsedRect(const TestPalette& palette) {
  CRect rect;
  palette.GetUsedRect(rect);
  return rect;
}

CPoint CloseBox(const TestPalette& palette) {
  CRect client;
  palette.GetClientRect(client);
  return CPoint(client.right - 11, UsedRect(palette).top / 2);
}

}  // namespace

TEST_F(Palettes, TheContentLiesBelowTheCaptionWhileDocked) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CRect client;
  palette.GetClientRect(client);
  EXPECT_GE(UsedRect(palette).top, 18);
  EXPECT_EQ(UsedRect(palette).left, 0);
  EXPECT_EQ(UsedRect(palette).right, client.right - 1);  // the line at the inner edge
  EXPECT_EQ(UsedRect(palette).bottom, client.bottom);
}

TEST_F(Palettes, TheContentIsTheWholeClientAreaWhileFloating) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  frame->FloatControlBar(&palette, CPoint(200, 200));
  CRect client;
  palette.GetClientRect(client);
  EXPECT_EQ(UsedRect(palette), client);
  EXPECT_GE(client.Width(), 74);
  EXPECT_GE(client.Height(), 200);
}

TEST_F(Palettes, AFloatingPaletteCantBeMadeSmallerThanItsLeastSize) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
  floating->SetWindowPos(nullptr, 0, 0, 90, 20, SWP_NOMOVE | SWP_NOZORDER);
  CRect client;
  palette.GetClientRect(client);
  EXPECT_GE(client.Width(), 74);
  EXPECT_EQ(client.Height(), 200);
}

TEST_F(Palettes, TheCloseBoxHidesThePaletteAtIdleTime) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  const CPoint box = CloseBox(palette);
  palette.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(box.x, box.y));
  EXPECT_EQ(palette.m_closings, 0);
  palette.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(box.x, box.y));
  EXPECT_EQ(palette.m_closings, 1);
  EXPECT_TRUE(palette.GetStyle() & WS_VISIBLE);
  PumpAll();
  EXPECT_FALSE(palette.IsWindowVisible());
  EXPECT_EQ(PaneRect().left, 0);
}

TEST_F(Palettes, LettingGoBesideTheCloseBoxClosesNothing) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  const CPoint box = CloseBox(palette);
  palette.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(box.x, box.y));
  palette.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(box.x, box.y + 100));
  EXPECT_EQ(palette.m_closings, 0);
  EXPECT_NE(::GetCapture(), palette.m_hWnd);
}

TEST_F(Palettes, ClosingTheFloatingFrameHidesThePaletteAndTheFrame) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
  floating->SendMessage(WM_CLOSE);
  EXPECT_EQ(palette.m_closings, 1);
  PumpAll();
  EXPECT_FALSE(::IsWindowVisible(floating->m_hWnd));
  EXPECT_TRUE(palette.IsFloating());
  frame->ShowControlBar(&palette, TRUE, TRUE);
  PumpAll();
  EXPECT_TRUE(palette.IsWindowVisible());
}

TEST_F(Palettes, DestroyedRightAfterClosingItStillCountsAsShown) {
  // A palette writes at its end whether it was shown; an unload closes and destroys it in one
  // breath.
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  palette.OnClosing();
  EXPECT_TRUE(palette.GetStyle() & WS_VISIBLE);
  palette.DestroyWindow();
  PumpAll();
  EXPECT_EQ(PaneRect().left, 0);
}

TEST_F(Palettes, DockingAtARectangleGivesThePaletteItsWidth) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CRect wanted;
  palette.GetWindowRect(wanted);
  wanted.right += 60;
  palette.DockControlBar(AFX_IDW_DOCKBAR_LEFT, &wanted);
  EXPECT_EQ(RectOf(palette).Width(), 136);
  frame->RecalcLayout();
  EXPECT_EQ(RectOf(palette).Width(), 136);
  EXPECT_EQ(frame->GetDockBar(AFX_IDW_DOCKBAR_LEFT)->m_arrBars.GetSize(), 3);
}

TEST_F(Palettes, TheWidthSurvivesFloating) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true, 123));
  frame->FloatControlBar(&palette, CPoint(200, 200));
  frame->DockControlBar(&palette, AFX_IDW_DOCKBAR_RIGHT);
  frame->RecalcLayout();
  EXPECT_EQ(RectOf(palette).Width(), 123);
}

TEST_F(Palettes, APaletteThatFloatedComesBackFloatingAtItsPlace) {
  CRect last;
  {
    TestPalette palette;
    ASSERT_TRUE(palette.CreateIn(frame, true));
    palette.SetToolID(&kTool);
    CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(321, 222));
    floating->SetWindowPos(nullptr, 0, 0, 190, 333, SWP_NOMOVE | SWP_NOZORDER);
    floating->GetWindowRect(last);
  }
  TestPalette again;
  ASSERT_TRUE(again.CreateIn(frame, true));
  again.SetToolID(&kTool);
  again.RestoreControlBar(AFX_IDW_DOCKBAR_LEFT, nullptr);
  ASSERT_TRUE(again.IsFloating());
  CRect now;
  again.GetDockingFrame()->GetWindowRect(now);
  EXPECT_EQ(now, last);
}

TEST_F(Palettes, APaletteThatWasDockedStaysWhereItsOwnerDocksIt) {
  {
    TestPalette palette;
    ASSERT_TRUE(palette.CreateIn(frame, true));
    palette.SetToolID(&kTool);
  }
  TestPalette again;
  ASSERT_TRUE(again.CreateIn(frame, false));
  again.SetToolID(&kTool);
  again.RestoreControlBar(AFX_IDW_DOCKBAR_RIGHT, nullptr);
  EXPECT_EQ(again.m_pDockBar, frame->GetDockBar(AFX_IDW_DOCKBAR_RIGHT));
}

TEST_F(Palettes, APlaceThatIsOffTheScreenIsNotRestored) {
  PaletteState state;
  state.floating = true;
  state.frame = CRect(90000, 90000, 90200, 90300);
  state.docked = CSize(80, 80);
  devhost::SavePaletteState(kTool, state);
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  palette.SetToolID(&kTool);
  palette.RestoreControlBar(AFX_IDW_DOCKBAR_LEFT, nullptr);
  EXPECT_FALSE(palette.IsFloating());
}

TEST_F(Palettes, ABrokenEntryOfTheStoreCountsAsNone) {
  PaletteState state;
  state.floating = true;
  state.frame = CRect(10, 10, 200, 300);
  devhost::SavePaletteState(kTool, state);
  EXPECT_TRUE(devhost::LoadPaletteState(kTool).known);
  wchar_t id[40];
  ::StringFromGUID2(kTool, id, 40);
  const CString path = devhost::PaletteStoreKey() + L"\\" + id;
  ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, path, L"Left", REG_SZ, L"x", 4), ERROR_SUCCESS);
  EXPECT_FALSE(devhost::LoadPaletteState(kTool).known);
}

TEST_F(Palettes, RollingUpLeavesTheCaptionAndRollingOutGivesTheHeightBack) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
  CRect before, up, out;
  floating->GetWindowRect(before);
  palette.RollUp();
  floating->GetWindowRect(up);
  EXPECT_TRUE(palette.GetRolledUp());
  EXPECT_LT(up.Height(), 60);
  EXPECT_EQ(up.Width(), before.Width());
  palette.RollOut();
  floating->GetWindowRect(out);
  EXPECT_EQ(out, before);
}

TEST_F(Palettes, APaletteThatEndsRolledUpComesBackWhole) {
  CRect whole;
  {
    TestPalette palette;
    ASSERT_TRUE(palette.CreateIn(frame, true));
    palette.SetToolID(&kTool);
    CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
    floating->GetWindowRect(whole);
    palette.RollUp();
  }
  EXPECT_EQ(devhost::LoadPaletteState(kTool).frame, whole);
}

TEST_F(Palettes, ARolledUpPaletteThatIsHiddenAndShownRollsOutAgain) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
  CRect whole, now;
  floating->GetWindowRect(whole);
  MovePointer(CPoint(5, 5));
  palette.SetAutoRollup(TRUE);
  palette.RollUp();
  frame->ShowControlBar(&palette, FALSE, FALSE);
  // The watch goes on while nothing is to be seen.
  MSG tick{};
  const DWORD until = ::GetTickCount() + 5000;
  while (!::PeekMessage(&tick, palette.m_hWnd, WM_TIMER, WM_TIMER, PM_REMOVE) &&
         ::GetTickCount() < until)
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_TIMER);
  ASSERT_EQ(tick.message, UINT(WM_TIMER));
  ::DispatchMessage(&tick);
  frame->ShowControlBar(&palette, TRUE, FALSE);
  EXPECT_TRUE(palette.GetRolledUp());
  palette.RollOut();
  floating->GetWindowRect(now);
  EXPECT_EQ(now, whole);
}

TEST_F(Palettes, ADockedPaletteDoesNotRollUp) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  EXPECT_FALSE(palette.SetAutoRollup(TRUE));
  EXPECT_TRUE(palette.GetAutoRollup());
  palette.RollUp();
  EXPECT_FALSE(palette.GetRolledUp());
}

TEST_F(Palettes, ARenamedPaletteRenamesItsFrame) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(200, 200));
  CString title;
  floating->GetWindowText(title);
  EXPECT_STREQ(title, L"屏幕菜单");
  palette.SetName(L"工具");
  floating->GetWindowText(title);
  EXPECT_STREQ(title, L"工具");
}

TEST_F(Palettes, PalettesOfOneFrameHaveNumbersOfTheirOwn) {
  TestPalette first, second;
  ASSERT_TRUE(first.CreateIn(frame, true));
  ASSERT_TRUE(second.CreateIn(frame, true));
  EXPECT_NE(first.GetDlgCtrlID(), second.GetDlgCtrlID());
}

TEST_F(Palettes, AHundredPalettesComeAndGo) {
  PumpAll();
  const int before = CountWindows();
  for (int i = 0; i < 100; ++i) {
    TestPalette palette;
    ASSERT_TRUE(palette.CreateIn(frame, i % 2 == 0));
    palette.SetToolID(&kTool);
    if (i % 5 == 0) frame->FloatControlBar(&palette, CPoint(200, 200));
    palette.OnClosing();
    palette.DestroyWindow();
  }
  PumpAll();
  EXPECT_EQ(CountWindows(), before);
  EXPECT_EQ(frame->m_listControlBars.GetCount(), 4);
  EXPECT_EQ(PaneRect().left, 0);
}
