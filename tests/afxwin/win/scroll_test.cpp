// Scroll bars of windows and of controls, scrolling with children,
// coordinates and the layout of bars.
#include "test_app.h"

namespace {
class ScrollHost : public TestWindow {
 public:
  CScrollBar bar;
  CScrollBar* GetScrollBarCtrl(int nBar) const override {
    return nBar == SB_VERT && bar.m_hWnd ? const_cast<CScrollBar*>(&bar) : nullptr;
  }
};
}  // namespace

TEST(Scroll, AWindowWithAScrollBarControlIsScrolledByIt) {
  ScrollHost w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VSCROLL));
  ASSERT_TRUE(w.bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 8, 90), &w, 100));
  w.SetScrollRange(SB_VERT, 0, 340);
  w.SetScrollPos(SB_VERT, 40);
  EXPECT_EQ(40, w.bar.GetScrollPos());
  EXPECT_EQ(40, w.GetScrollPos(SB_VERT));
  int low = -1, high = -1;
  w.bar.GetScrollRange(&low, &high);
  EXPECT_EQ(0, low);
  EXPECT_EQ(340, high);
  EXPECT_EQ(0, ::GetScrollPos(w.m_hWnd, SB_VERT));  // the window's own bar does not change
}

TEST(Scroll, ThePositionIsLimitedToTheRange) {
  ScrollHost w;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(w.bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 8, 90), &w, 100));
  w.bar.SetScrollRange(0, 100);
  w.bar.SetScrollPos(400);
  EXPECT_EQ(100, w.bar.GetScrollPos());
}

TEST(Scroll, TheLimitIsTheRangeLessAPage) {
  ScrollHost w;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(w.bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 8, 90), &w, 100));
  SCROLLINFO info{sizeof info, SIF_RANGE | SIF_PAGE, 0, 99, 10, 0, 0};
  w.bar.SetScrollInfo(&info);
  EXPECT_EQ(90, w.GetScrollLimit(SB_VERT));
  SCROLLINFO read{};
  EXPECT_TRUE(w.GetScrollInfo(SB_VERT, &read));
  EXPECT_EQ(10u, read.nPage);
  EXPECT_EQ(99, read.nMax);
}

TEST(Scroll, ChildrenOfAHiddenWindowMoveToo) {
  TestWindow w;
  CWnd child;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(10, 50, 30, 60), &w, 1));
  w.ScrollWindow(0, -20);
  CRect rect;
  child.GetWindowRect(rect);
  w.ScreenToClient(rect);
  EXPECT_TRUE(rect == CRect(10, 30, 30, 40));
}

TEST(Place, RectanglesAreConvertedToTheScreenAndBack) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  CRect rect(3, 4, 30, 40), before(rect);
  w.ClientToScreen(rect);
  EXPECT_FALSE(rect == before);
  EXPECT_EQ(27, rect.Width());
  w.ScreenToClient(rect);
  EXPECT_TRUE(rect == before);
}

TEST(Place, CalcWindowRectAddsTheFrameAroundTheClientArea) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  CRect client(0, 0, 100, 100);
  w.CalcWindowRect(client);
  EXPECT_LT(client.top, 0);
  EXPECT_GT(client.Height(), 100);
}

TEST(Place, CenteringOverTheScreenKeepsTheSize) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  w.CenterWindow();
  CRect rect, work;
  w.GetWindowRect(rect);
  ::SystemParametersInfo(SPI_GETWORKAREA, 0, static_cast<RECT*>(work), 0);
  EXPECT_EQ(300, rect.Width());
  EXPECT_NEAR(work.CenterPoint().x, rect.CenterPoint().x, 1);
  EXPECT_NEAR(work.CenterPoint().y, rect.CenterPoint().y, 1);
}

namespace {
// Takes a strip of the given height at the top.
class TopStrip : public CWnd {
 public:
  explicit TopStrip(int height) : m_height(height) {}
  LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
    if (m != WM_SIZEPARENT) return CWnd::WindowProc(m, w, l);
    auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(l);
    CRect strip(layout->rect);
    strip.bottom = strip.top + m_height;
    layout->rect.top += m_height;
    layout->sizeTotal.cy += m_height;
    AfxRepositionWindow(layout, m_hWnd, strip);
    return 0;
  }

 private:
  int m_height;
};

CRect PlaceIn(CWnd& parent, CWnd& child) {
  CRect rect;
  child.GetWindowRect(rect);
  parent.ScreenToClient(rect);
  return rect;
}
}  // namespace

TEST(Bars, TakeTheirStripsAndThePaneGetsTheRest) {
  TestWindow w;
  TopStrip bar(25);
  CWnd pane;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(bar.Create(nullptr, L"", WS_CHILD, CRect(), &w, AFX_IDW_TOOLBAR));
  ASSERT_TRUE(pane.Create(nullptr, L"", WS_CHILD, CRect(), &w, AFX_IDW_PANE_FIRST));
  CRect client;
  w.GetClientRect(client);
  w.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
  EXPECT_TRUE(PlaceIn(w, bar) == CRect(0, 0, client.right, 25));
  EXPECT_TRUE(PlaceIn(w, pane) == CRect(0, 25, client.right, client.bottom));
}

TEST(Bars, AQueryForTheRestMovesNothing) {
  TestWindow w;
  TopStrip bar(25);
  CWnd pane;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(bar.Create(nullptr, L"", WS_CHILD, CRect(1, 1, 2, 2), &w, AFX_IDW_TOOLBAR));
  ASSERT_TRUE(pane.Create(nullptr, L"", WS_CHILD, CRect(1, 1, 2, 2), &w, AFX_IDW_PANE_FIRST));
  CRect rest, offered(0, 0, 200, 100);
  w.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, rest, offered);
  EXPECT_TRUE(rest == CRect(0, 25, 200, 100));
  EXPECT_TRUE(PlaceIn(w, bar) == CRect(1, 1, 2, 2));
  EXPECT_TRUE(PlaceIn(w, pane) == CRect(1, 1, 2, 2));
}
