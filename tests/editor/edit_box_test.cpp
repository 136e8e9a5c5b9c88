// Place and size of the in-place editor's box.
#include "editor/edit_box.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/editor/edit_double.h"

namespace edittest {
namespace {

using namespace qvx;

std::string SizeText(SIZE size) { return std::to_string(size.cx) + "," + std::to_string(size.cy); }

class EditBox : public ::testing::Test {
 protected:
  SIZE Needed(const std::wstring& text, bool byLines, SIZE parent = {800, 600}) {
    return NeededSize(text, byLines, parent, control);
  }
  EditDiary diary;
  ControlDouble control{diary};
};

TEST_F(EditBox, CornersThatCoincideOrAreExchangedAreNoExtent) {
  EXPECT_TRUE(HasUsableExtent({0, 0, 0}, {1, 1, 0}));
  EXPECT_FALSE(HasUsableExtent({1, 1, 0}, {1, 1, 0}));
  EXPECT_FALSE(HasUsableExtent({0, 0, 0}, {0.9e-6, 0, 0}));
  EXPECT_TRUE(HasUsableExtent({0, 0, 0}, {1.1e-6, 0, 0}));
  EXPECT_FALSE(HasUsableExtent({2, 0, 0}, {1, 5, 0}));
  EXPECT_TRUE(HasUsableExtent({1, 5, 0}, {1, 0, 0})) << "y may fall, and x may be equal";
  EXPECT_TRUE(HasUsableExtent({0, 0, 0}, {0, 0, 1})) << "the distance is that of space";
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(HasUsableExtent({nan, 0, 0}, {1, 1, 0}));
}

TEST_F(EditBox, ThePlaceIsTheSmallestAndLargestPixelWithIntegerMeans) {
  const TextPlace place = PlaceOfText({110, 41}, {101, 90});
  EXPECT_EQ(RectText(place.box), "101,41,110,90");
  EXPECT_EQ(place.centre.x, 105);
  EXPECT_EQ(place.centre.y, 65);
  EXPECT_EQ(PlaceOfText({-4, -4}, {1, 1}).centre.x, -1) << "rounded towards zero";
}

TEST_F(EditBox, PixelsBeyondAnyViewDoNotOverflow) {
  const LONG least = std::numeric_limits<LONG>::min(), most = std::numeric_limits<LONG>::max();
  const TextPlace place = PlaceOfText({least, least}, {most, most});
  EXPECT_EQ(place.centre.x, 0);
  const TextPlace distant = PlaceOfText({most, most}, {most, most});
  const RECT inside = ShiftedInside(FirstBox(distant.centre, 20), {0, 0, 800, 600});
  EXPECT_EQ(inside.right, 795);
  EXPECT_EQ(inside.bottom, 595);
}

TEST_F(EditBox, OnlyHostsBetweenTwoReleasesHaveTheBoxInTheFrame) {
  EXPECT_EQ(ParentOfBox(17.2), BoxParent::kView);
  EXPECT_EQ(ParentOfBox(18.11), BoxParent::kView);
  EXPECT_EQ(ParentOfBox(18.12), BoxParent::kFrame);
  EXPECT_EQ(ParentOfBox(21), BoxParent::kFrame);
  EXPECT_EQ(ParentOfBox(24.09), BoxParent::kFrame);
  EXPECT_EQ(ParentOfBox(24.1), BoxParent::kView);
}

TEST_F(EditBox, TheFirstBoxIsCutAtTheSidesAndDividedAsIntegersAboveAndBelow) {
  EXPECT_EQ(RectText(FirstBox({140, 340}, 16)), "127,332,152,348");
  EXPECT_EQ(RectText(FirstBox({140, 340}, 17)), "126,332,153,348") << "8 above and below";
  EXPECT_EQ(RectText(FirstBox({5, 5}, 16)), "-7,-3,17,13") << "-7.8 is cut towards zero";
  EXPECT_EQ(RectText(FirstBox({140, 340}, 0)), "140,340,140,340");
  EXPECT_EQ(RectText(WithLeftEdgeAt({127, 332, 152, 348}, 100)), "100,332,125,348");
}

TEST_F(EditBox, ALineIsAtMostThreeQuartersOfAUsableScreen) {
  EXPECT_EQ(WidthLimit(1600), 1200);
  EXPECT_EQ(WidthLimit(1), 0);
  EXPECT_EQ(WidthLimit(1601.9), 1200) << "cut to an integer first";
  EXPECT_EQ(WidthLimit(4800), 3600);
  EXPECT_EQ(WidthLimit(4800.5), 3600);
  EXPECT_EQ(WidthLimit(4801), 1440);
  EXPECT_EQ(WidthLimit(0), 1440);
  EXPECT_EQ(WidthLimit(0.9), 1440);
  EXPECT_EQ(WidthLimit(-5), 1440);
  EXPECT_EQ(WidthLimit(1e300), 1440);
  EXPECT_EQ(WidthLimit(std::numeric_limits<double>::quiet_NaN()), 1440);
}

TEST_F(EditBox, AnAreaExcludesItsRightAndBottomEdge) {
  const RECT area{10, 20, 30, 40};
  EXPECT_TRUE(Contains(area, {10, 20}));
  EXPECT_TRUE(Contains(area, {29, 39}));
  EXPECT_FALSE(Contains(area, {9, 30}));
  EXPECT_FALSE(Contains(area, {30, 30}));
  EXPECT_FALSE(Contains(area, {20, 19}));
  EXPECT_FALSE(Contains(area, {20, 40}));
  EXPECT_EQ(CentreOf(area).x, 20);
  EXPECT_EQ(CentreOf(area).y, 30);
}

TEST_F(EditBox, OneLineNeedsItsExtentWithRoomForBordersAndCaret) {
  EXPECT_EQ(SizeText(Needed(L"abcd", false)), SizeText({58, 25}));
  EXPECT_EQ(SizeText(Needed(L"", false)), SizeText({28, 25}));
  control.letterWidth = 2;
  EXPECT_EQ(SizeText(Needed(L"ab", false)), SizeText({24, 25}));
  EXPECT_EQ(SizeText(Needed(L"abc", false)), SizeText({24, 25}));
  EXPECT_EQ(SizeText(Needed(L"abcd", false)), SizeText({26, 25}));
  EXPECT_EQ(SizeText(Needed(L"a\nb", false)), SizeText({24, 25})) << "not split";
}

TEST_F(EditBox, TheNeededSizeLeavesTenPixelsOfTheParent) {
  EXPECT_EQ(SizeText(Needed(std::wstring(200, L'x'), false, {300, 600})), SizeText({290, 25}));
  EXPECT_EQ(SizeText(Needed(L"a\na\na\n", true, {800, 60})), SizeText({28, 50}));
  EXPECT_EQ(SizeText(Needed(L"a", false, {8, 8})), SizeText({-2, -2}));
}

TEST_F(EditBox, LinesAreSplitAtLineFeedsAndAReturnHasAWidth) {
  EXPECT_EQ(SizeText(Needed(L"ab\r\nabcd\r\nx", true)), SizeText({44 + 18, 65}))
      << "the return is 4 pixels wide";
  EXPECT_EQ(SizeText(Needed(L"ab\nabcd", true)), SizeText({40 + 18, 45}));
  EXPECT_EQ(SizeText(Needed(L"ab\rcd", true)), SizeText({44 + 18, 25}))
      << "a return alone breaks no line";
}

TEST_F(EditBox, ALineWithoutCharactersIsAsHighAsALetter) {
  EXPECT_EQ(SizeText(Needed(L"a\n\nb", true)), SizeText({28, 65}));
  EXPECT_EQ(SizeText(Needed(L"\n", true)), SizeText({24, 45}))
      << "the line, and one more after its end";
  EXPECT_EQ(SizeText(Needed(L"ab\n", true)), SizeText({38, 45}));
  EXPECT_EQ(SizeText(Needed(L"", true)), SizeText({28, 25}));
}

// Each line is as high as its number says, "a" is 20.
class NumberedHeights : public TextMeasure {
 public:
  std::vector<SIZE> MeasureAll(const std::vector<std::wstring_view>& texts, MeasureFont) override {
    std::vector<SIZE> sizes;
    for (const std::wstring_view text : texts)
      sizes.push_back({0, text == L"a" ? 20 : std::stoi(std::wstring(text))});
    return sizes;
  }
  std::vector<int> PrefixWidths(const std::wstring&) override { return {}; }
};

TEST_F(EditBox, OnlyALineOfAHeightBelowOneIsAsHighAsALetter) {
  NumberedHeights heights;
  EXPECT_EQ(NeededSize(L"1\n2", true, {800, 600}, heights).cy, 3 + 5);
  EXPECT_EQ(NeededSize(L"0\n2", true, {800, 600}, heights).cy, 22 + 5);
  EXPECT_EQ(NeededSize(L"-4\n2\n", true, {800, 600}, heights).cy, 42 + 5);
}

TEST_F(EditBox, FontsOfAnyHeightGiveASize) {
  for (const LONG height : {0L, 1L, 1000L, -1L}) {
    control.letterHeight = static_cast<LONG>(height);
    EXPECT_EQ(Needed(L"a\n\nb\n", true, {800, 100000}).cy, 4 * height + 5) << height;
  }
  control.letterHeight = 1000000;
  EXPECT_EQ(Needed(std::wstring(4000, L'\n'), true, {800, 600}).cy, 590) << "no overflow";
}

TEST_F(EditBox, TheBoxGrowsAtTheRightAndBottomOrOnBothSides) {
  const RECT box{100, 100, 125, 116};
  EXPECT_EQ(RectText(GrownBox(box, {88, 25}, false)), "100,100,188,125");
  EXPECT_EQ(RectText(GrownBox(box, {88, 25}, true)), "69,96,157,121")
      << "the odd pixel is at the end";
  EXPECT_EQ(RectText(GrownBox(box, {20, 10}, true)), "100,100,125,116") << "it never shrinks";
  EXPECT_EQ(RectText(GrownBox(box, {25, 16}, false)), "100,100,125,116");
  EXPECT_EQ(RectText(GrownBox(box, {26, 16}, true)), "100,100,126,116");
}

TEST_F(EditBox, TheBoxIsShiftedFivePixelsInsideAndTheLastShiftWins) {
  const RECT parent{0, 0, 200, 100};
  EXPECT_EQ(RectText(ShiftedInside({50, 50, 60, 60}, parent)), "50,50,60,60");
  EXPECT_EQ(RectText(ShiftedInside({5, 5, 195, 95}, parent)), "5,5,195,95");
  EXPECT_EQ(RectText(ShiftedInside({4, 50, 14, 60}, parent)), "5,50,15,60");
  EXPECT_EQ(RectText(ShiftedInside({190, 50, 196, 60}, parent)), "189,50,195,60");
  EXPECT_EQ(RectText(ShiftedInside({50, 4, 60, 14}, parent)), "50,5,60,15");
  EXPECT_EQ(RectText(ShiftedInside({50, -20, 60, -10}, parent)), "50,5,60,15");
  EXPECT_EQ(RectText(ShiftedInside({50, 90, 60, 96}, parent)), "50,89,60,95");
  EXPECT_EQ(RectText(ShiftedInside({0, 0, 300, 200}, parent)), "-105,-105,195,95")
      << "in a parent that is too small the right and the bottom edge are inside";
}

TEST_F(EditBox, ALineMoreNeedsRoomInTheParent) {
  const RECT box{10, 10, 100, 35}, parent{0, 0, 200, 55};
  const auto higher = BoxWithLineMore(box, 20, parent);
  ASSERT_TRUE(higher);
  EXPECT_EQ(RectText(*higher), "10,10,100,55") << "45 is the parent's height less 10";
  EXPECT_FALSE(BoxWithLineMore(box, 21, parent));
}

TEST_F(EditBox, CentringKeepsTheSize) {
  EXPECT_EQ(RectText(CentredBox({10, 10, 35, 31}, {100, 200})), "88,190,113,211");
}

TEST_F(EditBox, BoxesAreTheSameWhenAllEdgesAre) {
  const RECT box{1, 2, 3, 4};
  EXPECT_TRUE(IsSameBox(box, {1, 2, 3, 4}));
  EXPECT_FALSE(IsSameBox(box, {0, 2, 3, 4}));
  EXPECT_FALSE(IsSameBox(box, {1, 0, 3, 4}));
  EXPECT_FALSE(IsSameBox(box, {1, 2, 0, 4}));
  EXPECT_FALSE(IsSameBox(box, {1, 2, 3, 0}));
}

}  // namespace
}  // namespace edittest
