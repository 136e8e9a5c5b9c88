// The parts of a palette and the moments when a floating one rolls up or out.
#include "devhost/ui/palette/palette_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr DWORD kLineRight = 0x0400, kLineLeft = 0x0100;

int Width(const RECT& rect) { return rect.right - rect.left; }

}  // namespace

TEST(PaletteParts, ADockedPaletteHasItsContentBelowTheCaption) {
  const PaletteParts parts = LayOutPalette({76, 600}, false, 20, kLineRight);
  EXPECT_EQ(parts.used.left, 0);
  EXPECT_EQ(parts.used.top, 20);
  EXPECT_EQ(parts.used.right, 75);
  EXPECT_EQ(parts.used.bottom, 600);
  EXPECT_EQ(parts.line.left, 75);
}

TEST(PaletteParts, OnTheRightTheLineStandsAtTheLeft) {
  const PaletteParts parts = LayOutPalette({76, 600}, false, 20, kLineLeft);
  EXPECT_EQ(parts.used.left, 1);
  EXPECT_EQ(parts.used.right, 76);
  EXPECT_EQ(Width(parts.line), 1);
}

TEST(PaletteParts, AFloatingPaletteIsAllContent) {
  const PaletteParts parts = LayOutPalette({200, 300}, true, 20, kLineRight);
  EXPECT_EQ(Width(parts.used), 200);
  EXPECT_EQ(parts.used.top, 0);
  EXPECT_EQ(HitPalette(parts, {5, 5}), PaletteHit::kContent);
}

TEST(PaletteParts, PartsOfTheCaptionDoNotOverlap) {
  for (int width = 0; width < 300; ++width) {
    const PaletteParts parts = LayOutPalette({width, 600}, false, 20, kLineRight);
    EXPECT_LE(parts.caption.right, width > 0 ? width : 0);
    if (Width(parts.title) > 0) {
      EXPECT_GE(parts.title.left, parts.gripper.right);
      EXPECT_LE(parts.title.right, parts.close.left);
    }
    if (Width(parts.close) > 0) {
      EXPECT_LE(parts.close.right, parts.caption.right);
      EXPECT_GE(parts.close.left, parts.gripper.right);
    }
  }
}

TEST(PaletteParts, APaletteTooSmallForAnythingHasEmptyParts) {
  const PaletteParts parts = LayOutPalette({0, 0}, false, 20, kLineRight);
  EXPECT_EQ(Width(parts.used), 0);
  EXPECT_EQ(Width(parts.close), 0);
  EXPECT_EQ(HitPalette(parts, {0, 0}), PaletteHit::kContent);
}

TEST(PaletteParts, TheCloseBoxWinsOverTheCaption) {
  const PaletteParts parts = LayOutPalette({120, 600}, false, 20, kLineRight);
  const POINT box{(parts.close.left + parts.close.right) / 2, 10};
  EXPECT_EQ(HitPalette(parts, box), PaletteHit::kClose);
  EXPECT_EQ(HitPalette(parts, {30, 10}), PaletteHit::kCaption);
  EXPECT_EQ(HitPalette(parts, {30, 20}), PaletteHit::kContent);
}

TEST(RollUp, ThePaletteRollsUpAfterThePointerHasBeenAwayForAWhile) {
  int ticks = 0;
  for (int i = 1; i < kRollDelayTicks; ++i)
    EXPECT_EQ(NextRollStep(false, false, false, &ticks), RollStep::kStay);
  EXPECT_EQ(NextRollStep(false, false, false, &ticks), RollStep::kRollUp);
}

TEST(RollUp, AVisitOfThePointerStartsTheWaitAnew) {
  int ticks = 0;
  for (int i = 1; i < kRollDelayTicks; ++i) NextRollStep(false, false, false, &ticks);
  EXPECT_EQ(NextRollStep(false, true, false, &ticks), RollStep::kStay);
  EXPECT_EQ(NextRollStep(false, false, false, &ticks), RollStep::kStay);
}

TEST(RollUp, ARolledUpPaletteOpensAsSoonAsThePointerComes) {
  int ticks = 9;
  EXPECT_EQ(NextRollStep(true, true, false, &ticks), RollStep::kRollOut);
  EXPECT_EQ(NextRollStep(true, false, false, &ticks), RollStep::kStay);
}

TEST(RollUp, NothingMovesWhileAMouseButtonHoldsThePalette) {
  int ticks = kRollDelayTicks;
  EXPECT_EQ(NextRollStep(false, false, true, &ticks), RollStep::kStay);
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(NextRollStep(true, true, true, &ticks), RollStep::kStay);
}
