// The line parser.
#include <gtest/gtest.h>

#include <random>

#include "menu/ansi_text.h"
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

TEST(MenuLine, TheLabelIsTheTextBetweenTheFirstBrackets) {
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

TEST(MenuLine, SemicolonsAreNewlinesAndALastOneEndsTheCommand) {
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

TEST(MenuLine, CaretCIsEscapeAndOtherPairsAreDropped) {
  EXPECT_EQ(CommandOf(L"[a]^C^cTWall;"), "\x1b\x1bTWall\n");
  EXPECT_EQ(CommandOf(L"[a]^P"), "\n");
  EXPECT_EQ(CommandOf(L"[a]a^Pb"), "ab\n");
  EXPECT_EQ(CommandOf(L"[a]^^C"), "C\n");
  EXPECT_EQ(CommandOf(L"[a]^;x;"), "x\n");
}

// Quotes are counted before pairs are dropped.
TEST(MenuLine, AQuoteThatIsDroppedWithItsCaretStillQuotes) {
  EXPECT_EQ(CommandOf(L"[a]^\"x;y\"z;w;"), "x;y\"z\nw\n");
  AnsiText ansi;
  TMenuItem item;
  ParseMenuLine(std::string_view("[a]^\"x;y\"z;w;"), ansi, item);
  EXPECT_EQ(Utf8(item.m_strCommand), "x;y\"z\nw\n");
}

TEST(MenuLine, ACaretAtTheEndIsDroppedAndTheNewlineKept) {
  EXPECT_EQ(CommandOf(L"[a]^"), "\n");
  EXPECT_EQ(CommandOf(L"[a]x^"), "x\n");
  EXPECT_EQ(CommandOf(L"[a]x^;"), "x\n");
}

TEST(MenuLine, LabelsAreTruncatedAt255AndCommandsAt2047) {
  const std::wstring text = L"[" + std::wstring(300, L'a') + L"]" + std::wstring(3000, L'b');
  TMenuItem item;
  ParseMenuLine(text, item);
  EXPECT_EQ(item.m_strLabel.Length(), 255);
  EXPECT_EQ(item.m_strCommand.Length(), 2048);
}

// ParseMenuLine has a separate implementation for usual lines.
TEST(MenuLine, BytesAndDecodedTextOfALineGiveTheSameResult) {
  const char* const pieces[] = {"]",  "^",  "c",        "C",        "\"",       ";",    " ",
                                "\t", "ab", "TWall123", "\xB1\xED", "\x81\x5D", "\xFF", "\x80"};
  AnsiText ansi;
  std::mt19937 random(11);
  for (int i = 0; i < 20000; ++i) {
    std::string narrow = random() % 4 ? "[\xC7\xBD]" : "[";
    for (unsigned count = random() % 16; count; --count) narrow += pieces[random() % 14];
    TMenuItem fromBytes, fromText;
    ParseMenuLine(narrow, ansi, fromBytes);
    const TUString wide(narrow.c_str());
    ParseMenuLine({wide, static_cast<size_t>(wide.Length())}, fromText);
    ASSERT_TRUE(fromBytes.m_strLabel == fromText.m_strLabel) << narrow;
    ASSERT_TRUE(fromBytes.m_strCommand == fromText.m_strCommand) << narrow;
  }
}

}  // namespace
