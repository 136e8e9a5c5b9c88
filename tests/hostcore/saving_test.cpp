// Saving: names, DBMOD, the message to modules, failures.
#include "axlock.h"
#include "devhost/core/drawing/database_body.h"
#include "host_fixture.h"
#include "reactor_log.h"

using namespace devhost;

namespace {

std::vector<std::wstring> g_saved;  // files of the current drawing at each kSaveMsg

int Entry(int message, void*) {
  if (message == AcRx::kSaveMsg) g_saved.push_back(acDocManager->curDocument()->docTitle());
  return AcRx::kRetOK;
}

}  // namespace

class Saving : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_saved.clear();
    modules.entries[L"good.arx"] = Entry;
    MakeFile("good.arx", "");
    ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  }
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
  int DbmodOf(const Document& d) { return d.database()->body().modified; }

  hosttest::ReactorLog log;
};

TEST_F(Saving, ANewOrOpenedDrawingIsNotModified) {
  MakeFile(
      "plan.dxf",
      "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n0\nENDSEC\n0\nEOF\n");
  NewDrawing();
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  ASSERT_NE(host.documents.Open(L"plan.dxf"), nullptr);
  ASSERT_EQ(Entities().size(), 1u);
  EXPECT_EQ(Var(L"DBMOD"), L"0");
}

TEST_F(Saving, AnObjectSetsBitOneAndAVariableBitFour) {
  NewDrawing();
  host.variables.Set(L"LTSCALE", L"1");  // its present value
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  host.variables.Set(L"OSMODE", L"0");  // of the program
  host.variables.Set(L"CVPORT", L"2");  // of the window
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  host.variables.Set(L"LTSCALE", L"3");
  EXPECT_EQ(Var(L"DBMOD"), L"4");
  Send(L"LINE 0,0 10,5 \n");
  EXPECT_EQ(Var(L"DBMOD"), L"5");
}

TEST_F(Saving, OpeningAnObjectForWritingModifiesAndReadingDoesNot) {
  Document& drawing = Changed();
  acdbSetDbmod(drawing.database(), 0);
  const AcDbObjectId id = Entities()[0]->objectId();
  AcDbEntity* entity = nullptr;
  AcAxDocLock lock;
  ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForRead), Acad::eOk);
  entity->close();
  EXPECT_EQ(DbmodOf(drawing), 0);
  ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForWrite), Acad::eOk);
  entity->setColorIndex(1);
  entity->close();
  EXPECT_EQ(DbmodOf(drawing), 1);
}

TEST_F(Saving, UndoAfterASaveModifiesAgain) {
  Changed();
  host.variables.Set(L"LTSCALE", L"3");
  Send(L"SAVEAS " + PathOf(L"a.dxf") + L"\n");
  ASSERT_EQ(Var(L"DBMOD"), L"0");
  Send(L"U\n");
  EXPECT_EQ(Var(L"DBMOD"), L"1");
}

TEST_F(Saving, AModuleSetsTheValueOfABackgroundDrawing) {
  Document& first = Changed();
  NewDrawing();
  EXPECT_EQ(DbmodOf(first), 1);
  EXPECT_EQ(Var(L"DBMOD"), L"0");  // of the current drawing
  acdbSetDbmod(first.database(), 0);
  EXPECT_EQ(DbmodOf(first), 0);
  acdbSetDbmod(first.database(), 17);
  EXPECT_EQ(DbmodOf(first), 17);
}

TEST_F(Saving, ASaveClearsTheValueRenamesAndThenTellsTheModules) {
  Changed();
  acDocManager->addReactor(&log);
  Send(L"SAVEAS " + PathOf(L"a.dxf") + L"\n");
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  EXPECT_EQ(acDocManager->curDocument()->fileName(), PathOf(L"a.dxf"));
  EXPECT_EQ(g_saved, std::vector<std::wstring>{L"a.dxf"});
  EXPECT_EQ(log.lines, std::vector<std::wstring>{L"titled a.dxf of 1"});
  EXPECT_EQ(ui.log.back(), L"titled a");
  Send(L"QSAVE\n");
  EXPECT_EQ(g_saved.size(), 2u);
  EXPECT_EQ(log.lines.size(), 1u);  // the same name
}

