// Dynamic blocks: definitions, anonymous copies, references, files.
#include "axlock.h"
#include "dbdynblk.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class DynamicBlock : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
    Send(L"LINE 0,0 40,0 \nTEXT 5,5 10 0 甲\n");
    Send(L"BLOCK DESK\n0,0 ALL \n");
    Send(L"BDYNMAKE DESK\n");
  }
  AcDbObjectId BlockNamed(const wchar_t* name, AcDbDatabase* database = nullptr) {
    AcDbObjectId id;
    if (!database) database = document->database();
    AcDbBlockTable::cast(database->blockTableId().object())->getAt(name, id);
    return id;
  }
  AcDbBlockReference& Insert(const AcGePoint3d& at, const wchar_t* block = L"DESK") {
    auto* reference = new AcDbBlockReference(at, BlockNamed(block));
    AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object())
        ->appendAcDbEntity(reference);
    return *reference;
  }
  static std::vector<AcDbEntity*> PartsOf(AcDbObjectId block) {
    return LiveEntities(*AcDbBlockTableRecord::cast(block.object()));
  }
  void SetText(AcDbObjectId id, const wchar_t* by) {
    AcDbText* text = nullptr;
    ASSERT_EQ(Acad::eOk, acdbOpenObject(text, id, AcDb::kForWrite));
    text->setTextString(by);
    text->close();
  }
  static std::wstring TextIn(AcDbEntity& entity) {
    for (const Shape& shape : ShapesOf(entity, 1))
      if (shape.kind == Shape::Kind::Text) return shape.text;
    return {};
  }

  Document* document = nullptr;
};

}  // namespace

TEST_F(DynamicBlock, AReferenceInTheInitialStateShowsTheDefinition) {
  const AcDbBlockReference& reference = Insert({100, 0, 0});
  const AcDbDynBlockReference dynamic(reference.objectId());
  EXPECT_TRUE(dynamic.isDynamicBlock());
  EXPECT_EQ(reference.objectId(), dynamic.blockId());
  EXPECT_EQ(BlockNamed(L"DESK"), dynamic.dynamicBlockTableRecord());
  EXPECT_TRUE(dynamic.anonymousBlockTableRecord().isNull());
}

TEST_F(DynamicBlock, AnOrdinaryBlockIsNotDynamic) {
  Send(L"LINE 0,50 40,50 \nBLOCK PLAIN\n0,0 L \n");
  AcDbBlockReference& reference = Insert({100, 0, 0}, L"PLAIN");
  const AcDbDynBlockReference dynamic(&reference);
  EXPECT_FALSE(dynamic.isDynamicBlock());
  EXPECT_EQ(BlockNamed(L"PLAIN"), dynamic.dynamicBlockTableRecord());
  EXPECT_TRUE(dynamic.anonymousBlockTableRecord().isNull());
  const AcDbDynBlockTableRecord record(BlockNamed(L"PLAIN"));
  AcDbObjectIdArray ids;
  EXPECT_FALSE(record.isDynamicBlock());
  EXPECT_EQ(Acad::eNotApplicable, record.getAnonymousBlockIds(ids));
  EXPECT_EQ(Acad::eNotApplicable, record.updateAnonymousBlocks());
}

TEST_F(DynamicBlock, WhatIsNoReferenceIsNotDynamic) {
  Send(L"LINE 0,50 40,50 \n");
  for (AcDbObjectId id : {AcDbObjectId(), Entities().at(0)->objectId()}) {
    AcDbDynBlockReference dynamic(id);
    EXPECT_FALSE(dynamic.isDynamicBlock());
    EXPECT_TRUE(dynamic.dynamicBlockTableRecord().isNull());
    EXPECT_TRUE(dynamic.anonymousBlockTableRecord().isNull());
  }
  EXPECT_FALSE(AcDbDynBlockTableRecord(static_cast<AcDbObject*>(nullptr)).isDynamicBlock());
}

