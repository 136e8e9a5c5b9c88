#include "doctabs/tab_menu.h"

#include <gtest/gtest.h>

#include "tests/doctabs/strip_diary.h"

namespace {

class TabMenuTest : public testing::Test {
 protected:
  void Add(int count) {
    for (int i = 0; i < count; ++i) strip.AddTab((L"plan" + std::to_wstring(10 + i)).c_str());
    strip.RecalcTabs(0, 0);
    window.Take();
  }
  TabMenuPlan Ask(int x, int y, bool mayActivate = true) {
    return PlanTabMenu(strip, {mayActivate, {x, y}, {100, 50, 500, 70}});
  }
  DiaryWindow window;
  TabStrip strip{window};
  int wish = 1;
};

std::vector<std::wstring> Rows(std::span<const TabMenuRow> rows) {
  std::vector<std::wstring> lines;
  for (const TabMenuRow& row : rows)
    lines.push_back(row.id ? std::to_wstring(row.id) + L" " + row.text : L"-");
  return lines;
}

}  // namespace

TEST(TabMenu, TheMenuOfATabHasEightRows) {
  EXPECT_EQ(Rows(TabMenuRows()),
            (std::vector<std::wstring>{L"32846 关闭文档", L"32850 整图导出", L"-",
                                       L"32848 保存所有文档", L"32849 保存所有文档退出",
                                       L"32847 关闭所有文档", L"-", L"32842 隐藏 (Ctrl - 恢复)"}));
}

TEST(TabMenu, TheMenuBesideTheTabsHasFiveRows) {
  EXPECT_EQ(Rows(StripMenuRows()),
            (std::vector<std::wstring>{L"32848 保存所有文档", L"32849 保存所有文档退出",
                                       L"32847 关闭所有文档", L"-", L"32842 隐藏 (Ctrl - 恢复)"}));
}

TEST(TabMenu, ClosingAndExportingAreAboutOneDrawing) {
  for (unsigned id = 32842; id <= 32850; ++id)
    EXPECT_EQ(IsAboutOneDrawing(id), id == 32846 || id == 32850) << id;
}

TEST_F(TabMenuTest, ARightClickOnATabAsksForItsMenuLater) {
  Add(3);
  const TabMenuPlan plan = Ask(181, 60);
  EXPECT_EQ(plan.answer, TabMenuAnswer::kTabMenuLater);
  EXPECT_EQ(plan.tab, 1);
  EXPECT_EQ(plan.screenPoint.x, 181);
  EXPECT_EQ(plan.screenPoint.y, 60);
  EXPECT_EQ(window.Take(), Diary{}) << "planning changes nothing";
}

TEST_F(TabMenuTest, BesideTheTabsOnAnEdgeOrInTheGapTheStripMenuShows) {
  Add(3);
  for (const int x : {100, 178, 180, 345}) {
    const TabMenuPlan plan = Ask(x, 60);
    EXPECT_EQ(plan.answer, TabMenuAnswer::kStripMenu) << x;
    EXPECT_EQ(plan.tab, -1);
    EXPECT_EQ(plan.screenPoint.x, x);
    EXPECT_EQ(plan.screenPoint.y, 60);
  }
}

TEST_F(TabMenuTest, FromTheKeyboardTheStripMenuShowsAtTheCornerEvenOverATab) {
  Add(3);
  const TabMenuPlan plan = Ask(-1, -1);
  EXPECT_EQ(plan.answer, TabMenuAnswer::kStripMenu);
  EXPECT_EQ(plan.screenPoint.x, 105);
  EXPECT_EQ(plan.screenPoint.y, 55);
}

TEST_F(TabMenuTest, APointWithOneCoordinateOfMinusOneIsNotTheKeyboard) {
  Add(3);
  const TabMenuPlan left = PlanTabMenu(strip, {true, {-1, 60}, {-10, 50, 390, 70}});
  EXPECT_EQ(left.tab, 0);
  const TabMenuPlan top = PlanTabMenu(strip, {true, {181, -1}, {100, -10, 500, 10}});
  EXPECT_EQ(top.tab, 1);
}

