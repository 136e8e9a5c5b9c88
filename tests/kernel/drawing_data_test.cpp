// The kernel's data of open drawings: when it is ready, which command runs, what was typed and what
// was selected; and the state of the host that is read from it.
#include <gtest/gtest.h>

#include "kernel/current_drawing.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/host_state.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class DrawingData : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginCurrentDrawing();
    s_seen.clear();
    AddCommand(L"OUTER", ACRX_CMD_USEPICKSET, [] {
      Note();
      int answer = 0;
      acedGetInt(L"n: ", &answer);
      Note();
    });
    AddCommand(L"INNER", ACRX_CMD_TRANSPARENT, NoteIfThere);
  }
  void TearDown() override {
    EndCurrentDrawing();
    HostTest::TearDown();
  }

  void AddCommand(const wchar_t* name, int flags, AcRxFunctionPtr function) {
    AcEdCommandStack& commands = host.commands;
    commands.addCommand(L"TEST", name, name, flags, function);
  }
  static void NoteIfThere() {
    if (GetCurDocData()) Note();
  }
  static void Note() {
    s_seen.push_back(GetCurDocData()->CurCmdName());
    s_seen.push_back(IsAcadIdle() ? L"idle" : L"busy");
    s_seen.push_back(std::to_wstring(DocGetPickFirst().Length()));
  }
  static void Type(const char* text) {
    for (; *text; ++text) GetCurDocData()->OnAcadChar(*text, 1, 0);
  }
  AcDbObjectId AddLine(double x) {
    auto* line = new AcDbLine({x, 0, 0}, {x, 9, 0});
    AcDbBlockTableRecord::cast(host.documents.Current()->database()->currentSpaceId().object())
        ->appendAcDbEntity(line);
    return line->objectId();
  }

  static inline std::vector<std::wstring> s_seen;
};

using Seen = std::vector<std::wstring>;

TEST_F(DrawingData, WithoutADrawingThereIsNone) {
  EXPECT_EQ(nullptr, GetCurDocData());
  EXPECT_EQ(0, DocGetPickFirst().Length());
  EXPECT_FALSE(IsAcadIdle());
  EXPECT_TRUE(IsCommandLineEmpty());
  EXPECT_FALSE(IsLispExpress());
  ClearKeyboardBuffer();
}

TEST_F(DrawingData, ADrawingIsReadyOnceDocStatusWasCalledInItsContext) {
  modules.entries[L"shell.arx"] = [](int message, void* packet) {
    if (message == AcRx::kInitAppMsg) acrxUnlockApplication(packet);
    if (message == AcRx::kLoadDwgMsg) {
      s_seen.push_back(std::to_wstring(GetCurDocData()->m_bReady));
      DocStatus();
    }
    return 0;
  };
  devhost::Document& first = NewDrawing();
  EXPECT_EQ(0, GetCurDocData()->m_bReady) << "becoming current prepares nothing";
  devhost::Document& second = NewDrawing();
  MakeFile("shell.arx", "");
  ASSERT_TRUE(acrxLoadModule(L"shell.arx", false));
  EXPECT_EQ((Seen{L"0", L"0"}), s_seen) << "each of the two in its own context";
  EXPECT_EQ(1, GetCurDocData()->m_bReady);
  acDocManager->activateDocument(&first);
  EXPECT_EQ(1, GetCurDocData()->m_bReady);
  EXPECT_EQ(first.database(), QvxGeLib::g_pCurrentDb);
  acDocManager->activateDocument(&second);
  EXPECT_EQ(1, GetCurDocData()->m_bReady);
}

TEST_F(DrawingData, ANewDrawingStartsAfreshWhereAClosedOneWas) {
  for (int i = 0; i < 20; ++i) {
    devhost::Document& drawing = NewDrawing();
    EXPECT_EQ(0, GetCurDocData()->m_bReady) << i;
    EXPECT_TRUE(GetCurDocData()->TypedText().empty());
    GetCurDocData()->m_bReady = 1;
    Type("LI");
    acDocManager->closeDocument(&drawing);
  }
}

