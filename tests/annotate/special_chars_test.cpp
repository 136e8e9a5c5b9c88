// The characters of the dialog of special characters.
#include "samples/annotate/special_chars.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

TEST(SpecialChars, AtLeastAHundredAndTwentyAreOfferedEachOnce) {
  std::multiset<wchar_t> all;
  for (const CharGroup& group : SpecialChars())
    for (const wchar_t* at = group.chars; *at; ++at) all.insert(*at);
  EXPECT_GE(all.size(), 120u);
  for (const wchar_t one : all) EXPECT_EQ(all.count(one), 1u) << static_cast<unsigned>(one);
}

TEST(SpecialChars, EveryGroupHasANameOfItsOwnAndCharacters) {
  std::set<std::wstring> names;
  for (const CharGroup& group : SpecialChars()) {
    EXPECT_TRUE(names.insert(group.name).second);
    EXPECT_NE(*group.name, 0);
    EXPECT_NE(*group.chars, 0);
  }
}

TEST(SpecialChars, EveryEntryIsOneCodeUnitOfItsOwn) {
  for (const CharGroup& group : SpecialChars())
    for (const wchar_t* at = group.chars; *at; ++at)
      EXPECT_FALSE(*at >= 0xD800 && *at <= 0xDFFF) << static_cast<unsigned>(*at);
}
