// The word library: reading, and adding a word.
#include "samples/annotate/word_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

using Words = std::vector<std::wstring>;

constexpr wchar_t kTwoGroups[] = L"; first\r\n[a]\r\none\r\n two \r\n\r\n[b]\r\nthree\r\n";

}  // namespace

TEST(WordLibrary, GroupsAndWordsKeepTheOrderOfTheFile) {
  const std::vector<WordGroup> groups = WordsOf(kTwoGroups);
  ASSERT_EQ(groups.size(), 2u);
  EXPECT_EQ(groups[0].name, L"a");
  EXPECT_EQ(groups[0].words, (Words{L"one", L"two"}));
  EXPECT_EQ(groups[1].name, L"b");
  EXPECT_EQ(groups[1].words, Words{L"three"});
}

TEST(WordLibrary, LinesBeforeTheFirstGroupAreIgnored) {
  const std::vector<WordGroup> groups = WordsOf(L"lost\n[a]\nx");
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].words, Words{L"x"});
}

TEST(WordLibrary, AGroupThatOccursAgainContinuesTheFirstAndAWordCountsOnce) {
  const std::vector<WordGroup> groups = WordsOf(L"[a]\nx\n[b]\ny\n[ a ]\nx\nz\n");
  ASSERT_EQ(groups.size(), 2u);
  EXPECT_EQ(groups[0].words, (Words{L"x", L"z"}));
}

TEST(WordLibrary, AHeadingWithoutItsClosingBracketNamesAGroup) {
  EXPECT_EQ(WordsOf(L"[a\nx").at(0).name, L"a");
}

TEST(WordLibrary, AnEmptyTextHasNoGroups) {
  EXPECT_TRUE(WordsOf(L"").empty());
  EXPECT_TRUE(WordsOf(L"\n").empty());
}

TEST(WordLibrary, AWordIsAddedAtTheEndOfItsGroupAndTheOtherLinesStay) {
  EXPECT_EQ(WithWord(kTwoGroups, L"a", L" new "),
            L"; first\r\n[a]\r\none\r\n two \r\nnew\r\n\r\n[b]\r\nthree\r\n");
  EXPECT_EQ(WithWord(L"[a]\nx", L"a", L"y"), L"[a]\nx\r\ny\r\n");
  EXPECT_EQ(WithWord(L"[a]\n[b]\nx\n", L"a", L"y"), L"[a]\ny\r\n[b]\nx\n");
}

TEST(WordLibrary, AWordOfAMissingGroupAddsTheGroup) {
  EXPECT_EQ(WithWord(L"[a]\nx\n", L"b", L"y"), L"[a]\nx\n[b]\r\ny\r\n");
  EXPECT_EQ(WithWord(L"", L"b", L"y"), L"[b]\r\ny\r\n");
}

TEST(WordLibrary, WhatIsNoWordOrIsThereAlreadyChangesNothing) {
  for (const wchar_t* word : {L"", L"  ", L"[c]", L"; c", L"x\ny", L"one", L" two"})
    EXPECT_EQ(WithWord(kTwoGroups, L"a", word), kTwoGroups) << word;
}

TEST(WordLibrary, TheProductsFileHasTwoHundredWordsOfDrawings) {
  std::ifstream file(std::filesystem::path(QVX_SOURCE_DIR) / "product/qvxwords.txt",
                     std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  ASSERT_FALSE(bytes.empty());
  // The characters' values do not matter: each UTF-8 byte becomes one unit.
  std::wstring text;
  for (const char byte : bytes) text += static_cast<unsigned char>(byte);
  std::set<std::wstring> words;
  for (const WordGroup& group : WordsOf(text)) {
    EXPECT_FALSE(group.words.empty());
    words.insert(group.words.begin(), group.words.end());
  }
  EXPECT_GE(words.size(), 200u);
}
