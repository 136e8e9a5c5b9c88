// LISP: functions of modules, symbols, and expressions on the command line.
#include "devhost/core/host/command_list.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

std::vector<std::wstring> g_calls;

// A module with four functions: one returns its arguments, one fails, one is a command, one
// adds a line.
int Entry(int message, void* packet) {
  switch (message) {
    case AcRx::kInitAppMsg:
      acrxUnlockApplication(packet);
      break;
    case AcRx::kLoadDwgMsg:
      acedDefun(L"echo", 0);
      acedDefun(L"fails", 1);
      acedDefun(L"C:TGo", 2);
      acedDefun(L"draws", 3);
      break;
    case AcRx::kInvkSubrMsg: {
      const int code = acedGetFunCode();
      g_calls.push_back(std::to_wstring(code));
      if (code == 1) return AcRx::kRetError;
      if (code == 3) {
        AcDbBlockTableRecord* space = nullptr;
        if (acdbOpenObject(space,
                           acdbHostApplicationServices()->workingDatabase()->currentSpaceId(),
                           AcDb::kForWrite) == Acad::eOk) {
          space->appendAcDbEntity(new AcDbLine({0, 0, 0}, {1, 1, 0}));
          space->close();
        }
      }
      resbuf* args = acedGetArgs();
      if (code == 0)
        acedRetList(args);
      else
        acedRetVoid();
      if (args) acutRelRb(args);
      break;
    }
    default:
      break;
  }
  return AcRx::kRetOK;
}

}  // namespace

class Lisp : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_calls.clear();
    modules.entries[L"lisp.arx"] = Entry;
    MakeFile("lisp.arx", "");
    NewDrawing();
    ASSERT_TRUE(acrxLoadModule(L"lisp.arx", false));
  }
  // The output of the command line for an expression.
  std::wstring Shown(const std::wstring& expression) {
    ui.printed.clear();
    Send(expression + L"\n");
    const std::wstring echo = expression + L"\n";
    const std::size_t at = ui.printed.find(echo);
    std::wstring rest = at == std::wstring::npos ? ui.printed : ui.printed.substr(at + echo.size());
    while (!rest.empty() && rest.back() == L'\n') rest.pop_back();
    return rest;
  }
  int Invoke(const wchar_t* name, resbuf** result) {
    resbuf* call = acutBuildList(RTSTR, name, RTNONE);
    const int status = acedInvoke(call, result);
    acutRelRb(call);
    return status;
  }
};

TEST_F(Lisp, AModulesFunctionIsCalledThroughItsEntryPoint) {
  resbuf* result = nullptr;
  ASSERT_EQ(Invoke(L"draws", &result), RTNORM);
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(result->restype, RTNIL);
  acutRelRb(result);
  EXPECT_EQ(g_calls, std::vector<std::wstring>{L"3"});
  EXPECT_EQ(Entities().size(), 1u);  // the call may write, also in the message loop
  EXPECT_EQ(Journal("lisp"), std::vector<std::string>{"DRAWS nil"});
}

TEST_F(Lisp, AMissingFunctionAndAFailingOneAreErrors) {
  resbuf* result = nullptr;
  EXPECT_EQ(Invoke(L"nosuch", &result), RTERROR);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(Invoke(L"fails", &result), RTERROR);
  EXPECT_EQ(acedInvoke(nullptr, &result), RTERROR);
}

TEST_F(Lisp, OutsideACallThereIsNoFunctionCode) {
  EXPECT_EQ(acedGetFunCode(), RTERROR);
  EXPECT_EQ(acedRetInt(1), RTERROR);
  EXPECT_EQ(acedGetArgs(), nullptr);
}

TEST_F(Lisp, AFunctionWithTheCommandPrefixIsACommand) {
  Send(L"tgo\n");
  EXPECT_EQ(g_calls, std::vector<std::wstring>{L"2"});
  EXPECT_EQ(Journal("command"), (std::vector<std::string>{"start TGO", "end TGO ok"}));
}

TEST_F(Lisp, FunctionsAndSymbolsBelongToOneDrawing) {
  Send(L"(setq a 5)\n");
  Document* first = host.documents.Current();
  NewDrawing();
  EXPECT_EQ(Shown(L"!a"), L"nil");
  EXPECT_EQ(Shown(L"(echo 1 2)"), L"(1 2)");  // also defined in the new drawing
  host.documents.Activate(first);
  EXPECT_EQ(Shown(L"!a"), L"5");
}

