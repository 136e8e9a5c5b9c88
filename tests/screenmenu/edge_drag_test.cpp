// Dragging the edge of a docked palette.
#include <gtest/gtest.h>

#include "screenmenu/edge_drag.h"

namespace {

using namespace qvx;

DockGeometry DockAt(int side, RECT palette) { return {side, palette, {0, 0, 400, 600}, 4, 5}; }

const DockGeometry kLeft = DockAt(kDockLeft, {0, 0, 100, 600});
const DockGeometry kRight = DockAt(kDockRight, {300, 0, 400, 600});
const DockGeometry kTop = DockAt(kDockTop, {0, 0, 400, 250});
const DockGeometry kBottom = DockAt(kDockBottom, {0, 350, 400, 600});
const SIZE kLeast{74, 200};

void ExpectRect(const RECT& r, int left, int top, int right, int bottom) {
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}

TEST(EdgeRules, EachDockSideHasItsInnerEdge) {
  RECT r{};
  EXPECT_EQ(EdgeRect(kDockLeft, kLeft, &r), 11);
  ExpectRect(r, 100, 0, 104, 600);
  EXPECT_EQ(EdgeRect(kDockRight, kRight, &r), 10);
  ExpectRect(r, 296, 0, 300, 600);
  EXPECT_EQ(EdgeRect(kDockTop, kTop, &r), 15);
  ExpectRect(r, 0, 250, 400, 255);
  EXPECT_EQ(EdgeRect(kDockBottom, kBottom, &r), 12);
  ExpectRect(r, 0, 345, 400, 350);
}

TEST(EdgeRules, AHitCodePicksItsSideDirectly) {
  RECT r{};
  EXPECT_EQ(EdgeRect(11, kRight, &r), 11);
  ExpectRect(r, 400, 0, 404, 600);
}

TEST(EdgeRules, AnyOtherCodeKeepsTheRectangle) {
  RECT r{1, 2, 3, 4};
  EXPECT_EQ(EdgeRect(59999, kLeft, &r), 0);
  ExpectRect(r, 1, 2, 3, 4);
}

TEST(EdgeRules, OnlyAPointOnTheStripHits) {
  EXPECT_EQ(EdgeHit({100, 300}, kLeft), 11);
  EXPECT_EQ(EdgeHit({103, 300}, kLeft), 11);
  EXPECT_EQ(EdgeHit({104, 300}, kLeft), 0);
  EXPECT_EQ(EdgeHit({99, 300}, kLeft), 0);
}

TEST(TrackRules, TheTrackerFollowsThePointerAlongOneAxis) {
  POINT way{};
  ASSERT_TRUE(TrackOffset({152, 77}, {100, 0, 104, 600}, kLeft, kLeast, &way));
  EXPECT_EQ(way.x, 50);
  EXPECT_EQ(way.y, 0);
  ASSERT_TRUE(TrackOffset({9, 282}, {0, 250, 400, 255}, kTop, kLeast, &way));
  EXPECT_EQ(way.x, 0);
  EXPECT_EQ(way.y, 30);
}

TEST(TrackRules, ALeftDockedPaletteStopsAtSeventyFourPixels) {
  POINT way{-1, -1};
  EXPECT_TRUE(TrackOffset({76, 0}, {100, 0, 104, 600}, kLeft, kLeast, &way));
  EXPECT_EQ(way.x, -26);
  way = {-1, -1};
  EXPECT_FALSE(TrackOffset({75, 0}, {100, 0, 104, 600}, kLeft, kLeast, &way));
  EXPECT_EQ(way.x, -1) << "the tracker stays where it was";
}

TEST(TrackRules, ARightDockedPaletteStopsAtTheSameWidth) {
  POINT way{};
  EXPECT_TRUE(TrackOffset({324, 0}, {296, 0, 300, 600}, kRight, kLeast, &way));
  EXPECT_EQ(way.x, 26);
  EXPECT_FALSE(TrackOffset({325, 0}, {296, 0, 300, 600}, kRight, kLeast, &way));
}

TEST(TrackRules, TopAndBottomDocksStopAtTheMinimumHeight) {
  POINT way{};
  EXPECT_TRUE(TrackOffset({0, 202}, {0, 250, 400, 255}, kTop, kLeast, &way));
  EXPECT_FALSE(TrackOffset({0, 201}, {0, 250, 400, 255}, kTop, kLeast, &way));
  EXPECT_TRUE(TrackOffset({0, 397}, {0, 345, 400, 350}, kBottom, kLeast, &way));
  EXPECT_FALSE(TrackOffset({0, 398}, {0, 345, 400, 350}, kBottom, kLeast, &way));
}

TEST(TrackRules, TheDraggedSideMovesByTheTrackersDistance) {
  const RECT window{10, 20, 110, 620};
  ExpectRect(DraggedRect({150, 0, 154, 600}, kLeft, window), 10, 20, 160, 620);
  ExpectRect(DraggedRect({246, 0, 250, 600}, kRight, window), -40, 20, 110, 620);
  ExpectRect(DraggedRect({0, 280, 400, 285}, kTop, window), 10, 20, 110, 650);
  ExpectRect(DraggedRect({0, 315, 400, 320}, kBottom, window), 10, -10, 110, 620);
}

TEST(TrackRules, AnUnmovedTrackerKeepsTheSize) {
  ExpectRect(DraggedRect({100, 0, 104, 600}, kLeft, {0, 0, 100, 600}), 0, 0, 100, 600);
}

TEST(HostRules, TheModuleHandlesTheEdgeFromRelease172On) {
  EXPECT_FALSE(HostLetsTakeEdge(16, 9));
  EXPECT_FALSE(HostLetsTakeEdge(17, 1));
  EXPECT_TRUE(HostLetsTakeEdge(17, 2));
  EXPECT_TRUE(HostLetsTakeEdge(18, 0));
  EXPECT_TRUE(HostLetsTakeEdge(24, 0));
}

TEST(HostRules, SmallValuesOfADockBarsArrayMarkRows) {
  EXPECT_FALSE(IsBarEntry(nullptr));
  EXPECT_FALSE(IsBarEntry(reinterpret_cast<void*>(65535)));
  EXPECT_TRUE(IsBarEntry(reinterpret_cast<void*>(65536)));
}

}  // namespace
