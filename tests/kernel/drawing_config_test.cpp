// The switches and the scale that a drawing stores: defaults, changes under locks, saving and
// reading, and damaged files.
#include <gtest/gtest.h>

#include "axlock.h"
#include "dbsymtb.h"
#include "devhost/core/dxf/drawing_file.h"
#include "kernel/current_drawing.h"
#include "kernel/drawing_scale.h"
#include "kernel/drawing_switches.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/entities/tdbdimension2.h"
#include "kernel/globals.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbconfig.h"
#include "kernel/trblist.h"
#include "kernel/twcstring.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class DrawingConfig : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginQvxEntities();
    BeginCurrentDrawing();
  }
  void TearDown() override {
    EndCurrentDrawing();
    EndQvxEntities();
    EXPECT_EQ(TDbConfig::OpenCount(), 0);
    HostTest::TearDown();
  }
  static TDbConfigValues Values(AcDbDatabase* database = QvxGeLib::g_pCurrentDb) {
    TDbConfigValues values{-1, -1, -1, -1, -1};
    TDbConfig* config = GetDwgGlobal(AcDb::kForRead, database);
    if (!config) return values;
    values = {config->SolidFill(), config->BoldLine(), config->WallBase(), config->PScale(),
              config->Flags()};
    config->close();
    return values;
  }
  static AcDbObject& ModelSpace() {
    AcDbBlockTable* blocks = nullptr;
    QvxGeLib::g_pCurrentDb->getBlockTable(blocks, AcDb::kForRead);
    AcDbObjectId id;
    blocks->getAt(ACDB_MODEL_SPACE, id);
    blocks->close();
    return *id.object();
  }
  static void SetScaleOfSheet(double scale) {
    AcDbBlockTable* blocks = nullptr;
    QvxGeLib::g_pCurrentDb->getBlockTable(blocks, AcDb::kForRead);
    AcDbObjectId id;
    blocks->getAt(ACDB_PAPER_SPACE, id);
    blocks->close();
    TRBList list;
    list.AppendString(1001, kPaperScaleApplication);
    list.AppendReal(1040, scale);
    id.object()->setXData(list.Head());
  }
};

}  // namespace

TEST_F(DrawingConfig, IsNullWithoutADrawing) {
  EXPECT_EQ(QvxGeLib::g_pCurrentDb, nullptr);
  EXPECT_EQ(GetDwgGlobal(AcDb::kForRead, nullptr), nullptr);
  SolidFillOn();
  ToggleWallBase();
  EXPECT_EQ(DocGetPScale(), 100);
}

TEST_F(DrawingConfig, ADrawingWithoutARecordHasTheDefaultsAndStaysUnmodified) {
  NewDrawing();
  const TDbConfigValues values = Values();
  EXPECT_EQ(values.solidFill, 1);
  EXPECT_EQ(values.boldLine, 0);
  EXPECT_EQ(values.wallBase, 0);
  EXPECT_EQ(values.pscale, 100);
  EXPECT_EQ(values.flags, 0);
  EXPECT_EQ(Var(L"DBMOD"), L"0");
  EXPECT_EQ(ModelSpace().xData(), nullptr);
}

TEST_F(DrawingConfig, SwitchesAreIndependent) {
  NewDrawing();
  SolidFillOff();
  BoldLineOn();
  ToggleWallBase();
  EXPECT_EQ(Values().solidFill, 0);
  EXPECT_EQ(Values().boldLine, 1);
  EXPECT_EQ(Values().wallBase, 1);
  SolidFillOn();
  TasGhdHsj123();
  ToggleWallBase();
  EXPECT_EQ(Values().solidFill, 1);
  EXPECT_EQ(Values().boldLine, 0);
  EXPECT_EQ(Values().wallBase, 0);
  EXPECT_NE(Var(L"DBMOD"), L"0");
}

TEST_F(DrawingConfig, ChangesOnlyWhatWasOpenedForWritingUnderALock) {
  devhost::Document& drawing = NewDrawing();
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, drawing.database());
  ASSERT_NE(config, nullptr);
  config->SetPScale(50);
  config->close();
  EXPECT_EQ(Values().pscale, 100);
  EXPECT_EQ(GetDwgGlobal(AcDb::kForWrite, drawing.database()), nullptr) << "nobody holds the lock";
  AcAxDocLock lock;
  config = GetDwgGlobal(AcDb::kForWrite, drawing.database());
  ASSERT_NE(config, nullptr);
  config->SetPScale(50);
  config->SetFlags(TDbConfig::kPreviewOff);
  EXPECT_EQ(Values().pscale, 100) << "written when it is closed";
  config->close();
  EXPECT_EQ(Values().pscale, 50);
  EXPECT_EQ(Values().flags, 0x200);
}

TEST_F(DrawingConfig, IsSavedWithTheDrawing) {
  devhost::Document& drawing = NewDrawing();
  SolidFillOff();
  BoldLineOn();
  {
    AcAxDocLock lock;
    TDbConfig* config = GetDwgGlobal(AcDb::kForWrite, drawing.database());
    config->SetPScale(0.5);
    config->SetFlags(0x12345);
    config->close();
  }
  SetScaleOfSheet(25);
  const std::string text = devhost::DrawingText(*drawing.database());
  ASSERT_NE(host.documents.Open(MakeFile("a.dxf", text)), nullptr);
  const TDbConfigValues values = Values();
  EXPECT_EQ(values.solidFill, 0);
  EXPECT_EQ(values.boldLine, 1);
  EXPECT_EQ(values.pscale, 0.5);
  EXPECT_EQ(values.flags, 0x12345);
  host.variables.Set(L"TILEMODE", L"0");
  EXPECT_EQ(DocGetPScale(), 25);
}

