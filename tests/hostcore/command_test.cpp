// Commands, the input queue, CMDACTIVE and CMDNAMES.
#include "acedcmdnf.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

std::vector<std::wstring> g_seen;
std::wstring Text(const wchar_t* name) {
  std::wstring value;
  TheHost().variables.Get(name, &value);
  return value;
}
void Look() { g_seen.push_back(Text(L"CMDACTIVE") + L" " + Text(L"CMDNAMES")); }
void Ask() {
  ACHAR text[140];
  const int status = acedGetString(1, L"说: ", text);
  g_seen.push_back(status == RTNORM ? L"said " + std::wstring(text)
                                    : L"status " + std::to_wstring(status));
}
void AskPoint() {
  ads_point p{};
  const int status = acedGetPoint(nullptr, L"点: ", p);
  g_seen.push_back(status == RTNORM ? L"point " + std::to_wstring(static_cast<int>(p[0]))
                                    : L"status " + std::to_wstring(status));
}

}  // namespace

class Commands : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_seen.clear();
    Add(L"TLook", ACRX_CMD_MODAL, Look);
    Add(L"TLookThrough", ACRX_CMD_TRANSPARENT, Look);
    Add(L"TAsk", ACRX_CMD_MODAL, Ask);
    Add(L"TAskPoint", ACRX_CMD_MODAL, AskPoint);
    Add(L"TKeep", ACRX_CMD_USEPICKSET, Look);
    NewDrawing();
  }
  void TearDown() override {
    host.commands.removeGroup(L"TEST");
    HostTest::TearDown();
  }
  void Add(const wchar_t* name, int flags, AcRxFunctionPtr function) {
    ASSERT_EQ(static_cast<AcEdCommandStack&>(host.commands)
                  .addCommand(L"TEST", name, name, flags, function),
              Acad::eOk);
  }
};

