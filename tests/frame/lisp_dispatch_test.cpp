#include "frame/commands/lisp_dispatch.h"

#include <gtest/gtest.h>

#include "adsdef.h"
#include "frame/commands/lisp_path.h"
#include "frame/commands/push_acad_var.h"
#include "kernel/tpushacadundo.h"
#include "tests/doubles/host_calls.h"

namespace {

using Diary = std::vector<std::wstring>;

int g_undoDepth = -1, g_echo = -1;
void NoteScope() {
  TheHostDouble().diary.push_back(L"handler");
  g_undoDepth = TPushAcadUndo::Depth();
  g_echo = TheHostDouble().variables[L"CMDECHO"];
}
const LispRow kRows[] = {{L"plain", NoteScope}, {L"C:Command", NoteScope}};

class LispDispatch : public ::testing::Test {
 protected:
  void SetUp() override {
    TheHostDouble() = {};
    TheHostDouble().variables = {{L"CMDECHO", 1}, {L"BLIPMODE", 1}};
  }
  int Dispatch(int code) {
    TheHostDouble().functionCode = code;
    return DispatchLisp(kRows, 2);
  }
};

}  // namespace

TEST_F(LispDispatch, DefinesEveryRowByItsIndex) {
  DefineLispFunctions(kRows, 2);
  EXPECT_EQ(TheHostDouble().diary, (Diary{L"defun 0 plain", L"defun 1 C:Command"}));
}

TEST_F(LispDispatch, ACommandStyleFunctionIsOneUndoGroupAndReturnsVoid) {
  EXPECT_EQ(Dispatch(1), RTNORM);
  EXPECT_EQ(TheHostDouble().diary,
            (Diary{L"CMDECHO=0", L"BLIPMODE=0", L"handler", L"void", L"BLIPMODE=1", L"CMDECHO=1"}));
  EXPECT_EQ(g_undoDepth, 1);
  EXPECT_EQ(g_echo, 0);
}

TEST_F(LispDispatch, APlainFunctionReturnsItsResultItself) {
  EXPECT_EQ(Dispatch(0), RTNORM);
  EXPECT_EQ(TheHostDouble().diary,
            (Diary{L"CMDECHO=0", L"BLIPMODE=0", L"handler", L"BLIPMODE=1", L"CMDECHO=1"}));
  EXPECT_EQ(g_undoDepth, 0);
}

TEST_F(LispDispatch, ABadCodeIsAnErrorAndTheVariablesAreRestored) {
  for (const int code : {-1, 2, 6, RTERROR}) {
    TheHostDouble().diary.clear();
    EXPECT_EQ(Dispatch(code), RTERROR);
    EXPECT_EQ(TheHostDouble().diary,
              (Diary{L"CMDECHO=0", L"BLIPMODE=0", L"BLIPMODE=1", L"CMDECHO=1"}));
  }
}

TEST_F(LispDispatch, AVariableThatCannotBeReadIsRestoredToEighty) {
  TheHostDouble().variables.clear();
  { const TPushAcadVar<int, 0> held(L"CMDECHO"); }
  EXPECT_EQ(TheHostDouble().diary, (Diary{L"CMDECHO=0", L"CMDECHO=80"}));
}

TEST_F(LispDispatch, TheLispPathIsPublishedAndItsResultReleased) {
  TheHostDouble().lispPathAnswers = true;
  PublishLispPath();
  EXPECT_EQ(TheHostDouble().diary,
            (Diary{L"_qvxatoml:nil", L"invoke", L"_prefix:C:/lisp/", L"_prefix1:C:/lisp/"}));
  EXPECT_EQ(TheHostDouble().openChains, 0);
}

TEST_F(LispDispatch, WithoutALispPathTheTwoSymbolsAreUnchanged) {
  PublishLispPath();
  EXPECT_EQ(TheHostDouble().diary, (Diary{L"_qvxatoml:nil", L"invoke"}));
}