TEST_F(DynamicBlock, AFlippedReferenceGetsAnAnonymousCopyInTheSameOrder) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\n");
  const AcDbDynBlockReference dynamic(&reference);
  const AcDbObjectId copy = dynamic.anonymousBlockTableRecord();
  ASSERT_FALSE(copy.isNull());
  EXPECT_STREQ(L"*U1", AcDbBlockTableRecord::cast(copy.object())->getName());
  EXPECT_EQ(copy, reference.blockTableRecord());
  EXPECT_EQ(BlockNamed(L"DESK"), dynamic.dynamicBlockTableRecord());
  EXPECT_TRUE(dynamic.isDynamicBlock());
  EXPECT_FALSE(AcDbDynBlockTableRecord(copy).isDynamicBlock());
  const auto parts = PartsOf(copy);
  ASSERT_EQ(2u, parts.size());
  ASSERT_TRUE(AcDbLine::cast(parts[0]));
  EXPECT_DOUBLE_EQ(-40, AcDbLine::cast(parts[0])->endPoint().x);
  // The text stays readable: it ends where it began.
  const auto* text = AcDbText::cast(parts[1]);
  ASSERT_TRUE(text);
  EXPECT_NEAR(0, std::remainder(text->rotation(), 6.283185307179586), 1e-9);
  EXPECT_NEAR(-15, text->position().x, 1e-9);
}

TEST_F(DynamicBlock, StretchingMovesWhatIsRightOfTheBasePoint) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  Send(L"BDYNSTRETCH 120,0 25\n");
  const auto parts = PartsOf(AcDbDynBlockReference(&reference).anonymousBlockTableRecord());
  ASSERT_EQ(2u, parts.size());
  EXPECT_DOUBLE_EQ(30, AcDbText::cast(parts[1])->position().x);
}

TEST_F(DynamicBlock, EqualStatesShareACopyAndOthersDoNot) {
  AcDbBlockReference& a = Insert({100, 0, 0});
  AcDbBlockReference& b = Insert({200, 0, 0});
  AcDbBlockReference& c = Insert({300, 0, 0});
  Send(L"BDYNFLIP 120,0\nBDYNFLIP 220,0\nBDYNSTRETCH 320,0 5\n");
  EXPECT_EQ(a.blockTableRecord(), b.blockTableRecord());
  EXPECT_NE(a.blockTableRecord(), c.blockTableRecord());
  AcDbObjectIdArray ids;
  EXPECT_EQ(Acad::eOk, AcDbDynBlockTableRecord(BlockNamed(L"DESK")).getAnonymousBlockIds(ids));
  ASSERT_EQ(2, ids.length());
  EXPECT_EQ(a.blockTableRecord(), ids[0]);
  EXPECT_EQ(c.blockTableRecord(), ids[1]);
}

TEST_F(DynamicBlock, TwoFlipsAndAResetShowTheDefinition) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\nBDYNFLIP 80,0\n");
  EXPECT_EQ(BlockNamed(L"DESK"), reference.blockTableRecord());
  Send(L"BDYNFLIP 120,0\nBDYNRESET 80,0\n");
  EXPECT_EQ(BlockNamed(L"DESK"), reference.blockTableRecord());
}

TEST_F(DynamicBlock, FlippingIsOneStepOfUndoAndRedo) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\nU\n");
  EXPECT_EQ(BlockNamed(L"DESK"), reference.blockTableRecord());
  AcDbObjectIdArray ids;
  AcDbDynBlockTableRecord(BlockNamed(L"DESK")).getAnonymousBlockIds(ids);
  EXPECT_TRUE(ids.isEmpty());
  EXPECT_TRUE(BlockNamed(L"*U1").isNull());
  EXPECT_EQ(DrawingText(*document->database()).find("*U1"), std::string::npos);
  Send(L"REDO\n");
  const AcDbObjectId copy = AcDbDynBlockReference(&reference).anonymousBlockTableRecord();
  ASSERT_FALSE(copy.isNull());
  EXPECT_EQ(BlockNamed(L"*U1"), copy);
  EXPECT_EQ(2u, PartsOf(copy).size());
}

