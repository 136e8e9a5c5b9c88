// REDO, and the undo steps of document locks.
#include "axlock.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class Redo : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
  }
  AcDbText& MakeText() {
    Send(L"TEXT 0,0 2.5 0 原文\n");
    return *AcDbText::cast(Entities().back());
  }
  // What an editor without a command does.
  void WriteLocked(AcDbText& text, const wchar_t* by) {
    AcAxDocLock lock;
    AcDbText* open = nullptr;
    ASSERT_EQ(Acad::eOk, acdbOpenObject(open, text.objectId(), AcDb::kForWrite));
    open->setTextString(by);
    open->close();
  }

  Document* document = nullptr;
};

}  // namespace

TEST_F(Redo, BringsBackAnAddedEntity) {
  Send(L"LINE 0,0 1,0 \nU\n");
  ASSERT_TRUE(Entities().empty());
  Send(L"REDO\n");
  EXPECT_EQ(1u, Entities().size());
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());
}

TEST_F(Redo, ErasesMovesAndWritesAgain) {
  AcDbText& text = MakeText();
  Send(L"LINE 0,0 10,0 \n");
  Send(L"MOVE L  0,0 5,7\n");
  Send(L"ERASE L \n");
  RunAll();
  WriteLocked(text, L"新");
  Send(L"U\nU\nU\n");
  EXPECT_STREQ(L"原文", text.textStringConst());
  ASSERT_EQ(2u, Entities().size());
  const auto* line = AcDbLine::cast(Entities().back());
  EXPECT_DOUBLE_EQ(0, line->startPoint().y);
  Send(L"REDO\n");
  EXPECT_DOUBLE_EQ(7, line->startPoint().y);
  Send(L"REDO\nREDO\n");
  EXPECT_EQ(1u, Entities().size());
  EXPECT_STREQ(L"新", text.textStringConst());
  Send(L"U\nU\nU\n");
  EXPECT_STREQ(L"原文", text.textStringConst());
  EXPECT_DOUBLE_EQ(0, line->startPoint().y);
}

TEST_F(Redo, SetsVariablesAndTheUserSystemAgain) {
  Send(L"SETVAR ORTHOMODE 1\nUCS 5,6\n");
  Send(L"U\nU\n");
  EXPECT_EQ(L"0", Var(L"ORTHOMODE"));
  EXPECT_EQ(0, document->database()->ucsorg().x);
  Send(L"REDO\nREDO\n");
  EXPECT_EQ(L"1", Var(L"ORTHOMODE"));
  EXPECT_EQ(5, document->database()->ucsorg().x);
}

TEST_F(Redo, EndsWithTheNextChange) {
  Send(L"LINE 0,0 1,0 \nU\nREGEN\n");
  Send(L"CIRCLE 0,0 1\nREDO\n");
  ASSERT_EQ(1u, Entities().size());
  EXPECT_TRUE(AcDbCircle::cast(Entities()[0]));
  EXPECT_NE(std::wstring::npos, ui.printed.find(L"没有可重做的内容。"));
}

TEST_F(Redo, SurvivesACommandThatChangesNothing) {
  Send(L"LINE 0,0 1,0 \nU\nREGEN\nREDO\n");
  EXPECT_EQ(1u, Entities().size());
}

TEST_F(Redo, UndoneStepsMarkTheDrawingAsModified) {
  Send(L"LINE 0,0 1,0 \n");
  acdbSetDbmod(document->database(), 0);
  Send(L"U\n");
  EXPECT_EQ(L"1", Var(L"DBMOD"));
}

TEST_F(Redo, LocksWithoutIdleTimeBetweenAreOneStep) {
  AcDbText& text = MakeText();
  WriteLocked(text, L"一");
  WriteLocked(text, L"二");
  WriteLocked(text, L"三");
  Send(L"U\n");
  EXPECT_STREQ(L"原文", text.textStringConst());
  Send(L"REDO\n");
  EXPECT_STREQ(L"三", text.textStringConst());
}

TEST_F(Redo, IdleTimeSeparatesTheStepsOfLocks) {
  AcDbText& text = MakeText();
  WriteLocked(text, L"一");
  RunAll();
  WriteLocked(text, L"二");
  Send(L"U\n");
  EXPECT_STREQ(L"一", text.textStringConst());
}

TEST_F(Redo, ALockNeverJoinsTheStepOfACommand) {
  AcDbText& text = MakeText();
  host.engine.RunWaiting();
  document->input.Append(L"LINE 0,0 1,0 \n");
  while (host.engine.RunWaiting()) {
  }
  WriteLocked(text, L"一");
  Send(L"U\n");
  EXPECT_STREQ(L"原文", text.textStringConst());
  EXPECT_EQ(2u, Entities().size());
}

TEST_F(Redo, ALockAfterAnUndoIsAStepOfItsOwn) {
  AcDbText& text = MakeText();
  WriteLocked(text, L"一");
  Send(L"LINE 0,0 1,0 \n");
  UndoLatestStep(*document);
  WriteLocked(text, L"二");
  Send(L"U\n");
  EXPECT_STREQ(L"一", text.textStringConst());
}

// An editor that commits its text when a command starts.
TEST_F(Redo, ATextWrittenAtTheStartOfACommandIsAStepOfItsOwn) {
  struct Commit : AcEditorReactor {
    Commit() { acedEditor->addReactor(this); }
    ~Commit() override { acedEditor->removeReactor(this); }
    void commandWillStart(const ACHAR* name) override {
      if (std::wstring(name) != L"LINE") return;
      write();
      write();
    }
    std::function<void()> write;
  } commit;
  AcDbText& text = MakeText();
  int writes = 0;
  commit.write = [&] { WriteLocked(text, ++writes == 1 ? L"一" : L"二"); };
  Send(L"LINE 0,0 1,0 \n");
  EXPECT_STREQ(L"二", text.textStringConst());
  Send(L"U\n");
  EXPECT_EQ(1u, Entities().size());
  EXPECT_STREQ(L"二", text.textStringConst());
  Send(L"U\n");
  EXPECT_STREQ(L"原文", text.textStringConst());
}
