// What each drawing command of the design module draws, that Escape at any of its questions leaves
// the drawing as it was, and that one undo step takes all back.
#include "tests/design/design_fixture.h"

#include "devhost/core/undo/undo.h"
#include "kernel/entities/tdbdimension2.h"

using designtest::CommandCase;
using designtest::DesignTest;

namespace {

const std::vector<const wchar_t*> kWall = {L"TWall", L"0,0", L"6000,0", L""};
const std::vector<const wchar_t*> kGrid = {L"TAxis", L"2", L"1", L"0,0"};

const CommandCase kCases[] = {
    {L"TAxis", {L"3", L"2", L"0,0"}, {{"LINE DOTE", 7}}},
    {L"TAxisArc",
     {L"4", L"15", L"6000", L"2", L"4200", L"0,0"},
     {{"LINE DOTE", 5}, {"ARC DOTE", 3}}},
    {L"TAxisDim",
     {L"-500,-600", L"8000,-600", L"1"},
     {{"QVX_AXNO AXIS", 3}, {"QVX_DIMENSION2 AXIS", 2}},
     kGrid},
    {L"TAxisNo", {L"0,0", L"A"}, {{"QVX_AXNO AXIS", 1}}},
    {L"TAddAxno", {L"400,0", L"3000,0", L""}, {{"QVX_AXNO AXIS", 1}}, {L"TAxisNo", L"0,0", L"1"}},
    {L"TArcWall", {L"0,0", L"6000,0", L"3000,3000", L"240"}, {{"QVX_WALL WALL", 18}}},
    {L"TLine2Wall",
     {L"ALL", L"", L"240"},
     {{"QVX_WALL WALL", 1}, {"LINE 0", -1}},
     {L"LINE", L"0,0", L"5000,0", L""}},
    {L"TAxis2Wall", {L"ALL", L"", L"240"}, {{"QVX_WALL WALL", 5}}, kGrid},
    {L"TWallOffset", {L"3000,0", L"1500", L"3000,2000"}, {{"QVX_WALL WALL", 1}}, kWall},
    {L"TWinTable",
     {L"0,-2000"},
     {{"QVX_SHEET SHEET", 1}},
     {L"TWall", L"0,0", L"6000,0", L"", L"TDoor", L"1000,0", L""}},
    {L"TRoom", {L"0,0", L"4000,3000", L"卧室"}, {{"QVX_SPACE SPACE", 1}}, {}, {"12.00"}},
    {L"TRoomOutline",
     {L"2000,1280"},
     {{"LWPOLYLINE SPACE", 1}},
     {L"TRoom", L"0,0", L"4000,3000", L"卧室"}},
    {L"TFloorTile",
     {L"0,0", L"1800,1200", L"600"},
     {{"LWPOLYLINE SURFACE", 1}, {"LINE SURFACE", 3}}},
    {L"TArcStair",
     {L"0,0", L"1000,0", L"1200", L"90", L"12"},
     {{"ARC STAIR", 2}, {"LINE STAIR", 13}}},
    {L"TStair2",
     {L"0,0", L"1200", L"100", L"9"},
     {{"QVX_STAIR STAIR", 2}, {"LWPOLYLINE STAIR", 1}}},
    {L"TLift", {L"0,0", L"2000,2200"}, {{"LWPOLYLINE STAIR", 2}, {"LINE STAIR", 2}}},
    {L"TStep", {L"0,0", L"3000,1500", L"3", L"300"}, {{"LWPOLYLINE STAIR", 4}}},
    {L"TBalcony", {L"0,0", L"4000,0", L"1500"}, {{"LWPOLYLINE BALCONY", 2}}},
    {L"TFrame", {L"A2", L"0,0"}, {{"LWPOLYLINE SHEET", 3}}},
    {L"TMText", {L"说明", L"第二行", L"", L"6000", L"0,0"}, {{"QVX_MTEXT TEXT", 1}}},
    {L"TNewTable", {L"0,0", L"3", L"2"}, {{"QVX_SHEET SHEET", 1}}},
    {L"TDim2P", {L"0,0", L"3000,0", L"0,800"}, {{"QVX_DIMENSION2 DIM", 1}}},
    {L"TDimPoint", {L"0,0", L"1000,0", L"2500,0", L"", L"0,-800"}, {{"QVX_DIMENSION2 DIM", 2}}},
    {L"TDimWall", {L"3000,0"}, {{"QVX_DIMENSION2 DIM", 1}}, kWall},
    {L"TDimDoor",
     {L"5000,0", L"0,800"},
     {{"QVX_DIMENSION2 DIM", 3}},
     {L"TWall", L"0,0", L"6000,0", L"", L"TDoor", L"2000,0", L""}},
    {L"TDimRadius", {L"1000,0"}, {{"QVX_RADIUSDIM DIM", 1}}, {L"CIRCLE", L"0,0", L"1000"}},
    {L"TElev", {L"0,0", L"3.6"}, {{"QVX_ELEVATION DIM", 1}}},
    {L"TArrow", {L"0,0", L"1000,1000", L"上", L"下"}, {{"QVX_ARROW DIM", 1}}},
    {L"TSection", {L"0,0", L"5000,0", L"2"}, {{"QVX_SYMB_SECTION DIM", 1}}},
    {L"TDetail", {L"0,0", L"1000,1000", L"墙身"}, {{"QVX_INDEXPOINTER DIM", 1}}},
    {L"TNorth", {L"0,0", L"45"}, {{"QVX_NORTHTHUMB DIM", 1}}},
    {L"TTitle", {L"二层平面图", L"0,0"}, {{"QVX_DRAWINGNAME DIM", 1}}},
};

class DrawCommands : public DesignTest, public testing::WithParamInterface<CommandCase> {};

TEST_P(DrawCommands, DrawTheirObjectsOnTheirLayers) {
  Type(GetParam().before);
  const auto before = Count();
  Run(GetParam());
  EXPECT_EQ(Since(before), GetParam().drawn);
  EXPECT_EQ(Var(L"CMDACTIVE"), L"0");
  for (const std::string& part : GetParam().printed)
    EXPECT_NE(devhost::Utf8(ui.printed).find(part), std::string::npos) << part;
}

TEST_P(DrawCommands, DrawNothingWhenAnyQuestionIsCancelled) {
  Type(GetParam().before);
  const auto before = State();
  for (std::size_t answers = 0; answers < GetParam().answers.size(); ++answers) {
    SCOPED_TRACE(answers);
    Answer(GetParam(), answers);
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Var(L"CMDACTIVE"), L"0");
  }
}