TEST_F(TabMenuTest, WhileTheHostRefusesActivationNoMenuShows) {
  Add(3);
  EXPECT_EQ(Ask(181, 60, false).answer, TabMenuAnswer::kNone);
  EXPECT_EQ(Ask(-1, -1, false).answer, TabMenuAnswer::kNone);
}

TEST_F(TabMenuTest, ARightClickOnTheArrowsDoesNotHitTheTabBehind) {
  Add(15);
  EXPECT_EQ(Ask(100 + 330, 60).tab, 4);
  EXPECT_EQ(Ask(100 + 365, 60).answer, TabMenuAnswer::kStripMenu);
}

TEST_F(TabMenuTest, WithoutTabsTheStripMenuShows) {
  EXPECT_EQ(Ask(105, 60).answer, TabMenuAnswer::kStripMenu);
}

TEST_F(TabMenuTest, HidingTurnsTheWishOffAfterTheLayout) {
  Add(3);
  HideStrip(strip, wish);
  EXPECT_EQ(strip.m_nShowMode, 1);
  EXPECT_EQ(wish, 0);
  EXPECT_EQ(window.Take(), (Diary{L"hide", L"recalc"}));
}

TEST_F(TabMenuTest, ShowingAlwaysTurnsTheWishOn) {
  window.visible = false;
  wish = 0;
  ShowStripAlways(strip, wish);
  EXPECT_EQ(strip.m_nShowMode, -1);
  EXPECT_EQ(wish, 1);
  EXPECT_TRUE(window.visible);
}

TEST_F(TabMenuTest, ShowingAutomaticallyLeavesTheWish) {
  Add(2);
  HideStrip(strip, wish);
  window.Take();
  ShowStripAutomatically(strip);
  EXPECT_EQ(strip.m_nShowMode, 0);
  EXPECT_EQ(wish, 0) << "so the hot key has to be pressed twice to hide it";
  EXPECT_EQ(window.Take(), (Diary{L"show", L"recalc", L"hide arrows", L"invalidate"}));
}

TEST_F(TabMenuTest, HideTabBarHidesLikeTheMenuAndShowsAutomatically) {
  Add(2);
  HideTabBar(strip, 5, wish);
  EXPECT_EQ(strip.m_nShowMode, 1);
  EXPECT_EQ(wish, 0);
  wish = 1;
  HideTabBar(strip, 0, wish);
  EXPECT_EQ(strip.m_nShowMode, 0);
  EXPECT_EQ(wish, 1);
}

TEST_F(TabMenuTest, HideTabBarWithZeroLosesAlwaysMode) {
  ShowStripAlways(strip, wish);
  HideTabBar(strip, 0, wish);
  EXPECT_EQ(strip.m_nShowMode, 0);
}

TEST_F(TabMenuTest, HideTabBarWithoutAWindowSetsTheModeOnly) {
  window.exists = false;
  HideTabBar(strip, 1, wish);
  EXPECT_EQ(strip.m_nShowMode, 1);
  EXPECT_EQ(wish, 0);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(TabMenuTest, MovingToTheBottomNeedsASiblingBelowAndAWindow) {
  MoveStripToBottom(window);
  EXPECT_EQ(window.Take(), Diary{});
  window.siblingBelow = true;
  MoveStripToBottom(window);
  EXPECT_EQ(window.Take(), (Diary{L"to bottom", L"recalc"}));
  window.siblingBelow = true;
  window.exists = false;
  MoveStripToBottom(window);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST(TabMenu, TheLineOfTheHideCommandEndsWithANewline) {
  EXPECT_EQ(std::wstring(kTabsHiddenLine), L"热键<Ctrl ->显示文档标签\n");
}
