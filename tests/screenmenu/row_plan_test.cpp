// Rows of the screen menu from lines of the model: the table of captions, heights, states and
// images.
#include <gtest/gtest.h>

#include "menu_fixture.h"
#include "screenmenu/row_plan.h"

namespace {

using namespace fixture;
using qvx::RowImage;
using qvx::RowPlan;

class RowPlans : public testing::Test {
 protected:
  RowPlan Plan(TMenuItem& line) { return qvx::PlanRow(line, {{&lisp, &system, icons}, 25}); }

  FakeLisp lisp;
  TMenuSystem system;
  TMenuBar bar;
  bool icons = true;
};

TEST_F(RowPlans, AHeaderIsOnAndCarriesAnArrow) {
  AddHeader(bar, L"墙体");
  const RowPlan plan = Plan(*bar.At(0));
  EXPECT_STREQ(plan.caption, L"墙体");
  EXPECT_EQ(plan.height, 24);
  EXPECT_TRUE(plan.enabled);
  EXPECT_EQ(plan.image, RowImage::kArrow);
}

TEST_F(RowPlans, ASeparatorIsAThirdOfARowThinWithoutTextAndOff) {
  const RowPlan plan = Plan(*AddLine(bar, L"--", L"ignored"));
  EXPECT_STREQ(plan.caption, L"");
  EXPECT_EQ(plan.height, 8);
  EXPECT_FALSE(plan.enabled);
  EXPECT_EQ(plan.image, RowImage::kNone);
}

TEST_F(RowPlans, ASeparatorShowsNoIconEvenWhenItsLineNamesOne) {
  AddResource(system, L"ID_A", L"A16");
  TMenuItem* line = AddLine(bar, L"--", L"TWall\n");
  line->m_nIconIndex = 0;
  EXPECT_EQ(Plan(*line).image, RowImage::kNone);
  EXPECT_STREQ(Plan(*line).bitmap, L"");
}

TEST_F(RowPlans, ASeparatorsHeightIsCutAndNotRounded) {
  const RowPlan plan = qvx::PlanRow(*AddLine(bar, L"--"), {{&lisp, &system, true}, 24});
  EXPECT_EQ(plan.height, 7);  // 23 / 3
}

TEST_F(RowPlans, ALineWithoutCommandIsOff) { EXPECT_FALSE(Plan(*AddLine(bar, L"空")).enabled); }

TEST_F(RowPlans, ATrueGreyFunctionTurnsTheLineOffAndAnyOtherAnswerLeavesItOn) {
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  line->m_nFlags = TMenuItem::kHasGrayFn;
  line->m_strGrayFn = L"IsGray";
  EXPECT_TRUE(Plan(*line).enabled) << "a call that fails";
  lisp.Nil(L"IsGray");
  EXPECT_TRUE(Plan(*line).enabled) << "no result";
  lisp.Number(L"IsGray", 1);
  EXPECT_TRUE(Plan(*line).enabled) << "a number is not T";
  lisp.True(L"IsGray");
  EXPECT_FALSE(Plan(*line).enabled);
}

TEST_F(RowPlans, AnEmptyCommandIsOffBeforeItsGreyFunctionIsAsked) {
  TMenuItem* line = AddLine(bar, L"墙");
  line->m_nFlags = TMenuItem::kHasGrayFn;
  line->m_strGrayFn = L"IsGray";
  Plan(*line);
  EXPECT_TRUE(lisp.diary.empty());
}

TEST_F(RowPlans, ACheckedLineShowsTheMarkOnlyForTAndNeverItsOwnIcon) {
  AddResource(system, L"ID_Wall", L"WALL");
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  line->m_nFlags = TMenuItem::kHasCheckFn;
  line->m_strCheckFn = L"IsOn";
  line->m_nIconIndex = 0;
  EXPECT_EQ(Plan(*line).image, RowImage::kNone);
  lisp.Number(L"IsOn", 1);
  EXPECT_EQ(Plan(*line).image, RowImage::kNone);
  lisp.True(L"IsOn");
  EXPECT_EQ(Plan(*line).image, RowImage::kCheckMark);
}

TEST_F(RowPlans, TheIconIsTheImageNameOfTheLinesResource) {
  AddResource(system, L"ID_A", L"A16");
  AddResource(system, L"ID_B", L"");
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  EXPECT_EQ(Plan(*line).image, RowImage::kNone) << "no icon index";
  line->m_nIconIndex = 0;
  EXPECT_EQ(Plan(*line).image, RowImage::kFromLibrary);
  EXPECT_STREQ(Plan(*line).bitmap, L"A16");
  line->m_nIconIndex = 1;
  EXPECT_EQ(Plan(*line).image, RowImage::kFromLibrary) << "an empty name clears the image";
  EXPECT_STREQ(Plan(*line).bitmap, L"");
}

TEST_F(RowPlans, WithoutIconLibraryOrWithAnIndexBeyondTheTableThereIsNoImageCall) {
  AddResource(system, L"ID_A", L"A16");
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  line->m_nIconIndex = 5;
  EXPECT_EQ(Plan(*line).image, RowImage::kNone);
  line->m_nIconIndex = 0;
  icons = false;
  EXPECT_EQ(Plan(*line).image, RowImage::kNone);
  EXPECT_EQ(qvx::PlanRow(*line, {{&lisp, nullptr, true}, 25}).image, RowImage::kNone);
}

TEST_F(RowPlans, ASwitchLineTakesLabelAndIconOfItsState) {
  AddResource(system, L"a", L"A16");
  AddResource(system, L"b", L"B16");
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  lisp.Number(L"get", 2);
  const RowPlan plan = Plan(*line);
  EXPECT_STREQ(plan.caption, L"关");
  EXPECT_TRUE(plan.enabled);
  EXPECT_STREQ(plan.bitmap, L"B16");
  EXPECT_TRUE(line->m_strLabel == L"关");
}

TEST_F(RowPlans, ASwitchValueThatNoStateHoldsShowsTheFirstStateEnabled) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  lisp.Number(L"get", 77);
  const RowPlan plan = Plan(*line);
  EXPECT_TRUE(plan.enabled);
  EXPECT_STREQ(plan.caption, L"开");
}

