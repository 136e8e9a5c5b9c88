// References inside references, copies of entities, iterators over blocks.
#include <numbers>

#include "axlock.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/view/shape_geometry.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class BlockReference : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
    document->view.Resize(800, 600);
    document->view.ShowAt(0, 0, 600);
  }
  AcDbDatabase& database() { return *document->database(); }
  AcDbBlockTableRecord& Space() {
    return *AcDbBlockTableRecord::cast(database().currentSpaceId().object());
  }
  AcDbBlockTableRecord& NewBlock(const wchar_t* name) {
    auto* block = new AcDbBlockTableRecord;
    block->setName(name);
    AcDbBlockTable::cast(database().blockTableId().object())->add(block);
    return *block;
  }
  static AcDbBlockReference& AddReference(AcDbBlockTableRecord& to,
                                          const AcDbBlockTableRecord& block,
                                          const AcGeMatrix3d& matrix) {
    auto* reference = new AcDbBlockReference({0, 0, 0}, block.objectId());
    to.appendAcDbEntity(reference);
    reference->transformBy(matrix);
    return *reference;
  }
  std::size_t Crossing(const AcGePoint3d& a, const AcGePoint3d& b) {
    ads_name set{};
    int length = 0;
    const ads_point from = {a.x, a.y, 0}, to = {b.x, b.y, 0};
    if (acedSSGet(L"C", from, to, nullptr, set) != RTNORM) return 0;
    acedSSLength(set, &length);
    acedSSFree(set);
    return static_cast<std::size_t>(length);
  }

  Document* document = nullptr;
};

constexpr double kQuarter = std::numbers::pi / 2;

AcGeMatrix3d Placed(double x, double y, double rotation, double scale) {
  return AcGeMatrix3d::insertion({x, y, 0}, rotation, scale, scale, {});
}

}  // namespace

TEST_F(BlockReference, AreDrawnThroughTheScalesAndRotationsOfAllReferences) {
  AcDbBlockTableRecord& inner = NewBlock(L"INNER");
  inner.appendAcDbEntity(new AcDbText({1, 0, 0}, L"甲乙", 2));
  AcDbBlockTableRecord& outer = NewBlock(L"OUTER");
  AddReference(outer, inner, Placed(10, 0, kQuarter, 2));
  AcDbBlockReference& top = AddReference(Space(), outer, Placed(100, 50, kQuarter, 3));
  const std::vector<Shape> shapes = ShapesOf(top, 1);
  ASSERT_EQ(1u, shapes.size());
  // (1,0) is (10,2) in the outer block and (100 - 6, 50 + 30) in the drawing.
  EXPECT_NEAR(94, shapes[0].points[0].x, 1e-9);
  EXPECT_NEAR(80, shapes[0].points[0].y, 1e-9);
  EXPECT_NEAR(12, shapes[0].height, 1e-9);
  EXPECT_NEAR(2 * kQuarter, std::fabs(shapes[0].rotation), 1e-9);
  // The text is 24 long and 12 high and reads to the left.
  EXPECT_EQ(&top, EntityAt(database(), {80, 74, 0}, 1));
  EXPECT_EQ(nullptr, EntityAt(database(), {97, 74, 0}, 1));
  EXPECT_EQ(nullptr, EntityAt(database(), {80, 86, 0}, 1));
}

TEST_F(BlockReference, ATextUnderUnequalScalesHasTheSizeOfItsFrame) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  block.appendAcDbEntity(new AcDbText({0, 0, 0}, L"甲", 10));
  AcDbBlockTableRecord& outer = NewBlock(L"OUTER");
  AddReference(outer, block, AcGeMatrix3d());
  const char text[] =
      "0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n2\nOUTER\n10\n0\n20\n0\n41\n3\n42\n0.5\n"
      "0\nENDSEC\n0\nEOF\n";
  ReadDrawingText(text, L"a.dxf", database());
  const std::vector<Shape> shapes = ShapesOf(*Entities().at(0), 1);
  ASSERT_EQ(1u, shapes.size());
  EXPECT_NEAR(5, shapes[0].height, 1e-9);
  const std::vector<AcGePoint3d> corners = OutlineOf(shapes[0]);
  EXPECT_NEAR(30, corners[2].x, 1e-9);
  EXPECT_NEAR(5, corners[2].y, 1e-9);
}

TEST_F(BlockReference, AMirroredTextStaysReadableInItsMirroredFrame) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  block.appendAcDbEntity(new AcDbText({5, 2, 0}, L"甲乙", 10));
  AcGeMatrix3d mirror;
  mirror.a = -1;
  AcDbBlockReference& reference = AddReference(Space(), block, mirror);
  const std::vector<Shape> shapes = ShapesOf(reference, 1);
  ASSERT_EQ(1u, shapes.size());
  const std::vector<AcGePoint3d> corners = OutlineOf(shapes[0]);
  EXPECT_NEAR(-25, corners[0].x, 1e-9);
  EXPECT_NEAR(2, corners[0].y, 1e-9);
  EXPECT_NEAR(-5, corners[2].x, 1e-9);
  EXPECT_NEAR(12, corners[2].y, 1e-9);
}