TEST_F(DynamicBlock, TheNameOfACopyThatUndoRemovedIsFreeAgain) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\n");
  const AcDbObjectId first = reference.blockTableRecord();
  Send(L"U\nBDYNSTRETCH 120,0 25\n");
  EXPECT_NE(reference.blockTableRecord(), first);
  EXPECT_EQ(BlockNamed(L"*U1"), reference.blockTableRecord());
  AcDbDatabase read;
  ASSERT_EQ(L"", ReadDrawingText(DrawingText(*document->database()), L"a.dxf", read).message);
  EXPECT_FALSE(BlockNamed(L"*U1", &read).isNull());
  EXPECT_TRUE(BlockNamed(L"*U2", &read).isNull());
}

TEST_F(DynamicBlock, AttributesKeepTheirValuesAndFollowTheState) {
  Send(L"ATTDEF TAG\n\n甲\n10,20 5 0\nLINE 0,0 40,0 \nBLOCK DOOR\n0,0 ALL \nBDYNMAKE DOOR\n");
  Send(L"INSERT DOOR\n100,0 1 0\n");
  const auto& reference = *AcDbBlockReference::cast(Entities().at(0));
  auto* attribute = AcDbAttribute::cast(reference.attributes().at(0).object());
  attribute->setTextString(L"甲乙");
  Send(L"BDYNFLIP 120,0\n");
  EXPECT_STREQ(L"甲乙", attribute->textStringConst());
  EXPECT_NEAR(80, attribute->position().x, 1e-9);  // ten units of text to the left of 90
  Send(L"U\n");
  EXPECT_NEAR(110, attribute->position().x, 1e-9);
  Send(L"BDYNSTRETCH 120,0 25\n");
  EXPECT_NEAR(135, attribute->position().x, 1e-9);
}

TEST_F(DynamicBlock, AnUpdateCarriesTheDefinitionToTheCopies) {
  AcDbBlockReference& flipped = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\n");
  const AcDbObjectId copy = flipped.blockTableRecord();
  const std::vector<AcDbEntity*> before = PartsOf(copy);
  {
    AcAxDocLock lock;
    SetText(PartsOf(BlockNamed(L"DESK"))[1]->objectId(), L"乙");
    EXPECT_EQ(L"甲", TextIn(flipped));
    EXPECT_EQ(Acad::eOk, AcDbDynBlockTableRecord(BlockNamed(L"DESK")).updateAnonymousBlocks());
  }
  EXPECT_EQ(L"乙", TextIn(flipped));
  EXPECT_EQ(before, PartsOf(copy));  // the same entities in the same order
  EXPECT_DOUBLE_EQ(-40, AcDbLine::cast(before[0])->endPoint().x);
  Send(L"U\n");
  EXPECT_EQ(L"甲", TextIn(flipped));
  EXPECT_STREQ(L"甲", AcDbText::cast(PartsOf(BlockNamed(L"DESK"))[1])->textStringConst());
}

TEST_F(DynamicBlock, AnUpdateFollowsANewOrderOfEntities) {
  AcDbBlockReference& flipped = Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\n");
  const AcDbObjectId definition = BlockNamed(L"DESK");
  {
    AcAxDocLock lock;
    PartsOf(definition)[0]->erase();
    AcDbBlockTableRecord::cast(definition.object())
        ->appendAcDbEntity(new AcDbCircle({10, 0, 0}, 3));
    AcDbDynBlockTableRecord(definition).updateAnonymousBlocks();
  }
  const auto parts = PartsOf(flipped.blockTableRecord());
  ASSERT_EQ(2u, parts.size());
  EXPECT_TRUE(AcDbText::cast(parts[0]));
  ASSERT_TRUE(AcDbCircle::cast(parts[1]));
  EXPECT_DOUBLE_EQ(-10, AcDbCircle::cast(parts[1])->center().x);
}

