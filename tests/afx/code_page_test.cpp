// Conversion of narrow text in code page 936 to wide text and back.
#include <gtest/gtest.h>

#include "afx.h"

namespace {

constexpr unsigned kChinese = 936;

TEST(CodePage, TwoByteCharactersAreConvertedBothWays) {
  const std::wstring wide = L"墙体 wall 柱子·—";
  EXPECT_EQ(AnsiToWide(WideToAnsi(wide, kChinese), kChinese), wide);
  EXPECT_EQ(WideToAnsi(L"墙", kChinese), "\xC7\xBD");
}

TEST(CodePage, TheEuroSignIsOneByte) {
  EXPECT_EQ(AnsiToWide("\x80", kChinese), L"\x20AC");
  EXPECT_EQ(WideToAnsi(L"\x20AC", kChinese), "\x80");
}

TEST(CodePage, ACharacterThatIsNotInThePageBecomesAQuestionMark) {
  EXPECT_EQ(WideToAnsi(L"a\x0E01z", kChinese), "a?z");
}

TEST(CodePage, EmptyTextStaysEmpty) {
  EXPECT_EQ(AnsiToWide(""), L"");
  EXPECT_EQ(WideToAnsi(L""), "");
}

TEST(CodePage, LongTextIsConvertedWhole) {
  std::wstring wide;
  for (int i = 0; i < 5000; ++i) wide += L"墙a";
  EXPECT_EQ(AnsiToWide(WideToAnsi(wide, kChinese), kChinese), wide);
}

TEST(CodePage, Utf8IsSupported) {
  EXPECT_EQ(AnsiToWide("\xE5\xA2\x99", 65001), L"墙");
  EXPECT_EQ(WideToAnsi(L"墙", 65001), "\xE5\xA2\x99");
}

TEST(CodePage, ALastLetterThatACombiningMarkCouldFollowIsNotLost) {
  EXPECT_EQ(AnsiToWide("a\xF9", 1255), L"a\x05E9");
  EXPECT_EQ(AnsiToWide("\xD0", 1258), L"\x0110");
}

#ifndef _WIN32
// Windows replaces invalid bytes differently; elsewhere the character is fixed.
TEST(CodePage, AnInvalidByteBecomesTheReplacementCharacter) {
  EXPECT_EQ(AnsiToWide("a\xFFz", kChinese), L"a\xFFFDz");
  EXPECT_EQ(AnsiToWide("a\xC7", kChinese), L"a\xFFFD");
}

TEST(CodePage, InAnUnknownPageEveryByteIsInvalid) {
  EXPECT_EQ(AnsiToWide("\xC7\xBD", 4), L"\xFFFD\xFFFD");
}
#endif

}  // namespace
