// Closing by the user, with its questions; closing and activating within notifications.
#include "devhost/core/commands/close_drawings.h"

#include "devhost/core/drawing/database_body.h"
#include "host_fixture.h"
#include "reactor_log.h"

using namespace devhost;

using Lines = std::vector<std::wstring>;

class Closing : public hosttest::HostTest {
 protected:
  void TearDown() override {
    acDocManager->removeReactor(&log);
    HostTest::TearDown();
  }
  std::wstring PathOf(const std::wstring& name) { return (folder / name).wstring(); }
  Document& Changed() {
    Document& drawing = NewDrawing();
    Send(L"LINE 0,0 10,5 \n");
    return drawing;
  }
  Document& ChangedFile(const std::wstring& name) {
    Document& drawing = Changed();
    Send(L"SAVEAS " + PathOf(name) + L"\nLINE 0,0 1,1 \n");
    return drawing;
  }
  void Watch() {
    acDocManager->addReactor(&log);
    log.lines.clear();
  }
  int Count() const { return acDocManager->documentCount(); }

  hosttest::ReactorLog log;
};

TEST_F(Closing, AnUnchangedDrawingIsClosedWithoutAQuestion) {
  NewDrawing();
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(ui.questions.empty());
}

TEST_F(Closing, TheQuestionComesBeforeAllNotificationsAndCancelChangesNothing) {
  Document& drawing = ChangedFile(L"a.dxf");
  NewDrawing();
  host.documents.Activate(&drawing);
  Watch();
  ui.onQuestion = [&] { EXPECT_TRUE(log.lines.empty()); };
  const std::vector<std::wstring> before = ui.log;
  Send(L"_CLOSE\n");
  EXPECT_EQ(ui.questions, Lines{L"是否将改动保存到 " + PathOf(L"a.dxf") + L"?"});
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(host.documents.Current(), &drawing);
  EXPECT_TRUE(log.lines.empty());
  EXPECT_EQ(ui.log, before);
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  EXPECT_FALSE(drawing.closePending);
  EXPECT_TRUE(drawing.commands.empty());
}

TEST_F(Closing, NoDiscardsTheChanges) {
  ChangedFile(L"a.dxf");
  const auto size = std::filesystem::file_size(folder / "a.dxf");
  ui.answers = {Answer::No};
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(std::filesystem::file_size(folder / "a.dxf"), size);
}

TEST_F(Closing, YesSavesAndThenCloses) {
  ChangedFile(L"a.dxf");
  ui.answers = {Answer::Yes};
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 0);
  ASSERT_NE(host.documents.Open(PathOf(L"a.dxf")), nullptr);
  EXPECT_EQ(Entities().size(), 2u);
}

TEST_F(Closing, YesAsksForAMissingNameAndEscapeThereIsCancel) {
  Changed();
  ui.answers = {Answer::Yes, Answer::Yes};
  Then([&] { host.engine.PressEscape(); });
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  Then([&] { host.engine.EnterLine(PathOf(L"named.dxf")); });
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(std::filesystem::exists(folder / "named.dxf"));
}

TEST_F(Closing, AFailedSaveIsCancel) {
  Document& drawing = ChangedFile(L"a.dxf");
  drawing.SetPath(PathOf(L"missing/a.dxf"));
  ui.answers = {Answer::Yes};
  Send(L"CLOSE\n");
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  EXPECT_NE(ui.printed.find(L"文件夹不存在，图形未保存"), std::wstring::npos);
}

TEST_F(Closing, CloseAllStopsAtCancelAndKeepsTheRest) {
  Changed();
  Document& second = Changed();
  Document& third = Changed();
  ui.answers = {Answer::No, Answer::Cancel};
  Send(L"CLOSEALL\n");
  ASSERT_EQ(Count(), 2);
  EXPECT_EQ(host.documents.All()[0].get(), &second);
  EXPECT_EQ(host.documents.Current(), &third);
  EXPECT_EQ(ui.questions.size(), 2u);
}

TEST_F(Closing, CloseAllClosesTheDrawingOfItsOwnCommandAmongTheOthers) {
  Document& first = NewDrawing();
  NewDrawing();
  NewDrawing();
  host.documents.Activate(&first);
  Send(L"CLOSEALL\n");
  EXPECT_EQ(Count(), 0);
}

