#include "doctabs/tab_access.h"

#include <gtest/gtest.h>

#include "tests/doctabs/strip_diary.h"

namespace {

constexpr SIZE kClient{400, 20};

class TabAccessTest : public testing::Test {
 protected:
  void Add(int count) {
    for (int i = 0; i < count; ++i) strip.AddTab((L"plan" + std::to_wstring(10 + i)).c_str());
    strip.RecalcTabs(0, 0);
  }
  long States(int tab, bool visible = true) {
    return TabAccessStates(strip, tab, kClient, visible);
  }
  DiaryWindow window;
  TabStrip strip{window};
};

}  // namespace

TEST_F(TabAccessTest, ATabsPlaceLeavesOutTheGapAndFollowsTheScrollPosition) {
  Add(15);
  EXPECT_EQ(Text(TabAccessBox(strip, 1, kClient)), L"[80 0 158 20]");
  strip.OnScroll(SB_THUMBPOSITION, 2);
  EXPECT_EQ(Text(TabAccessBox(strip, 1, kClient)), L"[-80 0 -2 20]");
}

TEST_F(TabAccessTest, AnInvalidTabHasAnEmptyPlace) {
  Add(2);
  EXPECT_EQ(Text(TabAccessBox(strip, 2, kClient)), L"[0 0 0 0]");
  EXPECT_EQ(Text(TabAccessBox(strip, -1, kClient)), L"[0 0 0 0]");
}

TEST_F(TabAccessTest, TheActiveTabIsSelectedAndAllAreSelectable) {
  Add(2);
  EXPECT_EQ(States(0), 0x200000);
  EXPECT_EQ(States(1), 0x200002);
}

TEST_F(TabAccessTest, TabsOfAHiddenStripAreInvisible) {
  Add(2);
  EXPECT_EQ(States(0, false), 0x208000);
  EXPECT_EQ(States(1, false), 0x208002);
}

TEST_F(TabAccessTest, TabsOutOfViewAreOffscreen) {
  Add(15);
  EXPECT_EQ(States(4), 0x200000);
  EXPECT_EQ(States(5), 0x210000);
  strip.OnScroll(SB_THUMBPOSITION, 1);
  EXPECT_EQ(States(0), 0x210000);
  EXPECT_EQ(States(1), 0x200000);
  EXPECT_EQ(States(5), 0x200000);
  EXPECT_EQ(States(6), 0x210000);
}

TEST_F(TabAccessTest, WithoutArrowsTheClientAreasEndIsTheLimit) {
  Add(2);
  EXPECT_EQ(TabAccessStates(strip, 1, {80, 20}, true), 0x210002);
  EXPECT_EQ(TabAccessStates(strip, 1, {81, 20}, true), 0x200002);
}

TEST_F(TabAccessTest, TheDefaultActionSwitchesToTheTab) {
  Add(2);
  EXPECT_EQ(std::wstring(TabAccessAction(strip, 0)), L"切换");
  EXPECT_EQ(std::wstring(TabAccessAction(strip, 1)), L"");
}
