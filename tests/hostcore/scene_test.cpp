// Drawings as shapes, and hit tests.
#include "devhost/core/view/scene.h"

#include <cmath>

#include "devhost/core/base/text_codes.h"
#include "devhost/core/dxf/drawing_file.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

AcDbBlockTableRecord& Space(AcDbDatabase& database) {
  return *AcDbBlockTableRecord::cast(database.currentSpaceId().object());
}

AcDbBlockTableRecord& MakeBlock(AcDbDatabase& database, const wchar_t* name) {
  auto* block = new AcDbBlockTableRecord;
  block->setName(name);
  AcDbBlockTable::cast(database.blockTableId().object())->add(block);
  return *block;
}

}  // namespace

TEST(Scene, ALineHasTwoPointsAndItsLayersColour) {
  AcDbDatabase database;
  auto* layer = new AcDbLayerTableRecord;
  layer->setName(L"墙线");
  layer->setColorIndex(3);
  AcDbLayerTable::cast(database.layerTableId().object())->add(layer);
  auto* line = new AcDbLine({0, 0, 0}, {10, 0, 0});
  line->setLayer(L"墙线");
  Space(database).appendAcDbEntity(line);
  const std::vector<Shape> shapes = BuildScene(database, 1);
  ASSERT_EQ(shapes.size(), 1u);
  EXPECT_EQ(shapes[0].points.size(), 2u);
  EXPECT_EQ(shapes[0].color, 3);
  EXPECT_EQ(shapes[0].entity, line);
  line->setColorIndex(1);
  EXPECT_EQ(BuildScene(database, 1)[0].color, 1);
}

TEST(Scene, ACircleIsClosedAndOnItsRadius) {
  AcDbDatabase database;
  Space(database).appendAcDbEntity(new AcDbCircle({5, 5, 0}, 2));
  const Shape circle = BuildScene(database, 10).at(0);
  for (const AcGePoint3d& p : circle.points) EXPECT_NEAR(p.distanceTo({5, 5, 0}), 2, 1e-9);
  EXPECT_NEAR(circle.points.front().distanceTo(circle.points.back()), 0, 1e-9);
}

TEST(Scene, AReferenceTransformsItsBlock) {
  AcDbDatabase database;
  AcDbBlockTableRecord& block = MakeBlock(database, L"门");
  block.setOrigin({1, 0, 0});
  block.appendAcDbEntity(new AcDbLine({1, 0, 0}, {2, 0, 0}));
  auto* reference = new AcDbBlockReference({10, 10, 0}, block.objectId());
  Space(database).appendAcDbEntity(reference);
  reference->transformBy(AcGeMatrix3d::insertion({0, 0, 0}, std::acos(0.0), 2, 2, {10, 10, 0}));
  const Shape shape = BuildScene(database, 1).at(0);
  EXPECT_EQ(shape.entity, reference);
  EXPECT_NEAR(shape.points[0].x, 0, 1e-9);
  EXPECT_NEAR(shape.points[0].y, 0, 1e-9);
  EXPECT_NEAR(shape.points[1].x, 0, 1e-9);
  EXPECT_NEAR(shape.points[1].y, 2, 1e-9);
}

TEST(Scene, ARecursiveBlockEnds) {
  AcDbDatabase database;
  AcDbBlockTableRecord& block = MakeBlock(database, L"环");
  block.appendAcDbEntity(new AcDbLine({0, 0, 0}, {1, 0, 0}));
  block.appendAcDbEntity(new AcDbBlockReference({1, 0, 0}, block.objectId()));
  Space(database).appendAcDbEntity(new AcDbBlockReference({0, 0, 0}, block.objectId()));
  EXPECT_LT(BuildScene(database, 1).size(), 100u);
  EXPECT_GT(BuildScene(database, 1).size(), 1u);
}

TEST(Scene, NestedBlockArraysAreLimited) {
  AcDbDatabase database;
  AcDbBlockTableRecord* inner = &MakeBlock(database, L"B0");
  for (int i = 0; i < 10; ++i) inner->appendAcDbEntity(new AcDbLine({0, 0, 0}, {1, 1, 0}));
  for (int level = 1; level < 9; ++level) {
    AcDbBlockTableRecord& outer = MakeBlock(database, (L"B" + std::to_wstring(level)).c_str());
    for (int i = 0; i < 10; ++i)
      outer.appendAcDbEntity(new AcDbBlockReference({0, 0, 0}, inner->objectId()));
    inner = &outer;
  }
  Space(database).appendAcDbEntity(new AcDbBlockReference({0, 0, 0}, inner->objectId()));
  EXPECT_LE(BuildScene(database, 1).size(), 2000000u);  // 1e9 without the limit
}

