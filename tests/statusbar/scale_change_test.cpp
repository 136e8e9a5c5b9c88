// Reading and setting scales on real drawings of the host: the selection, the drawing, paper space,
// dimensions, locks and undo.
#include <gtest/gtest.h>

#include <limits>

#include "dbsymtb.h"
#include "devhost/core/selection/selection.h"
#include "kernel/current_drawing.h"
#include "kernel/drawing_scale.h"
#include "kernel/entities/tdbdimension2.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"
#include "statusbar/drawing_scale_change.h"
#include "statusbar/status_bar_door.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class ScaleChange : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginQvxEntities();
    BeginCurrentDrawing();
    m_drawing = &NewDrawing();
    g_nDimAdjust = 2;
  }
  void TearDown() override {
    EndCurrentDrawing();
    EndQvxEntities();
    EXPECT_EQ(TDbConfig::OpenCount(), 0);
    HostTest::TearDown();
  }

  template <class Entity>
  Entity* Add(double scale) {
    auto* entity = new Entity;
    entity->end = {3600, 0, 0};
    entity->SetPScale(scale);
    AddEntity(entity);
    return entity;
  }
  void AddEntity(AcDbEntity* entity) {
    AcDbBlockTableRecord::cast(m_drawing->database()->currentSpaceId().object())
        ->appendAcDbEntity(entity);
  }
  void Select(std::initializer_list<AcDbEntity*> entities) {
    std::vector<AcDbObjectId> ids;
    for (AcDbEntity* entity : entities) ids.push_back(entity->objectId());
    devhost::SetPickFirst(*m_drawing, ids);
  }
  double DrawingsOwn() {
    TDbConfig* config = GetDwgGlobal(AcDb::kForRead, m_drawing->database());
    const double scale = config->PScale();
    config->close();
    return scale;
  }
  std::wstring Text() { return std::wstring(qvx::CurrentScaleText()); }

  devhost::Document* m_drawing = nullptr;
};

}  // namespace

TEST_F(ScaleChange, WithNothingSelectedTheDrawingGetsTheScale) {
  auto* wall = Add<QvxDbWall>(100);
  qvx::SetScale(50);
  EXPECT_EQ(DrawingsOwn(), 50);
  EXPECT_EQ(wall->GetPScale(), 100);
  EXPECT_EQ(Text(), L"比例 1:50");
}

TEST_F(ScaleChange, SelectedObjectsGetTheScaleAndTheDrawingKeepsIts) {
  auto* wall = Add<QvxDbWall>(100);
  auto* text = Add<QvxDbText>(200);
  auto* other = Add<QvxDbText>(200);
  Select({wall, text});
  qvx::SetScale(20);
  EXPECT_EQ(wall->GetPScale(), 20);
  EXPECT_EQ(text->GetPScale(), 20);
  EXPECT_EQ(other->GetPScale(), 200);
  EXPECT_EQ(DrawingsOwn(), 100);
}

TEST_F(ScaleChange, ObjectsTakeAnyNumber) {
  auto* wall = Add<QvxDbWall>(100);
  Select({wall});
  qvx::SetScale(0);
  EXPECT_EQ(wall->GetPScale(), 0);
  EXPECT_EQ(Text(), L"比例 1:100") << "the drawing's, since 0 is no scale to show";
}