TEST_P(DrawCommands, AreTakenBackInOneStep) {
  Type(GetParam().before);
  const auto before = State();
  Run(GetParam());
  ASSERT_NE(State(), before);
  devhost::UndoLatestStep(*host.documents.Current());
  EXPECT_EQ(State(), before);
}

INSTANTIATE_TEST_SUITE_P(Each, DrawCommands, testing::ValuesIn(kCases),
                         [](const auto& one) { return devhost::Utf8(one.param.command); });

using DrawnObjects = DesignTest;

TEST_F(DrawnObjects, AxisNumbersCountOnOverTheAxesFromTheFirstPoint) {
  Type({L"TAxis", L"2", L"1", L"0,0", L"TAxisDim", L"8000,-600", L"-500,-600", L"9"});
  std::map<double, std::wstring> names;
  for (AcDbEntity* entity : Entities())
    if (const auto* number = QvxDbAxisNumber::cast(entity))
      names[number->start.x] = number->label + L" " + std::to_wstring(std::lround(number->start.y));
  EXPECT_EQ(names, (std::map<double, std::wstring>{
                       {0, L"11 -1900"}, {3600, L"10 -1900"}, {7200, L"9 -1900"}}));
}

TEST_F(DrawnObjects, WallsOfAnArcTouchItAndEachOther) {
  Type({L"TArcWall", L"0,0", L"6000,0", L"3000,3000", L""});
  AcGePoint3d last(0, 0, 0);
  for (AcDbEntity* entity : Entities()) {
    const auto* wall = QvxDbWall::cast(entity);
    ASSERT_NE(wall, nullptr);
    EXPECT_NEAR(wall->start.distanceTo(last), 0, 1e-6);
    EXPECT_NEAR(wall->start.distanceTo({3000, 0, 0}), 3000, 1e-6);
    EXPECT_GE(wall->end.y, -1e-6) << "above, where the point on the arc is";
    last = wall->end;
  }
  EXPECT_NEAR(last.distanceTo({6000, 0, 0}), 0, 1e-6);
}

TEST_F(DrawnObjects, ThreePointsOnALineMakeNoArcWall) {
  Type({L"TArcWall", L"0,0", L"6000,0", L"3000,0", L"240"});
  EXPECT_TRUE(Entities().empty());
  EXPECT_NE(ui.printed.find(L"三点在一条直线上"), std::wstring::npos);
}