TEST_F(DynamicBlock, AnUpdateNeedsALock) {
  Insert({100, 0, 0});
  EXPECT_EQ(Acad::eLockViolation,
            AcDbDynBlockTableRecord(BlockNamed(L"DESK")).updateAnonymousBlocks());
}

TEST_F(DynamicBlock, DefinitionCopyAndStateAreReadBack) {
  Insert({100, 0, 0});
  Send(L"BDYNFLIP 120,0\n");
  AcDbDatabase read;
  ASSERT_EQ(L"", ReadDrawingText(DrawingText(*document->database()), L"a.dxf", read).message);
  const AcDbObjectId definition = BlockNamed(L"DESK", &read), copy = BlockNamed(L"*U1", &read);
  ASSERT_FALSE(copy.isNull());
  const auto* space = AcDbBlockTableRecord::cast(read.currentSpaceId().object());
  AcDbEntity* reference = LiveEntities(*space).at(0);
  const AcDbDynBlockReference dynamic(reference);
  EXPECT_EQ(definition, dynamic.dynamicBlockTableRecord());
  EXPECT_EQ(copy, dynamic.anonymousBlockTableRecord());
  AcDbText::cast(PartsOf(definition)[1])->setTextString(L"丙");
  EXPECT_EQ(Acad::eOk, AcDbDynBlockTableRecord(definition).updateAnonymousBlocks());
  EXPECT_EQ(L"丙", TextIn(*reference));
  EXPECT_DOUBLE_EQ(-40, AcDbLine::cast(PartsOf(copy)[0])->endPoint().x);
}

TEST_F(DynamicBlock, TheExtensionDictionaryOfAFileMarksADefinition) {
  const char text[] =
      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nBLOCK_RECORD\n70\n3\n"
      "0\nBLOCK_RECORD\n5\nA1\n102\n{ACAD_XDICTIONARY\n360\nB1\n102\n}\n330\n0\n"
      "100\nAcDbSymbolTableRecord\n100\nAcDbBlockTableRecord\n2\nCHAIR\n"
      "0\nBLOCK_RECORD\n5\nA2\n330\n0\n100\nAcDbSymbolTableRecord\n"
      "100\nAcDbBlockTableRecord\n2\n*U7\n1001\nAcDbBlockRepBTag\n1070\n1\n1005\nA1\n"
      "0\nBLOCK_RECORD\n5\nA3\n102\n{ACAD_XDICTIONARY\n360\nB2\n102\n}\n330\n0\n"
      "100\nAcDbSymbolTableRecord\n100\nAcDbBlockTableRecord\n2\nPLAIN\n"
      "0\nENDTAB\n0\nENDSEC\n"
      "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nCHAIR\n70\n0\n10\n0\n20\n0\n"
      "0\nENDBLK\n8\n0\n0\nBLOCK\n8\n0\n2\n*U7\n70\n1\n10\n0\n20\n0\n0\nENDBLK\n8\n0\n"
      "0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n"
      "0\nDICTIONARY\n5\nB1\n330\nA1\n100\nAcDbDictionary\n3\nACAD_ENHANCEDBLOCK\n360\nC1\n"
      "0\nDICTIONARY\n5\nB2\n330\nA3\n100\nAcDbDictionary\n3\nSORTENTS\n360\nC2\n"
      "0\nENDSEC\n0\nEOF\n";
  AcDbDatabase read;
  ASSERT_EQ(L"", ReadDrawingText(text, L"a.dxf", read).message);
  EXPECT_TRUE(AcDbDynBlockTableRecord(BlockNamed(L"CHAIR", &read)).isDynamicBlock());
  EXPECT_FALSE(AcDbDynBlockTableRecord(BlockNamed(L"PLAIN", &read)).isDynamicBlock());
  AcDbObjectIdArray ids;
  AcDbDynBlockTableRecord(BlockNamed(L"CHAIR", &read)).getAnonymousBlockIds(ids);
  ASSERT_EQ(1, ids.length());
  EXPECT_EQ(BlockNamed(L"*U7", &read), ids.at(0));
}
