// How docked bars share a dock bar, where a dropped bar goes, how far an edge can be pulled.
#include "portable/dock_layout.h"

#include <gtest/gtest.h>

namespace {

DockBox Filler(int across, int entry) { return {{across, 32767}, 0, true, entry}; }
DockBox ToolBar(int along, int offset, int entry) { return {{along, 26}, offset, false, entry}; }

void ExpectRect(const RECT& rect, int left, int top, int right, int bottom) {
  EXPECT_EQ(rect.left, left);
  EXPECT_EQ(rect.top, top);
  EXPECT_EQ(rect.right, right);
  EXPECT_EQ(rect.bottom, bottom);
}

}  // namespace

TEST(DockLayout, AnEmptyDockBarTakesNoRoom) {
  const DockPlan plan = PlanDockRows({}, kDockLeft, 500, 4);
  EXPECT_EQ(plan.thickness, 0);
  EXPECT_TRUE(plan.rows.empty());
}

TEST(DockLayout, APaletteFillsTheHeightOfTheLeftSideAndLeavesItsEdgeFree) {
  const DockPlan plan = PlanDockRows({{Filler(76, 1)}}, kDockLeft, 600, 4);
  EXPECT_EQ(plan.thickness, 80);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 76, 600);
  ExpectRect(plan.rows[0].strip, 76, 0, 80, 600);
}

TEST(DockLayout, OnTheRightSideTheEdgeStandsLeftOfThePalette) {
  const DockPlan plan = PlanDockRows({{Filler(76, 1)}}, kDockRight, 600, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 4, 0, 80, 600);
  ExpectRect(plan.rows[0].strip, 0, 0, 4, 600);
}

TEST(DockLayout, AtTheBottomTheEdgeStandsAboveThePalette) {
  const DockBox box{{32767, 90}, 0, true, 1};
  const DockPlan plan = PlanDockRows({{box}}, kDockBottom, 800, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 4, 800, 94);
  ExpectRect(plan.rows[0].strip, 0, 0, 800, 4);
}

TEST(DockLayout, TwoPalettesInOneRowShareItsLengthAndTheGreaterWidth) {
  const DockPlan plan = PlanDockRows({{Filler(76, 1), Filler(120, 2)}}, kDockLeft, 601, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 120, 300);
  ExpectRect(plan.rows[0].bars[1].rect, 0, 300, 120, 601);
  EXPECT_EQ(plan.thickness, 124);
}

TEST(DockLayout, TwoRowsStandBesideEachOtherWithAnEdgeEach) {
  const DockPlan plan = PlanDockRows({{Filler(76, 1)}, {Filler(100, 3)}}, kDockLeft, 600, 4);
  ExpectRect(plan.rows[1].bars[0].rect, 80, 0, 180, 600);
  ExpectRect(plan.rows[1].strip, 180, 0, 184, 600);
  EXPECT_EQ(plan.thickness, 184);
}

TEST(DockLayout, ToolBarsKeepTheirPlaceAndHaveNoEdge) {
  const DockPlan plan =
      PlanDockRows({{ToolBar(100, 10, 1), ToolBar(80, 300, 2)}}, kDockTop, 800, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 10, 0, 110, 26);
  ExpectRect(plan.rows[0].bars[1].rect, 300, 0, 380, 26);
  ExpectRect(plan.rows[0].strip, 0, 0, 0, 0);
  EXPECT_EQ(plan.thickness, 26);
}

TEST(DockLayout, ToolBarsThatWouldOverlapArePushedAside) {
  const DockPlan plan = PlanDockRows({{ToolBar(100, 0, 1), ToolBar(80, 50, 2)}}, kDockTop, 800, 4);
  ExpectRect(plan.rows[0].bars[1].rect, 100, 0, 180, 26);
}

TEST(DockLayout, ToolBarsThatOverlapAtTheEndBothFindRoom) {
  const DockPlan plan =
      PlanDockRows({{ToolBar(100, 640, 1), ToolBar(80, 640, 2)}}, kDockTop, 720, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 540, 0, 640, 26);
  ExpectRect(plan.rows[0].bars[1].rect, 640, 0, 720, 26);
}