TEST_F(Lisp, SymbolsPassBetweenModulesAndExpressions) {
  resbuf* value = acutBuildList(RTSTR, L"C:\\路径", RTNONE);
  ASSERT_EQ(acedPutSym(L"_prefix", value), RTNORM);
  acutRelRb(value);
  EXPECT_EQ(Shown(L"!_PREFIX"), L"\"C:\\\\路径\"");
  Send(L"(setq n (+ 1 2.5))\n");
  ASSERT_EQ(acedGetSym(L"N", &value), RTNORM);
  EXPECT_EQ(value->restype, RTREAL);
  EXPECT_EQ(value->resval.rreal, 3.5);
  acutRelRb(value);
  ASSERT_EQ(acedPutSym(L"n", nullptr), RTNORM);
  EXPECT_EQ(Shown(L"!n"), L"nil");
}

TEST_F(Lisp, ExpressionsAreEvaluated) {
  EXPECT_EQ(Shown(L"(setq a 1)"), L"1");
  EXPECT_EQ(Shown(L"(list a 2 \"x y\" 'sym)"), L"(1 2 \"x y\" SYM)");
  EXPECT_EQ(Shown(L"(quote (1 (2 3)))"), L"(1 (2 3))");
  EXPECT_EQ(Shown(L"(progn (setq b 4) (- b 1))"), L"3");
  EXPECT_EQ(Shown(L"(getvar \"CMDECHO\")"), L"1");
  EXPECT_EQ(Shown(L"(setvar \"TEXTSIZE\" 3.5)"), L"3.5");
  EXPECT_EQ(Var(L"TEXTSIZE"), L"3.5");
}

TEST_F(Lisp, ErrorsInExpressionsAreReported) {
  EXPECT_EQ(Shown(L"(nosuch 1)"), L"; 错误: 没有函数定义: NOSUCH");
  EXPECT_EQ(Shown(L"(fails)"), L"; 错误: FAILS 失败");
  EXPECT_EQ(Shown(L"(setq 1 2)"), L"; 错误: setq 需要符号");
  EXPECT_EQ(Shown(L"(+ \"a\" 1)"), L"; 错误: 参数类型错误");
}

TEST_F(Lisp, AnExpressionMaySpanSeveralLines) { EXPECT_EQ(Shown(L"(list 1\n2)"), L"(1 2)"); }

TEST_F(Lisp, AnExpressionAnswersARequestForInput) {
  Send(L"(setq r \"7,7\") LINE 0,0 !r (list 3 4.5) \x1b");
  ASSERT_EQ(Entities().size(), 2u);
  EXPECT_EQ(AcDbLine::cast(Entities()[0])->endPoint().x, 7);
  EXPECT_EQ(AcDbLine::cast(Entities()[1])->endPoint().y, 4.5);
}

TEST_F(Lisp, TheFormCommandRunsACommand) {
  Send(L"(command \"_LINE\" \"0,0\" \"2,2\" \"\")\n");
  EXPECT_EQ(Entities().size(), 1u);
}

TEST_F(Lisp, ClosingTheDrawingInAnExpressionWaitsForItsEnd) {
  Send(L"(progn (command \"_CLOSE\") (setq a 1))\n");
  EXPECT_EQ(acDocManager->documentCount(), 0);
}

TEST_F(Lisp, AThousandNestedBracketsAreRejected) {
  const std::wstring deep = std::wstring(1000, L'(') + std::wstring(1000, L')');
  EXPECT_EQ(Shown(deep), L"; 错误: 括号嵌套太深");
}

TEST_F(Lisp, UndefiningRemovesTheFunction) {
  EXPECT_EQ(acedUndef(L"ECHO", 7), RTERROR);
  EXPECT_EQ(acedUndef(L"ECHO", 0), RTNORM);
  EXPECT_EQ(Shown(L"(echo 1)"), L"; 错误: 没有函数定义: ECHO");
}

TEST_F(Lisp, TheListOfCommandsHasCommandsAndInParenthesesFunctions) {
  const devhost::Document* document =
      TheHost().documents.FindDocument(TheHost().documents.curDocument());
  const std::string list = "\n" + ListOfCommands(TheHost().commands, *document);
  for (const char* line : {"\nLINE\n", "\nERASE\n", "\nTGO\n", "\n(ECHO)\n", "\n(C:TGO)\n",
                           "\n(SETQ)\n", "\n(COMMAND)\n"})
    EXPECT_NE(list.find(line), std::string::npos) << line << list;
  EXPECT_EQ(list.find("\nECHO\n"), std::string::npos);
  EXPECT_LT(list.find("\nERASE\n"), list.find("\nLINE\n"));
  EXPECT_EQ(list.find("\nERASE\n"), list.rfind("\nERASE\n"));
}
