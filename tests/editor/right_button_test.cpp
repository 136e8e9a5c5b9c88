// The right button: capture of the press, and what the release does in each mode.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

class RightButtonTest : public FilterTest {
 protected:
  bool Press(DWORD time = 1000, WPARAM keys = 0) {
    return Filter(Message(WM_RBUTTONDOWN, keys, time));
  }
  bool Release(DWORD time = 1100, WPARAM keys = 0) {
    return Filter(Message(WM_RBUTTONUP, keys, time));
  }
  // What the release of a press of this length shows; empty for none.
  std::string MenuAfter(DWORD held, WPARAM keys = 0) {
    EXPECT_TRUE(Press(1000, keys));
    Release(1000 + held, keys);
    return Done().empty() ? "" : Done().front();
  }
};

constexpr char kMenu[] = "menu 200,150", kForced[] = "menu 200,150 forced";

TEST_F(RightButtonTest, ThePressIsKeptFromAnIdleHost) {
  EXPECT_EQ(Order(Message(WM_RBUTTONDOWN)),
            (Entries{"CMDNAMES?", "CMDACTIVE?", "idle?", "close tip"}));
  EXPECT_TRUE(Press());
  EXPECT_FALSE(Press(1000, MK_SHIFT));
  host.isIdle = false;
  EXPECT_FALSE(Press());
  host.isIdle = true;
  host.active = 1;
  EXPECT_EQ(Order(Message(WM_RBUTTONDOWN)), (Entries{"CMDNAMES?", "CMDACTIVE?", "close tip"}));
  EXPECT_FALSE(Press());
}

TEST_F(RightButtonTest, APressThatPassesForgetsTheOneBefore) {
  for (const int reason : {0, 1, 2, 3}) {
    ASSERT_TRUE(Press());
    host.active = reason == 0;
    host.isIdle = reason != 1;
    g_nSpeedMenu = reason == 2 ? 0 : 3;
    EXPECT_FALSE(Press(1000, reason == 3 ? WPARAM{MK_SHIFT} : WPARAM{0})) << reason;
    host.active = 0;
    host.isIdle = true;
    g_nSpeedMenu = 3;
    EXPECT_FALSE(Release()) << reason;
    EXPECT_EQ(Done(), Entries{});
  }
}

TEST_F(RightButtonTest, AReleaseWithoutAPressPasses) {
  EXPECT_FALSE(Release());
  EXPECT_EQ(Order(Message(WM_RBUTTONUP)), (Entries{"CMDNAMES?", "CMDACTIVE?"}));
}

TEST_F(RightButtonTest, AsksInTheWrittenOrder) {
  Press();
  EXPECT_EQ(Order(Message(WM_RBUTTONUP, 0, 1100)),
            (Entries{"CMDNAMES?", "CMDACTIVE?", "editing?", "current view?", "rect?", "CMDACTIVE?",
                     "idle?", "typed?", "context window?", kMenu}));
}

TEST_F(RightButtonTest, ReleasesAreDecidedByTheOldPressUntilTheNext) {
  EXPECT_EQ(MenuAfter(100), kMenu);
  EXPECT_TRUE(Release(1300));
  EXPECT_EQ(Done(), Entries{kForced}) << "300 ms since the press";
}

TEST_F(RightButtonTest, AFastSecondPressIsADoubleClickThatPasses) {
  EXPECT_EQ(MenuAfter(50), kMenu);
  EXPECT_FALSE(Filter(Message(WM_RBUTTONDBLCLK, 0, 1200)));
  EXPECT_TRUE(Release(1260));
  EXPECT_EQ(Done(), Entries{kForced}) << "260 ms since the first press";
}

TEST_F(RightButtonTest, InModeThreeTheLengthOfThePressForcesTheMenu) {
  EXPECT_EQ(MenuAfter(0), kMenu);
  EXPECT_EQ(MenuAfter(250), kMenu);
  EXPECT_EQ(MenuAfter(251), kForced);
  EXPECT_EQ(MenuAfter(2999), kForced);
  EXPECT_EQ(MenuAfter(3000), kMenu);
  EXPECT_EQ(MenuAfter(100000), kMenu);
  EXPECT_EQ(MenuAfter(100, MK_CONTROL), kMenu) << "Ctrl does not force";
  g_nRBtnMenuTime = 500;
  EXPECT_EQ(MenuAfter(500), kMenu);
  EXPECT_EQ(MenuAfter(501), kForced);
}

TEST_F(RightButtonTest, TheLengthWrapsAsTheTimesDo) {
  ASSERT_TRUE(Press(0xFFFFFF00));
  Release(0x100);
  EXPECT_EQ(Done(), Entries{kForced}) << "512 ms";
  ASSERT_TRUE(Press(2000));
  Release(1999);
  EXPECT_EQ(Done(), Entries{kMenu}) << "released before it was pressed: a very long time";
}

