// The door to the host over the real host core: sending, busy or idle, printing, variables, LISP.
#include "ground/command_line.h"

#include "ground/host_lisp.h"
#include "ground/host_variables.h"
#include "ground/support_files.h"
#include "tests/hostcore/host_fixture.h"

namespace {

std::vector<std::wstring> g_seen;

void PrintInside() { qvx::PrintOutsideCommand(L"<开>"); }
void NoteBusy() { g_seen.push_back(qvx::IsBusy(qvx::AskHostActivity()) ? L"busy" : L"idle"); }

class HostDoor : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_seen.clear();
    auto& commands = static_cast<AcEdCommandStack&>(host.commands);
    commands.addCommand(L"TEST", L"TPrint", L"TPrint", ACRX_CMD_MODAL, PrintInside);
    commands.addCommand(L"TEST", L"TBusy", L"TBusy", ACRX_CMD_MODAL, NoteBusy);
  }
  void TearDown() override {
    host.commands.removeGroup(L"TEST");
    HostTest::TearDown();
  }
};

}  // namespace

TEST(BusyCheck, AnActiveCommandOrANamedOneIsBusy) {
  EXPECT_FALSE(qvx::IsBusy({0, TWCString(L"")}));
  EXPECT_TRUE(qvx::IsBusy({1, TWCString(L"")}));
  EXPECT_TRUE(qvx::IsBusy({0, TWCString(L"LINE")}));
}

TEST_F(HostDoor, SentTextRunsInTheCurrentDocumentAndNothingHappensWithoutOne) {
  qvx::SendToHost(L"tbusy\n");
  RunAll();
  EXPECT_TRUE(Journal("sent").empty());
  NewDrawing();
  qvx::SendToHost(L"tbusy\n");
  RunAll();
  EXPECT_EQ(Journal("sent"), std::vector<std::string>{"tbusy\n"});
  NoteBusy();
  EXPECT_EQ(g_seen, (std::vector<std::wstring>{L"busy", L"idle"}));
}

TEST_F(HostDoor, TextPrintedOutsideACommandIsFollowedByThePromptOnlyWhenNoneIsActive) {
  NewDrawing();
  ui.printed.clear();
  PrintInside();
  EXPECT_EQ(ui.printed, L"<开>\n");
  Send(L"tprint\n");
  const std::size_t inside = ui.printed.rfind(L"<开>");
  ASSERT_NE(inside, 0u) << "the command printed";
  EXPECT_NE(ui.printed.substr(inside, 4), L"<开>\n");
}

TEST_F(HostDoor, AVariableOfAnotherTypeGivesNothing) {
  NewDrawing();
  EXPECT_EQ(qvx::ShortVariable(L"CMDACTIVE"), 0);
  EXPECT_FALSE(qvx::ShortVariable(L"CPROFILE"));
  EXPECT_FALSE(qvx::ShortVariable(L"NOSUCHVARIABLE"));
  EXPECT_STREQ(qvx::TextVariable(L"CPROFILE"), L"测试");
  EXPECT_STREQ(qvx::TextVariable(L"CMDACTIVE"), L"");
  std::wstring text = L"before";
  EXPECT_FALSE(qvx::VariableAsText(L"NOSUCHVARIABLE", text));
  EXPECT_EQ(text, L"before");
  EXPECT_TRUE(qvx::VariableAsText(L"CMDACTIVE", text));
  EXPECT_EQ(text, L"0");
}

TEST_F(HostDoor, AFileOnTheSupportPathIsFoundAndOtherwiseThePathStays) {
  MakeFile("here.txt", "");
  TWCString path(L"before");
  EXPECT_FALSE(qvx::FindFile(L"missing.txt", path));
  EXPECT_FALSE(qvx::FindFile(L"missing.txt"));
  EXPECT_STREQ(path, L"before");
  EXPECT_TRUE(qvx::FindFile(L"here.txt"));
  EXPECT_TRUE(qvx::FindFile(L"here.txt", path));
  EXPECT_TRUE(std::filesystem::exists(static_cast<const wchar_t*>(path)));
  EXPECT_TRUE(qvx::FindHostFile(L"here.txt", path));
}

TEST_F(HostDoor, ALispFunctionThatIsNotDefinedFails) {
  NewDrawing();
  bool called = true;
  EXPECT_FALSE(qvx::InvokeLisp(L"NoSuchFunction", &called));
  EXPECT_FALSE(called);
  EXPECT_FALSE(qvx::HostLisp().Call(L"NoSuchFunction").called);
}
