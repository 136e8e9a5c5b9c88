// The effect of the drawing's switches on what walls, columns and texts draw.
#include <gtest/gtest.h>

#include <algorithm>

#include "dbsymtb.h"
#include "devhost/core/view/scene.h"
#include "kernel/current_drawing.h"
#include "kernel/drawing_switches.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tdbconfig.h"
#include "tests/hostcore/host_fixture.h"

namespace {

using Kind = devhost::Shape::Kind;

class WallLook : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginQvxEntities();
    BeginCurrentDrawing();
    m_space = AcDbBlockTableRecord::cast(NewDrawing().database()->currentSpaceId().object());
  }
  void TearDown() override {
    EndCurrentDrawing();
    EndQvxEntities();
    HostTest::TearDown();
  }
  template <class Entity>
  Entity* Add() {
    auto* entity = new Entity;
    entity->width = 240;
    entity->size = 400;
    entity->end = {3000, 0, 0};
    m_space->appendAcDbEntity(entity);
    return entity;
  }
  static int Count(AcDbEntity& entity, Kind kind) {
    const auto shapes = devhost::ShapesOf(entity, 1);
    return static_cast<int>(std::count_if(shapes.begin(), shapes.end(),
                                          [&](const auto& shape) { return shape.kind == kind; }));
  }
  AcDbBlockTableRecord* m_space = nullptr;
};

}  // namespace

TEST_F(WallLook, FillDrawsAPolygonAndNoFillAnOutline) {
  auto* wall = Add<QvxDbWall>();
  EXPECT_EQ(Count(*wall, Kind::Polygon), 1);
  EXPECT_EQ(Count(*wall, Kind::Polyline), 0);
  SolidFillOff();
  EXPECT_EQ(Count(*wall, Kind::Polygon), 0);
  EXPECT_EQ(Count(*wall, Kind::Polyline), 1);
}

TEST_F(WallLook, BoldDrawsFourBarsInsideTheOutline) {
  auto* column = Add<QvxDbColumn>();
  SolidFillOff();
  BoldLineOn();
  EXPECT_EQ(Count(*column, Kind::Polygon), 4);
  AcDbExtents box;
  column->getGeomExtents(box);
  EXPECT_EQ(box.maxPoint().x - box.minPoint().x, 240);
  EXPECT_EQ(box.maxPoint().y - box.minPoint().y, 400);
  SolidFillOn();
  EXPECT_EQ(Count(*column, Kind::Polygon), 5);
}

TEST_F(WallLook, TheBaseLineRunsAlongTheAxis) {
  auto* wall = Add<QvxDbWall>();
  ToggleWallBase();
  const auto shapes = devhost::ShapesOf(*wall, 1);
  ASSERT_EQ(shapes.size(), 2u);
  EXPECT_EQ(shapes[1].kind, Kind::Polyline);
  EXPECT_EQ(shapes[1].points[0].y, 0);
  EXPECT_EQ(shapes[1].points[1].x, 3000);
}

TEST_F(WallLook, ATextIsAsLargeAsItsScale) {
  auto* text = Add<QvxDbText>();
  text->label = L"a";
  EXPECT_EQ(devhost::ShapesOf(*text, 1).at(0).height, 240);
  text->SetPScale(50);
  EXPECT_EQ(devhost::ShapesOf(*text, 1).at(0).height, 120);
  for (const double useless : {0.0, -100.0}) {
    text->SetPScale(useless);
    EXPECT_EQ(devhost::ShapesOf(*text, 1).at(0).height, 240) << useless;
  }
}
