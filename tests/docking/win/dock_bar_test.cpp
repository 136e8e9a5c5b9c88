// Dock bars: rows, places, neighbours, floating and coming back.
#include "dock_fixture.h"

#include <string>

namespace {

struct DockBars : DockTest {
  CDockBar& Bar(UINT id) { return *frame->GetDockBar(id); }
  CDockBar& Left() { return Bar(AFX_IDW_DOCKBAR_LEFT); }
  CDockBar& Right() { return Bar(AFX_IDW_DOCKBAR_RIGHT); }
};

int FrameEdge() { return ::GetSystemMetrics(SM_CXFRAME); }

void DockAt(CFrameWnd* frame, CControlBar* bar, UINT id, CRect screen) {
  frame->DockControlBar(bar, id, screen);
  frame->RecalcLayout();
}

std::wstring Shape(const CDockBar& dockBar) {
  std::wstring shape;
  for (int i = 0; i < dockBar.m_arrBars.GetSize(); ++i)
    shape += !dockBar.m_arrBars[i] ? L'.' : dockBar.GetDockedControlBar(i) ? L'b' : L'#';
  return shape;
}

}  // namespace

TEST_F(DockBars, AnEmptyDockBarTakesNoRoom) {
  EXPECT_EQ(DockBarRect(AFX_IDW_DOCKBAR_LEFT).Width(), 0);
  EXPECT_EQ(DockBarRect(AFX_IDW_DOCKBAR_TOP).Height(), 0);
  EXPECT_EQ(Shape(Left()), L".");
}

TEST_F(DockBars, APaletteDockedLeftHasItsWidthAndTheFullHeight) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(RectOf(palette), CRect(0, 0, 76, client.bottom));
  EXPECT_EQ(PaneRect().left, 76 + FrameEdge());
  EXPECT_EQ(Shape(Left()), L".b.");
  EXPECT_EQ(Left().FindBar(&palette), 1);
  EXPECT_EQ(palette.GetParent(), &Left());
}

TEST_F(DockBars, APaletteDockedRightStandsAtTheFarEdge) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, false));
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(RectOf(palette), CRect(client.right - 76, 0, client.right, client.bottom));
  EXPECT_EQ(PaneRect().right, client.right - 76 - FrameEdge());
}

TEST_F(DockBars, TwoPalettesInOneDockBarStandInRowsOfTheirOwn) {
  TestPalette first, second;
  ASSERT_TRUE(first.CreateIn(frame, true, 76));
  ASSERT_TRUE(second.CreateIn(frame, true, 100));
  EXPECT_EQ(Shape(Left()), L".b.b.");
  EXPECT_EQ(RectOf(second).left, 76 + FrameEdge());
  EXPECT_EQ(PaneRect().left, 176 + 2 * FrameEdge());
}

TEST_F(DockBars, APaletteDroppedIntoTheRowOfAnotherSharesItsHeight) {
  TestPalette first, second;
  ASSERT_TRUE(first.CreateIn(frame, true));
  ASSERT_TRUE(second.CreateIn(frame, false));
  CRect spot;
  first.GetWindowRect(spot);
  spot.top = spot.bottom - 20;
  DockAt(frame, &second, AFX_IDW_DOCKBAR_LEFT, spot);
  EXPECT_EQ(Shape(Left()), L".bb.");
  EXPECT_EQ(Shape(Right()), L".");
  EXPECT_EQ(RectOf(first).bottom, RectOf(second).top);
  EXPECT_EQ(RectOf(second).Width(), 76);
  EXPECT_EQ(second.m_dwStyle & CBRS_ALIGN_ANY, DWORD(CBRS_ALIGN_LEFT));
  EXPECT_EQ(second.m_dwStyle & CBRS_BORDER_ANY, DWORD(CBRS_BORDER_RIGHT));
}

TEST_F(DockBars, ARowThatEmptiesDoesNotShiftThePlaceABarIsMovedTo) {
  // On the right the newer bar stands further in; with its row gone everything moves left.
  TestPalette outer, inner;
  ASSERT_TRUE(outer.CreateIn(frame, false, 100));
  ASSERT_TRUE(inner.CreateIn(frame, false, 100));
  ASSERT_LT(RectOf(inner).left, RectOf(outer).left);
  CRect spot;
  outer.GetWindowRect(spot);
  spot.top = spot.bottom - 20;
  DockAt(frame, &inner, AFX_IDW_DOCKBAR_RIGHT, spot);
  EXPECT_EQ(Shape(Right()), L".bb.");
  EXPECT_EQ(RectOf(inner).left, RectOf(outer).left);
  EXPECT_EQ(RectOf(inner).top, RectOf(outer).bottom);
}