TEST_F(DrawingData, TheCommandNameStandsWhileTheCommandRunsAndGoesBackToTheOuterOne) {
  NewDrawing();
  Send(L"OUTER 'INNER 5 ");
  EXPECT_EQ((Seen{L"OUTER", L"busy", L"0", L"INNER", L"busy", L"0", L"OUTER", L"busy", L"0"}),
            s_seen);
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
  EXPECT_TRUE(IsAcadIdle());
}

TEST_F(DrawingData, ACancelledCommandGivesItsNameBack) {
  NewDrawing();
  Send(L"OUTER \x1b");
  EXPECT_EQ(6u, s_seen.size());
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
}

TEST_F(DrawingData, AFailedCommandGivesItsNameBack) {
  NewDrawing();
  GetCurDocData()->BeginCommand(L"A");
  GetCurDocData()->BeginCommand(L"B");
  EXPECT_STREQ(L"B", GetCurDocData()->CurCmdName());
  GetCurDocData()->EndCommand();
  EXPECT_STREQ(L"A", GetCurDocData()->CurCmdName());
  GetCurDocData()->EndCommand();
  GetCurDocData()->EndCommand();
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
}

TEST_F(DrawingData, ACommandThatChangesTheDrawingEndsInItsOwn) {
  AddCommand(L"LEAVE", 0, [] { devhost::TheHost().documents.New(); });
  devhost::Document& first = NewDrawing();
  Send(L"LEAVE ");
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
  acDocManager->activateDocument(&first);
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
}

TEST_F(DrawingData, PickFirstIsWhatWasSelectedWhenTheOutermostCommandBegan) {
  devhost::Document& drawing = NewDrawing();
  drawing.pickFirst = {AddLine(0), AddLine(5)};
  EXPECT_EQ(2, DocGetPickFirst().Length());
  Then([&] {
    drawing.pickFirst.clear();
    Send(L"'INNER 1 ");
  });
  Send(L"OUTER ");
  ASSERT_EQ(9u, s_seen.size());
  EXPECT_EQ(L"2", s_seen[2]);
  EXPECT_EQ(L"2", s_seen[5]) << "an inner command does not read it again";
  EXPECT_EQ(0, DocGetPickFirst().Length());
}

TEST_F(DrawingData, ACopyOfASetIsASetOfItsOwn) {
  devhost::Document& drawing = NewDrawing();
  drawing.pickFirst = {AddLine(0), AddLine(5)};
  TPickEntSet copy;
  copy = DocGetPickFirst();
  drawing.pickFirst.clear();
  EXPECT_EQ(0, DocGetPickFirst().Length());
  ASSERT_EQ(2, copy.Length());
  EXPECT_EQ(copy[0].ObjectId(), Entities()[0]->objectId());
  EXPECT_EQ(copy[1].ObjectId(), Entities()[1]->objectId());
  copy = copy;
  EXPECT_EQ(2, copy.Length());
  copy = DocGetPickFirst();
  EXPECT_EQ(0, copy.Length());
}

TEST_F(DrawingData, AnOpenLispExpressionIsNotIdle) {
  NewDrawing();
  modules.entries[L"lisp.arx"] = [](int message, void*) {
    if (message == AcRx::kLoadDwgMsg) acedDefun(L"ask", 0);
    if (message == AcRx::kInvkSubrMsg) {
      s_seen.push_back(IsAcadIdle() ? L"idle" : L"busy");
      acedRetVoid();
    }
    return 0;
  };
  MakeFile("lisp.arx", "");
  ASSERT_TRUE(acrxLoadModule(L"lisp.arx", false));
  Send(L"(ask) ");
  EXPECT_EQ(Seen{L"busy"}, s_seen);
  EXPECT_STREQ(L"", GetCurDocData()->CurCmdName());
}