TEST_F(DrawingConfig, FollowsTheActiveDrawingAndGoesWithTheLast) {
  devhost::Document& one = NewDrawing();
  SolidFillOff();
  devhost::Document& two = NewDrawing();
  EXPECT_EQ(QvxGeLib::g_pCurrentDb, two.database());
  EXPECT_EQ(Values().solidFill, 1);
  host.documents.Activate(&one);
  EXPECT_EQ(Values().solidFill, 0);
  host.documents.Close(&one);
  EXPECT_EQ(QvxGeLib::g_pCurrentDb, two.database());
  host.documents.Close(&two);
  EXPECT_EQ(QvxGeLib::g_pCurrentDb, nullptr);
  EXPECT_EQ(DocGetPScale(), 100);
}

TEST_F(DrawingConfig, DamagedValuesHaveTheirDefaults) {
  NewDrawing();
  TRBList list;
  list.AppendString(1001, L"_QVX_CONFIG");
  list.AppendShort(1070, 0);
  list.AppendReal(1040, -5);
  ModelSpace().setXData(list.Head());
  EXPECT_EQ(Values().solidFill, 0);
  EXPECT_EQ(Values().boldLine, 0);
  EXPECT_EQ(Values().pscale, 100);
  TRBList longer;
  longer.AppendString(1001, L"_QVX_CONFIG");
  for (int i = 0; i < 9; ++i) longer.AppendShort(1070, 2 + i);
  longer.AppendReal(1040, std::numeric_limits<double>::quiet_NaN());
  ModelSpace().setXData(longer.Head());
  EXPECT_EQ(Values().wallBase, 4);
  EXPECT_EQ(Values().pscale, 100);
}

TEST_F(DrawingConfig, TheScaleInForceIsTheSheetsInPaperSpaceItselfOnly) {
  devhost::Document& drawing = NewDrawing();
  {
    AcAxDocLock lock;
    TDbConfig* config = GetDwgGlobal(AcDb::kForWrite, drawing.database());
    config->SetPScale(50);
    config->close();
  }
  EXPECT_EQ(DocGetPScale(), 50);
  host.variables.Set(L"TILEMODE", L"0");
  EXPECT_EQ(DocGetPScale(), 1) << "a sheet without a scale is drawn at its own size";
  SetScaleOfSheet(20);
  EXPECT_EQ(DocGetPScale(), 20);
  host.variables.Set(L"CVPORT", L"3");
  EXPECT_EQ(DocGetPScale(), 50) << "inside a viewport the drawing's holds";
}

TEST_F(DrawingConfig, AnObjectsScaleIsSavedAndAMissingOneIsTheDefault) {
  devhost::Document& drawing = NewDrawing();
  auto* wall = new QvxDbWall;
  wall->end = {1000, 0, 0};
  auto* text = new QvxDbText;
  text->SetPScale(20);
  text->label = L"a";
  auto* space = AcDbBlockTableRecord::cast(&ModelSpace());
  space->appendAcDbEntity(wall);
  space->appendAcDbEntity(text);
  const std::string file = devhost::DrawingText(*drawing.database());
  host.documents.Open(MakeFile("scaled.dxf", file));
  const auto entities = Entities();
  ASSERT_EQ(entities.size(), 2u);
  EXPECT_EQ(TEntityBase::Cast(entities[0])->GetPScale(), 100);
  EXPECT_EQ(TEntityBase::Cast(entities[1])->GetPScale(), 20);
}

TEST(EntityBase, CastsObjectsOfTheFamilyOnly) {
  BeginQvxEntities();
  AcDbLine line;
  QvxDbColumn column;
  EXPECT_EQ(TEntityBase::Cast(&line), nullptr);
  EXPECT_EQ(TEntityBase::Cast(nullptr), nullptr);
  EXPECT_EQ(TEntityBase::Cast(&column), static_cast<TEntityBase*>(&column));
  EndQvxEntities();
}

TEST(Dimension, ItsTextGoesAsideOrUpWhereItIsWiderThanWhatIsMeasured) {
  BeginQvxEntities();
  {
    TDbDimension2 dimension;
    dimension.end = {3600, 0, 0};
    dimension.AdjustDim(true, 1, 1);
    EXPECT_EQ(dimension.flags, 0);
    dimension.SetPScale(1000);
    dimension.AdjustDim(true, 1, 1);
    EXPECT_EQ(dimension.flags, TDbDimension2::kTextAside);
    dimension.AdjustDim(false, 1, 1);
    EXPECT_EQ(dimension.flags, TDbDimension2::kTextAbove);
    dimension.SetPScale(10);
    dimension.AdjustDim(false, 1, 1);
    EXPECT_EQ(dimension.flags, 0);
    EXPECT_EQ(dimension.GetDist2DimLine(50), 500);
  }
  EndQvxEntities();
}

TEST(Numbers, HaveNoMoreDigitsThanAScaleNeeds) {
  const struct {
    double value;
    const wchar_t* text;
  } kRows[] = {{100, L"100"},
               {0.5, L"0.5"},
               {1, L"1"},
               {100.0005, L"100.0005"},
               {33.33333, L"33.3333"},
               {1e6, L"1000000"},
               {0, L"0"},
               {-0.00001, L"0"},
               {-5, L"-5"},
               {0.00001, L"0"},
               {20, L"20"},
               {1e300 * 1e300, L"?"}};
  for (const auto& row : kRows) {
    TWCString text;
    text << row.value;
    EXPECT_STREQ(text, row.text) << row.value;
  }
  TWCString large;
  large << 1e308;
  EXPECT_EQ(large.Length(), 309);
}
