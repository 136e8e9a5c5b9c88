#include "doctabs/tab_strip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/doctabs/strip_diary.h"

namespace {

using Names = std::vector<std::wstring>;
using Values = std::vector<int>;

class TabStripTest : public testing::Test {
 protected:
  // Tabs of 6 characters are 80 pixels wide.
  void Add(int count) {
    for (int i = 0; i < count; ++i) strip.AddTab((L"plan" + std::to_wstring(10 + i)).c_str());
    window.Take();
  }
  // 15 tabs of 80 pixels in 400: the arrows' left edge is 360, so 4 tabs fit.
  void ShowFifteen() {
    Add(15);
    strip.RecalcTabs(0, 0);
    window.Take();
  }
  DiaryWindow window;
  TabStrip strip{window};
};

// The lists by the rules as they are worded, with text widths of 10 a character.
struct ListsByRule {
  std::vector<CString> names;
  Values offsets{0}, order;

  CString Unique(CString name) const {
    while (std::find(names.begin(), names.end(), name) != names.end()) name += L"*";
    return name;
  }
  void Add(CString name) {
    name = Unique(name);
    offsets.push_back(offsets.back() + 10 * name.GetLength() + 20);
    names.push_back(name);
    order.insert(order.begin(), static_cast<int>(names.size()) - 1);
  }
  void Remove(int i) {
    const auto at = static_cast<std::size_t>(i);
    const int width = offsets[at + 1] - offsets[at];
    offsets.erase(offsets.begin() + i + 1);
    for (std::size_t k = at + 1; k < offsets.size(); ++k) offsets[k] -= width;
    names.erase(names.begin() + i);
    std::erase(order, i);
    for (int& tab : order) tab -= tab > i;
  }
  void Rename(int i, CString name) {
    const auto at = static_cast<std::size_t>(i);
    if (names[at] == name) return;
    name = Unique(name);
    names[at] = name;
    const int more = 10 * name.GetLength() + 20 - (offsets[at + 1] - offsets[at]);
    for (std::size_t k = at + 1; k < offsets.size(); ++k) offsets[k] += more;
  }
  void Activate(int i) {
    std::erase(order, i);
    order.insert(order.begin(), i);
  }
};

}  // namespace

TEST_F(TabStripTest, StartsWithOneOffsetNoTabsAndAutomaticMode) {
  EXPECT_EQ(strip.m_nShowMode, 0);
  EXPECT_EQ(strip.Count(), 0);
  EXPECT_EQ(ValuesOf(strip.m_offsets), Values{0});
  EXPECT_EQ(strip.ActiveTab(), -1);
  EXPECT_EQ(strip.m_nFirstTab, 0);
  EXPECT_FALSE(strip.m_bScroll);
}

TEST_F(TabStripTest, AddingATabMakesItActiveAndStartsTheLayoutTimerOnly) {
  strip.AddTab(L"Plan");
  EXPECT_EQ(window.Take(), Diary{L"timer 1 in 150"});
  strip.AddTab(L"Section");
  EXPECT_EQ(window.Take(), Diary{L"timer 1 in 150"});
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 60, 150}));
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{1, 0}));
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan", L"Section"}));
}

TEST_F(TabStripTest, AThirdTabNamedPlanShowsWithTwoStarsAndIsMeasuredWithThem) {
  for (int i = 0; i < 3; ++i) strip.AddTab(L"Plan");
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan", L"Plan*", L"Plan**"}));
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 60, 130, 210}));
}

TEST_F(TabStripTest, WithoutAWindowTabsChangeButNoTimerIsStarted) {
  window.exists = false;
  strip.AddTab(L"Plan");
  strip.AddTab(L"Section");
  strip.RenameTab(0, L"Plans");
  strip.SetActiveTab(0);
  strip.ActivateTab(1);
  strip.RemoveTab(0);
  strip.ClearTabs();
  EXPECT_EQ(window.Take(), Diary{L"activated"});
}

TEST_F(TabStripTest, RemovingATabLowersOffsetsAndOrderBehindIt) {
  Add(4);
  strip.SetActiveTab(0);
  strip.RenameTab(1, L"p");
  window.Take();
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 80, 110, 190, 270}));
  strip.RemoveTab(1);
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 80, 160, 240}));
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{0, 2, 1}));
  EXPECT_EQ(NamesOf(strip), (Names{L"plan10", L"plan12", L"plan13"}));
  EXPECT_EQ(window.Take(), (Diary{L"hide arrows", L"invalidate"}));
}

