// Plane geometry and names of axes.
#include "standins/samples/design/plane_shapes.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

TEST(PlaneShapes, AnArcGoesThroughItsMiddlePointInEitherDirection) {
  const auto left = ArcThrough({1, 0, 0}, {0, 1, 0}, {-1, 0, 0});
  ASSERT_TRUE(left);
  EXPECT_NEAR(left->sweep, kPi, 1e-9);
  EXPECT_NEAR(left->radius, 1, 1e-9);
  const auto right = ArcThrough({1, 0, 0}, {0, -1, 0}, {-1, 0, 0});
  ASSERT_TRUE(right);
  EXPECT_NEAR(right->sweep, -kPi, 1e-9);
  EXPECT_FALSE(ArcThrough({0, 0, 0}, {1, 1, 0}, {2, 2, 0}));
  EXPECT_FALSE(ArcThrough({0, 0, 0}, {0, 0, 0}, {2, 2, 0}));
}

TEST(PlaneShapes, ChordsAreAtMostTenDegreesAndEndAtTheEnds) {
  const auto points = ChordsOf({{0, 0, 0}, 10, 0, kPi / 2});
  ASSERT_EQ(points.size(), 10u);
  EXPECT_NEAR(points.front().distanceTo({10, 0, 0}), 0, 1e-9);
  EXPECT_NEAR(points.back().distanceTo({0, 10, 0}), 0, 1e-9);
  EXPECT_EQ(ChordsOf({{0, 0, 0}, 10, 0, 0.01}).size(), 2u);
}

TEST(PlaneShapes, SegmentsCrossWithinBothOnly) {
  EXPECT_NEAR(*Crossing({0, 0, 0}, {10, 0, 0}, {4, -1, 0}, {4, 1, 0}), 0.4, 1e-9);
  EXPECT_FALSE(Crossing({0, 0, 0}, {10, 0, 0}, {4, 1, 0}, {4, 2, 0}));
  EXPECT_FALSE(Crossing({0, 0, 0}, {3, 0, 0}, {4, -1, 0}, {4, 1, 0}));
  EXPECT_FALSE(Crossing({0, 0, 0}, {10, 0, 0}, {0, 1, 0}, {10, 1, 0})) << "parallel";
}

TEST(AxisNames, CountOnInDigitsAndLettersWithoutIOAndZ) {
  for (const auto& [name, next] :
       std::vector<std::pair<std::wstring, std::wstring>>{{L"1", L"2"},
                                                          {L"9", L"10"},
                                                          {L"99", L"100"},
                                                          {L"A", L"B"},
                                                          {L"H", L"J"},
                                                          {L"N", L"P"},
                                                          {L"Y", L"AA"},
                                                          {L"AY", L"BA"},
                                                          {L"A9", L"A10"},
                                                          {L"1-3", L"1-4"},
                                                          {L"", L"A"},
                                                          {L"a", L"aA"}})
    EXPECT_EQ(NextAxisName(name), next);
}

}  // namespace
