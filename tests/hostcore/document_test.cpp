// Drawings: opening, closing, contexts, locks and notifications.
#include "axlock.h"
#include "host_fixture.h"
#include "reactor_log.h"

using namespace devhost;
using hosttest::ReactorLog;

class Documents : public hosttest::HostTest {
 protected:
  void TearDown() override {
    acDocManager->removeReactor(&log);
    HostTest::TearDown();
  }
  ReactorLog log;
};

TEST_F(Documents, AReactorIsNotifiedInOrderWhileTheDrawingIsStillCounted) {
  acDocManager->addReactor(&log);
  Document& drawing = NewDrawing();
  const std::wstring name = drawing.Title();
  host.documents.Close(&drawing);
  EXPECT_EQ(log.lines, (std::vector<std::wstring>{
                           L"create started", L"to be activated " + name + L" of 1",
                           L"current " + name + L" of 1", L"created " + name + L" of 1",
                           L"activated " + name + L" of 1", L"to be destroyed " + name + L" of 1",
                           L"destroyed " + name}));
}

TEST_F(Documents, ClosingTheActiveOneActivatesTheOneUsedBefore) {
  Document& a = NewDrawing();
  NewDrawing();
  Document& c = NewDrawing();
  host.documents.Activate(&a);
  host.documents.Activate(&c);
  host.documents.Close(&c);
  EXPECT_EQ(host.documents.Current(), &a);
  EXPECT_EQ(acDocManager->documentCount(), 2);
}

TEST_F(Documents, AReactorMayRemoveItselfDuringANotification) {
  log.removeItself = true;
  acDocManager->addReactor(&log);
  NewDrawing();
  const std::size_t notified = log.lines.size();
  NewDrawing();
  EXPECT_EQ(log.lines.size(), notified);
}

TEST_F(Documents, EachPhaseIsRecordedInTheJournal) {
  Document& drawing = NewDrawing();
  const std::string name = Utf8(drawing.Title());
  host.documents.Close(&drawing);
  EXPECT_EQ(Journal("document"), (std::vector<std::string>{"created " + name, "activated " + name,
                                                           "destroyed " + name}));
}

TEST_F(Documents, WithoutADrawingNoneIsCurrentAndTextIsRejected) {
  EXPECT_EQ(acDocManager->curDocument(), nullptr);
  EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
  EXPECT_NE(acDocManager->sendStringToExecute(nullptr, L"LINE "), Acad::eOk);
}

