// The labels that the first width of the palette is measured for.
#include <gtest/gtest.h>

#include "devhost/ui/launch/first_width.h"

TEST(PaletteLabels, AreThoseOfTheScreenBlockAndOfTheSwitches) {
  const std::wstring source =
      L"MENU_TITLE = \"T\"\r\n***SCREEN\r\n// [注释]\r\n[->设置]\r\nA  "
      L"[自定义(&S)]^C^CTOptions;\r\n"
      L"[--]\r\nSW [*SWITCH*]\r\n[{!=QvxOrthoOn}正交\tF8]'TOrtho;\r\n[<-末行]b;\r\n"
      L"***COMMON\r\n[别处的长长的标签]c;\r\n***SWITCH\r\n**SW GET=A SET=B\r\n0 = OFF, \"开关  "
      L"关\"\r\n"
      L"***RESOURCE\r\nA = \"BMP\",\"提示\"\r\n";
  EXPECT_EQ(
      devhost::PaletteLabels(source),
      (std::vector<std::wstring>{L"设置", L"自定义(S)", L"正交    F8", L"末行", L"开关  关"}));
  EXPECT_TRUE(devhost::PaletteLabels(L"").empty());
}