TEST_F(DockBars, ToolBarsShareARowAndKeepTheirPlaces) {
  PlainBar first(CSize(100, 26)), second(CSize(80, 26));
  for (auto [bar, id] : {std::pair{&first, 0xE830u}, std::pair{&second, 0xE831u}}) {
    ASSERT_TRUE(bar->CreateIn(frame, id, CBRS_TOP));
    bar->EnableDocking(CBRS_ALIGN_ANY);
  }
  CRect client;
  frame->GetClientRect(client);
  frame->ClientToScreen(client);
  frame->DockControlBar(&first, AFX_IDW_DOCKBAR_TOP);
  frame->RecalcLayout();
  DockAt(frame, &second, AFX_IDW_DOCKBAR_TOP,
         CRect(client.left + 300, client.top, client.left + 380, client.top + 26));
  EXPECT_EQ(Shape(Bar(AFX_IDW_DOCKBAR_TOP)), L".bb.");
  EXPECT_EQ(RectOf(first), CRect(0, 0, 100, 26));
  EXPECT_EQ(RectOf(second), CRect(300, 0, 380, 26));
  EXPECT_EQ(PaneRect().top, 26);
}

TEST_F(DockBars, HidingTheOnlyBarOfARowGivesItsRoomBack) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  frame->ShowControlBar(&palette, FALSE, FALSE);
  EXPECT_EQ(PaneRect().left, 0);
  EXPECT_EQ(Shape(Left()), L".b.");
  EXPECT_EQ(Left().GetDockedCount(), 1);
  EXPECT_EQ(Left().GetDockedVisibleCount(), 0);
  frame->ShowControlBar(&palette, TRUE, FALSE);
  EXPECT_EQ(PaneRect().left, 76 + FrameEdge());
}

TEST_F(DockBars, AFloatingBarLeavesItsPlaceBehindAndComesBackToIt) {
  TestPalette first, second;
  ASSERT_TRUE(first.CreateIn(frame, true));
  ASSERT_TRUE(second.CreateIn(frame, true));
  frame->FloatControlBar(&first, CPoint(300, 200));
  PumpAll();
  EXPECT_TRUE(first.IsFloating());
  EXPECT_EQ(Shape(Left()), L".#.b.");
  EXPECT_EQ(RectOf(second).left, 0);
  frame->DockControlBar(&first, AFX_IDW_DOCKBAR_LEFT);
  PumpAll();
  EXPECT_FALSE(first.IsFloating());
  EXPECT_EQ(Shape(Left()), L".b.b.");
  EXPECT_EQ(RectOf(first).left, 0);
}

TEST_F(DockBars, TheEmptyFloatingFrameGoes) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  const int before = CountWindows();
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(300, 200));
  ASSERT_NE(floating, nullptr);
  const HWND window = floating->m_hWnd;
  EXPECT_TRUE(::IsWindowVisible(window));
  frame->DockControlBar(&palette, AFX_IDW_DOCKBAR_RIGHT);
  EXPECT_FALSE(::IsWindowVisible(window));
  PumpAll();
  EXPECT_FALSE(::IsWindow(window));
  EXPECT_EQ(CountWindows(), before);
  EXPECT_EQ(RectOf(palette).right, PaneRect().right + 76 + FrameEdge());
}

TEST_F(DockBars, DestroyingAFloatingBarTakesItsFrameAlong) {
  CFrameWnd* floating = nullptr;
  {
    TestPalette palette;
    ASSERT_TRUE(palette.CreateIn(frame, true));
    floating = frame->FloatControlBar(&palette, CPoint(300, 200));
    const HWND window = floating->m_hWnd;
    palette.DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
  }
  EXPECT_EQ(Shape(Left()), L".");
}