TEST_F(DrawnObjects, WallsOnAxesEndAtTheOutermostCrossings) {
  Type({L"TAxis", L"1", L"1", L"0,0", L"TAxis2Wall", L"ALL", L"", L"300"});
  for (AcDbEntity* entity : Entities()) {
    const auto* wall = QvxDbWall::cast(entity);
    if (!wall) continue;
    EXPECT_EQ(wall->width, 300);
    for (const AcGePoint3d& at : {wall->start, wall->end}) {
      EXPECT_TRUE(std::fabs(at.x) < 1e-6 || std::fabs(at.x - 3600) < 1e-6) << at.x;
      EXPECT_TRUE(std::fabs(at.y) < 1e-6 || std::fabs(at.y - 4200) < 1e-6) << at.y;
    }
  }
}

TEST_F(DrawnObjects, AnOffsetWallKeepsTheClearDistanceOnTheClickedSide) {
  Type(kWall);
  Type({L"TWallOffset", L"3000,0", L"1500", L"3000,-2000"});
  const auto* wall = Last<QvxDbWall>();
  EXPECT_NEAR(wall->start.y, -1740, 1e-6);
  EXPECT_NEAR(wall->end.y, -1740, 1e-6);
}

TEST_F(DrawnObjects, DimensionsOfAWallEndAtItsFaces) {
  Type(kWall);
  Type({L"TDimWall", L"3000,0"});
  const auto* dimension = Last<TDbDimension2>();
  EXPECT_NEAR(dimension->start.distanceTo({3000, -120, 0}), 0, 1e-6);
  EXPECT_NEAR(dimension->end.distanceTo({3000, 120, 0}), 0, 1e-6);
}

TEST_F(DrawnObjects, DimensionsOfOpeningsAreInTheOrderOfTheWall) {
  Type(kWall);
  Type({L"TDoor", L"4000,0", L"1000,0", L"", L"TDimDoor", L"5900,0", L"0,800"});
  std::vector<double> lengths;
  for (AcDbEntity* entity : Entities())
    if (const auto* dimension = TDbDimension2::cast(entity)) {
      lengths.push_back(std::round(dimension->end.x - dimension->start.x));
      EXPECT_NEAR(dimension->width, 800, 1e-6);
    }
  EXPECT_EQ(lengths, (std::vector<double>{550, 900, 2100, 900, 1550}));
}

TEST_F(DrawnObjects, TheTableOfOpeningsHasARowForEachNumber) {
  Type(kWall);
  Type({L"TDoor", L"1000,0", L"2500,0", L"", L"TWindow", L"4500,0", L"", L"TWinTable", L"0,-2000"});
  const auto* table = QvxDbEntity::cast(Entities().back());
  EXPECT_EQ(table->cells, (std::vector<std::wstring>{L"编号", L"宽度", L"数量", L"C1515", L"1500",
                                                     L"1", L"M0921", L"900", L"2"}));
}

TEST_F(DrawnObjects, SymbolsHaveTheTypedTexts) {
  Type({L"TElev", L"0,0", L"-0.45"});
  EXPECT_EQ(Last<QvxDbEntity>()->label, L"-0.450");
  Type({L"TElev", L"0,0", L""});
  EXPECT_EQ(Last<QvxDbEntity>()->label, L"%%p0.000");
  Type({L"TTitle", L"二层平面图", L"0,0"});
  EXPECT_EQ(Last<QvxDbEntity>()->label, L"二层平面图");
  EXPECT_EQ(Last<QvxDbEntity>()->cells, std::vector<std::wstring>{L"1:100"});
  Type({L"TMText", L"说明", L"第二行", L"", L"", L"0,0"});
  EXPECT_EQ(Last<QvxDbEntity>()->label, L"说明\n第二行");
  Type({L"TNorth", L"0,0", L"0"});
  EXPECT_NEAR(Last<QvxDbEntity>()->angle, -1.5707963, 1e-6);
}

TEST_F(DrawnObjects, ASheetFrameHasTheSizeOfThePaperAtTheScale) {
  Type({L"TFrame", L"A3", L"0,0"});
  AcDbExtents box;
  ASSERT_EQ(Entities()[0]->getGeomExtents(box), Acad::eOk);
  EXPECT_NEAR(box.maxPoint().x, 42000, 1e-6);
  EXPECT_NEAR(box.maxPoint().y, 29700, 1e-6);
}

}  // namespace