TEST_F(TabStripTest, RemovingTheActiveTabActivatesTheOneUsedBefore) {
  Add(3);
  strip.SetActiveTab(0);
  strip.SetActiveTab(2);
  strip.RemoveTab(2);
  EXPECT_EQ(strip.ActiveTab(), 0);
  strip.RemoveTab(0);
  EXPECT_EQ(strip.ActiveTab(), 0);
  EXPECT_EQ(NamesOf(strip), Names{L"plan11"});
  strip.RemoveTab(0);
  EXPECT_EQ(strip.ActiveTab(), -1);
  EXPECT_EQ(ValuesOf(strip.m_offsets), Values{0});
}

TEST_F(TabStripTest, ARemovedTextIsFreeAgain) {
  for (int i = 0; i < 3; ++i) strip.AddTab(L"Plan");
  strip.RemoveTab(1);
  strip.AddTab(L"Plan");
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan", L"Plan**", L"Plan*"}));
}

TEST_F(TabStripTest, RenamingMovesTheTabsBehindAndRunsTheLayout) {
  Add(3);
  strip.RenameTab(1, L"p");
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 80, 110, 190}));
  EXPECT_EQ(window.Take(), (Diary{L"hide arrows", L"invalidate"}));
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{2, 1, 0})) << "the order of use stays";
}

TEST_F(TabStripTest, RenamingToThePresentTextDoesNothing) {
  Add(2);
  strip.RenameTab(1, L"plan11");
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, ARenamedTabCountsItsOwnTextWhenItsNameIsMadeUnique) {
  strip.AddTab(L"plan");
  strip.AddTab(L"plan");
  strip.RenameTab(1, L"plan");
  EXPECT_EQ(NamesOf(strip), (Names{L"plan", L"plan**"}));
  strip.RenameTab(1, L"plan");
  EXPECT_EQ(NamesOf(strip), (Names{L"plan", L"plan*"}));
}

TEST_F(TabStripTest, InvalidIndicesAreIgnored) {
  Add(2);
  for (const int index : {-1, 2, 99}) {
    strip.RemoveTab(index);
    strip.RenameTab(index, L"x");
    strip.SetActiveTab(index);
    strip.ActivateTab(index);
  }
  EXPECT_EQ(window.Take(), Diary{});
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{1, 0}));
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 80, 160}));
}

TEST_F(TabStripTest, ClearingLeavesOneOffsetAndAnEmptyOrderWithoutALayout) {
  ShowFifteen();
  strip.ClearTabs();
  EXPECT_EQ(ValuesOf(strip.m_offsets), Values{0});
  EXPECT_EQ(strip.Count(), 0);
  EXPECT_EQ(strip.ActiveTab(), -1);
  EXPECT_EQ(strip.m_nFirstTab, 0);
  EXPECT_FALSE(strip.m_bScroll);
  EXPECT_EQ(window.Take(), Diary{L"hide arrows"});
  strip.AddTab(L"plan10");
  EXPECT_EQ(NamesOf(strip), Names{L"plan10"}) << "the texts are free again";
}

TEST_F(TabStripTest, ClearingWithoutArrowsTouchesNoWindow) {
  Add(2);
  strip.m_nFirstTab = 1;
  strip.ClearTabs();
  EXPECT_EQ(strip.m_nFirstTab, 0);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, SetActiveTabReordersAndRepaintsWithoutNotice) {
  Add(3);
  strip.SetActiveTab(0);
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{0, 2, 1}));
  EXPECT_EQ(window.Take(), Diary{L"invalidate"});
}

TEST_F(TabStripTest, SetActiveTabNeverScrolls) {
  ShowFifteen();
  strip.SetActiveTab(14);
  EXPECT_EQ(strip.m_nFirstTab, 0);
  EXPECT_EQ(window.Take(), Diary{L"invalidate"});
}

TEST_F(TabStripTest, ActivateTabNotifiesAfterReorderingAndBeforeRepainting) {
  Add(3);
  Values seen;
  window.whileActivated = [&] { seen = ValuesOf(strip.m_order); };
  strip.ActivateTab(1);
  EXPECT_EQ(seen, (Values{1, 2, 0}));
  EXPECT_EQ(window.Take(), (Diary{L"activated", L"invalidate"}));
}

