// Wild cards of selection filters.
#include "ground/wild_card.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/doubles/reference_wild_match.h"

namespace {

bool Wild(const wchar_t* patterns, const wchar_t* text) {
  return WildCard(patterns).Matches(MatchCase(std::wstring_view(text)));
}

TEST(WildCard, PlainTextMatchesWithoutCaseAndOnlyAsAWhole) {
  EXPECT_TRUE(Wild(L"Qvx_Wall", L"QVX_wall"));
  EXPECT_TRUE(Wild(L"墙线", L"墙线"));
  EXPECT_FALSE(Wild(L"WALL", L"WALL1"));
  EXPECT_FALSE(Wild(L"", L"A"));
  EXPECT_TRUE(Wild(L"", L""));
}

TEST(WildCard, EachSpecialCharacterMatchesItsSet) {
  EXPECT_TRUE(Wild(L"QVX_*", L"QVX_"));
  EXPECT_TRUE(Wild(L"*A*B*", L"xAyyB"));
  EXPECT_FALSE(Wild(L"*A*B*", L"BA"));
  EXPECT_TRUE(Wild(L"A?C", L"abc"));
  EXPECT_FALSE(Wild(L"A?C", L"ac"));
  EXPECT_TRUE(Wild(L"A#", L"A7"));
  EXPECT_FALSE(Wild(L"A#", L"AB"));
  EXPECT_TRUE(Wild(L"@@", L"a墙"));
  EXPECT_FALSE(Wild(L"@", L"7"));
  EXPECT_TRUE(Wild(L"A.B", L"A-B"));
  EXPECT_FALSE(Wild(L"A.B", L"AxB"));
  EXPECT_TRUE(Wild(L"[ab]X", L"BX"));
  EXPECT_TRUE(Wild(L"[a-c]", L"B"));
  EXPECT_FALSE(Wild(L"[~a-c]", L"B"));
  EXPECT_TRUE(Wild(L"[~a-c]", L"D"));
}

TEST(WildCard, TildeBackQuoteAndCommaApplyToWholePatterns) {
  EXPECT_TRUE(Wild(L"~WALL", L"DOOR"));
  EXPECT_FALSE(Wild(L"~WALL", L"WALL"));
  EXPECT_TRUE(Wild(L"A,B", L"b"));
  EXPECT_FALSE(Wild(L"A,B", L"A,B"));
  EXPECT_TRUE(Wild(L"A`,B", L"A,B"));
  EXPECT_TRUE(Wild(L"`*", L"*"));
  EXPECT_FALSE(Wild(L"`*", L"x"));
  EXPECT_TRUE(Wild(L"[a,b]", L","));
  EXPECT_TRUE(Wild(L"[a", L"[a"));
  EXPECT_TRUE(Wild(L"~A*,AB", L"AB"));
}

// Random patterns; the reference knows ASCII only.
TEST(WildCard, MatchesExactlyWhatASimpleRecursionMatches) {
  const std::wstring signs = L"*?#@.~[]-`,ABab12 _-";
  std::mt19937 random(9);
  int fits = 0;
  for (int i = 0; i < 200000; ++i) {
    std::wstring pattern, text;
    for (unsigned n = random() % 8; n; --n) pattern += signs[random() % signs.size()];
    for (unsigned n = random() % 6; n; --n) text += signs[random() % signs.size()];
    const bool wanted = ReferenceWildMatch(text, pattern);
    ASSERT_EQ(WildCard(pattern).Matches(MatchCase(std::wstring_view(text))), wanted);
    fits += wanted;
  }
  EXPECT_GE(fits, 10000);
}

TEST(WildCard, ManyStarsTakeLittleTime) {
  std::wstring pattern, text(2000, L'a');
  for (int i = 0; i < 500; ++i) pattern += L"*a";
  EXPECT_FALSE(WildCard(pattern + L"b").Matches(MatchCase(std::wstring_view(text))));
}

TEST(WildCard, AMovedPatternStillMatches) {
  std::vector<WildCard> all;
  for (int i = 0; i < 100; ++i) all.emplace_back(L"A*B,[cd]");
  for (const WildCard& one : all) EXPECT_TRUE(one.Matches(L"AXB") && one.Matches(L"C"));
}

}  // namespace