TEST(DockLayout, AToolBarLeftOfTheEdgeComesBack) {
  const DockPlan plan = PlanDockRows({{ToolBar(100, -30, 1)}}, kDockTop, 720, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 100, 26);
}

TEST(DockLayout, ToolBarsBeyondTheEndArePushedBack) {
  const DockPlan plan =
      PlanDockRows({{ToolBar(100, 600, 1), ToolBar(80, 700, 2)}}, kDockTop, 720, 4);
  ExpectRect(plan.rows[0].bars[1].rect, 640, 0, 720, 26);
  ExpectRect(plan.rows[0].bars[0].rect, 540, 0, 640, 26);
}

TEST(DockLayout, ARowThatIsTooShortKeepsTheFirstToolBarWhole) {
  const DockPlan plan = PlanDockRows({{ToolBar(100, 0, 1), ToolBar(80, 100, 2)}}, kDockTop, 120, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 100, 26);
  ExpectRect(plan.rows[0].bars[1].rect, 100, 0, 180, 26);
}

TEST(DockLayout, APaletteTakesWhatAToolBarInItsRowLeaves) {
  const DockBox tool{{30, 200}, 0, false, 1};
  const DockPlan plan = PlanDockRows({{tool, Filler(76, 2)}}, kDockLeft, 600, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 76, 200);
  ExpectRect(plan.rows[0].bars[1].rect, 0, 200, 76, 600);
}

TEST(DockLayout, AFrameOfNoHeightGivesPalettesNoHeight) {
  const DockPlan plan = PlanDockRows({{Filler(76, 1), Filler(76, 2)}}, kDockLeft, -20, 4);
  ExpectRect(plan.rows[0].bars[0].rect, 0, 0, 76, 0);
  ExpectRect(plan.rows[0].bars[1].rect, 0, 0, 76, 0);
}

namespace {
// [0] null, [1] palette, [2] null, [3] palette, [4] palette, [5] null
DockPlan TwoRows() {
  return PlanDockRows({{Filler(96, 1)}, {Filler(96, 3), Filler(96, 4)}}, kDockLeft, 600, 4);
}
}  // namespace

TEST(DockPlaces, ADropIntoARowGoesBeforeTheBarWhoseMiddleLiesFurther) {
  const DockPlace upper = FindDockPlace(TwoRows(), kDockLeft, {150, 100}, 6);
  EXPECT_EQ(upper.at, 3);
  EXPECT_FALSE(upper.newRow);
  const DockPlace between = FindDockPlace(TwoRows(), kDockLeft, {150, 200}, 6);
  EXPECT_EQ(between.at, 4);
  const DockPlace last = FindDockPlace(TwoRows(), kDockLeft, {150, 590}, 6);
  EXPECT_EQ(last.at, 5);
  EXPECT_FALSE(last.newRow);
}

TEST(DockPlaces, ADropOnTheOuterSixthOfARowMakesARowOfItsOwn) {
  const DockPlace first = FindDockPlace(TwoRows(), kDockLeft, {10, 300}, 6);
  EXPECT_EQ(first.at, 1);
  EXPECT_TRUE(first.newRow);
  const DockPlace middle = FindDockPlace(TwoRows(), kDockLeft, {95, 300}, 6);
  EXPECT_EQ(middle.at, 3);
  EXPECT_TRUE(middle.newRow);
}

TEST(DockPlaces, ADropBeyondAllRowsMakesTheLastRow) {
  const DockPlace place = FindDockPlace(TwoRows(), kDockLeft, {195, 300}, 6);
  EXPECT_EQ(place.at, 6);
  EXPECT_TRUE(place.newRow);
}

TEST(DockPlaces, AnEmptyDockBarGetsItsFirstRow) {
  const DockPlace place = FindDockPlace(DockPlan{}, kDockLeft, {3, 3}, 1);
  EXPECT_EQ(place.at, 1);
  EXPECT_TRUE(place.newRow);
}

