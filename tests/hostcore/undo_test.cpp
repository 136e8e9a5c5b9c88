// Undo.
#include "acedcmdnf.h"
#include "axlock.h"
#include "devhost/core/modules/class_binding.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

AcDbText* g_text = nullptr;

// What a command of a module does: opens an object with the published functions, changes
// and closes it.
void ChangeText() {
  AcDbText* text = nullptr;
  if (acdbOpenObject(text, g_text->objectId(), AcDb::kForWrite) != Acad::eOk) return;
  text->setTextString((std::wstring(text->textStringConst()) + L"+").c_str());
  text->setLayer(L"改");
  text->setLinetype(L"DASHED");
  text->setColorIndex(3);
  text->close();
}

void ChangeTextAfterUpgrade() {
  AcDbText* text = nullptr;
  if (acdbOpenObject(text, g_text->objectId(), AcDb::kForRead) != Acad::eOk) return;
  text->upgradeOpen();
  text->setTextString(L"升级");
  text->close();
}

void SetScaleOfSpace(double scale) {
  AcDbDatabase& database = *TheHost().documents.Current()->database();
  AcDbBlockTableRecord* space = nullptr;
  ASSERT_EQ(acdbOpenObject(space, database.currentSpaceId(), AcDb::kForWrite), Acad::eOk);
  resbuf* data = acutBuildList(1001, L"_QVX", 1040, scale, RTNONE);
  EXPECT_EQ(space->setXData(data), Acad::eOk);
  acutRelRb(data);
  space->close();
}

double ScaleOfSpace() {
  AcDbDatabase& database = *TheHost().documents.Current()->database();
  resbuf* data = database.currentSpaceId().object()->xData(L"_QVX");
  const double scale = data && data->rbnext ? data->rbnext->resval.rreal : 0;
  acutRelRb(data);
  return scale;
}

std::string Groups(const AcDbObject& object) {
  std::vector<UndoItem> items;
  UndoOutFiler filer(object.database(), items);
  object.dxfOutFields(&filer);
  std::string out;
  for (const UndoItem& item : items)
    out += std::to_string(item.code) + " " + Utf8(item.text) + " " + std::to_string(item.number) +
           "\n";
  return out;
}

}  // namespace

class Undo : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
  }
  void TearDown() override {
    host.commands.removeGroup(L"TEST");
    HostTest::TearDown();
  }
  void Add(const wchar_t* name, AcRxFunctionPtr function) {
    ASSERT_EQ(static_cast<AcEdCommandStack&>(host.commands)
                  .addCommand(L"TEST", name, name, ACRX_CMD_MODAL, function),
              Acad::eOk);
  }
  void MakeText() {
    Send(L"TEXT 0,0 2.5 0 原文\n");
    g_text = AcDbText::cast(Entities().at(0));
    Add(L"TChange", ChangeText);
    Add(L"TChangeUp", ChangeTextAfterUpgrade);
  }
  double FirstX() { return static_cast<AcDbLine*>(Entities().at(0))->startPoint().x; }
};

TEST_F(Undo, OneStepRevertsOneWholeCommand) {
  Send(L"LINE 0,0 1,0 2,0 3,0 \n");
  EXPECT_EQ(Entities().size(), 3u);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());
  Send(L"U\n");
  EXPECT_NE(ui.printed.find(L"所有内容都已放弃"), std::wstring::npos);
}

TEST_F(Undo, ErasedObjectsAreRestoredAndStayAtTheNextStep) {
  Send(L"LINE 0,0 1,0 \n");
  Send(L"ERASE ALL \n");
  EXPECT_TRUE(Entities().empty());
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 1u);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());  // undoes the line, not the erasing again
}

TEST_F(Undo, MovedObjectsAreMovedBack) {
  Send(L"LINE 5,0 6,0 \n");
  Send(L"MOVE ALL \n0,0 10,0\n");
  EXPECT_EQ(FirstX(), 15);
  Send(L"U\n");
  EXPECT_EQ(FirstX(), 5);
}

TEST_F(Undo, AReferenceWithAttributesIsMovedBackOnce) {
  AcDbDatabase& database = *host.documents.Current()->database();
  auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  auto* reference = new AcDbBlockReference({1, 1, 0}, database.currentSpaceId());
  space->appendAcDbEntity(reference);
  auto* attribute = new AcDbAttribute;
  ASSERT_EQ(reference->appendAttribute(attribute), Acad::eOk);
  Send(L"MOVE ALL \n0,0 10,0\n");
  EXPECT_EQ(reference->position().x, 11);
  EXPECT_EQ(attribute->position().x, 10);
  Send(L"U\n");
  EXPECT_EQ(reference->position().x, 1);
  EXPECT_EQ(attribute->position().x, 0);
}