TEST_F(BlockReference, MirroringTwiceGivesTheSamePicture) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  block.appendAcDbEntity(new AcDbText({5, 2, 0}, L"甲乙", 10, 0.3));
  block.appendAcDbEntity(new AcDbArc({1, 1, 0}, 3, 0.2, 1.1));
  AcGeMatrix3d mirror;
  mirror.a = -1;
  mirror.tx = 30;
  AcDbBlockReference& reference = AddReference(Space(), block, Placed(7, 8, 0.4, 2));
  const std::vector<Shape> before = ShapesOf(reference, 1);
  reference.transformBy(mirror);
  const std::vector<Shape> once = ShapesOf(reference, 1);
  EXPECT_NEAR(30 - before[1].points[0].x, once[1].points[0].x, 1e-9);
  reference.transformBy(mirror);
  const std::vector<Shape> after = ShapesOf(reference, 1);
  ASSERT_EQ(before.size(), after.size());
  for (std::size_t i = 0; i < before.size(); ++i)
    EXPECT_LT(before[i].points[0].distanceTo(after[i].points[0]), 1e-9);
}

TEST_F(BlockReference, AMirroredArcIsTheMirrorImage) {
  AcDbArc arc({0, 0, 0}, 10, 0, kQuarter);
  AcGeMatrix3d mirror;
  mirror.a = -1;
  arc.subTransformBy(mirror);
  EXPECT_NEAR(-1, std::cos(arc.endAngle()), 1e-9);
  EXPECT_NEAR(1, std::sin(arc.startAngle()), 1e-9);
}

TEST_F(BlockReference, ACrossingBoxInsideATextOrAFilledAreaFindsIt) {
  Send(L"TEXT 0,0 100 0 甲乙丙\n");
  EXPECT_EQ(1u, Crossing({150, 40, 0}, {152, 42, 0}));
  EXPECT_EQ(0u, Crossing({350, 40, 0}, {352, 42, 0}));
  const char text[] =
      "0\nSECTION\n2\nENTITIES\n0\nSOLID\n8\n0\n10\n0\n20\n200\n11\n90\n21\n200\n12\n0\n22\n290\n"
      "13\n90\n23\n290\n0\n3DFACE\n8\n0\n10\n200\n20\n200\n11\n290\n21\n200\n12\n290\n22\n290\n13\n"
      "200\n23\n290\n0\nENDSEC\n0\nEOF\n";
  ReadDrawingText(text, L"a.dxf", database());
  EXPECT_EQ(1u, Crossing({40, 240, 0}, {42, 242, 0}));
  EXPECT_EQ(0u, Crossing({240, 240, 0}, {242, 242, 0}));  // a face has edges only
}

TEST_F(BlockReference, ACrossingBoxInsideATextInAReferenceFindsTheReference) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  block.appendAcDbEntity(new AcDbText({0, 0, 0}, L"甲乙", 10));
  AddReference(Space(), block, Placed(100, 100, kQuarter, 2));
  EXPECT_EQ(1u, Crossing({88, 118, 0}, {90, 120, 0}));
  EXPECT_EQ(0u, Crossing({108, 118, 0}, {110, 120, 0}));
}

TEST_F(BlockReference, TheIteratorGivesTheReferencesOfAllBlocksThatAreNotErased) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  AcDbBlockTableRecord& outer = NewBlock(L"OUTER");
  AcDbBlockReference& first = AddReference(Space(), block, AcGeMatrix3d());
  AcDbBlockReference& nested = AddReference(outer, block, AcGeMatrix3d());
  AcDbBlockReference& gone = AddReference(Space(), block, AcGeMatrix3d());
  AddReference(Space(), outer, AcGeMatrix3d());
  gone.erase();
  AcDbBlockReferenceIdIterator* raw = nullptr;
  ASSERT_EQ(Acad::eOk, block.newBlockReferenceIdIterator(raw));
  const std::unique_ptr<AcDbBlockReferenceIdIterator> iterator(raw);
  std::vector<AcDbObjectId> ids;
  AcDbObjectId id;
  for (iterator->start(); !iterator->done(); iterator->step()) {
    ASSERT_EQ(Acad::eOk, iterator->getBlockReferenceId(id));
    ids.push_back(id);
  }
  EXPECT_EQ((std::vector<AcDbObjectId>{first.objectId(), nested.objectId()}), ids);
  AcDbBlockReference* open = nullptr;
  EXPECT_EQ(Acad::eKeyNotFound, iterator->getBlockReference(open, AcDb::kForRead));
  iterator->start();
  EXPECT_EQ(Acad::eLockViolation, iterator->getBlockReference(open, AcDb::kForWrite));
  ASSERT_EQ(Acad::eOk, iterator->getBlockReference(open, AcDb::kForRead));
  EXPECT_EQ(&first, open);
  open->close();
}