TEST_F(RowPlans, ASwitchWhoseFunctionFailsOrGivesNoNumberIsOffWithItsOldLabel) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  EXPECT_FALSE(Plan(*line).enabled);
  lisp.True(L"get");
  EXPECT_FALSE(Plan(*line).enabled);
  EXPECT_STREQ(Plan(*line).caption, L"开关");
}

TEST_F(RowPlans, ASwitchWithoutStatesIsOff) {
  const auto shown = MakeSwitch(L"get", L"set", {});
  lisp.Number(L"get", 1);
  EXPECT_FALSE(Plan(*AddSwitchLine(bar, *shown)).enabled);
}

TEST_F(RowPlans, RefreshingComparesIconsOnlyAndLeavesACaptionOfTheSameIconStanding) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  lisp.Number(L"get", 1);
  Plan(*line);
  EXPECT_FALSE(qvx::RefreshSwitchLine(*line, {&lisp})) << "the state is the same";
  lisp.Number(L"get", 2);
  EXPECT_TRUE(qvx::RefreshSwitchLine(*line, {&lisp}));
  EXPECT_TRUE(line->m_strLabel == L"关");
  shown->m_states.At(0)->m_nIconIndex = shown->m_states.At(1)->m_nIconIndex;
  lisp.Number(L"get", 1);
  EXPECT_FALSE(qvx::RefreshSwitchLine(*line, {&lisp}));
  EXPECT_TRUE(line->m_strLabel == L"关");
}

TEST_F(RowPlans, RefreshingASwitchThatFailsChangesNothing) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  EXPECT_FALSE(qvx::RefreshSwitchLine(*line, {&lisp}));
  EXPECT_TRUE(line->m_strLabel == L"开关");
}

TEST_F(RowPlans, TheHelpOfALineIsTheSecondTextOfItsIcon) {
  AddResource(system, L"ID_A", L"A16", L"绘制墙体");
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  EXPECT_EQ(qvx::HelpOfLine(*line, {nullptr, &system, true}), nullptr);
  line->m_nIconIndex = 0;
  EXPECT_STREQ(qvx::HelpOfLine(*line, {nullptr, &system, true}), L"绘制墙体");
  EXPECT_EQ(qvx::HelpOfLine(*line, {nullptr, &system, false}), nullptr);
}

}  // namespace
