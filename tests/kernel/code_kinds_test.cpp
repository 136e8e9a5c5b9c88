#include <gtest/gtest.h>

#include "adsdef.h"
#include "kernel/qvxexport.h"

TEST(TypeOfCode, IsRightAtBothEndsOfEveryRange) {
  const struct {
    int first, last;
    short type;
  } rows[] = {
      {0, 9, RTSTR},       {10, 59, RTREAL},     {60, 79, RTSHORT},     {90, 99, RTLONG},
      {100, 100, RTSTR},   {102, 102, RTSTR},    {105, 105, RTSTR},     {110, 149, RTREAL},
      {170, 179, RTSHORT}, {210, 239, RTREAL},   {270, 299, RTSHORT},   {300, 309, RTSTR},
      {370, 389, RTSHORT}, {400, 409, RTSHORT},  {410, 419, RTSTR},     {420, 429, RTLONG},
      {430, 439, RTSTR},   {440, 459, RTLONG},   {460, 469, RTREAL},    {470, 479, RTSTR},
      {999, 1009, RTSTR},  {1010, 1059, RTREAL}, {1060, 1070, RTSHORT}, {1071, 1071, RTLONG},
  };
  for (const auto& row : rows)
    for (int code = row.first; code <= row.last; ++code)
      EXPECT_EQ(QvxExport::TypeOfCode(code), row.type) << code;
}

TEST(TypeOfCode, GivesNoneBetweenAndOutsideTheRanges) {
  for (const int code : {-5,  -1,  80,  89,  101, 103, 104, 106, 109, 150,  169,  180,
                         209, 240, 269, 310, 369, 390, 399, 480, 998, 1072, 5005, 65536})
    EXPECT_EQ(QvxExport::TypeOfCode(code), RTNONE) << code;
}