TEST_F(TabStripTest, ActivateTabDoesNothingWhileTheHostRefusesActivation) {
  Add(3);
  window.mayActivate = false;
  strip.ActivateTab(1);
  EXPECT_EQ(window.Take(), Diary{});
  EXPECT_EQ(ValuesOf(strip.m_order), (Values{2, 1, 0}));
}

TEST_F(TabStripTest, AWindowDestroyedByTheActivationIsNotRepainted) {
  Add(3);
  window.whileActivated = [&] { window.exists = false; };
  strip.ActivateTab(1);
  EXPECT_EQ(window.Take(), Diary{L"activated"});
}

TEST_F(TabStripTest, AClickOnATabActivatesIt) {
  Add(3);
  strip.OnButtonDown(81);
  EXPECT_EQ(strip.ActiveTab(), 1);
  EXPECT_EQ(window.Take(), (Diary{L"activated", L"invalidate"}));
}

TEST_F(TabStripTest, AClickOnTheActiveTabOnAnEdgeOrInTheGapDoesNothing) {
  Add(3);
  for (const int x : {0, 78, 79, 80, 161, 200, 240, 300}) strip.OnButtonDown(x);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, AClickWithoutTabsDoesNothing) {
  strip.OnButtonDown(5);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, WithOneTabInAutomaticModeTheStripIsHiddenAndTheSecondShowsItByTheTimer) {
  window.visible = false;
  strip.AddTab(L"Plan");
  strip.OnLayoutTimer();
  EXPECT_EQ(window.Take(), (Diary{L"timer 1 in 150", L"stop timer 1"}));
  strip.AddTab(L"Section");
  EXPECT_FALSE(window.visible);
  window.Take();
  strip.OnLayoutTimer();
  EXPECT_EQ(window.Take(),
            (Diary{L"stop timer 1", L"show", L"recalc", L"hide arrows", L"invalidate"}));
}

TEST_F(TabStripTest, TheStripHidesWithTheFrameLaidOutAgainWhenOneTabIsLeft) {
  Add(2);
  strip.RemoveTab(0);
  EXPECT_EQ(window.Take(), (Diary{L"hide", L"recalc"}));
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, HiddenModeHidesAnyNumberOfTabsAndAlwaysModeShowsNone) {
  Add(5);
  strip.m_nShowMode = 1;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), (Diary{L"hide", L"recalc"}));
  strip.ClearTabs();
  strip.m_nShowMode = -1;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), (Diary{L"show", L"recalc", L"hide arrows", L"invalidate"}));
}

TEST_F(TabStripTest, ASiblingBelowMovesTheStripToTheBottomBeforeItIsShown) {
  Add(2);
  window.visible = false;
  window.siblingBelow = true;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(),
            (Diary{L"to bottom", L"show", L"recalc", L"hide arrows", L"invalidate"}));
  window.siblingBelow = true;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), (Diary{L"to bottom", L"recalc", L"hide arrows", L"invalidate"}));
}

TEST_F(TabStripTest, LayoutWithoutAWindowDoesNothing) {
  Add(3);
  window.exists = false;
  strip.RecalcTabs(0, 0);
  strip.RecalcTabs(100, 20);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, AWindowDestroyedByTheFramesLayoutIsNotUsedAgain) {
  Add(3);
  window.visible = false;
  window.whileRecalc = [&] { window.exists = false; };
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), (Diary{L"show", L"recalc"}));
}

TEST_F(TabStripTest, TheTabsFitWhenTheWidthIsAtLeastTheirEnd) {
  Add(3);
  strip.RecalcTabs(240, 20);
  EXPECT_FALSE(strip.m_bScroll);
  EXPECT_EQ(window.Take(), (Diary{L"hide arrows", L"invalidate"}));
  strip.RecalcTabs(239, 20);
  EXPECT_TRUE(strip.m_bScroll);
  // Left edge 199: the two last tabs are 160 wide, less than 197.
  EXPECT_EQ(window.Take(), (Diary{L"arrows [199 0 239 20] 0..1 at 0", L"invalidate"}));
}

TEST_F(TabStripTest, ZeroSizeMeansThePresentClientSizeAndOneZeroDoesNot) {
  Add(3);
  window.client = {239, 20};
  strip.RecalcTabs(0, 0);
  EXPECT_TRUE(strip.m_bScroll);
  strip.RecalcTabs(240, 0);
  EXPECT_FALSE(strip.m_bScroll);
  strip.RecalcTabs(0, 20);
  EXPECT_TRUE(strip.m_bScroll);
}

