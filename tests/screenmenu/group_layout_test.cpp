// The arithmetic of one layout pass, and the fitting of the root group into the palette.
#include <gtest/gtest.h>

#include "screenmenu/group_layout.h"

namespace {

using qvx::LayoutPlan;
using qvx::LayoutRequest;

void ExpectRect(const RECT& r, int left, int top, int right, int bottom) {
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}

class GroupLayout : public testing::Test {
 protected:
  // Three rows of 24: 76 pixels with the margin.
  std::vector<int> heights{24, 24, 24};
  LayoutRequest request{{0, 0, 100, 200}, false, true, 76, 76, 8, false, 0, nullptr, -1, 0};

  LayoutPlan Plan() {
    request.heights = &heights;
    return qvx::PlanLayout(request);
  }
};

TEST_F(GroupLayout, RowsAreStackedFromTwoPixelsDownAtFullWidth) {
  const LayoutPlan plan = Plan();
  ExpectRect(plan.rows[0], 0, 2, 100, 26);
  ExpectRect(plan.rows[2], 0, 50, 100, 74);
  EXPECT_FALSE(plan.scroll.wanted);
}

TEST_F(GroupLayout, TheOpenGroupIsTwoBelowItsHeaderAndTwoAboveTheNextRow) {
  request.openIndex = 0;
  request.childHeight = 40;
  request.total = 120;
  const LayoutPlan plan = Plan();
  ExpectRect(plan.child, 0, 28, 100, 68);
  ExpectRect(plan.rows[1], 0, 70, 100, 94);
}

TEST_F(GroupLayout, ATreeExactlyAsTallAsTheClientHasNoScrollBar) {
  request.total = 200;
  EXPECT_FALSE(Plan().scroll.wanted);
  request.total = 201;
  EXPECT_TRUE(Plan().scroll.wanted);
}

TEST_F(GroupLayout, TheScrollBarTakesItsWidthFromTheRowsAndItsRangeIsTheHiddenHeight) {
  request.total = 500;
  const LayoutPlan plan = Plan();
  ExpectRect(plan.scroll.bar, 92, 0, 100, 200);
  EXPECT_EQ(plan.scroll.top, 300);
  EXPECT_EQ(plan.scroll.pos, 0);
  EXPECT_EQ(plan.rows[0].right, 92);
}

TEST_F(GroupLayout, ABarOfZeroWidthKeepsTheRowsAtFullWidthAndStillScrolls) {
  request.total = 500;
  request.barWidth = 0;
  const LayoutPlan plan = Plan();
  EXPECT_TRUE(plan.scroll.wanted);
  ExpectRect(plan.scroll.bar, 100, 0, 100, 200);
  EXPECT_EQ(plan.rows[0].right, 100);
}

TEST_F(GroupLayout, TheScrollPositionMovesAllRowsUp) {
  request.total = 500;
  request.hasBar = true;
  request.scrollPos = 120;
  EXPECT_EQ(Plan().rows[0].top, 2 - 120);
}

TEST_F(GroupLayout, ATreeThatShrankBelowThePositionScrollsBackInTheSamePass) {
  request.total = 260;
  request.hasBar = true;
  request.scrollPos = 250;
  const LayoutPlan plan = Plan();
  EXPECT_EQ(plan.scroll.pos, 60);
  EXPECT_EQ(plan.rows[0].top, 2 - 60);
}

TEST_F(GroupLayout, ATreeThatFitsAgainStartsAtTheTop) {
  request.total = 100;
  request.hasBar = true;
  request.scrollPos = 250;
  const LayoutPlan plan = Plan();
  EXPECT_FALSE(plan.scroll.wanted);
  EXPECT_EQ(plan.rows[0].top, 2);
}

TEST_F(GroupLayout, AGroupThatIsNotItsOwnHostGetsNoBar) {
  request.total = 5000;
  request.scrolls = false;
  EXPECT_FALSE(Plan().scroll.wanted);
}

TEST_F(GroupLayout, ALimitedRootGivesItsOpenGroupTheRestOfTheHeightAndNeverScrolls) {
  request.limitHeight = true;
  request.total = 200;
  request.openIndex = 1;
  request.childHeight = 4000;
  const LayoutPlan plan = Plan();
  EXPECT_FALSE(plan.scroll.wanted);
  ExpectRect(plan.child, 0, 52, 100, 52 + 200 - 76 - 4);
  EXPECT_EQ(plan.rows[2].top, 50 + 4 + 120);
  EXPECT_EQ(plan.end, 200 - 2) << "the last row ends where the margin begins";
}

TEST_F(GroupLayout, RowsThatFillALimitedRootLeaveItsOpenGroupNoHeight) {
  request.limitHeight = true;
  request.client.bottom = 60;
  request.openIndex = 0;
  const LayoutPlan plan = Plan();
  EXPECT_EQ(plan.child.bottom - plan.child.top, 60 - 76 - 4);
}

TEST_F(GroupLayout, RowsOverlapOnlyBelowAnOpenGroupOfNegativeHeight) {
  qvx::LayoutPlan plan;
  EXPECT_FALSE(qvx::RowsOverlap(plan));
  plan.rows = {{0, 2, 9, 26}, {0, 26, 9, 50}, {0, 70, 9, 94}};
  EXPECT_FALSE(qvx::RowsOverlap(plan));
  plan.rows.push_back({0, 93, 9, 117});
  EXPECT_TRUE(qvx::RowsOverlap(plan));
}

TEST_F(GroupLayout, AnEmptyGroupHasNothingToPlace) {
  heights.clear();
  request.total = request.rowsHeight = 4;
  const LayoutPlan plan = Plan();
  EXPECT_TRUE(plan.rows.empty());
  EXPECT_EQ(plan.end, 2);
}

TEST(FitRootGroup, ADockedPaletteKeepsThreePixelsAboveAndTwoBelow) {
  ExpectRect(qvx::FitRootGroup({5, 10, 80, 400}, false, 420), 5, 13, 80, 418);
  ExpectRect(qvx::FirstRootGroup({5, 10, 80, 400}, false), 5, 13, 80, 398);
}

TEST(FitRootGroup, AFloatingPaletteUsesItsUsedRectangleAndKeepsTwoBelow) {
  ExpectRect(qvx::FitRootGroup({5, 10, 80, 400}, true, 420), 5, 10, 80, 398);
  ExpectRect(qvx::FirstRootGroup({5, 10, 80, 400}, true), 5, 10, 80, 398);
}

}  // namespace