TEST_F(BlockReference, ABlockWithoutReferencesHasAnEmptyIterator) {
  AcDbBlockReferenceIdIterator* raw = nullptr;
  ASSERT_EQ(Acad::eOk, NewBlock(L"B").newBlockReferenceIdIterator(raw));
  EXPECT_TRUE(raw->done());
  delete raw;
}

TEST_F(BlockReference, EntitiesAreIteratedInTheOrderInWhichTheyWereAdded) {
  AcDbBlockTableRecord& block = NewBlock(L"B");
  std::vector<AcDbEntity*> added = {new AcDbCircle({0, 0, 0}, 1), new AcDbLine(),
                                    new AcDbCircle({0, 0, 0}, 2)};
  for (AcDbEntity* entity : added) block.appendAcDbEntity(entity);
  added[1]->erase();
  AcDbBlockTableRecordIterator* raw = nullptr;
  ASSERT_EQ(Acad::eOk, block.newIterator(raw));
  const std::unique_ptr<AcDbBlockTableRecordIterator> iterator(raw);
  std::vector<AcDbObjectId> ids;
  AcDbObjectId id;
  for (; !iterator->done(); iterator->step())
    if (iterator->getEntityId(id) == Acad::eOk) ids.push_back(id);
  EXPECT_EQ((std::vector<AcDbObjectId>{added[0]->objectId(), added[2]->objectId()}), ids);
  const ACHAR* name = nullptr;
  EXPECT_EQ(Acad::eOk, block.getName(name));
  EXPECT_STREQ(L"B", name);
}

TEST_F(BlockReference, ACloneHasTheDataAndBelongsToNoDrawing) {
  Send(L"LAYER 标注\nTEXT 3,4 2.5 30 原文\n");
  AcDbEntity& text = *Entities().at(0);
  {
    AcAxDocLock lock;
    resbuf* data = acutBuildList(1001, L"_QVX", 1070, 7, RTNONE);
    text.setXData(data);
    acutRelRb(data);
    text.setColorIndex(3);
  }
  const std::unique_ptr<AcRxObject> made(text.clone());
  auto* copy = AcDbText::cast(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(nullptr, copy->database());
  EXPECT_TRUE(copy->handle().isNull());
  EXPECT_STREQ(L"原文", copy->textStringConst());
  EXPECT_STREQ(L"标注", copy->layer());
  EXPECT_EQ(3, copy->colorIndex());
  EXPECT_DOUBLE_EQ(4, copy->position().y);
  EXPECT_NEAR(std::numbers::pi / 6, copy->rotation(), 1e-12);
  resbuf* data = copy->xData(L"_QVX");
  ASSERT_TRUE(data && data->rbnext);
  EXPECT_EQ(7, data->rbnext->resval.rint);
  acutRelRb(data);
  copy->setTextString(L"改");
  EXPECT_STREQ(L"原文", AcDbText::cast(&text)->textStringConst());
}

TEST_F(BlockReference, AnUnknownEntityIsClonedWithAllItsGroups) {
  AcDbProxyEntity proxy;
  proxy.setOriginalDxfName(L"STRANGE");
  proxy.addGroup(40, L"2.5");
  const std::unique_ptr<AcRxObject> made(proxy.clone());
  const auto* copy = AcDbProxyEntity::cast(made.get());
  ASSERT_TRUE(copy);
  EXPECT_STREQ(L"STRANGE", copy->originalDxfName());
  ASSERT_EQ(1u, copy->groups().size());
  EXPECT_EQ(L"2.5", copy->groups()[0].text);
}

TEST_F(BlockReference, MarkingAsChangedRecordsForUndoAndModifiesTheDrawing) {
  AcDbBlockReference& reference = AddReference(Space(), NewBlock(L"B"), AcGeMatrix3d());
  acdbSetDbmod(&database(), 0);
  const std::size_t steps = document->undo.size();
  reference.assertWriteEnabled(true, true);  // not open
  EXPECT_EQ(L"0", Var(L"DBMOD"));
  {
    AcAxDocLock lock;
    AcDbBlockReference* open = nullptr;
    ASSERT_EQ(Acad::eOk, acdbOpenObject(open, reference.objectId(), AcDb::kForWrite));
    open->assertWriteEnabled(true, true);
    open->close();
  }
  EXPECT_EQ(L"1", Var(L"DBMOD"));
  EXPECT_EQ(steps + 1, document->undo.size());
}
