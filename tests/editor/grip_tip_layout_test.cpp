// The rectangle of a grip tip.
#include "editor/grip_tip_layout.h"

#include <gtest/gtest.h>

namespace {

void Expect(POINT at, LONG left, LONG top, LONG right, LONG bottom) {
  const RECT place = qvx::PlaceGripTip(at, {40, 12}, {200, 100});
  EXPECT_EQ(place.left, left);
  EXPECT_EQ(place.top, top);
  EXPECT_EQ(place.right, right);
  EXPECT_EQ(place.bottom, bottom);
}

TEST(GripTipLayout, ATipIsEightPixelsLargerThanItsTextAndBeginsAtThePoint) {
  Expect({10, 20}, 10, 20, 58, 40);
}

TEST(GripTipLayout, ATipThatWouldCrossTheEdgeEndsOnIt) {
  Expect({152, 80}, 152, 80, 200, 100);
  Expect({153, 81}, 152, 80, 200, 100);
  Expect({400, 20}, 152, 20, 200, 40);
  Expect({10, 400}, 10, 80, 58, 100);
}

TEST(GripTipLayout, ATipLargerThanTheAreaStillEndsOnItsEdge) {
  const RECT place = qvx::PlaceGripTip({0, 0}, {300, 12}, {200, 100});
  EXPECT_EQ(place.left, -108);
  EXPECT_EQ(place.right, 200);
}

}  // namespace
