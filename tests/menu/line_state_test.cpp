// The state of lines, and the functions of the menu in force.
#include "menu/line_state.h"

#include <gtest/gtest.h>

#include "tests/doubles/loaded_menu.h"
#include "tests/screenmenu/menu_fixture.h"

namespace {

using namespace fixture;

class LineState : public ::testing::Test {
 protected:
  qvx::LineSources Sources() { return {&lisp, &system, true, life.Watch()}; }
  FakeLisp lisp;
  TMenuSystem system;
  TMenuBar bar;
  qvx::MenuLife life;
};

}  // namespace

TEST_F(LineState, AnAnswerIsAValueNoValueOrGone) {
  lisp.Number(L"number", 3);
  lisp.True(L"true");
  lisp.Number(L"gone", 3);
  lisp.actions[L"gone"] = [this] { life.Renew(); };
  EXPECT_TRUE(qvx::GivesNumber(qvx::AskLine(L"number", Sources())));
  EXPECT_TRUE(qvx::GivesTrue(qvx::AskLine(L"true", Sources())));
  EXPECT_FALSE(qvx::AskLine(L"missing", Sources()).called);
  const qvx::LineAnswer gone = qvx::AskLine(L"gone", Sources());
  EXPECT_TRUE(gone.isGone);
  EXPECT_FALSE(gone.called);
  EXPECT_FALSE(qvx::GivesNumber(gone));
  EXPECT_FALSE(qvx::AskLine(L"number", {}).called) << "no host to ask";
}

// The function deletes the line that holds its name.
TEST_F(LineState, TheNameOfAFunctionOutlivesItsLine) {
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  line->m_nFlags = TMenuItem::kHasGrayFn;
  line->m_strGrayFn = L"a name that is long enough for memory of its own";
  lisp.actions[std::wstring(line->m_strGrayFn)] = [this] {
    bar.Clear();
    life.Renew();
  };
  EXPECT_FALSE(qvx::IsLineGray(*line, Sources()));
  EXPECT_EQ(lisp.diary.size(), 1u);
}

TEST_F(LineState, GreyAndCheckFunctionsAreCalledOnlyWithTheirFlags) {
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  line->m_strGrayFn = line->m_strCheckFn = L"true";
  lisp.True(L"true");
  EXPECT_TRUE(qvx::IsLineEnabled(*line, Sources()));
  EXPECT_FALSE(qvx::IsLineChecked(*line, Sources()));
  EXPECT_TRUE(lisp.diary.empty());
  line->m_nFlags = TMenuItem::kHasGrayFn | TMenuItem::kHasCheckFn;
  EXPECT_FALSE(qvx::IsLineEnabled(*line, Sources()));
  EXPECT_TRUE(qvx::IsLineChecked(*line, Sources()));
  line->m_strCommand = L"";
  lisp.diary.clear();
  EXPECT_FALSE(qvx::IsLineEnabled(*line, Sources()));
  EXPECT_TRUE(lisp.diary.empty());
}

TEST_F(LineState, ASwitchReportsItsStateOnlyByANumber) {
  const auto shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  TMenuItem* line = AddSwitchLine(bar, *shown);
  EXPECT_EQ(qvx::AskSwitch(*line, Sources()), nullptr);
  lisp.Number(L"get", 2);
  const TSwitchStateItem* state = qvx::AskSwitch(*line, Sources());
  ASSERT_NE(state, nullptr);
  qvx::CopyState(*state, *line);
  EXPECT_EQ(line->m_strLabel, L"关");
  EXPECT_EQ(line->m_nIconIndex, 1);
}

TEST_F(LineState, IconAndHelpNeedASystemALibraryAndAnEntry) {
  AddResource(system, L"ID_WALL", L"BMP_WALL", L"绘制墙体");
  TMenuItem* line = AddLine(bar, L"墙", L"TWall\n");
  EXPECT_EQ(qvx::IconOfLine(*line, Sources()), nullptr);
  line->m_nIconIndex = 0;
  EXPECT_STREQ(qvx::IconOfLine(*line, Sources()), L"BMP_WALL");
  EXPECT_STREQ(qvx::HelpOfLine(*line, Sources()), L"绘制墙体");
  EXPECT_EQ(qvx::IconOfLine(*line, {nullptr, &system, false}), nullptr);
  EXPECT_EQ(qvx::HelpOfLine(*line, {nullptr, nullptr, true}), nullptr);
  line->m_nIconIndex = 1;
  EXPECT_EQ(qvx::HelpOfLine(*line, Sources()), nullptr);
}

TEST(MenuDoor, WithoutAMenuItReturnsNothingAndDoesNothing) {
  EXPECT_EQ(LoadedMenu(), nullptr);
  EXPECT_EQ(MenuLines().system, nullptr);
  EXPECT_FALSE(MenuLines().watch.IsGone());
  ForgetMenuLines();
  NoteRecentCommand(L"TWall\n");
}

TEST(MenuDoor, ReturnsTheRegisteredMenu) {
  LoadedMenuDouble menu;
  EXPECT_EQ(TheMenuInForce(), &menu);
  EXPECT_EQ(LoadedMenu(), &menu.system);
  NoteRecentCommand(L"TWall\n");
  EXPECT_EQ(menu.system.m_recent.Length(), 1);
  const qvx::LineSources lines = MenuLines();
  EXPECT_EQ(lines.system, &menu.system);
  ForgetMenuLines();
  EXPECT_TRUE(lines.watch.IsGone());
}