TEST_F(TabStripTest, AFirstTabWithinTheRangeStaysAndOneBeyondItGoesToTheTop) {
  ShowFifteen();
  strip.m_nFirstTab = 11;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.Take(), (Diary{L"arrows [360 0 400 20] 0..11 at 11", L"invalidate"}));
  strip.m_nFirstTab = 12;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(strip.m_nFirstTab, 11);
  strip.m_nFirstTab = -1;
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(strip.m_nFirstTab, 11);
}

TEST_F(TabStripTest, AddingOrRenamingAfterScrollingKeepsTheFirstTabUntilTheTimerFires) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 5);
  strip.AddTab(L"plan99");
  strip.RenameTab(0, L"p");
  EXPECT_EQ(strip.m_nFirstTab, 5);
  window.Take();
  strip.OnLayoutTimer();
  EXPECT_EQ(strip.m_nFirstTab, 12) << "the new tab is scrolled into view";
  EXPECT_EQ(window.Take(), (Diary{L"stop timer 1", L"arrows [360 0 400 20] 0..12 at 5",
                                  L"invalidate", L"arrows at 12"}));
}

TEST_F(TabStripTest, TheTimerWithoutArrowsDoesNotScroll) {
  Add(2);
  strip.OnLayoutTimer();
  EXPECT_EQ(window.Take(), (Diary{L"stop timer 1", L"hide arrows", L"invalidate"}));
  EXPECT_EQ(strip.m_nFirstTab, 0);
}

TEST_F(TabStripTest, TheTimerWithArrowsAndAWindowThatGoesDoesNotScroll) {
  ShowFifteen();
  window.visible = false;
  window.whileRecalc = [&] { window.exists = false; };
  strip.OnLayoutTimer();
  EXPECT_EQ(window.Take(), (Diary{L"stop timer 1", L"show", L"recalc"}));
}

TEST_F(TabStripTest, WhenAllTabsFitAgainTheArrowsVanishAndTheFirstTabIsZero) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 5);
  window.Take();
  strip.RecalcTabs(1200, 20);
  EXPECT_EQ(strip.m_nFirstTab, 0);
  EXPECT_FALSE(strip.m_bScroll);
  EXPECT_EQ(window.Take(), (Diary{L"hide arrows", L"invalidate"}));
}

TEST_F(TabStripTest, TheFirstTabMayExceedTheCountWhileTheStripIsHidden) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 11);
  strip.m_nShowMode = 1;
  for (int i = 0; i < 13; ++i) strip.RemoveTab(0);
  EXPECT_EQ(strip.m_nFirstTab, 11);
  EXPECT_EQ(strip.HitTest(1), 2) << "beyond the end is on no tab";
  EXPECT_EQ(ValuesOf(strip.m_offsets), (Values{0, 80, 160})) << "reading must not grow the list";
}

TEST_F(TabStripTest, AWindowNarrowerThanTheArrowsHasTheCountAsRange) {
  Add(3);
  strip.RecalcTabs(10, 20);
  EXPECT_EQ(window.Take(), (Diary{L"arrows [-30 0 10 20] 0..3 at 0", L"invalidate"}));
}

TEST_F(TabStripTest, AMinimizedFrameLeavesTheScrollPosition) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 5);
  window.client = {0, 0};
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(strip.m_nFirstTab, 5);
  window.client = {400, 20};
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(strip.m_nFirstTab, 5);
}

TEST_F(TabStripTest, OneTabThatDoesNotFitMayBeScrolledAwayInAlwaysMode) {
  strip.m_nShowMode = -1;
  Add(1);
  strip.RecalcTabs(60, 20);
  EXPECT_EQ(window.Take(), (Diary{L"arrows [20 0 60 20] 0..1 at 0", L"invalidate"}));
}

TEST_F(TabStripTest, ScrollingMovesThePartLeftOfTheArrowsAndRepaintsAll) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 2);
  EXPECT_EQ(window.Take(), (Diary{L"scroll [0 0 358 20] by -160", L"invalidate"}));
  strip.OnScroll(SB_THUMBTRACK, 1);
  EXPECT_EQ(window.Take(), (Diary{L"scroll [0 0 358 20] by 80", L"invalidate"}));
  EXPECT_EQ(strip.m_nFirstTab, 1);
}

