// The effect of a click on a line, and the wait of a command before it is sent.
#include <gtest/gtest.h>

#include "menu_fixture.h"
#include "screenmenu/dispatch_rules.h"

namespace {

using namespace fixture;
using qvx::ClickKind;
using qvx::SwitchResult;

TEST(ClickRules, ASubMenuFoldsASwitchAdvancesAndAnyOtherLineSends) {
  TMenuBar bar;
  AddHeader(bar, L"组");
  const auto shown = MakeSwitch(L"get", L"set", {L"开"});
  AddSwitchLine(bar, *shown);
  AddLine(bar, L"墙", L"TWall\n");
  AddLine(bar, L"--");
  EXPECT_EQ(qvx::DecideClick(*bar.At(0)), ClickKind::kFold);
  EXPECT_EQ(qvx::DecideClick(*bar.At(1)), ClickKind::kSwitch);
  EXPECT_EQ(qvx::DecideClick(*bar.At(2)), ClickKind::kCommand);
  EXPECT_EQ(qvx::DecideClick(*bar.At(3)), ClickKind::kNothing);
}

TEST(ClickRules, ASeparatorSendsNothingEvenIfItsLineHasACommand) {
  TMenuBar bar;
  EXPECT_EQ(qvx::DecideClick(*AddLine(bar, L"--", L"TWall\n")), ClickKind::kNothing);
}

TEST(PendingCommands, TheSecondOfTwoQuickClicksReplacesTheFirst) {
  qvx::PendingCommand pending;
  pending.Arm(TWCString(L"TWall\n"));
  pending.Arm(TWCString(L"TDoor\n"));
  EXPECT_STREQ(pending.Take(false), L"TDoor\n");
  EXPECT_FALSE(pending.IsArmed());
}

TEST(PendingCommands, ARunningCommandIsCancelledByTwoEscapesAhead) {
  qvx::PendingCommand pending;
  pending.Arm(TWCString(L"TWall\n"));
  EXPECT_STREQ(pending.Take(true), L"\x1B\x1BTWall\n");
}

TEST(PendingCommands, NothingIsDueWithoutTextDatabaseOrTheRightTimer) {
  qvx::PendingCommand pending;
  EXPECT_FALSE(qvx::IsSendDue(10, pending, true));
  pending.Arm(TWCString(L"TWall\n"));
  EXPECT_FALSE(qvx::IsSendDue(11, pending, true));
  EXPECT_FALSE(qvx::IsSendDue(10, pending, false));
  EXPECT_TRUE(pending.IsArmed()) << "it is sent once there is a drawing";
  EXPECT_TRUE(qvx::IsSendDue(10, pending, true));
}

class SwitchClick : public testing::Test {
 protected:
  SwitchClick() : shown(MakeSwitch(L"get", L"set", {L"开", L"关"})) {
    line = AddSwitchLine(bar, *shown);
  }
  FakeLisp lisp;
  TMenuBar bar;
  std::unique_ptr<TMenuSwitchItem> shown;
  TMenuItem* line;
};

TEST_F(SwitchClick, SetsThenReadsAndShowsTheNewState) {
  lisp.Nil(L"set");
  lisp.Number(L"get", 2);
  EXPECT_EQ(qvx::FlipSwitch(*line, {&lisp}), SwitchResult::kChanged);
  EXPECT_EQ(lisp.diary, (std::vector<std::wstring>{L"set", L"get"}));
  EXPECT_TRUE(line->m_strLabel == L"关");
  EXPECT_EQ(line->m_nIconIndex, 1);
}

TEST_F(SwitchClick, ASetFunctionThatFailsEndsItBeforeTheStateIsRead) {
  lisp.Number(L"get", 2);
  EXPECT_EQ(qvx::FlipSwitch(*line, {&lisp}), SwitchResult::kRefused);
  EXPECT_EQ(lisp.diary, (std::vector<std::wstring>{L"set"}));
  EXPECT_TRUE(line->m_strLabel == L"开关");
}

TEST_F(SwitchClick, AStateThatCannotBeReadKeepsTheCaptionButCountsAsAdvanced) {
  lisp.Nil(L"set");
  EXPECT_EQ(qvx::FlipSwitch(*line, {&lisp}), SwitchResult::kUnknown);
  EXPECT_TRUE(line->m_strLabel == L"开关");
}

}  // namespace
