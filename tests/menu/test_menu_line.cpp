// The line parser: "[label]command" into label and command.
#include <gtest/gtest.h>

#include "menu/menu_line.h"
#include "tests/menu/menu_testing.h"

namespace {

std::string LabelOf(const wchar_t* text) {
  TMenuItem item;
  ParseMenuLine(text, item);
  return Utf8(item.m_strLabel);
}

std::string CommandOf(const wchar_t* text) {
  TMenuItem item;
  ParseMenuLine(text, item);
  return Utf8(item.m_strCommand);
}

TEST(MenuLine, TheLabelIsWhatStandsBetweenTheFirstBrackets) {
  EXPECT_EQ(LabelOf(L"[a]b"), "a");
  EXPECT_EQ(LabelOf(L"[ a [b ]c]d"), " a [b ");
  EXPECT_EQ(CommandOf(L"[a]b]c"), "b]c\n");
}

TEST(MenuLine, EmptyBracketsAndMissingOnesLeaveTheItemEmpty) {
  EXPECT_EQ(LabelOf(L"[]") + CommandOf(L"[]"), "");
  EXPECT_EQ(LabelOf(L"[abc x;") + CommandOf(L"[abc x;"), "");
}

TEST(MenuLine, WithoutACommandTheCommandIsEmpty) {
  EXPECT_EQ(CommandOf(L"[a]"), "");
  EXPECT_EQ(CommandOf(L"[a] \t "), "");
}

TEST(MenuLine, SemicolonsAreNewlinesAndTheLastOneIsTheEnd) {
  EXPECT_EQ(CommandOf(L"[a]x;y;"), "x\ny\n");
  EXPECT_EQ(CommandOf(L"[a]x;y"), "x\ny\n");
  EXPECT_EQ(CommandOf(L"[a]x;;"), "x\n\n");
  EXPECT_EQ(CommandOf(L"[a]x; \t"), "x\n");
  EXPECT_EQ(CommandOf(L"[a];"), "\n");
  EXPECT_EQ(CommandOf(L"[a] x"), " x\n");
}

TEST(MenuLine, QuotesKeepTheirSemicolons) {
  EXPECT_EQ(CommandOf(L"[a]\"x;y\""), "\"x;y\"\n");
  EXPECT_EQ(CommandOf(L"[a]\"x;y\";z\"w;"), "\"x;y\"\nz\"w\n");
}

TEST(MenuLine, CaretCIsEscapeAndOtherPairsVanish) {
  EXPECT_EQ(CommandOf(L"[a]^C^cTWall;"), "\x1b\x1bTWall\n");
  EXPECT_EQ(CommandOf(L"[a]^P"), "\n");
  EXPECT_EQ(CommandOf(L"[a]a^Pb"), "ab\n");
  EXPECT_EQ(CommandOf(L"[a]^^C"), "C\n");
  EXPECT_EQ(CommandOf(L"[a]^;x;"), "x\n");
}

TEST(MenuLine, ACaretAtTheEndVanishesAloneAndTheNewlineStays) {
  EXPECT_EQ(CommandOf(L"[a]^"), "\n");
  EXPECT_EQ(CommandOf(L"[a]x^"), "x\n");
  EXPECT_EQ(CommandOf(L"[a]x^;"), "x\n");
}

TEST(MenuLine, LabelsAreCutAt255AndCommandsAt2047) {
  const std::wstring text = L"[" + std::wstring(300, L'a') + L"]" + std::wstring(3000, L'b');
  TMenuItem item;
  ParseMenuLine(text, item);
  EXPECT_EQ(item.m_strLabel.Length(), 255);
  EXPECT_EQ(item.m_strCommand.Length(), 2048);
}

}  // namespace
