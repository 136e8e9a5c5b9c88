// The tree of groups before its windows are built: heights, nesting, the open index, scrolling.
#include <gtest/gtest.h>

#include <limits>

#include "menu_fixture.h"
#include "screenmenu/group_plan.h"
#include "screenmenu/group_rules.h"

namespace {

using namespace fixture;
using qvx::GroupPlan;

class GroupPlans : public testing::Test {
 protected:
  std::unique_ptr<GroupPlan> Plan() {
    return qvx::PlanTree(bar, {{{&lisp, nullptr, false}, 25}, limit, openFirst, remembered, 500});
  }

  FakeLisp lisp;
  TMenuBar bar;
  bool limit = false, openFirst = false;
  int remembered = -1;
};

TEST_F(GroupPlans, AnEmptyBarHasContentHeightFourAndNoRows) {
  const auto tree = Plan();
  EXPECT_EQ(tree->rowsHeight, 4);
  EXPECT_TRUE(tree->rows.empty());
  EXPECT_EQ(tree->cursor, -1);
  EXPECT_EQ(qvx::ContentHeight(tree.get()), 4);
}

TEST_F(GroupPlans, NoRowHeightOverflowsTheSumsOverALongMenu) {
  for (int i = 0; i < 3000; ++i) AddLine(bar, L"a");
  for (const int setting : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    const int height = qvx::RowHeightInRange(setting);
    EXPECT_EQ(height, setting > 0 ? 10000 : -10000);
    const auto tree =
        qvx::PlanTree(bar, {{{&lisp, nullptr, false}, height}, limit, openFirst, remembered, 500});
    EXPECT_EQ(tree->rowsHeight, 4 + 3000 * (height - 1));
    const std::vector<int> heights = tree->RowHeights();
    const qvx::LayoutPlan layout = qvx::PlanLayout({{0, 0, 100, 500},
                                                    false,
                                                    true,
                                                    qvx::ContentHeight(tree.get()),
                                                    tree->rowsHeight,
                                                    8,
                                                    false,
                                                    0,
                                                    &heights,
                                                    -1,
                                                    0});
    EXPECT_EQ(layout.rows.back().top, 2 + 2999 * (height - 1));
  }
  for (const int setting : {0, 1, -1, 25, 10000})
    EXPECT_EQ(qvx::RowHeightInRange(setting), setting);
}

TEST_F(GroupPlans, TwoAdjacentSeparatorsMakeTwoThinRows) {
  AddLine(bar, L"--");
  AddLine(bar, L"--");
  EXPECT_EQ(Plan()->RowHeights(), (std::vector<int>{8, 8}));
  EXPECT_EQ(Plan()->rowsHeight, 20);
}

TEST_F(GroupPlans, EveryLineHasASlotAndOnlyHeadersHaveAGroupInIt) {
  AddLine(bar, L"墙", L"TWall\n");
  AddLine(*AddHeader(bar, L"门窗"), L"门", L"TDoor\n");
  const auto tree = Plan();
  ASSERT_EQ(tree->children.size(), 2u);
  EXPECT_EQ(tree->children[0], nullptr);
  ASSERT_NE(tree->children[1], nullptr);
  EXPECT_EQ(tree->children[1]->depth, 1);
  EXPECT_EQ(tree->children[1]->parent, tree.get());
}

TEST_F(GroupPlans, LispRunsOnceForEachLineInLineOrderWithNestedGroupsInPlace) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开"});
  TMenuItem* first = AddLine(bar, L"a", L"x");
  first->m_nFlags = TMenuItem::kHasGrayFn;
  first->m_strGrayFn = L"gray1";
  AddSwitchLine(*AddHeader(bar, L"组"), *shown);
  TMenuItem* last = AddLine(bar, L"b", L"x");
  last->m_nFlags = TMenuItem::kHasCheckFn | TMenuItem::kHasGrayFn;
  last->m_strGrayFn = L"gray2";
  last->m_strCheckFn = L"check2";
  Plan();
  EXPECT_EQ(lisp.diary, (std::vector<std::wstring>{L"gray1", L"get", L"gray2", L"check2"}));
}

TEST_F(GroupPlans, OnlyTheRootOpensTheSavedGroup) {
  AddHeader(*AddHeader(bar, L"组"), L"内");
  remembered = 0;
  const auto tree = Plan();
  EXPECT_EQ(tree->cursor, 0);
  EXPECT_EQ(tree->children[0]->cursor, -1);
}

TEST_F(GroupPlans, ASavedIndexBeyondASmallerMenuOpensNothing) {
  AddHeader(bar, L"组");
  for (int value : {1, 99, -7}) {
    remembered = value;
    EXPECT_EQ(Plan()->cursor, -1);
  }
}

