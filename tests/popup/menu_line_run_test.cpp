// The effect of choosing a line of a pop-up.
#include "popup/menu_line_run.h"

#include <gtest/gtest.h>

#include "tests/screenmenu/menu_fixture.h"

namespace {

using namespace fixture;

class DiaryHost : public MenuLineHost {
 public:
  qvx::LineSources Lines() override { return {&lisp}; }
  void UpdateStatusBar() override { diary.push_back(L"panes"); }
  void RefreshSwitches() override { diary.push_back(L"rows"); }
  void Print(const wchar_t* text) override { Note(L"print ", text); }
  void TailCommand(const wchar_t* text) override { Note(L"tail ", text); }
  void AddRecent(const wchar_t* command) override {
    Note(L"recent ", command);
    recent.AddRecent(command);
  }
  void SendToHost(const wchar_t* text) override { Note(L"send ", text); }

  FakeLisp lisp;
  TMenuStack recent;
  std::vector<std::wstring> diary;

 private:
  void Note(const wchar_t* what, const wchar_t* text) {
    diary.push_back(std::wstring(what) + text);
  }
};

using Words = std::vector<std::wstring>;

class RunLine : public testing::Test {
 protected:
  TMenuItem* Line(int id, const wchar_t* label, const wchar_t* command) {
    TMenuItem* line = AddLine(bar, label, command);
    line->m_nCommandId = id;
    return line;
  }
  DiaryHost host;  // outlives the bar, whose lines may show its recent list
  TMenuBar bar;
};

TEST_F(RunLine, ACommandIsAddedToTheRecentListAndSentUnchanged) {
  Line(2000, L"墙", L"TWall\n");
  EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 1);
  EXPECT_EQ(host.diary, (Words{L"recent TWall\n", L"send TWall\n"}));
}

TEST_F(RunLine, AnUnknownNumberASeparatorAndASubMenuRunNothing) {
  Line(2000, L"--", L"A\n");
  AddHeader(bar, L"下");
  bar.At(1)->m_nCommandId = 2000;
  EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 0);
  EXPECT_EQ(ExecuteMenuLine(bar, 1, host), 0);
  EXPECT_TRUE(host.diary.empty());
}

TEST_F(RunLine, ALineOfASubMenuIsFoundByItsNumber) {
  AddLine(*AddHeader(bar, L"下"), L"墙", L"TWall\n")->m_nCommandId = 2000;
  EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 1);
  EXPECT_EQ(host.diary.back(), L"send TWall\n");
}

TEST_F(RunLine, ASwitchAdvancesAndRefreshesPanesAndRowsWhateverItReturns) {
  const auto toggle = MakeSwitch(L"get", L"set", {L"关", L"开"});
  TMenuItem* line = AddSwitchLine(bar, *toggle);
  line->m_nCommandId = 2000;
  line->m_strCommand = L"never sent\n";
  for (int way = 0; way < 2; ++way) {
    if (way == 0) host.lisp.Number(L"set", 1);
    if (way == 1) host.lisp.Fail(L"set");
    host.diary.clear();
    EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 1);
    EXPECT_EQ(host.diary, (Words{L"panes", L"rows"})) << way;
  }
  EXPECT_EQ(host.lisp.diary, (Words{L"set", L"set"}));
}

TEST_F(RunLine, AnEmptyCommandPrintsTheLabel) {
  Line(2000, L"说明", L"");
  EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 1);
  EXPECT_EQ(host.diary, Words{L"print 说明"});
}

TEST_F(RunLine, AStarOpensTheScreenMenuWithoutARecentEntry) {
  Line(2000, L"墙体", L"*墙体");
  Line(2001, L"星", L"*");
  EXPECT_EQ(ExecuteMenuLine(bar, 2000, host), 1);
  EXPECT_EQ(ExecuteMenuLine(bar, 2001, host), 1);
  EXPECT_EQ(host.diary, (Words{L"tail 墙体", L"tail "}));
}

// The chosen entry is deleted when its command moves to the front of the list.
TEST_F(RunLine, ARecentCommandRunsAgainAlthoughItsOwnLineIsDeleted) {
  for (const wchar_t* command : {L"C\n", L"B\n", L"A\n"}) host.recent.AddRecent(command);
  TMenuItem* header = AddLine(bar, L"最近命令", L"*Recent");
  header->m_pSubMenu = &host.recent;
  for (int i = 0; i < 3; ++i) host.recent.At(i)->m_nCommandId = 2000 + i;
  EXPECT_EQ(ExecuteMenuLine(bar, 2002, host), 1);
  EXPECT_EQ(host.diary, (Words{L"recent C\n", L"send C\n"}));
  EXPECT_EQ(host.recent.At(0)->m_strCommand, L"C\n");
  EXPECT_EQ(host.recent.Length(), 3);
}

}  // namespace