TEST(DropSides, TheNearestAllowedEdgeTakesTheBar) {
  const RECT area{100, 100, 900, 700};
  EXPECT_EQ(DropSide({105, 400}, area, 0xF000, 40), DWORD(kDockLeft));
  EXPECT_EQ(DropSide({895, 400}, area, 0xF000, 40), DWORD(kDockRight));
  EXPECT_EQ(DropSide({500, 110}, area, 0xF000, 40), DWORD(kDockTop));
  EXPECT_EQ(DropSide({500, 690}, area, 0xF000, 40), DWORD(kDockBottom));
  EXPECT_EQ(DropSide({130, 110}, area, 0xF000, 40), DWORD(kDockTop));
}

TEST(DropSides, ASideThatIsNotAllowedLetsTheNextOneHaveIt) {
  const RECT area{100, 100, 900, 700};
  EXPECT_EQ(DropSide({130, 110}, area, kDockLeft | kDockRight, 40), DWORD(kDockLeft));
  EXPECT_EQ(DropSide({500, 110}, area, kDockLeft | kDockRight, 40), DWORD(kDockNone));
}

TEST(DropSides, InACornerTheLeftSideComesFirst) {
  const RECT area{100, 100, 900, 700};
  EXPECT_EQ(DropSide({110, 110}, area, 0xF000, 40), DWORD(kDockLeft));
  EXPECT_EQ(DropSide({889, 110}, area, 0xF000, 40), DWORD(kDockTop));
}

TEST(DropSides, TheMiddleAndFarOutsideDockNothing) {
  const RECT area{100, 100, 900, 700};
  EXPECT_EQ(DropSide({500, 400}, area, 0xF000, 40), DWORD(kDockNone));
  EXPECT_EQ(DropSide({70, 400}, area, 0xF000, 40), DWORD(kDockLeft));
  EXPECT_EQ(DropSide({40, 400}, area, 0xF000, 40), DWORD(kDockNone));
}

TEST(DockPreviews, ABandIsNeverWiderThanTheArea) {
  ExpectRect(DockPreview({0, 0, 50, 400}, kDockLeft, {76, 32767}), 0, 0, 50, 400);
  ExpectRect(DockPreview({0, 0, 900, 400}, kDockRight, {76, 32767}), 824, 0, 900, 400);
}

TEST(StripDrags, TheStripMovesAcrossOnly) {
  const RECT moved = DragDockStrip({76, 0, 80, 600}, {0, 0, 76, 600}, kDockLeft, {78, 100},
                                   {128, 400}, 60, {0, 0, 1000, 600});
  ExpectRect(moved, 126, 0, 130, 600);
  EXPECT_EQ(ThicknessAfterDrag({76, 0, 80, 600}, moved, {0, 0, 76, 600}, kDockLeft), 126);
}

TEST(StripDrags, TheBarKeepsItsLeastWidth) {
  const RECT moved = DragDockStrip({76, 0, 80, 600}, {0, 0, 76, 600}, kDockLeft, {78, 100},
                                   {10, 100}, 60, {0, 0, 1000, 600});
  EXPECT_EQ(ThicknessAfterDrag({76, 0, 80, 600}, moved, {0, 0, 76, 600}, kDockLeft), 60);
}

TEST(StripDrags, OnTheRightPullingLeftWidensTheBarUpToTheArea) {
  const RECT moved = DragDockStrip({0, 0, 4, 600}, {4, 0, 80, 600}, kDockRight, {2, 0}, {-2000, 0},
                                   60, {-500, 0, 80, 600});
  ExpectRect(moved, -500, 0, -496, 600);
  EXPECT_EQ(ThicknessAfterDrag({0, 0, 4, 600}, moved, {4, 0, 80, 600}, kDockRight), 576);
}

TEST(StripDrags, ABarThinnerThanItsLeastCanOnlyGrow) {
  const RECT moved = DragDockStrip({40, 0, 44, 600}, {0, 0, 40, 600}, kDockLeft, {42, 0}, {20, 0},
                                   60, {0, 0, 1000, 600});
  ExpectRect(moved, 40, 0, 44, 600);
}