TEST_F(Commands, SentTextRunsTheNamedCommand) {
  Send(L"tlook\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"1 TLOOK"});
  EXPECT_EQ(Var(L"CMDACTIVE"), L"0");
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
  EXPECT_EQ(Journal("command"), (std::vector<std::string>{"start TLOOK", "end TLOOK ok"}));
  EXPECT_EQ(Journal("sent"), std::vector<std::string>{"tlook\n"});
}

TEST_F(Commands, ABlankEndsATokenToo) {
  Send(L"TLook TLook ");
  EXPECT_EQ(g_seen.size(), 2u);
}

TEST_F(Commands, AnUnfinishedTokenIsNotRun) {
  Send(L"TLo");
  EXPECT_TRUE(g_seen.empty());
  EXPECT_FALSE(host.engine.HasPendingInput());
  Send(L"ok\n");
  EXPECT_EQ(g_seen.size(), 1u);
}

TEST_F(Commands, AnUnknownCommandIsReportedAndTheNextOneRuns) {
  Send(L"Nonsense\nTLook\n");
  EXPECT_NE(ui.printed.find(L"未知命令“NONSENSE”"), std::wstring::npos);
  EXPECT_EQ(g_seen.size(), 1u);
}

TEST_F(Commands, EnterAloneRepeatsTheLastCommand) {
  Send(L"TLook\n");
  Send(L"\n");
  EXPECT_EQ(g_seen.size(), 2u);
}

TEST_F(Commands, EscapeCancelsTheWaitingCommandAndTheNextTextRuns) {
  Then([&] { host.documents.Current()->input.Append(L"\x1b\x1bTLook\n"); });
  Send(L"TAskPoint\n");
  EXPECT_EQ(g_seen, (std::vector<std::wstring>{L"status -5002", L"1 TLOOK"}));
  EXPECT_EQ(Journal("command")[1], "end TASKPOINT cancelled");
}

TEST_F(Commands, InputBeforeAnEscapeIsUsedBeforeItCancels) {
  Send(L"LINE 0,0 10,0 \x1bTLook\n");
  EXPECT_EQ(Entities().size(), 1u);
  EXPECT_EQ(g_seen.size(), 1u);
}

TEST_F(Commands, AnUnfinishedTokenIsDiscardedByEscape) {
  Send(L"TAs\x1bTLook\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"1 TLOOK"});
  EXPECT_EQ(ui.printed.find(L"未知命令"), std::wstring::npos);
}

TEST_F(Commands, TextWithBlanksAnswersARequestForText) {
  Send(L"TAsk\nhello big world\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"said hello big world"});
}

TEST_F(Commands, ATextInBracketsIsNotAnExpressionWhereBlanksAreAllowed) {
  Send(L"TAsk\n(see (below\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"said (see (below"});
}

TEST_F(Commands, APointIsTypedClickedOrOmitted) {
  Send(L"TAskPoint 12,5\n");
  Then([&] { host.engine.EnterPoint({7, 8, 0}); });
  Send(L"TAskPoint\n");
  Send(L"TAskPoint\n\n");
  EXPECT_EQ(g_seen, (std::vector<std::wstring>{L"point 12", L"point 7", L"status 5000"}));
}

TEST_F(Commands, AnInvalidPointIsRequestedAgain) {
  Send(L"TAskPoint nonsense 3,4\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"point 3"});
  EXPECT_NE(ui.printed.find(L"点无效"), std::wstring::npos);
}

TEST_F(Commands, ATransparentCommandRunsInsideAWaitingCommand) {
  Send(L"TAskPoint 'TLookThrough 3,4\n");
  EXPECT_EQ(g_seen, (std::vector<std::wstring>{L"3 TASKPOINT'TLOOKTHROUGH", L"point 3"}));
}

TEST_F(Commands, AModalCommandIsNotTransparent) {
  Send(L"TAskPoint 'TLook 3,4\n");
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"point 3"});
  EXPECT_NE(ui.printed.find(L"不能透明使用"), std::wstring::npos);
}

TEST_F(Commands, CancellingATransparentCommandDoesNotCancelTheOuterOne) {
  Add(L"TAskThrough", ACRX_CMD_TRANSPARENT, AskPoint);
  Send(
      L"TAskPoint 'TAskThrough \x1b"
      L"3,4\n");
  EXPECT_EQ(g_seen, (std::vector<std::wstring>{L"status -5002", L"point 3"}));
  EXPECT_EQ(Journal("command").back(), "end TASKPOINT ok");
}

TEST_F(Commands, OnlyCommandsThatUseThePickFirstSetKeepIt) {
  Send(L"LINE 0,0 10,0 \n");
  host.documents.Current()->pickFirst = {Entities()[0]->objectId()};
  Send(L"TKeep\n");
  EXPECT_EQ(host.documents.Current()->pickFirst.size(), 1u);
  Send(L"TLook\n");
  EXPECT_TRUE(host.documents.Current()->pickFirst.empty());
}

TEST_F(Commands, ADuplicateNameInAGroupIsRejected) {
  auto& stack = static_cast<AcEdCommandStack&>(host.commands);
  EXPECT_EQ(stack.addCommand(L"TEST", L"TLOOK", L"TLOOK", 0, Look), Acad::eDuplicateKey);
  EXPECT_EQ(stack.removeGroup(L"NOGROUP"), Acad::eKeyNotFound);
}

TEST_F(Commands, TheRegistryHasTheStackUnderItsPublishedName) {
  AcRxObject* found = acrxSysRegistry()->at(ACRX_CMDS);
  ASSERT_NE(found, nullptr);
  EXPECT_TRUE(found->isA()->isDerivedFrom(AcEdCommandStack::desc()));
  EXPECT_EQ(acrxSysRegistry()->at(L"Nothing"), nullptr);
}

TEST_F(Commands, ACommandWithInputRunsInsideAnother) {
  Add(
      L"TNest", ACRX_CMD_MODAL, +[] {
        acedCommandS(RTSTR, L"_LINE", RTSTR, L"0,0", RTSTR, L"5,5", RTSTR, L"", RTNONE);
        g_seen.push_back(std::to_wstring(acedCommandS(RTSTR, L"NoSuch", RTNONE)));
      });
  Send(L"TNest\n");
  EXPECT_EQ(Entities().size(), 1u);
  EXPECT_EQ(g_seen, std::vector<std::wstring>{std::to_wstring(RTERROR)});
}

TEST_F(Commands, MissingInputCancelsANestedCommandOnly) {
  Add(
      L"TNest", ACRX_CMD_MODAL, +[] { acedCommandS(RTSTR, L"_LINE", RTSTR, L"0,0", RTNONE); });
  Send(L"TNest\nTLook\n");
  EXPECT_TRUE(Entities().empty());
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"1 TLOOK"});
}

TEST_F(Commands, KeywordsMayBeAbbreviatedToTheirCapitals) {
  static int status;
  static std::wstring word;
  Add(
      L"TWord", ACRX_CMD_MODAL, +[] {
        ACHAR text[140] = L"";
        acedInitGet(1, L"Model Layout LAst");
        status = acedGetKword(L"选: ", text);
        word = text;
      });
  Send(L"TWord la\n");
  EXPECT_EQ(status, RTNORM);
  EXPECT_EQ(word, L"LAst");
  Send(L"TWord x L\n");
  EXPECT_EQ(word, L"Layout");
}

TEST_F(Commands, TheEndOfTheProgramCancelsTheWaitingCommand) {
  Send(L"TAskPoint\n");  // no round left: the pump reports the end of the program
  EXPECT_EQ(g_seen, std::vector<std::wstring>{L"status -5002"});
}

TEST_F(Commands, QuitEndsTheProgram) {
  Send(L"QUIT\n");
  EXPECT_TRUE(ui.ended);
}

TEST_F(Commands, PrintedStringsAreWideForEveryFormat) {
  acutPrintf(L"%s %ls %d%%|%5s", L"墙体", L"门窗", 3, L"x");
  EXPECT_EQ(ui.printed, L"墙体 门窗 3%|    x");
  EXPECT_EQ(Journal("printed"), std::vector<std::string>{"墙体 门窗 3%|    x"});
}

TEST_F(Commands, ALongTextIsPrintedCompletely) {
  const std::wstring text(5000, L'长');
  acutPrintf(L"%s", text.c_str());
  EXPECT_TRUE(ui.printed == text) << ui.printed.size();
}
