#include "doctabs/tab_layout.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using Offsets = std::vector<int>;

// The rules as they are worded, one comparison after the other.
int HitByRule(const Offsets& offsets, int x, int gap, int none) {
  for (std::size_t i = 0; i + 1 < offsets.size(); ++i)
    if (x > offsets[i] && x < offsets[i + 1] - gap) return static_cast<int>(i);
  return none;
}
int LastPositionByRule(const Offsets& offsets, int arrowsLeft) {
  const int count = static_cast<int>(offsets.size()) - 1;
  if (count < 2) return 1;
  for (int k = 1; k < count; ++k)
    if (offsets.back() - offsets[static_cast<std::size_t>(k)] < arrowsLeft - 2) return k;
  return count;
}

Offsets RandomOffsets(std::mt19937& random) {
  Offsets offsets{0};
  for (unsigned tabs = random() % 12; tabs; --tabs)
    offsets.push_back(offsets.back() + 20 + static_cast<int>(random() % 60));
  return offsets;
}

void ExpectBox(const RECT& box, int left, int top, int right, int bottom) {
  EXPECT_EQ(box.left, left);
  EXPECT_EQ(box.top, top);
  EXPECT_EQ(box.right, right);
  EXPECT_EQ(box.bottom, bottom);
}

}  // namespace

TEST(HitTest, BothEdgesAndTheGapBelongToNoTab) {
  const Offsets offsets{0, 50, 120};
  EXPECT_EQ(HitTab(offsets, 0), 2);
  EXPECT_EQ(HitTab(offsets, 1), 0);
  EXPECT_EQ(HitTab(offsets, 47), 0);
  EXPECT_EQ(HitTab(offsets, 48), 2);
  EXPECT_EQ(HitTab(offsets, 49), 2);
  EXPECT_EQ(HitTab(offsets, 50), 2);
  EXPECT_EQ(HitTab(offsets, 51), 1);
  EXPECT_EQ(HitTab(offsets, 117), 1);
  EXPECT_EQ(HitTab(offsets, 118), 2);
}

TEST(HitTest, OutsideTheTabsItGivesTheTabCount) {
  const Offsets offsets{0, 50, 120};
  EXPECT_EQ(HitTab(offsets, -1), 2);
  EXPECT_EQ(HitTab(offsets, 120), 2);
  EXPECT_EQ(HitTab(offsets, 500), 2);
  EXPECT_EQ(HitTab(Offsets{0}, 1), 0);
}

TEST(TipHitTest, TheFirstPixelOfTheGapStillAnswers) {
  const Offsets offsets{0, 50, 120};
  EXPECT_EQ(TipTab(offsets, 48), 0);
  EXPECT_EQ(TipTab(offsets, 49), -1);
  EXPECT_EQ(TipTab(offsets, 50), -1);
  EXPECT_EQ(TipTab(offsets, 51), 1);
  EXPECT_EQ(TipTab(offsets, 118), 1);
  EXPECT_EQ(TipTab(offsets, 119), -1);
  EXPECT_EQ(TipTab(offsets, 0), -1);
}

TEST(HitTest, AgreesWithTheRuleOnEveryPixelOfRandomStrips) {
  std::mt19937 random(1);
  for (int run = 0; run < 100; ++run) {
    const Offsets offsets = RandomOffsets(random);
    const int count = static_cast<int>(offsets.size()) - 1;
    for (int x = -5; x < offsets.back() + 5; ++x) {
      ASSERT_EQ(HitTab(offsets, x), HitByRule(offsets, x, 2, count)) << run << " " << x;
      ASSERT_EQ(TipTab(offsets, x), HitByRule(offsets, x, 1, -1)) << run << " " << x;
    }
  }
}

