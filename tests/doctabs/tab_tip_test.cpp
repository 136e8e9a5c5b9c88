#include "doctabs/tab_tip.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/doctabs/strip_diary.h"

namespace {

class TabTipTest : public testing::Test {
 protected:
  void Add(int count) {
    for (int i = 0; i < count; ++i) strip.AddTab((L"plan" + std::to_wstring(10 + i)).c_str());
    strip.RecalcTabs(0, 0);
  }
  DiaryWindow window;
  TabStrip strip{window};
};

std::wstring TipOf(const std::wstring& title) {
  wchar_t* text = MakeTipText(title.c_str());
  const std::wstring result = text;
  std::free(text);
  return result;
}

}  // namespace

TEST_F(TabTipTest, TheBoxRunsFromTheTabsOffsetToTheNext) {
  Add(3);
  const TabTip tip = TipAt(strip, 81);
  EXPECT_EQ(tip.tab, 1);
  EXPECT_EQ(Text(tip.box), L"[80 0 160 100]");
}

TEST_F(TabTipTest, AnswersOnTheFirstPixelOfTheGapWhereAClickHitsNothing) {
  Add(3);
  EXPECT_EQ(TipAt(strip, 78).tab, 0);
  EXPECT_EQ(strip.HitTest(78), 3);
  EXPECT_EQ(TipAt(strip, 79).tab, -1);
  EXPECT_EQ(TipAt(strip, 80).tab, -1);
  EXPECT_EQ(TipAt(strip, 500).tab, -1);
}

TEST_F(TabTipTest, FollowsTheScrollPosition) {
  Add(15);
  strip.OnScroll(SB_THUMBPOSITION, 4);
  const TabTip tip = TipAt(strip, 100);
  EXPECT_EQ(tip.tab, 5);
  EXPECT_EQ(Text(tip.box), L"[80 0 160 100]");
}

TEST_F(TabTipTest, OverTheArrowsTheTabBehindDoesNotAnswer) {
  Add(15);
  EXPECT_EQ(TipAt(strip, 359).tab, 4);
  EXPECT_EQ(TipAt(strip, 365).tab, -1);
}

TEST(TipText, IsTheWholeTitle) {
  EXPECT_EQ(TipOf(L""), L"");
  EXPECT_EQ(TipOf(L"C:\\A\\户型 100%s.dwg"), L"C:\\A\\户型 100%s.dwg");
}

TEST(TipText, ATitleOf255CharactersFitsAndALongerOneIsCut) {
  EXPECT_EQ(TipOf(std::wstring(255, L'x')), std::wstring(255, L'x'));
  EXPECT_EQ(TipOf(std::wstring(256, L'x')), std::wstring(255, L'x'));
  EXPECT_EQ(TipOf(std::wstring(4000, L'x')), std::wstring(255, L'x'));
}

TEST(TipText, IsNeverCutWithinAPairOfSurrogates) {
  const std::wstring pair{static_cast<wchar_t>(0xD83C), static_cast<wchar_t>(0xDFE0)};
  EXPECT_EQ(TipOf(std::wstring(254, L'x') + pair), std::wstring(254, L'x'));
  EXPECT_EQ(TipOf(std::wstring(253, L'x') + pair), std::wstring(253, L'x') + pair);
  EXPECT_EQ(TipOf(std::wstring(253, L'x') + pair + L"y"), std::wstring(253, L'x') + pair);
  EXPECT_EQ(TipOf(std::wstring(254, L'x') + wchar_t{0xD7FF} + L"y"),
            std::wstring(254, L'x') + wchar_t{0xD7FF});
  EXPECT_EQ(TipOf(std::wstring(254, L'x') + wchar_t{0xD800} + L"y"), std::wstring(254, L'x'));
}