TEST_F(RightButtonTest, InModesOneAndTwoCtrlForcesTheMenu) {
  for (const int mode : {1, 2}) {
    g_nSpeedMenu = mode;
    EXPECT_EQ(MenuAfter(1000), kMenu);
    EXPECT_EQ(MenuAfter(10, MK_CONTROL), kForced);
  }
}

TEST_F(RightButtonTest, InModeZeroTheButtonIsTheHosts) {
  ASSERT_TRUE(Press());
  g_nSpeedMenu = 0;
  EXPECT_FALSE(Release()) << "captured before the mode changed";
  EXPECT_EQ(Done(), Entries{});
  EXPECT_FALSE(Asked("context window?"));
  EXPECT_FALSE(Press());
  EXPECT_FALSE(Release());
}

TEST_F(RightButtonTest, TheResultIsThatOfTheMenu) {
  Press();
  EXPECT_TRUE(Release());
  host.menuResult = false;
  EXPECT_FALSE(Release());
  EXPECT_EQ(Done(), Entries{kMenu});
}

TEST_F(RightButtonTest, ARunningCommandGetsTheRelease) {
  Press();
  host.active = 1;
  EXPECT_FALSE(Release());
  EXPECT_FALSE(Asked("editing?"));
  host.active = 0;
  host.nextActive = {0, 1};
  EXPECT_FALSE(Release()) << "it began meanwhile";
  EXPECT_FALSE(Asked("idle?"));
  host.isIdle = false;
  EXPECT_FALSE(Release());
  EXPECT_FALSE(Asked("typed?")) << "a busy host is not asked for the command line";
}

TEST_F(RightButtonTest, ShiftAndOtherWindowsPass) {
  Press();
  EXPECT_FALSE(Release(1100, MK_SHIFT));
  MSG elsewhere = Message(WM_RBUTTONUP, 0, 1100);
  for (HWND window : {kOtherView, kFrame}) {
    elsewhere.hwnd = window;
    EXPECT_FALSE(Filter(elsewhere));
    EXPECT_FALSE(Asked("rect?"));
  }
  EXPECT_TRUE(Release());
}

TEST_F(RightButtonTest, OnTheEdgeOfTheViewTheReleasePasses) {
  Press();
  const auto menuAt = [this](LONG x, LONG y) {
    MSG message = Message(WM_RBUTTONUP, 0, 1100);
    message.pt = {x, y};
    return Filter(message);
  };
  // The view covers 100 to 499 and 50 to 349.
  EXPECT_FALSE(menuAt(100, 150));
  EXPECT_TRUE(menuAt(101, 150));
  EXPECT_TRUE(menuAt(499, 150));
  EXPECT_FALSE(menuAt(500, 150));
  EXPECT_FALSE(menuAt(200, 50));
  EXPECT_TRUE(menuAt(200, 51));
  EXPECT_TRUE(menuAt(200, 349));
  EXPECT_FALSE(menuAt(200, 350));
}

TEST_F(RightButtonTest, WithTypedTextTheReleaseIsEnterInEveryModeAndLength) {
  host.isTyped = true;
  for (const int mode : {1, 2, 3}) {
    g_nSpeedMenu = mode;
    EXPECT_EQ(MenuAfter(1000, MK_CONTROL), "clear typed") << mode;
    EXPECT_FALSE(Release());
  }
  ASSERT_TRUE(Press());
  g_nSpeedMenu = 0;
  EXPECT_FALSE(Release());
  EXPECT_EQ(Done(), Entries{"clear typed"}) << "ahead of the mode too";
}

TEST_F(RightButtonTest, WithoutAContextWindowTheReleasePasses) {
  Press();
  host.hasContextWindow = false;
  EXPECT_FALSE(Release());
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(RightButtonTest, DuringAnEditTheReleaseShowsTheEditorsMenu) {
  edit.isVisible = true;
  EXPECT_FALSE(Release()) << "no press was captured";
  Press();
  host.cursor = {7, 8};
  MSG message = Message(WM_RBUTTONUP, MK_SHIFT, 1100);
  message.hwnd = kFrame;
  EXPECT_TRUE(Filter(message));
  EXPECT_EQ(Done(), Entries{"edit menu 7,8"});
  EXPECT_FALSE(Asked("current view?"));
  g_nSpeedMenu = 0;
  EXPECT_TRUE(Release());
}

TEST_F(RightButtonTest, ThePressAtTheLastMillisecondOfTheClockIsNotCaptured) {
  EXPECT_TRUE(Press(0xFFFFFFFF)) << "kept from the host like any other";
  EXPECT_FALSE(Release(0x10));
  EXPECT_EQ(Done(), Entries{});
}

}  // namespace
}  // namespace editortest