TEST(Scene, AFrozenLayerIsNotShown) {
  AcDbDatabase database;
  const DrawingReport report = ReadDrawingText(
      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nFROZEN\n70\n1\n62\n1\n6\nCONTINUOUS"
      "\n"
      "0\nLAYER\n2\nOFF\n70\n0\n62\n-"
      "2\n6\nCONTINUOUS\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
      "0\nLINE\n8\nFROZEN\n10\n0\n20\n0\n11\n1\n21\n1\n0\nLINE\n8\nOFF\n10\n0\n20\n0\n11\n1\n21\n1"
      "\n"
      "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n1\n21\n1\n0\nENDSEC\n0\nEOF\n",
      L"layers.dxf", database);
  EXPECT_EQ(report.message, L"");
  EXPECT_EQ(BuildScene(database, 1).size(), 1u);
}

TEST(Scene, TheNearestEntityWithinReachIsFound) {
  AcDbDatabase database;
  auto* line = new AcDbLine({0, 0, 0}, {10, 0, 0});
  auto* circle = new AcDbCircle({5, 5, 0}, 2);
  Space(database).appendAcDbEntity(line);
  Space(database).appendAcDbEntity(circle);
  EXPECT_EQ(EntityAt(database, {5, 0.5, 0}, 1), line);
  EXPECT_EQ(EntityAt(database, {7.2, 5, 0}, 1), circle);
  EXPECT_EQ(EntityAt(database, {5, 5, 0}, 1), nullptr);  // the inside of a circle is not hit
}

TEST(Scene, ATextIsHitAnywhereInItsRectangle) {
  AcDbDatabase database;
  auto* text = new AcDbText({0, 0, 0}, L"ABCDE", 10);
  Space(database).appendAcDbEntity(text);
  EXPECT_EQ(EntityAt(database, {15, 5, 0}, 0.1), text);
  EXPECT_EQ(EntityAt(database, {100, 5, 0}, 0.1), nullptr);
  AcGePoint3d at;
  ASSERT_TRUE(PointOn(*text, &at));
  EXPECT_EQ(EntityAt(database, at, 0.1), text);
}

TEST(Scene, ExtentsIncludeAllShapes) {
  AcDbDatabase database;
  EXPECT_FALSE(ExtentsOf(database).isValid());
  Space(database).appendAcDbEntity(new AcDbLine({-3, 2, 0}, {10, 7, 0}));
  const AcDbExtents extents = ExtentsOf(database);
  EXPECT_EQ(extents.minPoint().x, -3);
  EXPECT_EQ(extents.maxPoint().y, 7);
}

TEST(Scene, ViewPixelsAndWorldPointsAreInverse) {
  ViewTransform view;
  view.Resize(800, 600);
  AcDbExtents extents;
  extents.addPoint({0, 0, 0});
  extents.addPoint({100, 50, 0});
  view.ZoomTo(extents);
  const POINT pixel = view.ToPixel({100, 50, 0});
  EXPECT_GT(pixel.x, 700);
  EXPECT_LT(pixel.x, 800);
  const AcGePoint3d before = view.ToWorld({200, 100});
  view.ZoomAt({200, 100}, 1.6);
  EXPECT_NEAR(view.ToWorld({200, 100}).x, before.x, 1e-9);
  view.PanBy(30, -20);
  EXPECT_NEAR(view.ToWorld({230, 80}).y, before.y, 1e-9);
  EXPECT_GT(view.ToPixel({1e300, 0, 0}).x, 1000000);  // clamped, not overflowed
}

TEST(Scene, CodesInTextsAreReplaced) {
  EXPECT_EQ(DisplayText(L"%%c100 %%p0.000 45%%d %%u下划"), L"Φ100 ±0.000 45° 下划");
  EXPECT_EQ(DisplayText(L"100%"), L"100%");
  EXPECT_EQ(MTextLines(L"{\\fArial|b1;粗}体\\P第二行\\H2.5x;高", 0),
            (std::vector<std::wstring>{L"粗体", L"第二行高"}));
  EXPECT_EQ(MTextLines(L"aaa bbb ccc", 4.5).size(), 2u);
  EXPECT_EQ(MTextLines(L"\\S1^2;\\", 0).size(), 1u);
}
