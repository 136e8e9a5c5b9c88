// The scale pane's text, the numbers of its menu, and the valid scales of a drawing.
#include "statusbar/scale_rules.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

using namespace qvx;

namespace {

TWCString TextFor(double drawing, std::initializer_list<double> scales) {
  ScaleWalk walk;
  for (const double scale : scales)
    if (!walk.Take(scale)) break;
  return ScalePaneText(drawing, walk);
}

}  // namespace

TEST(ScaleRules, AScaleIsAFiniteDecimalNumber) {
  for (const wchar_t* text : {L"100", L" 0.5\t", L"-5", L"0", L"1e3", L"+2.5E-1", L".5", L"5."})
    EXPECT_TRUE(qvx::IsScaleText(text)) << text;
  for (const wchar_t* text : {L"", L" ", L"1e999", L"-1e999", L"inf", L"-INF", L"infinity", L"nan",
                              L"NAN(1)", L"0x10", L"-0X1p3", L"1 2", L"1x", L"e5", L"一百", L"1,5"})
    EXPECT_FALSE(qvx::IsScaleText(text)) << text;
}

TEST(ScaleMenu, EveryLineHasItsScale) {
  const struct {
    unsigned command;
    double scale;
  } kRows[] = {{40234, 0.5}, {40232, 1},   {40233, 2},   {40218, 5},   {40219, 10},  {40220, 20},
               {40221, 25},  {40222, 30},  {40223, 50},  {40224, 100}, {40225, 150}, {40226, 200},
               {40227, 250}, {40230, 300}, {40228, 500}, {40229, 1000}};
  for (const auto& row : kRows) EXPECT_EQ(ScaleOfCommand(row.command), row.scale) << row.command;
}

TEST(ScaleMenu, OtherAndUnknownCommandsHaveNone) {
  for (const unsigned command : {0u, 40231u, 40217u, 40235u})
    EXPECT_FALSE(ScaleOfCommand(command)) << command;
}

TEST(ScaleText, WithoutASelectionShowsTheDrawings) {
  EXPECT_STREQ(TextFor(50, {}), L"比例 1:50");
  EXPECT_STREQ(TextFor(0.5, {}), L"比例 1:0.5");
}

TEST(ScaleText, ObjectsOfOneScaleShowTheirsAndNotTheDrawings) {
  EXPECT_STREQ(TextFor(50, {100, 100, 100}), L"比例 1:100");
  EXPECT_STREQ(TextFor(50, {100}), L"比例 1:100");
}

TEST(ScaleText, ADifferenceWithinTheToleranceCountsAsOneScale) {
  EXPECT_STREQ(TextFor(50, {100, 100.0005}), L"比例 1:100");
  EXPECT_STREQ(TextFor(50, {0.5, 0.5009}), L"比例 1:0.5") << "on the scale itself, not its share";
}

TEST(ScaleText, ADifferenceOfExactlyTheToleranceCountsAsOneScale) {
  EXPECT_STREQ(TextFor(50, {0, 0.001}), L"比例 1:50");
  EXPECT_STREQ(TextFor(50, {0, 0.0010000001}), L"比例 1:***");
}

TEST(ScaleText, ObjectsOfDifferentScalesShowAsterisks) {
  EXPECT_STREQ(TextFor(50, {100, 100.01}), L"比例 1:***");
  EXPECT_STREQ(TextFor(50, {100, 100, 50}), L"比例 1:***");
}

TEST(ScaleText, EachScaleIsComparedWithTheFirstSoSmallStepsAddUpToMixed) {
  EXPECT_STREQ(TextFor(50, {100, 100.0008, 100.0016}), L"比例 1:***");
}

TEST(ScaleText, AScaleThatIsNotAboveZeroShowsTheDrawings) {
  EXPECT_STREQ(TextFor(50, {0, 0}), L"比例 1:50");
  EXPECT_STREQ(TextFor(50, {-100}), L"比例 1:50");
  EXPECT_STREQ(TextFor(50, {0, 100}), L"比例 1:***");
}

TEST(DrawingScale, IsValidOnlyAboveAMinimum) {
  EXPECT_TRUE(DrawingTakesScale(100));
  EXPECT_TRUE(DrawingTakesScale(0.00011));
  EXPECT_FALSE(DrawingTakesScale(0.0001));
  EXPECT_FALSE(DrawingTakesScale(0));
  EXPECT_FALSE(DrawingTakesScale(-1));
  EXPECT_FALSE(DrawingTakesScale(std::numeric_limits<double>::quiet_NaN()));
}

TEST(DimRadius, DecreasesByThePaperDistanceTimesTheIncreaseOfScale) {
  EXPECT_EQ(DimRadiusAt(2000, 10, 150, 100), 1500);
  EXPECT_EQ(DimRadiusAt(2000, 10, 50, 100), 2500);
  EXPECT_EQ(DimRadiusAt(2000, 10, 100, 100), 2000);
}
