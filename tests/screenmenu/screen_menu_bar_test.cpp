// The navigation bar of the palette, and moving the SCREEN block out of a loaded menu.
#include <gtest/gtest.h>

#include "menu_fixture.h"
#include "screenmenu/screen_menu_bar.h"

namespace {

using namespace fixture;

class ScreenBar : public testing::Test {
 protected:
  ScreenBar() {
    root.m_pSubMenu = new TMenuBar;
    TMenuBar* first = AddHeader(*root.m_pSubMenu, L"墙体");
    AddLine(*root.m_pSubMenu, L"轴网", L"TAxis\n");
    TMenuBar* second = AddHeader(*first, L"门");
    AddLine(*second, L"单开门", L"TDoor\n");
    walls = root.m_pSubMenu->At(0);
    doors = first->At(0);
  }
  TMenuItem root{L"奇维建筑", L""};
  TMenuItem* walls;
  TMenuItem* doors;
  TScreenMenuBar bar;
};

TEST_F(ScreenBar, TheFirstBackToMirrorsTheRootsLines) {
  EXPECT_EQ(bar.BackTo(&root), 1);
  ASSERT_EQ(bar.Length(), 2);
  EXPECT_EQ(bar.At(0), walls);
  EXPECT_EQ(bar.Current(), &root);
  EXPECT_EQ(bar.StackTop(), nullptr);
  EXPECT_EQ(bar.RootBar(), root.m_pSubMenu);
}

TEST_F(ScreenBar, ASecondBackToOfALineNotOnTheStackAppendsItsLinesAgain) {
  bar.BackTo(&root);
  bar.BackTo(&root);
  EXPECT_EQ(bar.Length(), 4);
  EXPECT_EQ(bar.At(2), walls);
}

TEST_F(ScreenBar, EnteringReplacesTheLinesAndPushesThePreviousOne) {
  bar.BackTo(&root);
  EXPECT_EQ(bar.EnterSubMenu(walls), 1);
  ASSERT_EQ(bar.Length(), 1);
  EXPECT_EQ(bar.At(0), doors);
  EXPECT_EQ(bar.StackTop(), &root);
  EXPECT_EQ(bar.RootBar(), root.m_pSubMenu) << "the root bar is that of the stack's bottom";
}

TEST_F(ScreenBar, GoingBackToALineOnTheStackEmptiesTheListAndDropsTheLinesAfterIt) {
  bar.BackTo(&root);
  bar.EnterSubMenu(walls);
  bar.EnterSubMenu(doors);
  EXPECT_TRUE(bar.IsOnStack(walls));
  bar.BackTo(&root);
  EXPECT_EQ(bar.Length(), 2);
  EXPECT_FALSE(bar.IsOnStack(walls));
  EXPECT_FALSE(bar.IsOnStack(&root));
  EXPECT_EQ(bar.Current(), &root);
}

TEST_F(ScreenBar, WithNothingEnteredThereIsNoRootBar) { EXPECT_EQ(bar.RootBar(), nullptr); }

TEST_F(ScreenBar, TheMirroredLinesAreNotOwned) {
  {
    TScreenMenuBar other;
    other.BackTo(&root);
    other.EnterSubMenu(walls);
  }
  EXPECT_TRUE(walls->m_strLabel == L"墙体");
}

TEST_F(ScreenBar, PositionsAreThoseOfTheMirroredLines) {
  bar.BackTo(&root);
  EXPECT_EQ(bar.PositionOf(root.m_pSubMenu->At(1)), 1);
  EXPECT_EQ(bar.PositionOf(doors), -1);
}

TMenuBar* AddBlock(TMenuSystem& system, const wchar_t* name) {
  auto* block = new TMenuBar;
  block->m_strName = name;
  system.Append(block);
  return block;
}

TEST(AttachScreenBar, TakesTheFirstScreenBlockOfAnyCaseAndKeepsTheOthers) {
  TMenuSystem system;
  AddBlock(system, L"COMMON");
  TMenuBar* screen = AddBlock(system, L"Screen");
  AddBlock(system, L"SCREEN");
  EXPECT_EQ(qvx::DetachScreenBar(system).get(), screen);
  ASSERT_EQ(system.Length(), 2);
  EXPECT_TRUE(system.At(1)->m_strName == L"SCREEN");
  EXPECT_TRUE(system.OwnsElements());
}

TEST(AttachScreenBar, WithoutAScreenBlockNothingChanges) {
  TMenuSystem system;
  AddBlock(system, L"COMMON");
  EXPECT_EQ(qvx::DetachScreenBar(system), nullptr);
  EXPECT_EQ(system.Length(), 1);
}

TEST(AttachScreenBar, AMenuWithoutTitleHasTheDefaultName) {
  TMenuSystem system;
  EXPECT_STREQ(qvx::RootTitle(system), L"奇维建筑");
  system.m_strTitle = L"我的菜单";
  EXPECT_STREQ(qvx::RootTitle(system), L"我的菜单");
}

}  // namespace
