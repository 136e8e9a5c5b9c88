// Format: the same result on every build, with Windows' meaning of the text directives.
#include <gtest/gtest.h>

#include "afx.h"

namespace {

template <class... Values>
CString Wide(const wchar_t* format, Values... values) {
  CString text;
  text.Format(format, values...);
  return text;
}

template <class... Values>
CStringA Narrow(const char* format, Values... values) {
  CStringA text;
  text.Format(format, values...);
  return text;
}

TEST(StringFormat, PlainTextDirectivesHaveTheWidthOfTheString) {
  EXPECT_STREQ(Wide(L"[%s]", L"墙体"), L"[墙体]");
  EXPECT_STREQ(Narrow("[%s]", "wall"), "[wall]");
}

TEST(StringFormat, CapitalTextDirectivesHaveTheOtherWidth) {
  EXPECT_STREQ(Wide(L"[%S]", "wall"), L"[wall]");
  EXPECT_STREQ(Narrow("[%S]", L"wall"), "[wall]");
}

TEST(StringFormat, SizePrefixesGiveTheWidth) {
  EXPECT_STREQ(Wide(L"%hs %ls %ws", "a", L"b", L"c"), L"a b c");
  EXPECT_STREQ(Narrow("%hs %ls", "a", L"b"), "a b");
}

TEST(StringFormat, TextIsPaddedAndTruncated) {
  EXPECT_STREQ(Wide(L"%5s|%-5s|%.2s|%*s", L"ab", L"ab", L"abc", 3, L"x"), L"   ab|ab   |ab|  x");
}

TEST(StringFormat, APrecisionLimitsTheReadOfAnUnterminatedText) {
  const wchar_t unterminated[2] = {L'a', L'b'};
  EXPECT_STREQ(Wide(L"%.2s", unterminated), L"ab");
}

TEST(StringFormat, NullTextPrintsAPlaceholder) {
  EXPECT_STREQ(Wide(L"%s", static_cast<const wchar_t*>(nullptr)), L"(null)");
}

TEST(StringFormat, NumbersKeepTheirFlags) {
  EXPECT_STREQ(Wide(L"%d %5d %-5d| %05d %+d", 1, 2, 3, 4, 5), L"1     2 3    | 00004 +5");
  EXPECT_STREQ(Wide(L"%u %x %X %#o", 4000000000u, 255, 255, 8), L"4000000000 ff FF 010");
}

TEST(StringFormat, LongIs32BitsEverywhere) {
  EXPECT_STREQ(Wide(L"%ld|%lu|%lX", -7, 4294967295u, 0xFFFFFFFFu), L"-7|4294967295|FFFFFFFF");
}

TEST(StringFormat, SixtyFourBitsHaveTwoPrefixes) {
  EXPECT_STREQ(Wide(L"%lld %I64d %I64X", -5000000000LL, 5000000000LL, 0x1FFFFFFFFULL),
               L"-5000000000 5000000000 1FFFFFFFF");
}

TEST(StringFormat, ShortNumbersAreTruncated) { EXPECT_STREQ(Wide(L"%hd", 65537), L"1"); }

TEST(StringFormat, RealNumbers) {
  EXPECT_STREQ(Wide(L"%.2f %g %8.3f %lf", 1.005, 100.0, 3.14159, 0.5),
               L"1.00 100    3.142 0.500000");
}

TEST(StringFormat, CharactersAndPercent) { EXPECT_STREQ(Wide(L"%c%%%C", L'墙', 'x'), L"墙%x"); }

TEST(StringFormat, AnInvalidFormatReadsNoArgument) {
  EXPECT_STREQ(Wide(L"a%"), L"a");
  EXPECT_STREQ(Wide(L"a%qb"), L"ab");
}

TEST(StringFormat, AppendFormatKeepsTheText) {
  CString text = L"a";
  text.AppendFormat(L"%d", 1);
  EXPECT_STREQ(text, L"a1");
}

// The string written may be an argument of Format.
TEST(StringFormat, AStringMayBeItsOwnArgument) {
  CString text = L"x";
  text.Format(L"<%s>", text.GetString());
  EXPECT_STREQ(text, L"<x>");
}

}  // namespace