TEST_F(Closing, CloseAllAsksForANameInTheDrawingThatHasNone) {
  Document& unnamed = Changed();
  Document& front = NewDrawing();
  ui.answers = {Answer::Yes};
  Then([&] {
    EXPECT_EQ(host.documents.Current(), &unnamed);
    host.engine.EnterLine(PathOf(L"named.dxf"));
  });
  Send(L"CLOSEALL\n");
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(std::filesystem::exists(folder / "named.dxf"));
  (void)front;
}

TEST_F(Closing, QuitAsksAllQuestionsBeforeItSavesOrCloses) {
  ChangedFile(L"a.dxf");
  ChangedFile(L"b.dxf");
  Watch();
  ui.answers = {Answer::Yes, Answer::Cancel};
  const auto size = std::filesystem::file_size(folder / "a.dxf");
  Send(L"_QUIT\n");
  EXPECT_EQ(ui.questions.size(), 2u);
  EXPECT_FALSE(ui.ended);
  EXPECT_TRUE(log.lines.empty());
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(std::filesystem::file_size(folder / "a.dxf"), size);
  ui.answers = {Answer::Yes, Answer::No};
  Send(L"_quit\n");
  EXPECT_TRUE(ui.ended);
  EXPECT_GT(std::filesystem::file_size(folder / "a.dxf"), size);
}

TEST_F(Closing, QuitEndsAfterAnEscapeAtAName) {
  Document& unnamed = Changed();
  Document& front = NewDrawing();
  ui.answers = {Answer::Yes};
  Then([&] { host.engine.PressEscape(); });
  Send(L"QUIT\n");
  EXPECT_FALSE(ui.ended);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(host.documents.Current(), &front);
  EXPECT_EQ(unnamed.database()->body().modified, 1);
}

TEST_F(Closing, ADrawingThatClosesDuringItsQuestionIsGone) {
  Document& drawing = Changed();
  Document& other = Changed();
  ui.answers = {Answer::Yes, Answer::No};
  ui.onQuestion = [&, first = true]() mutable {
    if (std::exchange(first, false)) host.documents.Close(&drawing);
  };
  host.documents.Activate(&other);
  Send(L"QUIT\n");
  EXPECT_TRUE(ui.ended);
  EXPECT_EQ(Count(), 1);
}

TEST_F(Closing, CloseOtherClosesABackgroundDrawingAndAsksForIt) {
  Document& back = ChangedFile(L"back.dxf");
  Document& front = NewDrawing();
  Watch();
  Send(L"CLOSEOTHER back\n");
  EXPECT_EQ(Count(), 2);
  EXPECT_TRUE(log.lines.empty());
  ui.answers = {Answer::No};
  Send(L"CLOSEOTHER BACK\n");
  EXPECT_EQ(log.lines, (Lines{L"to be destroyed back.dxf of 2", L"destroyed back.dxf"}));
  EXPECT_EQ(host.documents.Current(), &front);
  Send(L"CLOSEOTHER nothing\n");
  EXPECT_NE(ui.printed.find(L"没有打开图形: nothing"), std::wstring::npos);
  (void)back;
}

TEST_F(Closing, TheInterfaceClosesAChangedDrawingWithoutAQuestion) {
  Document& drawing = Changed();
  EXPECT_EQ(acDocManager->closeDocument(&drawing), Acad::eOk);
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(ui.questions.empty());
}

// --- notifications

TEST_F(Closing, ANewDrawingIsCurrentBeforeItIsNotifiedAsCreated) {
  Document& before = NewDrawing();
  Watch();
  bool seen = false;
  log.onLine = [&](const std::wstring& line) {
    if (!line.starts_with(L"created")) return;
    seen = true;
    EXPECT_NE(host.documents.Current(), &before);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), host.documents.All().back().get());
    EXPECT_EQ(ui.log.back(), L"activated " + host.documents.Current()->Name());
  };
  const std::wstring old = before.Title(), made = NewDrawing().Title();
  EXPECT_TRUE(seen);
  EXPECT_EQ(log.lines, (Lines{L"create started", L"to be deactivated " + old + L" of 2",
                              L"to be activated " + made + L" of 2", L"current " + made + L" of 2",
                              L"created " + made + L" of 2", L"activated " + made + L" of 2"}));
}