TEST_F(TabStripTest, TheEndOfScrollingAndPositionsOutsideTheRangeAreIgnored) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 2);
  window.Take();
  strip.OnScroll(SB_ENDSCROLL, 0);
  strip.OnScroll(SB_LINEDOWN, 7);
  strip.OnScroll(SB_THUMBPOSITION, 12);
  strip.OnScroll(SB_THUMBPOSITION, -1);
  EXPECT_EQ(window.Take(), Diary{});
  EXPECT_EQ(strip.m_nFirstTab, 2);
  strip.OnScroll(SB_THUMBPOSITION, 11);
  EXPECT_EQ(strip.m_nFirstTab, 11) << "the top itself is in the range";
  strip.OnScroll(SB_THUMBPOSITION, 0);
  EXPECT_EQ(strip.m_nFirstTab, 0);
}

TEST_F(TabStripTest, ScrollingWithoutArrowsOrWindowIsIgnored) {
  Add(2);
  strip.OnScroll(SB_THUMBPOSITION, 0);
  EXPECT_EQ(window.Take(), Diary{});
  ShowFifteen();
  window.exists = false;
  strip.OnScroll(SB_THUMBPOSITION, 1);
  EXPECT_EQ(strip.m_nFirstTab, 0);
  strip.ClearTabs();
  EXPECT_FALSE(strip.m_bScroll);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabStripTest, AScrolledStripIsHitFromItsOrigin) {
  ShowFifteen();
  strip.OnScroll(SB_THUMBPOSITION, 2);
  EXPECT_EQ(strip.HitTest(0), 15);
  EXPECT_EQ(strip.HitTest(1), 2);
  EXPECT_EQ(strip.HitTest(81), 3);
  EXPECT_EQ(strip.HitTest(-10), 1) << "only the x counts, also left of the client area";
}

TEST_F(TabStripTest, PointsOnTheArrowsAreKnown) {
  Add(2);
  EXPECT_FALSE(strip.IsOnArrows(399));
  ShowFifteen();
  EXPECT_FALSE(strip.IsOnArrows(359));
  EXPECT_TRUE(strip.IsOnArrows(360));
  window.exists = false;
  EXPECT_FALSE(strip.IsOnArrows(360));
}

TEST_F(TabStripTest, ArrowPositionsStayWithinSixteenBits) {
  Add(40000);
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(window.arrowsTop, 32767);
}

TEST_F(TabStripTest, EmptyLongAndForeignTextsAreKeptAsTheyAre) {
  const std::wstring longText(4000, L'x'), others = L"\xD83C\xDFE0 מגדל 户型";
  strip.AddTab(L"");
  strip.AddTab(longText.c_str());
  strip.AddTab(others.c_str());
  strip.AddTab(L"");
  EXPECT_EQ(NamesOf(strip), (Names{L"", longText, others, L"*"}));
  EXPECT_EQ(strip.m_offsets.At(1), 20);
  EXPECT_EQ(strip.Find(others.c_str()), 2);
  EXPECT_EQ(strip.Find(L"absent"), -1);
}

TEST_F(TabStripTest, TheListsFollowTheRulesOnRandomRuns) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    std::mt19937 random(seed);
    DiaryWindow diary;
    TabStrip tabs(diary);
    ListsByRule rule;
    for (int step = 0; step < 500; ++step) {
      const CString name = CString(L"plan", 1 + static_cast<int>(random() % 3)) +
                           CString(L'*', static_cast<int>(random() % 3));
      const int index =
          tabs.Count() ? static_cast<int>(random() % static_cast<unsigned>(tabs.Count())) : -1;
      const unsigned action = index < 0 ? 0 : random() % 8;
      if (action < 3) {
        tabs.AddTab(name), rule.Add(name);
      } else if (action < 5) {
        tabs.RemoveTab(index), rule.Remove(index);
      } else if (action < 7) {
        tabs.RenameTab(index, name), rule.Rename(index, name);
      } else {
        tabs.SetActiveTab(index), rule.Activate(index);
      }
      ASSERT_EQ(ValuesOf(tabs.m_offsets), rule.offsets) << seed << " " << step;
      ASSERT_EQ(ValuesOf(tabs.m_order), rule.order) << seed << " " << step;
      for (int i = 0; i < tabs.Count(); ++i)
        ASSERT_EQ(tabs.m_names.At(i), rule.names[static_cast<std::size_t>(i)]);
    }
  }
}
