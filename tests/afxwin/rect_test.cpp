// CPoint, CSize and CRect arithmetic.
#include "atltypes.h"

#include <gtest/gtest.h>

TEST(Rect, InflatingGrowsAllFourSidesAndKeepsTheCentre) {
  CRect r(10, 20, 30, 60);
  CPoint centre = r.CenterPoint();
  r.InflateRect(2, 3);
  EXPECT_TRUE(r == CRect(8, 17, 32, 63));
  EXPECT_TRUE(r.CenterPoint() == centre);
}

TEST(Rect, RightAndBottomEdgeAreOutside) {
  CRect r(0, 0, 10, 10);
  EXPECT_TRUE(r.PtInRect(CPoint(0, 0)));
  EXPECT_TRUE(r.PtInRect(CPoint(9, 9)));
  EXPECT_FALSE(r.PtInRect(CPoint(10, 5)));
  EXPECT_FALSE(r.PtInRect(CPoint(5, 10)));
}

TEST(Rect, AdjacentRectanglesIntersectInTheNullRectangle) {
  CRect common(1, 2, 3, 4);
  EXPECT_FALSE(common.IntersectRect(CRect(0, 0, 5, 5), CRect(5, 0, 9, 5)));
  EXPECT_TRUE(common.IsRectNull());
  EXPECT_TRUE(common.IntersectRect(CRect(0, 0, 5, 5), CRect(4, 3, 9, 9)));
  EXPECT_TRUE(common == CRect(4, 3, 5, 5));
}

TEST(Rect, AnEmptyRectangleIsIgnoredInAUnion) {
  CRect all;
  EXPECT_TRUE(all.UnionRect(CRect(5, 5, 5, 90), CRect(1, 2, 3, 4)));
  EXPECT_TRUE(all == CRect(1, 2, 3, 4));
  EXPECT_FALSE(all.UnionRect(CRect(), CRect()));
}

TEST(Rect, IntersectingInPlaceIsCorrect) {
  CRect inside(-5, -5, 8, 8);
  inside.IntersectRect(inside, CRect(0, 0, 4, 20));
  EXPECT_TRUE(inside == CRect(0, 0, 4, 8));
}

TEST(Rect, NormalizingSwapsSidesInTheWrongOrder) {
  CRect r(30, 9, 10, 4);
  r.NormalizeRect();
  EXPECT_TRUE(r == CRect(10, 4, 30, 9));
}

TEST(Point, PackedCoordinatesAreSigned) {
  CPoint p(static_cast<LPARAM>(0xFFFE0005));
  EXPECT_EQ(5, p.x);
  EXPECT_EQ(-2, p.y);
}

TEST(Point, TheDifferenceOfTwoPointsIsASize) {
  CSize d = CPoint(10, 4) - CPoint(3, 9);
  EXPECT_EQ(7, d.cx);
  EXPECT_EQ(-5, d.cy);
  EXPECT_TRUE(CPoint(3, 9) + d == CPoint(10, 4));
}

TEST(Size, PackedSizesAreSigned) {
  CSize s(static_cast<DWORD>(0x0003FFFFu));
  EXPECT_EQ(-1, s.cx);
  EXPECT_EQ(3, s.cy);
}