TEST_F(GroupPlans, ASavedLeafOpensNothingAndStaysSaved) {
  AddLine(bar, L"墙", L"TWall\n");
  AddHeader(bar, L"组");
  remembered = 0;
  const auto tree = Plan();
  EXPECT_EQ(tree->OpenChild(), nullptr);
  EXPECT_EQ(tree->cursor, 0) << "this is what the palette writes back";
}

TEST_F(GroupPlans, OpeningTheFirstOverridesTheSavedGroupAtEveryLevel) {
  AddHeader(*AddHeader(bar, L"一"), L"二");
  AddHeader(bar, L"别");
  openFirst = true;
  remembered = 1;
  const auto tree = Plan();
  EXPECT_EQ(tree->cursor, 0);
  EXPECT_EQ(tree->children[0]->cursor, 0);
  EXPECT_EQ(tree->children[0]->children[0]->cursor, -1) << "an empty list has no first";
}

TEST_F(GroupPlans, OpeningTheFirstOnALeafOpensNothingSoTheNextHeaderFoldsNothing) {
  AddLine(bar, L"墙", L"TWall\n");
  AddHeader(bar, L"组");
  openFirst = true;
  const auto tree = Plan();
  EXPECT_EQ(tree->OpenChild(), nullptr);
  EXPECT_EQ(qvx::DecideFold(1, 2, tree->cursor), qvx::FoldStep::kSwitch);
}

TEST_F(GroupPlans, ContentHeightAddsFourForEachOpenLevel) {
  AddLine(*AddHeader(*AddHeader(bar, L"一"), L"二"), L"叶", L"x");
  const auto tree = Plan();
  EXPECT_EQ(qvx::ContentHeight(tree.get()), 24 + 4);
  tree->cursor = 0;
  EXPECT_EQ(qvx::ContentHeight(tree.get()), 28 + 4 + 28);
  tree->children[0]->cursor = 0;
  EXPECT_EQ(qvx::ContentHeight(tree.get()), 28 + 4 + 28 + 4 + 28);
}

TEST_F(GroupPlans, AGroupOfLimitedHeightIsAsHighAsItsWindow) {
  AddLine(*AddHeader(bar, L"一"), L"叶", L"x");
  limit = true;
  remembered = 0;
  const auto tree = Plan();
  EXPECT_EQ(qvx::ContentHeight(tree.get()), 500);
  EXPECT_FALSE(tree->children[0]->limitHeight) << "only the root's height is ever limited";
}

TEST_F(GroupPlans, TheRootScrollsForAllUnlessItsHeightIsLimited) {
  AddHeader(*AddHeader(bar, L"一"), L"二");
  auto tree = Plan();
  GroupPlan* first = tree->children[0].get();
  GroupPlan* second = first->children[0].get();
  EXPECT_EQ(qvx::ScrollHostOf(second), tree.get());
  EXPECT_EQ(qvx::ScrollHostOf(tree.get()), tree.get());
  limit = true;
  tree = Plan();
  first = tree->children[0].get();
  second = first->children[0].get();
  EXPECT_EQ(qvx::ScrollHostOf(second), first);
  EXPECT_EQ(qvx::ScrollHostOf(first), first);
  EXPECT_EQ(qvx::ScrollHostOf(tree.get()), tree.get());
}

TEST_F(GroupPlans, AMenuDeeperThanTheLimitIsCut) {
  TMenuBar* at = &bar;
  for (int i = 0; i < 300; ++i) at = AddHeader(*at, L"组");
  const auto tree = Plan();
  const GroupPlan* deepest = tree.get();
  while (!deepest->children.empty() && deepest->children[0]) deepest = deepest->children[0].get();
  EXPECT_EQ(deepest->depth, qvx::kDeepestGroup);
}

TEST(FoldRules, TheOpenHeaderFoldsAndAnyOtherRowSwitches) {
  EXPECT_EQ(qvx::DecideFold(2, 5, 2), qvx::FoldStep::kFold);
  EXPECT_EQ(qvx::DecideFold(1, 5, 2), qvx::FoldStep::kSwitch);
  EXPECT_EQ(qvx::DecideFold(0, 5, -1), qvx::FoldStep::kSwitch);
}

TEST(FoldRules, AnIndexOutOfRangeDoesNothing) {
  EXPECT_EQ(qvx::DecideFold(5, 5, -1), qvx::FoldStep::kNothing);
  EXPECT_EQ(qvx::DecideFold(0xFFFFFFFFu, 5, -1), qvx::FoldStep::kNothing);
  EXPECT_EQ(qvx::DecideFold(0, 0, -1), qvx::FoldStep::kNothing);
}

}  // namespace
