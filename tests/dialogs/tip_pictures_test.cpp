#include <gtest/gtest.h>

#include "dialogs/tip_pictures.h"

TEST(TipPicture, IsDrawnForTheScreensDotsPerInch) {
  const struct {
    int dots, left, top;
  } rows[] = {{72, 5020, 129},     {96, 5020, 129},     {97, 35120, 30229},  {120, 35120, 30229},
              {121, 35220, 30329}, {144, 35220, 30329}, {145, 35320, 30429}, {168, 35320, 30429},
              {192, 35320, 30429}, {193, 5020, 129},    {194, 35320, 30429}, {288, 35320, 30429}};
  for (const auto& row : rows) {
    EXPECT_EQ(qvx::TipPictureNumber(qvx::kLeftPictureFamily, row.dots), row.left) << row.dots;
    EXPECT_EQ(qvx::TipPictureNumber(qvx::kTopPictureFamily, row.dots), row.top) << row.dots;
  }
}

TEST(TipPicture, IsStretchedFrom194DotsOn) {
  for (const int dots : {96, 120, 144, 192, 193})
    EXPECT_FALSE(qvx::StretchesTipPicture(dots)) << dots;
  for (const int dots : {194, 240}) EXPECT_TRUE(qvx::StretchesTipPicture(dots)) << dots;
}