TEST_F(Closing, TheDrawingBeforeMayCloseWhenTheNextIsNotified) {
  Document& start = NewDrawing();
  MakeFile("plan.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  Watch();
  log.onLine = [&](const std::wstring& line) {
    if (line.starts_with(L"created")) acDocManager->closeDocument(&start);
  };
  const std::wstring old = start.Title();
  Document* opened = host.documents.Open(L"plan.dxf");
  ASSERT_NE(opened, nullptr);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(host.documents.Current(), opened);
  EXPECT_EQ(log.lines, (Lines{L"create started", L"to be deactivated " + old + L" of 2",
                              L"to be activated plan.dxf of 2", L"current plan.dxf of 2",
                              L"created plan.dxf of 2", L"to be destroyed " + old + L" of 2",
                              L"destroyed " + old, L"activated plan.dxf of 1"}));
}

TEST_F(Closing, AReactorMayCloseTheNewDrawingItself) {
  Document& before = NewDrawing();
  Watch();
  log.onLine = [&](const std::wstring& line) {
    if (line.starts_with(L"created")) host.documents.Close(host.documents.Current());
  };
  EXPECT_EQ(host.documents.New(), nullptr);
  EXPECT_EQ(host.documents.Current(), &before);
  EXPECT_EQ(Count(), 1);
}

TEST_F(Closing, AReactorThatClosesADrawingTwiceClosesItOnce) {
  Document& drawing = NewDrawing();
  Watch();
  log.onLine = [&](const std::wstring& line) {
    if (line.starts_with(L"to be destroyed")) acDocManager->closeDocument(&drawing);
  };
  host.documents.Close(&drawing);
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(log.lines.size(), 2u);
}

TEST_F(Closing, OpenedFromADrawingThatClosesMeanwhileTheNewOneStaysInFront) {
  Document& start = NewDrawing();
  MakeFile("plan.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  Watch();
  log.onLine = [&](const std::wstring& line) {
    if (line.starts_with(L"created")) acDocManager->closeDocument(&start);
  };
  Send(L"OPEN " + PathOf(L"plan.dxf") + L"\n");
  RunAll();
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(host.documents.Current()->Title(), L"plan.dxf");
}

TEST_F(Closing, TheIteratorPassesOverDrawingsThatCloseMeanwhile) {
  Document& a = NewDrawing();
  Document& b = NewDrawing();
  Document& c = NewDrawing();
  Document& d = NewDrawing();
  std::unique_ptr<AcApDocumentIterator> all(acDocManager->newAcApDocumentIterator());
  EXPECT_EQ(all->document(), &a);
  host.documents.Close(&a);
  host.documents.Close(&b);
  all->step();
  ASSERT_FALSE(all->done());
  EXPECT_EQ(all->document(), &c);
  all->step();
  NewDrawing();  // not visited
  EXPECT_EQ(all->document(), &d);
  host.documents.Close(&d);
  EXPECT_TRUE(all->done());
  EXPECT_EQ(all->document(), nullptr);
}

TEST_F(Closing, WhileActivationIsDisabledNoOtherDrawingComesToTheFront) {
  Document& a = NewDrawing();
  Document& b = NewDrawing();
  MakeFile("plan.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  Watch();
  EXPECT_TRUE(acDocManager->isDocumentActivationEnabled());
  EXPECT_EQ(acDocManager->disableDocumentActivation(), Acad::eOk);
  EXPECT_EQ(acDocManager->disableDocumentActivation(), Acad::eNotApplicable);
  EXPECT_FALSE(acDocManager->isDocumentActivationEnabled());
  EXPECT_EQ(acDocManager->activateDocument(&a), Acad::eNotApplicable);
  EXPECT_EQ(acDocManager->activateDocument(&b), Acad::eOk);
  EXPECT_EQ(host.documents.New(), nullptr);
  EXPECT_EQ(host.documents.Open(L"plan.dxf"), nullptr);
  acDocManager->sendStringToExecute(&a, L"LINE 0,0 1,1 \n");
  EXPECT_FALSE(host.engine.HasPendingInput());
  RunAll();
  EXPECT_EQ(host.documents.Current(), &b);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(acDocManager->enableDocumentActivation(), Acad::eOk);
  EXPECT_EQ(log.lines, (Lines{L"activation off", L"activation on"}));
  RunAll();  // the text that waited
  EXPECT_EQ(a.database()->body().modified, 1);
  EXPECT_EQ(host.documents.Current(), &b);
}

TEST_F(Closing, ClosingTheCurrentDrawingActivatesTheNextAlsoWhileDisabled) {
  Document& a = NewDrawing();
  NewDrawing();
  acDocManager->disableDocumentActivation();
  Send(L"CLOSE\n");
  EXPECT_EQ(host.documents.Current(), &a);
}