TEST_F(ScaleChange, ANumberThatIsNotFiniteChangesNothing) {
  auto* wall = Add<QvxDbWall>(100);
  qvx::SetScale(50);
  for (const double scale :
       {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    Select({wall});
    qvx::SetScale(scale);
    EXPECT_EQ(wall->GetPScale(), 100);
    Select({});
    qvx::SetScale(scale);
    EXPECT_EQ(DrawingsOwn(), 50);
  }
}

TEST_F(ScaleChange, ASelectionWithoutQvxObjectsMeansTheDrawing) {
  auto* line = new AcDbLine({0, 0, 0}, {1, 0, 0});
  AddEntity(line);
  Select({line});
  EXPECT_FALSE(qvx::HasFamilySelection());
  qvx::SetScale(25);
  EXPECT_EQ(DrawingsOwn(), 25);
  EXPECT_EQ(Text(), L"比例 1:25");
}

TEST_F(ScaleChange, QvxObjectsWithoutAScaleShowTheDrawingsAndAreUnchanged) {
  const std::string unknown =
      "0\nSECTION\n2\nENTITIES\n0\nQVX_FROMELSEWHERE\n5\n40\n8\n0\n10\n0\n20\n0\n42\n7\n"
      "0\nENDSEC\n0\nEOF\n";
  m_drawing = host.documents.Open(MakeFile("unknown.dxf", unknown));
  ASSERT_NE(m_drawing, nullptr);
  ASSERT_EQ(Entities().size(), 1u);
  Select({Entities()[0]});
  EXPECT_TRUE(qvx::HasFamilySelection());
  EXPECT_EQ(Text(), L"比例 1:100");
  qvx::SetScale(30);
  EXPECT_EQ(DrawingsOwn(), 100) << "the selection was meant, not the drawing";
}

TEST_F(ScaleChange, TheTextShowsOneScaleOrAsterisks) {
  auto* a = Add<QvxDbWall>(100);
  auto* b = Add<QvxDbText>(100.0005);
  auto* c = Add<QvxDbText>(100.01);
  qvx::SetScale(50);
  Select({a, b});
  EXPECT_EQ(Text(), L"比例 1:100");
  Select({a, c});
  EXPECT_EQ(Text(), L"比例 1:***");
  Select({});
  EXPECT_EQ(Text(), L"比例 1:50");
}

TEST_F(ScaleChange, ErasedObjectsOfASelectionAreSkipped) {
  auto* a = Add<QvxDbWall>(100);
  auto* b = Add<QvxDbWall>(20);
  Select({a, b});
  b->erase();
  EXPECT_EQ(Text(), L"比例 1:100");
  qvx::SetScale(30);
  EXPECT_EQ(a->GetPScale(), 30);
  EXPECT_EQ(b->GetPScale(), 20);
}

TEST_F(ScaleChange, AnAngularDimensionMovesItsLineAndALinearOneDoesNot) {
  auto* angular = Add<TDbDimension2>(100);
  angular->kind = TDbDimension2::kAngular;
  angular->SetDimRadius(2000);
  auto* linear = Add<TDbDimension2>(100);
  linear->width = 700;
  Select({angular, linear});
  qvx::SetScale(150);
  EXPECT_EQ(angular->GetDimRadius(), 2000 - 10 * (150 - 100));
  EXPECT_EQ(angular->GetPScale(), 150);
  EXPECT_EQ(linear->width, 700);
  EXPECT_EQ(linear->GetPScale(), 150);
}

TEST_F(ScaleChange, DimensionsAreAdjustedAccordingToTheSetting) {
  auto* dimension = Add<TDbDimension2>(100);
  const struct {
    int setting, flags;
  } kRows[] = {{0, 0},
               {1, TDbDimension2::kTextAside},
               {2, TDbDimension2::kTextAbove},
               {3, TDbDimension2::kTextAside}};
  for (const auto& row : kRows) {
    dimension->flags = 0;
    g_nDimAdjust = row.setting;
    Select({dimension});
    qvx::SetScale(1000);
    EXPECT_EQ(dimension->flags, row.flags) << row.setting;
  }
}

TEST_F(ScaleChange, TheDrawingIgnoresAScaleOfZeroOrLessAndPaperSpaceTakesIt) {
  for (const double scale : {0.0, -5.0, 0.0001}) {
    qvx::SetScale(scale);
    EXPECT_EQ(DrawingsOwn(), 100) << scale;
  }
  host.variables.Set(L"TILEMODE", L"0");
  for (const double scale : {0.0, -5.0, 0.0001, 40.0}) {
    qvx::SetScale(scale);
    EXPECT_EQ(DocGetPScale(), scale);
    EXPECT_EQ(DrawingsOwn(), 100);
  }
}

TEST_F(ScaleChange, InsideAViewportTheDrawingGetsTheScale) {
  host.variables.Set(L"TILEMODE", L"0");
  host.variables.Set(L"CVPORT", L"2");
  qvx::SetScale(75);
  EXPECT_EQ(DrawingsOwn(), 75);
  host.variables.Set(L"CVPORT", L"1");
  EXPECT_EQ(DocGetPScale(), 1);
}

TEST_F(ScaleChange, TheScaleOfPaperSpaceKeepsTheExtendedDataOfOthers) {
  host.variables.Set(L"TILEMODE", L"0");
  qvx::SetScale(20);
  qvx::SetScale(30);
  const AcDbObject* sheet = m_drawing->database()->currentSpaceId().object();
  resbuf* chain = sheet->xData(L"_QVX");
  ASSERT_NE(chain, nullptr);
  EXPECT_EQ(chain->restype, 1001);
  ASSERT_NE(chain->rbnext, nullptr);
  EXPECT_EQ(chain->rbnext->restype, 1040);
  EXPECT_EQ(chain->rbnext->resval.rreal, 30);
  EXPECT_EQ(chain->rbnext->rbnext, nullptr);
  acutRelRb(chain);
}

TEST_F(ScaleChange, TheHatchScaleIsTheScaleInForce) {
  qvx::SetScale(50);
  qvx::WriteHatchScale();
  EXPECT_EQ(std::stod(Var(L"HPSCALE")), 50);
  host.variables.Set(L"TILEMODE", L"0");
  qvx::WriteHatchScale();
  EXPECT_EQ(std::stod(Var(L"HPSCALE")), 1);
}

TEST_F(ScaleChange, LocksAreReleased) {
  auto* wall = Add<QvxDbWall>(100);
  qvx::SetScale(50);
  Select({wall});
  qvx::SetScale(50);
  EXPECT_EQ(m_drawing->locks, 0);
  EXPECT_FALSE(wall->isReadEnabled()) << "closed again";
}

TEST_F(ScaleChange, WithoutADrawingNothingHappens) {
  host.documents.Close(m_drawing);
  qvx::SetScale(50);
  EXPECT_EQ(Text(), L"比例 1:100");
  qvx::WriteHatchScale();
}
