// The published form of a dock bar's array: null closes a row, small values keep places.
#include "portable/dock_array.h"

#include <gtest/gtest.h>

#include <string>

namespace {

int g_bars[4];  // bars are known by their address only

void* Bar(int i) { return &g_bars[i]; }

// "." for a row marker, "a" to "d" for bars, "#" for a place holder.
std::string Shape(const CPtrArray& bars) {
  std::string shape;
  for (int i = 0; i < bars.GetSize(); ++i) {
    if (!bars[i]) {
      shape += '.';
    } else if (IsDockPlaceHolder(bars[i])) {
      shape += '#';
    } else {
      shape += char('a' + (static_cast<int*>(bars[i]) - g_bars));
    }
  }
  return shape;
}

struct DockArray : testing::Test {
  DockArray() { bars.Add(nullptr); }
  CPtrArray bars;
};

}  // namespace

TEST_F(DockArray, AFirstBarStandsBetweenTwoMarkers) {
  EXPECT_EQ(InsertDockEntry(bars, Bar(0), {1, true}), 1);
  EXPECT_EQ(Shape(bars), ".a.");
}

TEST_F(DockArray, BarsOfOneRowStandSideBySide) {
  InsertDockEntry(bars, Bar(0), {1, true});
  InsertDockEntry(bars, Bar(1), {2, false});
  InsertDockEntry(bars, Bar(2), {int(bars.GetSize()), true});
  EXPECT_EQ(Shape(bars), ".ab.c.");
  EXPECT_EQ(FindDockEntry(bars, Bar(2)), 4);
  EXPECT_EQ(FindDockEntry(bars, Bar(3)), -1);
  EXPECT_EQ(FindDockEntry(bars, Bar(1), 2), -1);
}

TEST_F(DockArray, ARowThatLosesItsLastBarGoes) {
  InsertDockEntry(bars, Bar(0), {1, true});
  InsertDockEntry(bars, Bar(1), {int(bars.GetSize()), true});
  RemoveDockEntry(bars, 1);
  EXPECT_EQ(Shape(bars), ".b.");
  RemoveDockEntry(bars, 1);
  EXPECT_EQ(Shape(bars), ".");
}

TEST_F(DockArray, ARowThatKeepsABarKeepsItsMarkers) {
  InsertDockEntry(bars, Bar(0), {1, true});
  InsertDockEntry(bars, Bar(1), {2, false});
  RemoveDockEntry(bars, 1);
  EXPECT_EQ(Shape(bars), ".b.");
}

TEST_F(DockArray, APlaceHolderKeepsTheRowOfAnAbsentBar) {
  InsertDockEntry(bars, Bar(0), {1, true});
  InsertDockEntry(bars, Bar(1), {int(bars.GetSize()), true});
  RemoveDockEntry(bars, 1, 0xE880);
  EXPECT_EQ(Shape(bars), ".#.b.");
  EXPECT_EQ(FindDockEntry(bars, DockPlaceHolder(0xE880)), 1);
  EXPECT_TRUE(IsDockPlaceHolder(bars[1]));
  EXPECT_FALSE(IsDockedBar(bars[1]));
  RemoveDockEntry(bars, 1);
  EXPECT_EQ(Shape(bars), ".b.");
}

TEST_F(DockArray, AnyOrderOfInsertsAndRemovesKeepsRowsApart) {
  unsigned seed = 7;
  auto next = [&seed](int below) {
    seed = seed * 1103515245u + 12345u;
    return int((seed >> 16) % unsigned(below));
  };
  for (int step = 0; step < 3000; ++step) {
    void* bar = Bar(next(4));
    const int at = FindDockEntry(bars, bar);
    if (at >= 0) {
      RemoveDockEntry(bars, at);
    } else {
      const int before = next(int(bars.GetSize()));
      const bool startsRow = before > 0 && !bars[before - 1];
      if (startsRow)
        InsertDockEntry(bars, bar, {before, true});
      else if (before > 0)
        InsertDockEntry(bars, bar, {before, false});
      else
        InsertDockEntry(bars, bar, {int(bars.GetSize()), true});
    }
    const std::string shape = Shape(bars);
    ASSERT_EQ(shape.front(), '.');
    ASSERT_EQ(shape.back(), '.');
    ASSERT_EQ(shape.find(".."), std::string::npos) << shape;
  }
}