TEST_F(DockBars, FloatAndDockAHundredTimesLeavesNothingBehind) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  PumpAll();
  const int before = CountWindows();
  const CRect place = RectOf(palette);
  for (int i = 0; i < 100; ++i) {
    frame->FloatControlBar(&palette, CPoint(300, 200));
    frame->DockControlBar(&palette, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    if (i % 10 == 0) PumpAll();
  }
  PumpAll();
  EXPECT_EQ(CountWindows(), before);
  EXPECT_EQ(RectOf(palette), place);
  EXPECT_EQ(Shape(Left()), L".b.");
  EXPECT_EQ(frame->m_listControlBars.GetCount(), 5);  // four dock bars and the palette
}

TEST_F(DockBars, ADroppedBarGoesToTheNearestAllowedSide) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  PumpAll();
  const CRect area = frame->DockArea();
  CDockBar* target = nullptr;
  EXPECT_EQ(frame->CanDock(CPoint(area.right - 5, 300), 0x5000, &target), DWORD(CBRS_ALIGN_RIGHT));
  EXPECT_EQ(target, &Right());
  EXPECT_EQ(frame->CanDock(CPoint(area.CenterPoint().x, area.top + 3), 0x5000, &target), 0u);
  EXPECT_EQ(target, nullptr);
  // Anywhere on the dock bar counts, the pointer need not be near the edge.
  EXPECT_EQ(frame->CanDock(CPoint(area.left + 70, 300), 0x5000, &target), DWORD(CBRS_ALIGN_LEFT));
}

TEST_F(DockBars, PullingTheEdgeWidensThePalette) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  PumpAll();
  // The drag runs its own loop: what the user does stands in the queue before it starts. A message
  // carries the place where the pointer was when it was posted.
  CPoint end(76 + FrameEdge() / 2 + 50, 100);
  Left().ClientToScreen(&end);
  MovePointer(end);
  Left().PostMessage(WM_MOUSEMOVE, MK_LBUTTON, 0);
  Left().PostMessage(WM_LBUTTONUP, 0, 0);
  Left().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(76 + FrameEdge() / 2, 100));
  EXPECT_EQ(RectOf(palette).Width(), 76 + 50);
  EXPECT_EQ(PaneRect().left, RectOf(palette).right + FrameEdge());
}

TEST_F(DockBars, EscapeLeavesTheEdgeWhereItWas) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CPoint away(300, 100);
  Left().ClientToScreen(&away);
  MovePointer(away);
  Left().PostMessage(WM_MOUSEMOVE, MK_LBUTTON, 0);
  Left().PostMessage(WM_KEYDOWN, VK_ESCAPE, 0);
  Left().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(76 + FrameEdge() / 2, 100));
  EXPECT_EQ(RectOf(palette).Width(), 76);
  EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(DockBars, DraggingThePaletteByItsCaptionIntoTheMiddleFloatsIt) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  PumpAll();
  CRect middle = frame->DockArea();
  MovePointer(middle.CenterPoint());
  palette.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, 0);
  palette.PostMessage(WM_LBUTTONUP, 0, 0);
  palette.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
  PumpAll();
  ASSERT_TRUE(palette.IsFloating());
  EXPECT_EQ(PaneRect().left, 0);
  CRect floating;
  palette.GetDockingFrame()->GetWindowRect(floating);
  EXPECT_TRUE(floating.PtInRect(middle.CenterPoint()));
}

TEST_F(DockBars, DraggingAFloatingPaletteToTheRightEdgeDocksItThere) {
  TestPalette palette;
  ASSERT_TRUE(palette.CreateIn(frame, true));
  CFrameWnd* floating = frame->FloatControlBar(&palette, CPoint(300, 200));
  PumpAll();
  const CRect area = frame->DockArea();
  MovePointer(CPoint(area.right - 3, area.CenterPoint().y));
  floating->PostMessage(WM_MOUSEMOVE, MK_LBUTTON, 0);
  floating->PostMessage(WM_LBUTTONUP, 0, 0);
  floating->SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(320, 208));
  PumpAll();
  EXPECT_EQ(palette.m_pDockBar, &Right());
  EXPECT_EQ(RectOf(palette).Width(), 76);
}

TEST_F(DockBars, TheDockBarReportsPositionsOutsideItsArrayAsNothing) {
  EXPECT_EQ(Left().GetDockedControlBar(-1), nullptr);
  EXPECT_EQ(Left().GetDockedControlBar(99), nullptr);
  EXPECT_THROW(Left().m_arrBars.GetAt(99), CInvalidArgException*);
}
