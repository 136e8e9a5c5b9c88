// Scroll steps, the wheel, scrolling a group into view.
#include <gtest/gtest.h>

#include "screenmenu/scroll_rules.h"

namespace {

TEST(ScrollRules, ALineIsTwentyPixelsAndAPageAHundred) {
  EXPECT_EQ(qvx::ScrollTarget(SB_LINEUP, 200, 0, 0, 500), 180);
  EXPECT_EQ(qvx::ScrollTarget(SB_LINEDOWN, 200, 0, 0, 500), 220);
  EXPECT_EQ(qvx::ScrollTarget(SB_PAGEUP, 200, 0, 0, 500), 100);
  EXPECT_EQ(qvx::ScrollTarget(SB_PAGEDOWN, 200, 0, 0, 500), 300);
}

TEST(ScrollRules, TheThumbAndTheEndsSetTheirPosition) {
  EXPECT_EQ(qvx::ScrollTarget(SB_THUMBTRACK, 200, 333, 0, 500), 333);
  EXPECT_EQ(qvx::ScrollTarget(SB_TOP, 200, 0, 0, 500), 0);
  EXPECT_EQ(qvx::ScrollTarget(SB_BOTTOM, 200, 0, 0, 500), 500);
}

TEST(ScrollRules, CodesThatEndAMovementAndUnknownOnesKeepThePosition) {
  for (unsigned code : {unsigned(SB_THUMBPOSITION), unsigned(SB_ENDSCROLL), 99u})
    EXPECT_EQ(qvx::ScrollTarget(code, 200, 333, 0, 500), 200);
}

TEST(ScrollRules, TheTargetStaysInTheRange) {
  EXPECT_EQ(qvx::ScrollTarget(SB_LINEUP, 5, 0, 0, 500), 0);
  EXPECT_EQ(qvx::ScrollTarget(SB_PAGEDOWN, 480, 0, 0, 500), 500);
  EXPECT_EQ(qvx::ScrollTarget(SB_THUMBTRACK, 0, -40, 0, 500), 0);
}

TEST(ScrollRules, ANotchAwayFromTheUserScrollsFortyPixelsUp) {
  EXPECT_EQ(qvx::WheelTarget(100, 120), 60);
  EXPECT_EQ(qvx::WheelTarget(100, -120), 140);
}

TEST(ScrollRules, AFractionOfANotchIsRoundedTowardZero) {
  EXPECT_EQ(qvx::WheelTarget(100, 1), 99);    // 99.67
  EXPECT_EQ(qvx::WheelTarget(100, -1), 100);  // 100.33
  EXPECT_EQ(qvx::WheelTarget(0, 1), 0);       // -0.33
}

const RECT kView{0, 0, 100, 200};

TEST(RevealRules, AGroupAboveTheViewIsScrolledToItsTop) {
  EXPECT_EQ(qvx::RevealShift({0, -30, 100, 40}, kView), -30);
}

TEST(RevealRules, AGroupTallerThanTheViewIsScrolledToItsTop) {
  EXPECT_EQ(qvx::RevealShift({0, 50, 100, 400}, kView), 50);
}

TEST(RevealRules, AGroupBelowTheViewIsScrolledUntilItsBottomShows) {
  EXPECT_EQ(qvx::RevealShift({0, 150, 100, 260}, kView), 60);
  EXPECT_EQ(qvx::RevealShift({0, 300, 100, 380}, kView), 180);
}

TEST(RevealRules, AGroupInTheViewIsNotScrolled) {
  EXPECT_EQ(qvx::RevealShift({0, 0, 100, 200}, kView), 0);
  EXPECT_EQ(qvx::RevealShift({0, 40, 100, 80}, kView), 0);
}

TEST(ScrollRules, TheBarsEightPixelsDoNotScroll) {
  EXPECT_EQ(qvx::ScrolledArea(kView, true).right, 92);
  EXPECT_EQ(qvx::ScrolledArea(kView, false).right, 100);
}

}  // namespace