TEST(ScrollRange, TheTopIsTheFirstIndexFromWhichTheTabsFit) {
  const Offsets offsets{0, 50, 120, 200};
  EXPECT_EQ(LastScrollPosition(offsets, 153), 1);  // 150 < 151
  EXPECT_EQ(LastScrollPosition(offsets, 152), 2);  // 150 < 150 is false: less, not at most
  EXPECT_EQ(LastScrollPosition(offsets, 83), 2);
  EXPECT_EQ(LastScrollPosition(offsets, 82), 3);
}

TEST(ScrollRange, TheTopIsTheCountWhenNothingFits) {
  EXPECT_EQ(LastScrollPosition(Offsets{0, 50, 120, 200}, 0), 3);
  EXPECT_EQ(LastScrollPosition(Offsets{0, 50, 120, 200}, -2000), 3);
}

TEST(ScrollRange, ItIsSoughtFromOneEvenIfAllTabsFit) {
  EXPECT_EQ(LastScrollPosition(Offsets{0, 50, 120}, 5000), 1);
}

TEST(ScrollRange, TheTopIsOneWithFewerThanTwoTabs) {
  EXPECT_EQ(LastScrollPosition(Offsets{0}, 0), 1);
  EXPECT_EQ(LastScrollPosition(Offsets{0, 50}, 0), 1);
  EXPECT_EQ(LastScrollPosition(Offsets{0, 50}, 500), 1);
}

TEST(ScrollRange, AgreesWithTheRuleForEveryWidthOfRandomStrips) {
  std::mt19937 random(2);
  for (int run = 0; run < 100; ++run) {
    const Offsets offsets = RandomOffsets(random);
    for (int left = -50; left < offsets.back() + 10; ++left)
      ASSERT_EQ(LastScrollPosition(offsets, left), LastPositionByRule(offsets, left))
          << run << " " << left;
  }
}

TEST(ScrollOrigin, IsTheOffsetOfTheFirstTabShown) {
  const Offsets offsets{0, 50, 120};
  EXPECT_EQ(OriginOf(offsets, 0), 0);
  EXPECT_EQ(OriginOf(offsets, 1), 50);
  EXPECT_EQ(OriginOf(offsets, 2), 120);
}

TEST(ScrollOrigin, AFirstTabBeyondTheLastCountsAsTheEnd) {
  EXPECT_EQ(OriginOf(Offsets{0, 50, 120}, 7), 120);
  EXPECT_EQ(OriginOf(Offsets{0}, 3), 0);
  EXPECT_EQ(OriginOf(Offsets{0, 50}, -1), 0);
}

TEST(Arrows, AreTwiceAsWideAsHighAtTheRightEnd) {
  ExpectBox(ArrowsBox(400, 20), 360, 0, 400, 20);
  ExpectBox(ArrowsBox(10, 20), -30, 0, 10, 20);  // narrower than the arrows
}

TEST(Arrows, TheTabsEndTwoPixelsBeforeThem) {
  ExpectBox(TabsBox({0, 0, 400, 20}), 0, 0, 358, 20);
  ExpectBox(TabsBox({5, 3, 400, 23}), 5, 3, 358, 23);
}

TEST(StripHeight, FollowsTheFormulaWithTheBordersOfTheWindowClass) {
  // 2 * (1 + 2) + 2 - 3 + 16 - 1
  EXPECT_EQ(StripHeight({-2, 1, 2, 16, 3}), 20);
  EXPECT_EQ(StripHeight({0, 1, 2, 16, 3}), 18);
  EXPECT_EQ(StripHeight({-2, 1, 0, 16, 3}), 16);
  EXPECT_EQ(StripHeight({-2, 2, 2, 16, 3}), 22);
  EXPECT_EQ(StripHeight({-2, 1, 2, 16, 0}), 23);
}

TEST(StripClient, TakesTheInsideRectangleAndRaisesItsTopByTwo) {
  ExpectBox(StripClient({10, 20, 310, 42}, {0, 2, 0, 0}), 10, 20, 310, 42);
  ExpectBox(StripClient({10, 20, 310, 42}, {1, 3, -4, -5}), 11, 21, 306, 37);
}
