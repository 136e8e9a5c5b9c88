// Borders between tiled viewports: found by pixels, moved as parts of the window, carried out in
// the host; and zoom at a point.
#include <gtest/gtest.h>

#include <array>

#include "kernel/coordinates.h"
#include "kernel/qvxexport.h"
#include "kernel/viewport_borders.h"
#include "kernel/viewport_layout.h"
#include "tests/hostcore/host_fixture.h"

namespace {

// 100 by 80 pixels: 2 on the left, 3 above 4 on the right.
int NumberAt(int x, int y) {
  if (x < 0 || y < 0 || x >= 100 || y >= 80) return 0;
  if (x < 60) return 2;
  return y < 30 ? 3 : 4;
}

TEST(ViewportBorders, OnePixelBesideAndThreeAwayFindTheBorder) {
  for (int x : {57, 58, 59, 60, 61, 62}) {
    const ViewportBorder found = BorderNear(NumberAt, {x, 10});
    EXPECT_EQ(2, found.first) << x;
    EXPECT_EQ(3, found.second);
    EXPECT_TRUE(found.upright);
    EXPECT_EQ(60, found.at);
    EXPECT_EQ(0, found.from);
    EXPECT_EQ(80, found.to) << "the whole line, along both on the right";
  }
  EXPECT_EQ(0, BorderNear(NumberAt, {56, 10}).first);
  EXPECT_EQ(0, BorderNear(NumberAt, {63, 10}).first);
}

TEST(ViewportBorders, ALevelBorderEndsWhereItsViewportsEnd) {
  const ViewportBorder found = BorderNear(NumberAt, {80, 31});
  EXPECT_EQ(3, found.first);
  EXPECT_EQ(4, found.second);
  EXPECT_FALSE(found.upright);
  EXPECT_EQ(30, found.at);
  EXPECT_EQ(60, found.from);
  EXPECT_EQ(100, found.to);
}

TEST(ViewportBorders, TheEdgeOfTheWindowIsNoBorder) {
  EXPECT_EQ(0, BorderNear(NumberAt, {1, 40}).first);
  EXPECT_EQ(0, BorderNear(NumberAt, {99, 60}).first);
  EXPECT_EQ(0, BorderNear(NumberAt, {30, 79}).first);
  EXPECT_EQ(0, BorderNear(NumberAt, {-200, 900}).first);
  EXPECT_EQ(0, BorderNear([](int, int) { return 2; }, {30, 30}).first) << "one viewport";
}

std::vector<ViewportTile> Three() {
  return {{2, 0, 0, 0.6, 1}, {3, 0.6, 0.5, 1, 1}, {4, 0.6, 0, 1, 0.5}};
}

ViewportBorder Between(int first, int second, bool upright) {
  ViewportBorder border;
  border.first = first;
  border.second = second;
  border.upright = upright;
  return border;
}

TEST(ViewportBorders, AllViewportsAtTheLineMove) {
  std::vector<ViewportTile> tiles = Three();
  ASSERT_TRUE(MoveBorder(tiles, Between(2, 3, true), 0.25));
  EXPECT_DOUBLE_EQ(0.25, tiles[0].right);
  EXPECT_DOUBLE_EQ(0.25, tiles[1].left);
  EXPECT_DOUBLE_EQ(0.25, tiles[2].left);
  EXPECT_DOUBLE_EQ(0.5, tiles[1].bottom);
}

TEST(ViewportBorders, ALevelBorderMovesFromBelow) {
  std::vector<ViewportTile> tiles = Three();
  ASSERT_TRUE(MoveBorder(tiles, Between(3, 4, false), 0.75));
  EXPECT_DOUBLE_EQ(0.75, tiles[1].bottom);
  EXPECT_DOUBLE_EQ(0.75, tiles[2].top);
  EXPECT_DOUBLE_EQ(0.6, tiles[0].right);
}

TEST(ViewportBorders, OnlyWhatTouchesWithoutAGapMoves) {
  // Four quarters: the lines above and below are two borders, since no viewport spans both.
  std::vector<ViewportTile> tiles = {
      {2, 0, 0.5, 0.5, 1}, {3, 0.5, 0.5, 1, 1}, {4, 0, 0, 0.5, 0.5}, {5, 0.5, 0, 1, 0.5}};
  ASSERT_TRUE(MoveBorder(tiles, Between(2, 3, true), 0.3));
  EXPECT_DOUBLE_EQ(0.3, tiles[0].right);
  EXPECT_DOUBLE_EQ(0.3, tiles[1].left);
  EXPECT_DOUBLE_EQ(0.5, tiles[2].right);
  EXPECT_DOUBLE_EQ(0.5, tiles[3].left);
}

TEST(ViewportBorders, NoViewportBecomesNarrowerThanATwentieth) {
  for (const auto& [wanted, got] : {std::array{0.0, 0.05}, {-7.0, 0.05}, {1.0, 0.95}}) {
    std::vector<ViewportTile> tiles = Three();
    ASSERT_TRUE(MoveBorder(tiles, Between(2, 4, true), wanted));
    EXPECT_NEAR(got, tiles[0].right, 1e-12);
  }
  std::vector<ViewportTile> tiles = {{2, 0, 0, 0.01, 1}, {3, 0.01, 0, 1, 1}};
  EXPECT_FALSE(MoveBorder(tiles, Between(2, 3, true), 0)) << "too narrow already: it stays";
  ASSERT_TRUE(MoveBorder(tiles, Between(2, 3, true), 0.5));
  EXPECT_DOUBLE_EQ(0.5, tiles[0].right);
}

TEST(ViewportBorders, WhatIsNoBorderDoesNotMove) {
  std::vector<ViewportTile> tiles = Three();
  EXPECT_FALSE(MoveBorder(tiles, Between(2, 9, true), 0.3));
  EXPECT_FALSE(MoveBorder(tiles, Between(3, 2, true), 0.3)) << "the wrong way round";
  EXPECT_FALSE(MoveBorder(tiles, Between(3, 4, true), 0.3)) << "a level one";
  EXPECT_FALSE(MoveBorder(tiles, Between(2, 3, true), 0.6)) << "where it is";
  EXPECT_FALSE(MoveBorder(tiles, Between(2, 3, true), std::nan("")));
  EXPECT_DOUBLE_EQ(0.6, tiles[0].right);
}

class ViewportInHost : public hosttest::HostTest {};

TEST_F(ViewportInHost, ALayoutThatIsReadAndWrittenGivesViewportsTheirSize) {
  devhost::Document& drawing = NewDrawing();
  Send(L"-VPORTS\n2\nV\n");
  std::vector<ViewportTile> tiles;
  ++drawing.locks;
  ASSERT_TRUE(ReadLayout(tiles));
  ASSERT_EQ(2u, tiles.size());
  const bool leftFirst = tiles[0].left < tiles[1].left;
  const int left = tiles[leftFirst ? 0 : 1].number, right = tiles[leftFirst ? 1 : 0].number;
  ASSERT_TRUE(MoveBorder(tiles, Between(left, right, true), 0.25));
  EXPECT_TRUE(WriteLayout(tiles));
  std::vector<ViewportTile> again;
  ASSERT_TRUE(ReadLayout(again));
  --drawing.locks;
  ASSERT_EQ(2u, again.size());
  for (const ViewportTile& tile : again)
    EXPECT_DOUBLE_EQ(0.25, tile.number == left ? tile.right : tile.left);
}

TEST_F(ViewportInHost, WithoutADrawingThereIsNoLayout) {
  std::vector<ViewportTile> tiles;
  EXPECT_FALSE(ReadLayout(tiles));
  EXPECT_FALSE(WriteLayout(tiles));
}

TEST_F(ViewportInHost, ZoomAtAPointKeepsItsPixelAndScalesTheView) {
  devhost::Document& drawing = NewDrawing();
  drawing.view.Resize(801, 601);
  for (double factor : {1.6, 0.625, 1.0}) {
    const double before = drawing.view.PixelsPerUnit();
    const AcGePoint3d at = drawing.view.ToWorld({77, 503});
    QvxExport::ArxZoomCursor(at, factor);
    EXPECT_NEAR(before * factor, drawing.view.PixelsPerUnit(), 1e-6 * before);
    const POINT pixel = drawing.view.ToPixel(at);
    EXPECT_NEAR(77, pixel.x, 1);
    EXPECT_NEAR(503, pixel.y, 1);
  }
}

TEST_F(ViewportInHost, AFactorThatIsNotAboveZeroDoesNothing) {
  devhost::Document& drawing = NewDrawing();
  const double before = drawing.view.PixelsPerUnit();
  for (double factor : {0.0, -2.0, std::nan(""), HUGE_VAL})
    QvxExport::ArxZoomCursor({1, 2, 0}, factor);
  EXPECT_EQ(before, drawing.view.PixelsPerUnit());
}

TEST_F(ViewportInHost, ZoomInAUsersSystemStillMeansAPointOfTheWorld) {
  devhost::Document& drawing = NewDrawing();
  Send(L"UCS\nZ\n30\n");
  Send(L"UCS\nO\n100,50\n");
  const AcGePoint3d at = drawing.view.ToWorld({200, 100});
  QvxExport::ArxZoomCursor(at, 2);
  EXPECT_NEAR(200, drawing.view.ToPixel(at).x, 1);
  EXPECT_NEAR(100, drawing.view.ToPixel(at).y, 1);
}

TEST_F(ViewportInHost, WithoutADrawingZoomDoesNothing) { QvxExport::ArxZoomCursor({1, 2, 0}, 2); }

}  // namespace