TEST_F(Undo, SeveralStepsAndGroupsAreReverted) {
  for (int i = 0; i < 5; ++i) Send(L"LINE 0,0 1,0 \n");
  Send(L"UNDO 2\n");
  EXPECT_EQ(Entities().size(), 3u);
  Send(L"UNDO BE LINE 0,0 2,0 \nLINE 0,0 3,0 \nUNDO E ");
  EXPECT_EQ(Entities().size(), 5u);
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 3u);
}

TEST_F(Undo, StepsBelongToTheirDrawing) {
  Document* first = host.documents.Current();
  Send(L"LINE 0,0 1,0 \n");
  NewDrawing();
  Send(L"U\n");
  host.documents.Activate(first);
  EXPECT_EQ(Entities().size(), 1u);
}

TEST_F(Undo, DataOfAnObjectOpenedForWritingAreRestored) {
  MakeText();
  Send(L"TCHANGE\n");
  EXPECT_STREQ(g_text->textStringConst(), L"原文+");
  Send(L"U\n");
  EXPECT_STREQ(g_text->textStringConst(), L"原文");
  EXPECT_STREQ(g_text->layer(), L"0");
  EXPECT_STREQ(g_text->linetype(), L"ByLayer");
  EXPECT_EQ(g_text->colorIndex(), 256);
}

TEST_F(Undo, DataOfAnUpgradedObjectAreRestored) {
  MakeText();
  Send(L"TCHANGEUP\nU\n");
  EXPECT_STREQ(g_text->textStringConst(), L"原文");
}

TEST_F(Undo, AGroupThatChangedMovedAndErasedOneObjectIsRevertedAtOnce) {
  MakeText();
  Send(L"UNDO BE TCHANGE\nMOVE ALL \n0,0 10,0\nTCHANGE\nERASE ALL \nUNDO E ");
  EXPECT_TRUE(Entities().empty());
  Send(L"U\n");
  ASSERT_EQ(Entities().size(), 1u);
  EXPECT_STREQ(g_text->textStringConst(), L"原文");
  EXPECT_EQ(g_text->position().x, 0);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());  // undoes the text
}

TEST_F(Undo, ACommandThatSendsBeginAndEndIsOneStep) {
  MakeText();
  Add(L"TGrouped", [] {
    acedCommandS(RTSTR, L"UNDO", RTSTR, L"BE", RTNONE);
    acedCommandS(RTSTR, L"TCHANGE", RTNONE);
    acedCommandS(RTSTR, L"LINE", RTSTR, L"0,0", RTSTR, L"1,0", RTSTR, L"", RTNONE);
    acedCommandS(RTSTR, L"UNDO", RTSTR, L"E", RTNONE);
  });
  Send(L"TGROUPED\n");
  EXPECT_EQ(Entities().size(), 2u);
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 1u);
  EXPECT_STREQ(g_text->textStringConst(), L"原文");
}

TEST_F(Undo, ALockOutsideAllCommandsIsOneStep) {
  {
    AcAxDocLock lock;
    SetScaleOfSpace(50);
    AcAxDocLock inner;
    SetScaleOfSpace(100);
  }
  EXPECT_EQ(ScaleOfSpace(), 100);
  RunAll();
  {
    AcAxDocLock lock;
    SetScaleOfSpace(200);
  }
  Send(L"U\n");
  EXPECT_EQ(ScaleOfSpace(), 100);
  Send(L"U\n");
  EXPECT_EQ(ScaleOfSpace(), 0);
}

TEST_F(Undo, VariablesOfTheDrawingAreRestoredWithTheirSpace) {
  Send(L"SETVAR TILEMODE 0\nSETVAR CVPORT 3\n");
  Send(L"SETVAR TILEMODE 1\nSETVAR PICKSTYLE 3\n");
  Send(L"U\n");
  EXPECT_EQ(Var(L"TILEMODE"), L"0");
  EXPECT_EQ(Var(L"CVPORT"), L"3");
  EXPECT_EQ(Var(L"CTAB"), L"Layout1");
  EXPECT_EQ(Var(L"PICKSTYLE"), L"3");  // a variable of the program: not undone
  Send(L"U\nU\n");
  EXPECT_EQ(Var(L"TILEMODE"), L"1");
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Undo, ChangesAfterAnUndoInTheSameCommandAreAStep) {
  MakeText();
  Add(L"TBackAndOn", [] {
    acedCommandS(RTSTR, L"U", RTNONE);
    ChangeText();
  });
  Send(L"LINE 0,0 1,0 \nTBACKANDON\n");
  EXPECT_EQ(Entities().size(), 1u);
  Send(L"U\n");
  EXPECT_STREQ(g_text->textStringConst(), L"原文");
}