TEST_F(DrawingData, TypedCharactersMakeTheLineNotEmptyUntilEnterOrEscape) {
  NewDrawing();
  EXPECT_TRUE(IsCommandLineEmpty());
  for (char end : {'\r', '\n', '\x1b'}) {
    Type("LI");
    EXPECT_FALSE(IsCommandLineEmpty());
    GetCurDocData()->OnAcadChar(end, 1, 0);
    EXPECT_TRUE(IsCommandLineEmpty()) << int(end);
  }
  Type("LI");
  ClearKeyboardBuffer();
  EXPECT_TRUE(IsCommandLineEmpty());
}

TEST_F(DrawingData, SpaceEndsALineButNotALispExpression) {
  NewDrawing();
  Type(" ");
  EXPECT_TRUE(IsCommandLineEmpty()) << "repeats the last command";
  Type("LINE ");
  EXPECT_TRUE(IsCommandLineEmpty());
  Type("(+ 1 ");
  EXPECT_EQ("(+ 1 ", GetCurDocData()->TypedText());
  EXPECT_TRUE(IsLispExpress());
}

TEST_F(DrawingData, BackspaceTakesBackAsManyAsItRepeats) {
  NewDrawing();
  Type("ABC");
  GetCurDocData()->OnAcadChar('D', 3, 0);
  EXPECT_EQ("ABCDDD", GetCurDocData()->TypedText());
  GetCurDocData()->OnAcadChar('\b', 4, 0);
  EXPECT_EQ("AB", GetCurDocData()->TypedText());
  GetCurDocData()->OnAcadChar('\b', 9, 0);
  EXPECT_TRUE(IsCommandLineEmpty());
}

TEST_F(DrawingData, OtherControlCharactersAreNotRecorded) {
  NewDrawing();
  for (char code : {'\x01', '\t', '\x16', '\x7f', '\0'}) GetCurDocData()->OnAcadChar(code, 1, 0);
  EXPECT_TRUE(IsCommandLineEmpty());
  GetCurDocData()->OnAcadChar('\xC7', 1, 0);
  EXPECT_FALSE(IsCommandLineEmpty()) << "an ideograph";
}

TEST_F(DrawingData, TheRecordIsBounded) {
  NewDrawing();
  for (int i = 0; i < 100; ++i) GetCurDocData()->OnAcadChar('A', 65535, 0);
  EXPECT_EQ(1024u, GetCurDocData()->TypedText().size());
  GetCurDocData()->OnAcadChar('B', 0, 0);
  EXPECT_EQ(1024u, GetCurDocData()->TypedText().size());
}

TEST_F(DrawingData, EachDrawingHasItsOwnRecord) {
  devhost::Document& first = NewDrawing();
  Type("LI");
  NewDrawing();
  EXPECT_TRUE(IsCommandLineEmpty());
  acDocManager->activateDocument(&first);
  EXPECT_FALSE(IsCommandLineEmpty());
}

struct LispCase {
  const char* typed;
  bool isLisp;
};

TEST_F(DrawingData, ALispExpressionBeginsWithABracketOrHoldsAnOpenOne) {
  NewDrawing();
  for (const LispCase& c : {LispCase{"", false},
                            {"LI", false},
                            {"(", true},
                            {"(a)", true},
                            {"x(a", true},
                            {"x(a)", false},
                            {"x)(", true},
                            {"x\"(", false},
                            {"x(\")\"", true},
                            {"x(\"\\\")\"", true},
                            {"x(\"\")", false}}) {
    ClearKeyboardBuffer();
    Type(c.typed);
    EXPECT_EQ(c.isLisp, IsLispExpress()) << c.typed;
  }
}

TEST_F(DrawingData, AfterTheEndThereIsNoData) {
  NewDrawing();
  GetCurDocData()->m_bReady = 1;
  EndCurrentDrawing();
  EXPECT_EQ(nullptr, GetCurDocData());
  Send(L"INNER\n");
  BeginCurrentDrawing();
  EXPECT_EQ(0, GetCurDocData()->m_bReady);
}

}  // namespace
