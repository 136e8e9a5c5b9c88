// The frame's layout pass, its list of bars, showing and hiding, the message line.
#include "dock_fixture.h"

namespace {

struct FrameLayout : DockTest {};

// Stands where the status bar stands and keeps what it was told.
class TextBar : public PlainBar {
 public:
  TextBar() : PlainBar(CSize(100, 22)) {}
};

}  // namespace

TEST_F(FrameLayout, ThePaneFillsTheClientAreaOfAFrameWithoutBars) {
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(PaneRect(), client);
}

TEST_F(FrameLayout, ABarAtTheBottomTakesItsHeightFromThePane) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_BOTTOM));
  frame->RecalcLayout();
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(RectOf(bar), CRect(0, client.bottom - 22, client.right, client.bottom));
  EXPECT_EQ(PaneRect(), CRect(0, 0, client.right, client.bottom - 22));
}

TEST_F(FrameLayout, BarsTakeTheirRoomInTheOrderOfTheWindows) {
  PlainBar top(CSize(100, 30)), left(CSize(100, 40));
  ASSERT_TRUE(top.CreateIn(frame, 0xE820, CBRS_TOP));
  ASSERT_TRUE(left.CreateIn(frame, 0xE821, CBRS_LEFT));
  frame->RecalcLayout();
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(RectOf(left), CRect(0, 30, 40, client.bottom));
  ::SetWindowPos(top.m_hWnd, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  frame->RecalcLayout();
  EXPECT_EQ(RectOf(left), CRect(0, 0, 40, client.bottom));
  EXPECT_EQ(RectOf(top), CRect(40, 0, client.right, 30));
}

TEST_F(FrameLayout, ResizingTheFrameLaysItOutAgain) {
  const int before = frame->m_layouts;
  frame->SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_GT(frame->m_layouts, before);
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(PaneRect(), client);
}

TEST_F(FrameLayout, AHiddenBarGivesItsRoomBack) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  frame->RecalcLayout();
  frame->ShowControlBar(&bar, FALSE, FALSE);
  EXPECT_EQ(PaneRect().top, 0);
  EXPECT_FALSE(bar.IsWindowVisible());
  frame->ShowControlBar(&bar, TRUE, FALSE);
  EXPECT_EQ(PaneRect().top, 22);
}

TEST_F(FrameLayout, ADelayedHideHappensAtIdleTimeAndNotBefore) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  frame->RecalcLayout();
  frame->ShowControlBar(&bar, FALSE, TRUE);
  EXPECT_TRUE(bar.GetStyle() & WS_VISIBLE);
  EXPECT_FALSE(bar.IsVisible());
  EXPECT_EQ(PaneRect().top, 22);
  PumpAll();
  EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
  EXPECT_EQ(PaneRect().top, 0);
}

TEST_F(FrameLayout, ALayoutPassCarriesOutADelayedShow) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  frame->ShowControlBar(&bar, FALSE, FALSE);
  frame->ShowControlBar(&bar, TRUE, TRUE);
  EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
  frame->RecalcLayout();
  EXPECT_TRUE(bar.GetStyle() & WS_VISIBLE);
  EXPECT_EQ(PaneRect().top, 22);
  // Nothing is left for idle time to do over again.
  bar.ShowWindow(SW_HIDE);
  PumpAll();
  EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
}

TEST_F(FrameLayout, AShowTakenBackBeforeIdleTimeLeavesTheBarAsItWas) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  frame->RecalcLayout();
  frame->ShowControlBar(&bar, FALSE, TRUE);
  frame->ShowControlBar(&bar, TRUE, TRUE);
  PumpAll();
  EXPECT_TRUE(bar.IsWindowVisible());
}

TEST_F(FrameLayout, VisibleBarsAreUpdatedAtIdleTime) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  PumpAll();
  const int before = bar.Updates();
  AfxGetApp()->OnIdle(0);
  EXPECT_EQ(bar.Updates(), before + 1);
}

TEST_F(FrameLayout, TheFrameFindsItsBarsByIdentifier) {
  EXPECT_EQ(frame->GetControlBar(0xE820), nullptr);
  {
    PlainBar bar(CSize(100, 22));
    ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
    EXPECT_EQ(frame->GetControlBar(0xE820), &bar);
  }
  EXPECT_EQ(frame->GetControlBar(0xE820), nullptr);
  EXPECT_NE(frame->GetControlBar(AFX_IDW_DOCKBAR_LEFT), nullptr);
}

TEST_F(FrameLayout, TheMessageTextGoesToTheStatusBar) {
  TextBar bar;
  ASSERT_TRUE(bar.CreateIn(frame, AFX_IDW_STATUS_BAR, CBRS_BOTTOM));
  ASSERT_EQ(frame->GetMessageBar(), &bar);
  frame->SetMessageText(L"就绪");
  CString text;
  bar.GetWindowText(text);
  EXPECT_STREQ(text, L"就绪");
}

TEST_F(FrameLayout, BordersAreCutOffInsideTheLines) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  CRect rect(0, 0, 100, 50);
  bar.CalcInsideRect(rect, TRUE);
  EXPECT_EQ(rect, CRect(6, 3, 94, 49));
  bar.SetBorders(0, 0, 0, 0);
  CRect none(0, 0, 0, 0);
  bar.CalcInsideRect(none, TRUE);
  EXPECT_EQ(none, CRect(0, 2, 0, 0));
}

TEST_F(FrameLayout, PlainBordersOfASideBecomeRaisedOnesAtCreation) {
  const struct {
    DWORD given, created;
  } kStyles[] = {{CBRS_TOP, 0x2280},       {CBRS_BOTTOM, 0x8880},    {CBRS_LEFT, 0x1A80},
                 {CBRS_RIGHT, 0x4A80},     {CBRS_ALIGN_TOP, 0x2000}, {0x2A00, 0x2A00},
                 {CBRS_TOP | 0x80, 0x2880}};
  for (const auto& style : kStyles) {
    PlainBar bar(CSize(100, 22));
    bar.SetBarStyle(style.given);
    ASSERT_TRUE(bar.CreateIn(frame, 0xE820, 0));
    EXPECT_EQ(bar.GetBarStyle(), style.created) << style.given;
    bar.DestroyWindow();
  }
}

TEST_F(FrameLayout, AFrameThatGoesLeavesItsBarsUsable) {
  PlainBar bar(CSize(100, 22));
  ASSERT_TRUE(bar.CreateIn(frame, 0xE820, CBRS_TOP));
  frame->DestroyWindow();
  frame = nullptr;
  EXPECT_EQ(bar.m_hWnd, nullptr);
  EXPECT_EQ(bar.m_pDockSite, nullptr);
}

TEST(FrameLife, AHundredFramesLeaveNoWindow) {
  for (int i = 0; i < 100; ++i) {
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->Open());
    TestPalette left, right;
    ASSERT_TRUE(left.CreateIn(frame, true));
    ASSERT_TRUE(right.CreateIn(frame, false));
    if (i % 2) frame->FloatControlBar(&left, CPoint(200, 200));
    frame->DestroyWindow();
    ASSERT_EQ(left.m_hWnd, nullptr);
  }
  PumpAll();
  EXPECT_EQ(CountWindows(), 0);
}