TEST_F(Saving, AFailedSaveTellsNobodyAndKeepsNameAndValue) {
  Document& drawing = Changed();
  acDocManager->addReactor(&log);
  const std::wstring before = drawing.fileName();
  Send(L"SAVEAS " + PathOf(L"missing/a.dxf") + L"\n");
  EXPECT_NE(ui.printed.find(L"a.dxf"), std::wstring::npos);
  EXPECT_NE(ui.printed.find(L"文件夹不存在，图形未保存"), std::wstring::npos);
  EXPECT_EQ(drawing.fileName(), before);
  EXPECT_EQ(DbmodOf(drawing), 1);
  EXPECT_TRUE(g_saved.empty());
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(Saving, ADrawingWithoutANameAsksForOne) {
  Changed();
  Send(L"QSAVE " + PathOf(L"named") + L"\n");  // the extension is added
  EXPECT_EQ(g_saved, std::vector<std::wstring>{L"named.dxf"});
  EXPECT_TRUE(std::filesystem::exists(folder / "named.dxf"));
}

TEST_F(Saving, AnEmptyNameOrEscapeSavesNothing) {
  Document& drawing = Changed();
  Send(L"QSAVE\n\n");
  Then([&] { host.engine.PressEscape(); });
  Send(L"SAVEAS\n");
  EXPECT_TRUE(g_saved.empty());
  EXPECT_EQ(DbmodOf(drawing), 1);
}

// Windows takes at most 259 characters, other systems more.
#ifdef _WIN32
constexpr std::size_t kLongPath = 230;
#else
constexpr std::size_t kLongPath = 400;
#endif

TEST_F(Saving, APathBeyondTheLimitOfAcedGetStringIsNotTruncated) {
  Changed();
  std::filesystem::path deep = folder;
  while (deep.wstring().size() + 50 < kLongPath) deep /= std::wstring(20, L'a');
  std::filesystem::create_directories(deep);
  const std::wstring path = (deep / "long name.dxf").wstring();
  ASSERT_GT(path.size(), 180u);
  Send(L"SAVEAS " + path + L"\n");
  EXPECT_EQ(acDocManager->curDocument()->fileName(), path);
  Send(L"CLOSE\nOPEN\n");
  NewDrawing();
  Send(L"OPEN " + path + L"\n");
  EXPECT_EQ(acDocManager->curDocument()->fileName(), path);
  EXPECT_EQ(Entities().size(), 1u);
}

TEST_F(Saving, AnExistingFileIsReplacedOnlyAfterAYes) {
  Changed();
  MakeFile("old.dxf", "old");
  Send(L"SAVEAS " + PathOf(L"old.dxf") + L"\n");  // cancelled
  ui.answers = {Answer::No};
  Send(L"SAVEAS " + PathOf(L"old.dxf") + L"\n");
  EXPECT_EQ(std::filesystem::file_size(folder / "old.dxf"), 3u);
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  ui.answers = {Answer::Yes};
  Send(L"SAVEAS " + PathOf(L"old.dxf") + L"\n");
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  EXPECT_GT(std::filesystem::file_size(folder / "old.dxf"), 3u);
  ASSERT_EQ(ui.questions.size(), 3u);
  EXPECT_NE(ui.questions[0].find(PathOf(L"old.dxf")), std::wstring::npos);
  Send(L"SAVEAS " + PathOf(L"old.dxf") + L"\n");  // its own file
  EXPECT_EQ(ui.questions.size(), 3u);
}

TEST_F(Saving, TheFileOfAnotherOpenDrawingIsRefused) {
  Changed();
  Send(L"SAVEAS " + PathOf(L"a.dxf") + L"\n");
  Changed();
  Send(L"SAVEAS " + PathOf(L"A.dxf") + L"\n");
  EXPECT_NE(ui.printed.find(L"已作为另一个图形打开"), std::wstring::npos);
  EXPECT_TRUE(ui.questions.empty());
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  EXPECT_EQ(g_saved.size(), 1u);
}

TEST_F(Saving, ADrawingThatAModuleClosesDuringTheQuestionIsNotSaved) {
  Document& drawing = Changed();
  MakeFile("old.dxf", "old");
  ui.answers = {Answer::Yes};
  ui.onQuestion = [&] {
    drawing.commands.clear();  // the module's close is not delayed
    acDocManager->closeDocument(&drawing);
  };
  Send(L"SAVEAS " + PathOf(L"old.dxf") + L"\n");
  EXPECT_EQ(acDocManager->documentCount(), 0);
  EXPECT_EQ(std::filesystem::file_size(folder / "old.dxf"), 3u);
}

// --- text posted to several drawings

class Posting : public Saving {
 protected:
  // As a module does that saves all drawings.
  void PostToAll(const std::vector<Document*>& all, const wchar_t* text) {
    AcApDocument* noted = acDocManager->curDocument();
    for (Document* d : all) {
      acDocManager->activateDocument(d);
      acDocManager->sendStringToExecute(acDocManager->curDocument(), text);
    }
    acDocManager->activateDocument(noted);
  }
};

TEST_F(Posting, TextsRunInTheOrderOfPosting) {
  Document& a = NewDrawing();
  Document& b = NewDrawing();
  static std::vector<std::wstring> ran;
  ran.clear();
  host.commands.addCommand(
      L"TEST", L"TWHERE", L"TWHERE", 0,
      +[] { ran.push_back(acDocManager->curDocument()->docTitle()); }, nullptr, -1,
      AcRxResourceInstance::empty, nullptr);
  for (Document* d : {&a, &b, &a, &a, &b}) acDocManager->sendStringToExecute(d, L"TWHERE\n", false);
  RunAll();
  host.commands.removeGroup(L"TEST");
  EXPECT_EQ(ran,
            (std::vector<std::wstring>{a.Title(), b.Title(), a.Title(), a.Title(), b.Title()}));
  EXPECT_EQ(host.documents.Current(), &b);  // in front before
  EXPECT_FALSE(host.engine.HasPendingInput());
}

TEST_F(Posting, SaveAllSavesEachAndEndsInTheNotedDrawing) {
  std::vector<Document*> all;
  for (const wchar_t* name : {L"a.dxf", L"b.dxf", L"c.dxf"}) {
    all.push_back(&Changed());
    Send(L"SAVEAS " + PathOf(name) + L"\nLINE 0,0 1,1 \n");
  }
  host.documents.Activate(all[1]);
  g_saved.clear();
  PostToAll(all, L"QSAVE\n");
  EXPECT_EQ(host.documents.Current(), all[1]);
  RunAll();
  EXPECT_EQ(g_saved, (std::vector<std::wstring>{L"a.dxf", L"b.dxf", L"c.dxf"}));
  EXPECT_EQ(host.documents.Current(), all[1]);
  for (Document* d : all) EXPECT_EQ(DbmodOf(*d), 0);
}

TEST_F(Posting, ADrawingWithoutANameAsksInFrontAndEscapeGoesOnWithTheNext) {
  Document& named = Changed();
  Send(L"SAVEAS " + PathOf(L"a.dxf") + L"\nLINE 0,0 1,1 \n");
  Document& unnamed = Changed();
  Document& last = Changed();
  Send(L"SAVEAS " + PathOf(L"c.dxf") + L"\nLINE 0,0 1,1 \n");
  host.documents.Activate(&named);
  g_saved.clear();
  Then([&] {
    EXPECT_EQ(host.documents.Current(), &unnamed);
    host.engine.PressEscape();
  });
  PostToAll({&named, &unnamed, &last}, L"QSAVE\n");
  RunAll();
  EXPECT_EQ(g_saved, (std::vector<std::wstring>{L"a.dxf", L"c.dxf"}));
  EXPECT_EQ(DbmodOf(unnamed), 1);
  EXPECT_EQ(host.documents.Current(), &named);
}

TEST_F(Posting, ACommandPostedAfterASaveIsNotTakenAsTheName) {
  Document& unnamed = Changed();
  PostToAll({&unnamed}, L"QSAVE\n");
  acDocManager->sendStringToExecute(&unnamed, L"_quit\n");
  Then([&] { host.engine.EnterLine(PathOf(L"typed.dxf")); });
  RunAll();
  EXPECT_EQ(g_saved, std::vector<std::wstring>{L"typed.dxf"});
  EXPECT_TRUE(ui.ended);
}

TEST_F(Posting, AfterEscapeAtTheNameThePostedQuitAsks) {
  Document& unnamed = Changed();
  PostToAll({&unnamed}, L"QSAVE\n");
  acDocManager->sendStringToExecute(&unnamed, L"_quit\n");
  Then([&] { host.engine.PressEscape(); });
  RunAll();
  EXPECT_EQ(ui.questions.size(), 1u);  // cancelled
  EXPECT_FALSE(ui.ended);
}

TEST_F(Posting, APostedEscapeCancelsTheNameAndItsCommandRuns) {
  Document& unnamed = Changed();
  Then([&] { acDocManager->sendStringToExecute(&unnamed, L"\x1b\x1bLINE 0,0 5,5 \n"); });
  Send(L"QSAVE\n");
  EXPECT_TRUE(g_saved.empty());
  EXPECT_EQ(Entities().size(), 2u);
}

TEST_F(Posting, ADrawingThatClosesInTheMiddleOfASaveAllIsPassedOver) {
  Document& first = Changed();
  Document& second = Changed();
  Document& third = Changed();
  Send(L"SAVEAS " + PathOf(L"c.dxf") + L"\nLINE 0,0 1,1 \n");
  g_saved.clear();
  Then([&] {
    acDocManager->closeDocument(&second);
    host.engine.PressEscape();
  });
  PostToAll({&first, &second, &third}, L"QSAVE\n");
  RunAll();
  EXPECT_EQ(g_saved, std::vector<std::wstring>{L"c.dxf"});
  EXPECT_EQ(acDocManager->documentCount(), 2);
}

TEST_F(Posting, TheNotedDrawingMayBeGoneAtTheEnd) {
  Document& noted = NewDrawing();
  Document& other = NewDrawing();
  host.documents.Activate(&noted);
  acDocManager->sendStringToExecute(&other, L"CLOSEOTHER\n", false);
  Then([&] { host.engine.EnterLine(noted.Name()); });
  RunAll();
  EXPECT_EQ(acDocManager->documentCount(), 1);
  EXPECT_EQ(host.documents.Current(), &other);
}

TEST_F(Posting, ActivatingADrawingMeanwhileLeavesThatOneInFront) {
  Document& a = NewDrawing();
  Document& b = Changed();
  Document& c = NewDrawing();
  acDocManager->sendStringToExecute(&b, L"QSAVE\n", false);
  Then([&] { host.documents.Activate(&a); });
  RunAll();
  EXPECT_EQ(host.documents.Current(), &a);
  EXPECT_NE(&a, &c);
}
