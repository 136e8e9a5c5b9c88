// The rows planned from a block's lines: identifiers, grey, checks, switches, sub-menus, bitmaps.
#include "popup/popup_plan.h"

#include <gtest/gtest.h>

#include "tests/screenmenu/menu_fixture.h"

namespace {

using namespace fixture;

class PopupPlanning : public testing::Test {
 protected:
  PopupPlan Plan(PopupIds ids = PopupIds::kRunning, int first = kFirstContextId) {
    return PlanPopup(bar, ids, first, {&lisp, &system, hasIcons, life.Watch()});
  }
  std::vector<unsigned> Flags() {
    std::vector<unsigned> flags;
    const PopupPlan plan = Plan();
    for (const PopupRow& row : plan.menus.at(0)) flags.push_back(row.flags);
    return flags;
  }

  FakeLisp lisp;
  TMenuSystem system;
  TMenuBar bar;
  bool hasIcons = true;
  qvx::MenuLife life;
};

TEST_F(PopupPlanning, LinesAreNumberedInOrderAndSeparatorsAreNot) {
  TMenuItem* first = AddLine(bar, L"甲", L"A\n");
  AddLine(bar, L"--");
  TMenuItem* third = AddLine(bar, L"乙", L"B\n");
  const PopupPlan plan = Plan();
  ASSERT_EQ(plan.menus.size(), 1u);
  ASSERT_EQ(plan.menus[0].size(), 3u);
  EXPECT_EQ(plan.menus[0][0].id, 2000);
  EXPECT_EQ(plan.menus[0][1].flags, 2048u);
  EXPECT_EQ(plan.menus[0][1].id, 0);
  EXPECT_EQ(plan.menus[0][1].line, nullptr);
  EXPECT_EQ(plan.menus[0][2].id, 2001);
  EXPECT_EQ(plan.menus[0][2].index, 2);
  EXPECT_EQ(first->m_nCommandId, 2000);
  EXPECT_EQ(third->m_nCommandId, 2001);
}

TEST_F(PopupPlanning, ALineWithASubMenuIsNumberedAfterTheLinesBelowIt) {
  AddLine(bar, L"甲", L"A\n");
  TMenuBar* below = AddHeader(bar, L"下");
  AddLine(*below, L"乙", L"B\n");
  AddLine(*below, L"丙", L"C\n");
  AddLine(bar, L"丁", L"D\n");
  const PopupPlan plan = Plan(PopupIds::kRunning, kFirstBlockId);
  ASSERT_EQ(plan.menus.size(), 2u);
  EXPECT_EQ(plan.menus[0][1].subMenu, 1);
  EXPECT_EQ(plan.menus[0][1].flags, 256u | 16u);
  EXPECT_EQ(plan.menus[1][0].id, 3001);
  EXPECT_EQ(plan.menus[1][1].id, 3002);
  EXPECT_EQ(plan.menus[0][2].id, 3004) << "the line above took 3003";
  EXPECT_EQ(plan.menus[1][1].index, 1);
}

TEST_F(PopupPlanning, AnEmptyCommandIsDisabledAndAnEmptySubMenuStillOpens) {
  AddLine(bar, L"空");
  AddHeader(bar, L"下");
  EXPECT_EQ(Flags(), (std::vector<unsigned>{259, 256 | 16}));
}

TEST_F(PopupPlanning, AGreyFunctionThatReturnsTDisablesPlainLinesAndSubMenus) {
  for (int kind = 0; kind < 4; ++kind) {
    TMenuItem* line = AddLine(bar, L"甲", L"A\n");
    line->m_nFlags = TMenuItem::kHasGrayFn;
    line->m_strGrayFn = std::to_wstring(kind).c_str();
  }
  TMenuItem* header = bar.At((AddHeader(bar, L"下"), 4));
  header->m_nFlags = TMenuItem::kHasGrayFn;
  header->m_strGrayFn = L"0";
  lisp.True(L"0");
  lisp.Number(L"1", 1);
  lisp.Nil(L"2");  // the fourth is missing
  EXPECT_EQ(Flags(), (std::vector<unsigned>{259, 256, 256, 256, 259 | 16}));
}

TEST_F(PopupPlanning, AGreyFunctionIsNotCalledWithoutItsFlag) {
  AddLine(bar, L"甲", L"A\n")->m_strGrayFn = L"gray";
  AddLine(bar, L"乙", L"B\n")->m_strCheckFn = L"check";
  lisp.True(L"gray");
  lisp.True(L"check");
  EXPECT_EQ(Flags(), (std::vector<unsigned>{256, 256}));
  EXPECT_TRUE(lisp.diary.empty());
}

TEST_F(PopupPlanning, TheCheckFunctionChecksPlainLinesIncludingGreyOnes) {
  for (const wchar_t* command : {L"A\n", L""}) {
    TMenuItem* line = AddLine(bar, L"甲", command);
    line->m_nFlags = TMenuItem::kHasCheckFn;
    line->m_strCheckFn = L"check";
  }
  TMenuItem* header = bar.At((AddHeader(bar, L"下"), 2));
  header->m_nFlags = TMenuItem::kHasCheckFn;
  header->m_strCheckFn = L"check";
  lisp.True(L"check");
  EXPECT_EQ(Flags(), (std::vector<unsigned>{256 | 8, 259 | 8, 256 | 16}));
  EXPECT_EQ(lisp.diary.size(), 2u) << "a line with a sub-menu is not asked";
}

TEST_F(PopupPlanning, ASwitchHasLabelAndIconOfTheStateThatItsFunctionReturns) {
  AddResource(system, L"off", L"BMP_OFF");
  AddResource(system, L"on", L"BMP_ON");
  const auto toggle = MakeSwitch(L"get", L"set", {L"关", L"开"});
  TMenuItem* line = AddSwitchLine(bar, *toggle);
  lisp.Number(L"get", 2);
  const PopupPlan plan = Plan();
  EXPECT_EQ(line->m_strLabel, L"开");
  EXPECT_EQ(line->m_strIconName, L"开");
  EXPECT_EQ(line->m_nIconIndex, 1);
  EXPECT_EQ(line->m_nCommandId, 2000);
  EXPECT_EQ(plan.menus[0][0].flags, 256u);
  EXPECT_STREQ(plan.menus[0][0].bitmap, L"BMP_ON");
  lisp.Number(L"get", 77);
  EXPECT_EQ(Flags(), std::vector<unsigned>{256});
  EXPECT_EQ(line->m_strLabel, L"关") << "an unknown value shows the first state";
}

TEST_F(PopupPlanning, ASwitchWithoutAStateIsDisabledAndKeepsItsLabel) {
  const auto toggle = MakeSwitch(L"get", L"set", {L"关", L"开"});
  const auto bare = MakeSwitch(L"number", L"set", {});
  TMenuItem* line = AddSwitchLine(bar, *toggle);
  AddSwitchLine(bar, *bare);
  lisp.Number(L"number", 1);
  for (int way = 0; way < 3; ++way) {
    if (way == 1) lisp.True(L"get");
    if (way == 2) lisp.Nil(L"get");
    EXPECT_EQ(Flags(), (std::vector<unsigned>{259, 259})) << way;
    EXPECT_EQ(line->m_strLabel, L"开关");
    EXPECT_EQ(line->m_nCommandId, 2000) << "it is numbered all the same";
  }
}

TEST_F(PopupPlanning, BitmapsAreLoadedByTheIconTableIfThereIsALibrary) {
  AddResource(system, L"a", L"BMP_A");
  AddResource(system, L"b", L"");
  const int indices[] = {0, 1, -1, 2, 1000000, -1000000};
  for (const int index : indices) AddLine(bar, L"甲", L"A\n")->m_nIconIndex = index;
  const PopupPlan plan = Plan();
  EXPECT_STREQ(plan.menus[0][0].bitmap, L"BMP_A");
  for (int i = 1; i < 6; ++i) EXPECT_EQ(plan.menus[0][size_t(i)].bitmap, nullptr) << i;
  hasIcons = false;
  EXPECT_EQ(Plan().menus[0][0].bitmap, nullptr);
}

TEST_F(PopupPlanning, InTheEditorsMenusTheIdentifierIsTheNumberInTheCommandText) {
  TMenuItem* confirm = AddLine(bar, L"确定", L"5001\n");
  AddLine(bar, L"字", L"x5007");
  AddLine(bar, L"远", L"99999999999999999999");
  TMenuBar* below = AddHeader(bar, L"符号");
  AddLine(*below, L"度", L" 5007");
  const PopupPlan plan = Plan(PopupIds::kCommand);
  ASSERT_EQ(plan.menus[0].size(), 3u) << "no such number can be chosen";
  EXPECT_EQ(plan.menus[0][0].id, 5001);
  EXPECT_EQ(confirm->m_nCommandId, 5001);
  EXPECT_EQ(plan.menus[0][1].id, 0);
  EXPECT_EQ(plan.menus[1][0].id, 5007);
}

TEST_F(PopupPlanning, ThirtyNestedSubMenusAreCompleteAndAMillionAreCutOff) {
  TMenuBar* at = &bar;
  for (int depth = 0; depth < 30; ++depth) at = AddHeader(*at, L"下");
  AddLine(*at, L"底", L"A\n");
  PopupPlan plan = Plan();
  ASSERT_EQ(plan.menus.size(), 31u);
  EXPECT_EQ(plan.menus[30][0].id, 2000);
  for (int depth = 30; depth < 1000000; ++depth) at = AddHeader(*at, L"下");
  plan = Plan();
  ASSERT_EQ(plan.menus.size(), 65u);
  EXPECT_EQ(plan.menus[64][0].flags, 259u) << "grey, and leads nowhere";
}

TEST_F(PopupPlanning, LinesWithNumbersThatNoChoiceCanReturnAreOmitted) {
  for (int i = 0; i < 70000; ++i) AddLine(bar, L"甲", L"A\n");
  const PopupPlan plan = Plan();
  EXPECT_EQ(plan.menus[0].size(), 65536u - 2000u);
  EXPECT_EQ(plan.menus[0].back().id, 65535);
}

TEST_F(PopupPlanning, AFunctionThatReplacesTheMenusEndsThePlan) {
  AddLine(bar, L"甲", L"A\n");
  TMenuItem* line = AddLine(bar, L"乙", L"B\n");
  line->m_nFlags = TMenuItem::kHasGrayFn | TMenuItem::kHasCheckFn;
  line->m_strGrayFn = L"gray";
  line->m_strCheckFn = L"check";
  lisp.actions[L"gray"] = [this] {
    bar.Clear();
    life.Renew();
  };
  EXPECT_TRUE(Plan().menus.empty());
  EXPECT_EQ(lisp.diary.size(), 1u);
}

TEST_F(PopupPlanning, TheRecentCommandsAreInsertedOnceAsTheSecondLine) {
  AddLine(bar, L"甲", L"A\n");
  AddLine(bar, L"乙", L"B\n");
  system.m_recent.AddRecent(L"C\n");
  EnsureRecentLine(bar, system.m_recent);
  EnsureRecentLine(bar, system.m_recent);
  ASSERT_EQ(bar.Length(), 3);
  EXPECT_EQ(bar.At(1)->m_strLabel, L"最近命令");
  EXPECT_EQ(bar.At(1)->m_strCommand, L"*Recent");
  EXPECT_EQ(bar.At(1)->m_pSubMenu, &system.m_recent);
  const PopupPlan plan = Plan();
  EXPECT_EQ(plan.menus[1][0].id, 2001);
  EXPECT_EQ(plan.menus[0][2].id, 2003);
  bar.Clear();
  EXPECT_EQ(system.m_recent.Length(), 1) << "the list does not go with its line";
}

TEST_F(PopupPlanning, AnEmptyBlockGetsTheRecentCommandsAsItsOnlyLine) {
  EnsureRecentLine(bar, system.m_recent);
  EXPECT_EQ(bar.Length(), 1);
}

}  // namespace
