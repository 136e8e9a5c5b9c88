// Image, overlay and caption of an owner-drawn button.
#include <gtest/gtest.h>

#include "dialogs/button_image.h"

namespace {

const RECT kItem{10, 20, 110, 60};  // 100 by 40
const SIZE kImage{16, 16};

qvx::ImagePlace Place(int align, bool text, bool pressed = false) {
  return qvx::PlaceImage(align, text, pressed, kItem, kItem, kImage);
}

TEST(ButtonImage, LeftOfTheTextTheImageTakesItsWidthAndAMarginFromTheCaption) {
  const auto place = Place(0, true);
  EXPECT_EQ(place.image.x, 13);
  EXPECT_EQ(place.image.y, 32);
  EXPECT_EQ(place.caption.left, 10 + 16 + 3);
  EXPECT_EQ(place.caption.top, 20);
}

TEST(ButtonImage, AboveTheTextTheImageTakesItsHeightFromTheCaption) {
  const auto place = Place(1, true);
  EXPECT_EQ(place.image.x, 52);
  EXPECT_EQ(place.image.y, 20);
  EXPECT_EQ(place.caption.top, 36);
  EXPECT_EQ(place.caption.left, 10);
}

TEST(ButtonImage, WithoutTextTheImageIsCentredBothWays) {
  for (int align : {0, 1}) {
    const auto place = Place(align, false);
    EXPECT_EQ(place.image.x, 52);
    EXPECT_EQ(place.image.y, 32);
  }
}

TEST(ButtonImage, AnyOtherAlignmentPutsTheImageAtTheCorner) {
  for (bool text : {false, true}) {
    const auto place = Place(7, text);
    EXPECT_EQ(place.image.x, 10);
    EXPECT_EQ(place.image.y, 20);
    EXPECT_EQ(place.caption.left, 10);
  }
}

TEST(ButtonImage, APressMovesImageAndOverlayByOne) {
  const auto idle = Place(0, true), pressed = Place(0, true, true);
  EXPECT_EQ(pressed.image.x, idle.image.x + 1);
  EXPECT_EQ(pressed.image.y, idle.image.y + 1);
  EXPECT_EQ(pressed.overlay.x, idle.overlay.x + 1);
}

TEST(ButtonImage, TheOverlaySitsInTheLowerRightCornerOfTheImage) {
  const auto place = Place(1, true);
  EXPECT_EQ(place.overlay.x, place.image.x + 12);
  EXPECT_EQ(place.overlay.y, place.image.y + 12);
}

}  // namespace
