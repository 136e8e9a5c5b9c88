#include "doctabs/tab_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

// The rule as it is worded: while a tab has the text, append a star.
CString FreeByRule(const std::vector<CString>& taken, CString name) {
  while (std::find(taken.begin(), taken.end(), name) != taken.end()) name += L"*";
  return name;
}

CString Stars(const wchar_t* stem, int stars) { return stem + CString(L'*', stars); }

// Texts of few stems and few stars, so that they meet often.
CString RandomName(std::mt19937& random) {
  const wchar_t* stems[] = {L"plan", L"Plan", L"", L"a*b", L"户型"};
  return Stars(stems[random() % 5], static_cast<int>(random() % 6));
}

void Remove(std::vector<CString>& taken, std::size_t at) {
  taken.erase(taken.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace

TEST(TabNames, AThirdDrawingNamedPlanShowsAsPlanWithTwoStars) {
  TabNames names;
  for (const wchar_t* expected : {L"Plan", L"Plan*", L"Plan**"}) {
    const CString free = names.Free(L"Plan");
    EXPECT_STREQ(free, expected);
    names.Add(free);
  }
}

TEST(TabNames, AFreeNameStaysAsItIs) {
  TabNames names;
  names.Add(L"Plan*");
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan");
  EXPECT_STREQ(names.Free(L"Plan**"), L"Plan**");
  EXPECT_STREQ(names.Free(L"plan*"), L"plan*") << "case counts";
  EXPECT_STREQ(names.Free(L""), L"");
}

TEST(TabNames, ARemovedTextIsTheNextToBeTaken) {
  TabNames names;
  for (int i = 0; i < 5; ++i) names.Add(Stars(L"Plan", i));
  names.Remove(L"Plan**");
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan**");
  EXPECT_STREQ(names.Free(L"Plan***"), L"Plan*****") << "the gap lies before it";
  names.Add(L"Plan**");
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan*****");
}

TEST(TabNames, RemovingTheFirstOrLastOfARunShortensIt) {
  TabNames names;
  for (int i = 0; i < 3; ++i) names.Add(Stars(L"Plan", i));
  names.Remove(L"Plan");
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan");
  EXPECT_STREQ(names.Free(L"Plan*"), L"Plan***");
  names.Remove(L"Plan**");
  EXPECT_STREQ(names.Free(L"Plan*"), L"Plan**");
}

TEST(TabNames, RemovingATextThatIsNotThereChangesNothing) {
  TabNames names;
  names.Remove(L"Plan");
  names.Add(L"Plan");
  names.Remove(L"Plan*");
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan*");
  names.Clear();
  EXPECT_STREQ(names.Free(L"Plan"), L"Plan");
}

TEST(TabNames, TextsOfStarsOnlyAndOfFourThousandCharactersWork) {
  TabNames names;
  const CString stars = Stars(L"", 4000), text(L'x', 4000);
  names.Add(stars);
  names.Add(text);
  EXPECT_EQ(names.Free(stars).GetLength(), 4001);
  EXPECT_STREQ(names.Free(text), text + L"*");
  EXPECT_STREQ(names.Free(L""), L"");
}

TEST(TabNames, AgreesWithTheRuleOnRandomRunsWithRemovalsAndRenames) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    TabNames names;
    std::vector<CString> taken;
    for (int step = 0; step < 1000; ++step) {
      const CString wish = RandomName(random), free = names.Free(wish);
      ASSERT_STREQ(free, FreeByRule(taken, wish)) << "seed " << seed << " step " << step;
      const std::size_t at = taken.empty() ? 0 : random() % taken.size();
      const unsigned action = taken.empty() ? 0 : random() % 5;
      if (action < 2) {
        names.Add(free);
        taken.push_back(free);
      } else if (action < 4) {
        names.Remove(taken[at]);
        Remove(taken, at);
      } else {  // as at a rename: its own text counts as taken
        names.Remove(taken[at]);
        names.Add(free);
        taken[at] = free;
      }
    }
  }
}