// Regression: the step of the running command referred to entities that had been replaced.
TEST_F(Undo, UnloadingAClassDuringACommandDiscardsItsStep) {
  MakeText();
  Add(L"TUnload", [] {
    ChangeText();
    MakeEntitiesOpaque(*AcDbText::desc());
  });
  Send(L"UNDO BE LINE 0,0 1,0 \nTUNLOAD\n");
  g_text = nullptr;
  ASSERT_EQ(Entities().size(), 2u);
  EXPECT_NE(AcDbProxyEntity::cast(Entities().at(0)), nullptr);
  Send(L"LINE 0,0 2,0 \nUNDO E U\n");
  EXPECT_EQ(Entities().size(), 2u);
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 2u);
  EXPECT_NE(ui.printed.find(L"所有内容都已放弃"), std::wstring::npos);
  BindOpaqueEntities();
}

// Undo reads groups into the existing object, so a class must reset members whose
// groups are missing.
TEST(ObjectState, RestoringOverwritesAllDataInEveryClass) {
  struct Case {
    const wchar_t* dxfName;
    std::vector<UndoItem> full;
  };
  const Case cases[] = {
      {L"LINE", {{10, L"", 1}, {20, L"", 2}, {11, L"", 3}}},
      {L"CIRCLE", {{10, L"", 1}, {40, L"", 2}}},
      {L"ARC", {{10, L"", 1}, {40, L"", 2}, {50, L"", 30}, {51, L"", 60}}},
      {L"ELLIPSE", {{10, L"", 1}, {11, L"", 2}, {40, L"", 0.5}, {41, L"", 1}, {42, L"", 2}}},
      {L"POINT", {{10, L"", 1}}},
      {L"SOLID", {{10, L"", 1}, {11, L"", 2}, {12, L"", 3}, {13, L"", 4}}},
      {L"LWPOLYLINE", {{70, L"", 1}, {10, L"", 1}, {20, L"", 1}, {42, L"", 1}, {10, L"", 2}}},
      {L"POLYLINE", {{70, L"", 1}, {0, L"VERTEX", 0}, {10, L"", 1}, {42, L"", 1}}},
      {L"TEXT",
       {{1, L"a", 0},
        {7, L"s", 0},
        {10, L"", 1},
        {11, L"", 2},
        {40, L"", 3},
        {41, L"", 2},
        {50, L"", 90},
        {72, L"", 4},
        {73, L"", 2}}},
      {L"ATTRIB", {{1, L"a", 0}, {2, L"t", 0}, {40, L"", 3}, {70, L"", 1}, {74, L"", 2}}},
      {L"MTEXT",
       {{1, L"a", 0},
        {7, L"s", 0},
        {10, L"", 1},
        {40, L"", 3},
        {41, L"", 9},
        {50, L"", 90},
        {71, L"", 5}}},
      {L"INSERT",
       {{2, L"b", 0},
        {10, L"", 1},
        {41, L"", 2},
        {50, L"", 90},
        {70, L"", 2},
        {71, L"", 3},
        {44, L"", 5},
        {45, L"", 6}}},
      {L"DIMENSION",
       {{2, L"b", 0},
        {1, L"t", 0},
        {3, L"s", 0},
        {10, L"", 1},
        {12, L"", 4},
        {42, L"", 7},
        {50, L"", 90},
        {53, L"", 5},
        {71, L"", 5}}},
      {L"VIEWPORT", {{10, L"", 1}, {40, L"", 5}, {41, L"", 6}, {68, L"", 1}, {69, L"", 2}}},
  };
  for (const Case& c : cases) {
    AcRxClass* cls = acrxClassOfDxfName(c.dxfName);
    ASSERT_NE(cls, nullptr) << Utf8(c.dxfName);
    const std::unique_ptr<AcDbObject> object(AcDbObject::cast(cls->create()));
    const std::string bare = Groups(*object);
    const ObjectState before(*object);
    UndoInFiler in(nullptr, c.full);
    object->dxfInFields(&in);
    const std::string full = Groups(*object);
    EXPECT_NE(full, bare) << Utf8(c.dxfName);
    const ObjectState after(*object);
    before.Restore(*object);
    EXPECT_EQ(Groups(*object), bare) << Utf8(c.dxfName);
    after.Restore(*object);
    EXPECT_EQ(Groups(*object), full) << Utf8(c.dxfName);
  }
}
