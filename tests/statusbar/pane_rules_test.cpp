// The decisions of the switch panes: style, icon and menu of a state, clicks while a command runs,
// the values of PICKSTYLE, the dynamic input choices.
#include "statusbar/pane_rules.h"

#include <gtest/gtest.h>

using namespace qvx;

TEST(PaneRules, OnIsPressedInAndOffIsRaised) {
  EXPECT_EQ(StyleOf(true), 8);
  EXPECT_EQ(StyleOf(false), 2);
}

TEST(PaneRules, EachSwitchHasItsIconsTextAndMenus) {
  const struct {
    SwitchPane pane;
    int off, on;
    const wchar_t* tip;
    int offMenu, onMenu;
  } kRows[] = {
      {SwitchPane::kFill, 57635, 57636, L"启动/关闭 墙柱填充", 217, 218},
      {SwitchPane::kBoldLine, 57633, 57634, L"启动/关闭 墙柱加粗", 217, 218},
      {SwitchPane::kBaseLine, 57631, 57632, L"显示/关闭 墙基线", 246, 247},
      {SwitchPane::kDynDim, 57629, 57630, L"启动/关闭 动态标注", 246, 247},
      {SwitchPane::kMakeGroup, 57627, 57628, L"启动/关闭 编组", 246, 247},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(IconOf(row.pane, false), row.off);
    EXPECT_EQ(IconOf(row.pane, true), row.on);
    const PaneLook& look = LookOf(row.pane);
    EXPECT_STREQ(look.toolTip, row.tip);
    EXPECT_EQ(look.offMenu, row.offMenu);
    EXPECT_EQ(look.onMenu, row.onMenu);
  }
}

TEST(PaneRules, BothStateLinesOfTheMenuToggleAndTheThirdOpensTheSettings) {
  EXPECT_EQ(ActOf(40215), MenuAct::kToggle);
  EXPECT_EQ(ActOf(40216), MenuAct::kToggle);
  EXPECT_EQ(ActOf(40217), MenuAct::kSettings);
  EXPECT_EQ(ActOf(0), MenuAct::kNone) << "the menu was left without a choice";
  EXPECT_EQ(ActOf(40218), MenuAct::kNone);
}

TEST(PaneRules, FillAndBoldIgnoreAClickDuringACommand) {
  EXPECT_TRUE(DrawingSwitchActs(0));
  EXPECT_FALSE(DrawingSwitchActs(1));
  EXPECT_FALSE(DrawingSwitchActs(4));
}

TEST(PaneRules, TheBaseLineIconChangesEvenIfACommandBlocksTheState) {
  for (const bool on : {false, true}) {
    EXPECT_EQ(OnBaseLineClick(on, 0).iconOn, !on);
    EXPECT_TRUE(OnBaseLineClick(on, 0).flips);
    EXPECT_EQ(OnBaseLineClick(on, 1).iconOn, !on);
    EXPECT_FALSE(OnBaseLineClick(on, 1).flips);
  }
}

TEST(PaneRules, AClickKeepsTheHighBitOfPickStyle) {
  EXPECT_EQ(PickStyleAfterClick(0, true), 1);
  EXPECT_EQ(PickStyleAfterClick(0, false), 0);
  EXPECT_EQ(PickStyleAfterClick(1, true), 1);
  EXPECT_EQ(PickStyleAfterClick(1, false), 0);
  EXPECT_EQ(PickStyleAfterClick(2, true), 3);
  EXPECT_EQ(PickStyleAfterClick(2, false), 2);
  EXPECT_EQ(PickStyleAfterClick(3, true), 3);
  EXPECT_EQ(PickStyleAfterClick(3, false), 2);
}

TEST(PaneRules, AClickTakesAnUnreadableOrNegativePickStyleAsZero) {
  EXPECT_EQ(PickStyleAfterClick({}, true), 1);
  EXPECT_EQ(PickStyleAfterClick({}, false), 0);
  EXPECT_EQ(PickStyleAfterClick(-1, true), 1);
}

TEST(PaneRules, AddingAndRemovingTakesANegativePickStyleAsTwo) {
  EXPECT_EQ(PickStyleAtInit(-1, true), 3);
  EXPECT_EQ(PickStyleAtInit(-1, false), 2);
  EXPECT_EQ(PickStyleAtInit(2, true), 3);
  EXPECT_EQ(PickStyleAtInit(7, false), 2);
  EXPECT_EQ(PickStyleAtInit(0, true), 1);
  EXPECT_EQ(PickStyleAtInit(1, false), 0);
  EXPECT_EQ(PickStyleAtInit({}, true), 1);
  EXPECT_EQ(PickStyleAtInit({}, false), 0);
}

TEST(PaneRules, DynamicInputHasAPaneOnOldHostsOnly) {
  EXPECT_TRUE(HasDynInputPane(15.0));
  EXPECT_TRUE(HasDynInputPane(16.11));
  EXPECT_FALSE(HasDynInputPane(16.2));
  EXPECT_FALSE(HasDynInputPane(24.0));
}

TEST(PaneRules, AnyOtherNumberOfFieldsIsAllAndAllIsStoredAsTen) {
  EXPECT_EQ(ChoiceOfFields(1), 0);
  EXPECT_EQ(ChoiceOfFields(2), 1);
  for (const int all : {10, 7, 3, 0, -1}) EXPECT_EQ(ChoiceOfFields(all), 2) << all;
  EXPECT_EQ(FieldsOfChoice(0), 1);
  EXPECT_EQ(FieldsOfChoice(1), 2);
  EXPECT_EQ(FieldsOfChoice(2), 10);
  EXPECT_EQ(FieldsOfChoice(ChoiceOfFields(7)), 10);
}
