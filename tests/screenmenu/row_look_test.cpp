// Colours, arrows and the drawing layout of a row in each of its states.
#include <gtest/gtest.h>

#include "screenmenu/menu_colors.h"
#include "screenmenu/row_look.h"

namespace {

using namespace qvx;

const RECT kItem{0, 0, 120, 24};
const SIZE kIcon{16, 16};

RowLook Look(int depth, bool hover, bool selected, bool disabled = false) {
  return LookOfRow(kItem, depth, {hover, selected, disabled}, true, kIcon);
}

TEST(MenuColors, SlotZeroIsTheRootsAndDeeperLevelsWrapAround) {
  const int expected[] = {0, 1, 2, 3, 1, 2, 3, 1, 2};
  for (int depth = 0; depth < 9; ++depth) EXPECT_EQ(ColorSlot(depth), expected[depth]) << depth;
}

TEST(MenuColors, ArrowsWrapAroundWithTheDepth) {
  EXPECT_EQ(ArrowBitmap(0, false), 5012);
  EXPECT_EQ(ArrowBitmap(0, true), 199);
  EXPECT_EQ(ArrowBitmap(1, false), 5015);
  EXPECT_EQ(ArrowBitmap(1, true), 5018);
  EXPECT_EQ(ArrowBitmap(5, false), 5016);
  EXPECT_EQ(ArrowBitmap(5, true), 5019);
  EXPECT_EQ(ArrowBitmap(6, false), 5012);
}

TEST(RowLooks, AnIdleRowHasItsGroupsColourAndNoBorder) {
  const RowLook look = Look(2, false, false);
  EXPECT_EQ(look.fill, RowFill::kGroupColor);
  EXPECT_EQ(look.border, RowBorder::kNone);
  EXPECT_EQ(look.face.left, 3);
  EXPECT_EQ(look.image.x, 3);
  EXPECT_EQ(look.image.y, 4);
  EXPECT_EQ(look.text.left, 7);
  EXPECT_EQ(look.text.top, 0);
}

TEST(RowLooks, AHoveredRowIsRaisedWithItsImageOnePixelRight) {
  const RowLook look = Look(1, true, false);
  EXPECT_EQ(look.fill, RowFill::kHoverColor);
  EXPECT_EQ(look.border, RowBorder::kRaised);
  EXPECT_EQ(look.image.x, 4);
  EXPECT_EQ(look.image.y, 4);
  EXPECT_EQ(look.text.left, 7) << "the text stays";
}

TEST(RowLooks, AHoveredRowOfTheRootIsNotPaleYellow) {
  EXPECT_EQ(Look(0, true, false).fill, RowFill::kActiveColor);
}

TEST(RowLooks, APressedRowIsSunkenWithImageAndTextMovedByOne) {
  const RowLook look = Look(1, true, true);
  EXPECT_EQ(look.border, RowBorder::kSunken);
  EXPECT_EQ(look.image.x, 4);
  EXPECT_EQ(look.image.y, 5);
  EXPECT_EQ(look.text.left, 8);
  EXPECT_EQ(look.text.top, 1);
}

TEST(RowLooks, ARowPressedByTheKeyboardMovesItsImageAsUnderThePointer) {
  const RowLook look = Look(1, false, true);
  EXPECT_EQ(look.image.x, 4);
  EXPECT_EQ(look.image.y, 4);
  EXPECT_EQ(look.border, RowBorder::kSunken);
}

TEST(RowLooks, ADisabledRowGreysItsTextOnly) {
  const RowLook look = Look(1, false, false, true);
  EXPECT_TRUE(look.grayText);
  EXPECT_EQ(look.fill, RowFill::kGroupColor);
  EXPECT_EQ(look.image.x, 3);
}

TEST(RowLooks, ARowWithoutTextIsAnEtchedLineInTheMiddle) {
  const RowLook look = LookOfRow({0, 0, 120, 9}, 0, {}, false, {0, 0});
  EXPECT_TRUE(look.separator);
  EXPECT_EQ(look.line.top, 4);
  EXPECT_EQ(look.line.left, 3);
}

TEST(RowLooks, TextIsAfterTheImageColumnAndCentredVertically) {
  const RECT placed = PlaceText({7, 0, 120, 24}, {40, 15});
  EXPECT_EQ(placed.left, 28);
  EXPECT_EQ(placed.top, 4);
  EXPECT_EQ(placed.right, 68);
  EXPECT_EQ(placed.bottom, 19);
}

TEST(RowLooks, TextTallerThanItsRowMovesUpByHalfTheDifferenceRoundedTowardZero) {
  EXPECT_EQ(PlaceText({7, 0, 120, 24}, {40, 27}).top, -1);
}

}  // namespace