TEST_F(Documents, AnOpenFileIsOnlyActivated) {
  MakeFile("plan.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  Document* first = host.documents.Open(L"plan.dxf");
  ASSERT_NE(first, nullptr);
  NewDrawing();
  EXPECT_EQ(host.documents.Open(L"plan.dxf"), first);
  EXPECT_EQ(host.documents.Current(), first);
  EXPECT_EQ(acDocManager->documentCount(), 2);
}

TEST_F(Documents, AMissingFileIsReportedAndNothingOpens) {
  acDocManager->addReactor(&log);
  EXPECT_EQ(acDocManager->appContextOpenDocument(L"nowhere.dxf"), Acad::eFileNotFound);
  EXPECT_NE(ui.printed.find(L"nowhere.dxf"), std::wstring::npos);
  EXPECT_EQ(acDocManager->documentCount(), 0);
  EXPECT_EQ(log.lines.back(), L"create cancelled");
}

TEST_F(Documents, CommandsRunInDocumentContextAndTheMessageLoopOutsideIt) {
  static bool outside, asking;
  static Acad::ErrorStatus opened;
  host.commands.addCommand(
      L"TEST", L"TCONTEXT", L"TCONTEXT", 0,
      +[] {
        outside = acDocManager->isApplicationContext();
        opened = acDocManager->appContextOpenDocument(L"plan.dxf");
        ads_point p{};
        acedGetPoint(nullptr, L"点: ", p);
      },
      nullptr, -1, AcRxResourceInstance::empty, nullptr);
  NewDrawing();
  EXPECT_TRUE(acDocManager->isApplicationContext());
  Then([] {
    asking = acDocManager->isApplicationContext();
    TheHost().engine.PressEscape();
  });
  Send(L"TCONTEXT\n");
  host.commands.removeGroup(L"TEST");
  EXPECT_FALSE(outside);
  EXPECT_TRUE(asking);
  EXPECT_EQ(opened, Acad::eNotApplicable);
}

TEST_F(Documents, WritingRequiresTheLock) {
  Document& drawing = NewDrawing();
  const AcDbObjectId space = drawing.database()->currentSpaceId();
  AcDbBlockTableRecord* record = nullptr;
  EXPECT_EQ(acdbOpenObject(record, space, AcDb::kForRead), Acad::eOk);
  EXPECT_EQ(record->upgradeOpen(), Acad::eLockViolation);
  record->close();
  EXPECT_EQ(acdbOpenObject(record, space, AcDb::kForWrite), Acad::eLockViolation);
  {
    AcAxDocLock lock;
    EXPECT_EQ(lock.lockStatus(), Acad::eOk);
    EXPECT_EQ(drawing.lockMode(), AcAp::kWrite);
    ASSERT_EQ(acdbOpenObject(record, space, AcDb::kForWrite), Acad::eOk);
    record->close();
  }
  EXPECT_EQ(drawing.lockMode(), AcAp::kNotLocked);
}

TEST_F(Documents, ALockWithoutADrawingFails) {
  AcAxDocLock lock;
  EXPECT_EQ(lock.lockStatus(), Acad::eNoDocument);
}

TEST_F(Documents, ActivatingAnotherDrawingCancelsTheWaitingCommand) {
  Document& first = NewDrawing();
  Document& second = NewDrawing();
  Then([&] { host.documents.Activate(&first); });
  Send(L"LINE 0,0\n");
  EXPECT_EQ(host.documents.Current(), &first);
  EXPECT_TRUE(second.commands.empty());
  EXPECT_EQ(Journal("command").back(), "end LINE cancelled");
}

TEST_F(Documents, ClosingDuringACommandWaitsForItsEnd) {
  Document& drawing = NewDrawing();
  Then([&] { host.documents.Close(&drawing); });
  Send(L"LINE 0,0\n");
  EXPECT_EQ(acDocManager->documentCount(), 0);
  EXPECT_EQ(Journal("command")[1], "end LINE cancelled");
}

TEST_F(Documents, CloseAndCloseAllAreCommands) {
  NewDrawing();
  NewDrawing();
  Send(L"CLOSE\n");
  EXPECT_EQ(acDocManager->documentCount(), 1);
  NewDrawing();
  Send(L"CLOSEALL\n");
  EXPECT_EQ(acDocManager->documentCount(), 0);
}

TEST_F(Documents, TheIteratorVisitsAllInOrderOfCreation) {
  Document& a = NewDrawing();
  Document& b = NewDrawing();
  std::unique_ptr<AcApDocumentIterator> all(acDocManager->newAcApDocumentIterator());
  std::vector<AcApDocument*> seen;
  for (; !all->done(); all->step()) seen.push_back(all->document());
  EXPECT_EQ(seen, (std::vector<AcApDocument*>{&a, &b}));
}

TEST_F(Documents, SavingUnderANameSetsTheFileOfTheDrawing) {
  NewDrawing();
  Send(L"LINE 0,0 10,5 \n");
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  const std::wstring path = (folder / "saved.dxf").wstring();
  Send(L"SAVEAS " + path + L"\n");
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  EXPECT_EQ(host.documents.Current()->Name(), L"saved");
  EXPECT_EQ(Var(L"DWGTITLED"), L"1");
  host.documents.Close(host.documents.Current());
  ASSERT_NE(host.documents.Open(path), nullptr);
  EXPECT_EQ(Entities().size(), 1u);
}

TEST_F(Documents, AFailedSaveIsReportedAndTheDrawingStaysModified) {
  NewDrawing();
  Send(L"LINE 0,0 10,5 \n");
  Send(L"SAVEAS " + (folder / "no_folder" / "x.dxf").wstring() + L"\n");
  EXPECT_NE(ui.printed.find(L"文件夹不存在，图形未保存"), std::wstring::npos);
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  EXPECT_EQ(Var(L"DWGTITLED"), L"0");
}

TEST_F(Documents, VariablesOfTheHeaderAreLoadedAndSaved) {
  MakeFile("head.dxf",
           "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n9\n$ORTHOMODE\n70\n1\n9\n$LTSCALE\n40\n"
           "2.5\n9\n$CLAYER\n8\n墙\n9\n$PICKSTYLE\n70\n9\n0\nENDSEC\n0\nEOF\n");
  ASSERT_NE(host.documents.Open(L"head.dxf"), nullptr);
  EXPECT_EQ(Var(L"ORTHOMODE"), L"1");
  EXPECT_EQ(Var(L"LTSCALE"), L"2.5");
  EXPECT_EQ(Var(L"CLAYER"), L"墙");
  EXPECT_EQ(Var(L"PICKSTYLE"), L"1");  // a variable of the program, not of the file
  host.variables.Set(L"LTSCALE", L"4");
  Send(L"QSAVE\n");
  host.documents.Close(host.documents.Current());
  ASSERT_NE(host.documents.Open(L"head.dxf"), nullptr);
  EXPECT_EQ(Var(L"LTSCALE"), L"4");
}
