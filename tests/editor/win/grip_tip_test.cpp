// The tip window over the host's frame.
#include "editor/win/grip_tip_wnd.h"

#include <gtest/gtest.h>

#include "kernel/globals.h"
#include "tests/module/win/host_process.h"

namespace {

constexpr UINT kRepaintTimer = 1;

class GripTip : public ::testing::Test {
 protected:
  void SetUp() override { g_dHostVersion = 24.0; }
  void TearDown() override { CloseGripTip(); }

  static CWnd& Frame() { return HostProcess::Get().Frame(); }
  static CRect Client() {
    CRect client;
    Frame().GetClientRect(client);
    return client;
  }
  // The child of the frame that shows this text.
  static HWND TipWith(const wchar_t* text) {
    return ::FindWindowExW(Frame().m_hWnd, nullptr, nullptr, text);
  }
  static CRect PlaceOf(HWND tip) {
    CRect place;
    ::GetWindowRect(tip, &place);
    Frame().ScreenToClient(place);
    return place;
  }
};

TEST_F(GripTip, IsAVisibleChildOfTheFrameWithItsTextAsCaption) {
  OpenGripTip(L"拉伸 grip", CPoint(100, 120));
  const HWND tip = TipWith(L"拉伸 grip");
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(::GetParent(tip), Frame().m_hWnd);
  EXPECT_TRUE(::GetWindowLongW(tip, GWL_STYLE) & WS_VISIBLE);
  EXPECT_EQ(PlaceOf(tip).TopLeft(), CPoint(100, 120));
}

TEST_F(GripTip, ALongerTextIsWiderAndOfTheSameHeight) {
  OpenGripTip(L"a", CPoint(0, 0));
  const CSize small = PlaceOf(TipWith(L"a")).Size();
  OpenGripTip(L"aaaaaaaaaa", CPoint(0, 0));
  EXPECT_EQ(TipWith(L"a"), nullptr) << "the tip before is closed";
  const CSize wide = PlaceOf(TipWith(L"aaaaaaaaaa")).Size();
  EXPECT_EQ(wide.cy, small.cy);
  EXPECT_EQ(wide.cx - 8, 10 * (small.cx - 8)) << "eight pixels and the text";
}

TEST_F(GripTip, AtTheEdgeOfTheFrameItIsMovedToEndOnIt) {
  const CRect client = Client();
  OpenGripTip(L"edge", CPoint(client.right - 2, client.bottom - 3));
  EXPECT_EQ(PlaceOf(TipWith(L"edge")).BottomRight(), client.BottomRight());
}

TEST_F(GripTip, TheTimerRepaintsAllOnceOnHostsAbove16_1) {
  for (const double release : {16.1, 16.2}) {
    g_dHostVersion = release;
    OpenGripTip(L"timer", CPoint(10, 10));
    const HWND tip = TipWith(L"timer");
    EXPECT_EQ(::KillTimer(tip, kRepaintTimer) != FALSE, release > 16.1) << release;
  }
  OpenGripTip(L"timer", CPoint(10, 10));
  const HWND tip = TipWith(L"timer");
  ::ValidateRect(tip, nullptr);
  ::SendMessageW(tip, WM_TIMER, kRepaintTimer, 0);
  CRect update, client;
  ::GetUpdateRect(tip, &update, FALSE);
  ::GetClientRect(tip, &client);
  EXPECT_EQ(update, client);
  EXPECT_FALSE(::KillTimer(tip, kRepaintTimer)) << "it fires once";
}

TEST_F(GripTip, IsPaintedInTheColoursOfTipsWithABlackFrame) {
  OpenGripTip(L"I", CPoint(10, 10));
  const HWND tip = TipWith(L"I");
  ::RedrawWindow(tip, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  CRect client;
  ::GetClientRect(tip, &client);
  const HDC dc = ::GetDC(tip);
  EXPECT_EQ(::GetPixel(dc, 0, 0), RGB(0, 0, 0));
  EXPECT_EQ(::GetPixel(dc, client.right - 1, client.bottom - 1), RGB(0, 0, 0));
  EXPECT_EQ(::GetPixel(dc, 1, 1), ::GetSysColor(COLOR_INFOBK));
  EXPECT_EQ(::GetPixel(dc, client.right - 2, 1), ::GetSysColor(COLOR_INFOBK));
  int inked = 0;
  for (int y = 4; y < client.bottom - 4; ++y)
    for (int x = 4; x < client.right - 4; ++x)
      inked += ::GetPixel(dc, x, y) != ::GetSysColor(COLOR_INFOBK);
  ::ReleaseDC(tip, dc);
  EXPECT_GT(inked, 0) << "the text begins at 4, 4";
}

TEST_F(GripTip, ClosingDestroysItsWindowAndASecondTimeDoesNothing) {
  OpenGripTip(L"close", CPoint(10, 10));
  const HWND tip = TipWith(L"close");
  ASSERT_NE(tip, nullptr);
  CloseGripTip();
  EXPECT_FALSE(::IsWindow(tip));
  CloseGripTip();
}

TEST_F(GripTip, ATipWhoseWindowTheHostDestroyedIsClosedWithoutHarm) {
  OpenGripTip(L"gone", CPoint(10, 10));
  ::DestroyWindow(TipWith(L"gone"));
  CloseGripTip();
  EXPECT_EQ(TipWith(L"gone"), nullptr);
}

}  // namespace
