// Commands of the design module that change or measure what is drawn, and those on layers and
// blocks.
#include "tests/design/design_fixture.h"

#include "devhost/core/undo/undo.h"
#include "dbents.h"
#include "kernel/entities/block_inserts.h"

using designtest::CommandCase;
using designtest::DesignTest;

namespace {

const std::vector<const wchar_t*> kWall = {L"TWall", L"0,0", L"6000,0", L""};
const std::vector<const wchar_t*> kDoor = {L"TWall", L"0,0",    L"6000,0", L"",
                                           L"TDoor", L"1000,0", L""};
const std::vector<const wchar_t*> kNumbers = {
    L"TAxisNo", L"0,0", L"1", L"TAxisNo", L"6000,0", L"2", L"TAxisNo", L"3000,0", L"7"};

const CommandCase kCases[] = {
    {L"TDelAxno", {L"ALL", L""}, {}, kNumbers},
    {L"TSortAxno", {L"ALL", L"", L"A"}, {}, kNumbers},
    {L"TRevAxno", {L"ALL", L""}, {}, kNumbers},
    {L"TWallWidth", {L"ALL", L"", L"370"}, {}, kWall},
    {L"TWallHeight", {L"ALL", L"", L"2800"}, {}, kWall},
    {L"TDoorFlipIn", {L"ALL", L""}, {}, kDoor},
    {L"TDoorFlipLeft", {L"ALL", L""}, {}, kDoor},
    {L"TWinLab", {L"550,500", L"M9"}, {}, kDoor},
    {L"TBatLabel", {L"ALL", L"", L"M1"}, {}, kDoor},
    {L"TFind", {L"甲", L"乙"}, {}, {L"TText", L"甲甲", L"0,0"}},
};

class ChangeCommands : public DesignTest, public testing::WithParamInterface<CommandCase> {};

TEST_P(ChangeCommands, ChangeNothingWhenAnyQuestionIsCancelledAndAreTakenBackInOneStep) {
  Type(GetParam().before);
  const auto before = State();
  for (std::size_t answers = 0; answers < GetParam().answers.size(); ++answers) {
    Answer(GetParam(), answers);
    EXPECT_EQ(State(), before) << answers;
  }
  Run(GetParam());
  EXPECT_NE(State(), before);
  devhost::UndoLatestStep(*host.documents.Current());
  EXPECT_EQ(State(), before);
}

INSTANTIATE_TEST_SUITE_P(Each, ChangeCommands, testing::ValuesIn(kCases),
                         [](const auto& one) { return devhost::Utf8(one.param.command); });

class ChangedObjects : public DesignTest {
 protected:
  // The names of the axis numbers from the left.
  std::wstring Names() {
    std::map<double, std::wstring> byPlace;
    for (AcDbEntity* entity : Entities())
      if (const auto* number = QvxDbAxisNumber::cast(entity))
        byPlace[number->start.x] = number->label;
    std::wstring names;
    for (const auto& [x, name] : byPlace) names += name;
    return names;
  }
};

TEST_F(ChangedObjects, AxisNumbersAreNumberedAndReversedByPlace) {
  Type(kNumbers);
  EXPECT_EQ(Names(), L"172");
  Type({L"TRevAxno", L"ALL", L""});
  EXPECT_EQ(Names(), L"271");
  Type({L"TSortAxno", L"ALL", L"", L"G"});
  EXPECT_EQ(Names(), L"GHJ");
  Type({L"TDelAxno", L"ALL", L""});
  EXPECT_EQ(Names(), L"");
}

TEST_F(ChangedObjects, WallsTakeWidthAndHeight) {
  Type(kWall);
  Type({L"TWallWidth", L"ALL", L"", L"370", L"TWallHeight", L"ALL", L"", L"2800"});
  EXPECT_EQ(Last<QvxDbWall>()->width, 370);
  EXPECT_EQ(Last<QvxDbWall>()->size, 2800);
}

TEST_F(ChangedObjects, DoorsFlipAcrossAndAlongAndWindowsDoNot) {
  Type(kDoor);
  Type({L"TWindow", L"4000,0", L"", L"TDoorFlipIn", L"ALL", L""});
  EXPECT_EQ(QvxDbOpening::cast(Entities()[1])->flags, 1);
  Type({L"TDoorFlipLeft", L"ALL", L""});
  EXPECT_EQ(QvxDbOpening::cast(Entities()[1])->flags, 3);
  Type({L"TDoorFlipIn", L"ALL", L""});
  EXPECT_EQ(QvxDbOpening::cast(Entities()[1])->flags, 2);
  EXPECT_EQ(Last<QvxDbOpening>()->flags, 0);
}

TEST_F(ChangedObjects, OpeningsAreLabelledOneByOneTogetherAndBySize) {
  Type(kDoor);
  Type({L"TWinLab", L"550,500", L"M9"});
  EXPECT_EQ(Last<QvxDbOpening>()->label, L"M9");
  Type({L"TBatLabel", L"ALL", L"", L"M1"});
  EXPECT_EQ(Last<QvxDbOpening>()->label, L"M1");
  Type({L"TWinLabReset", L"ALL", L""});
  EXPECT_EQ(Last<QvxDbOpening>()->label, L"M0921");
}

TEST_F(ChangedObjects, AreasOfRoomsAreSummed) {
  Type({L"TRoom", L"0,0", L"4000,3000", L"甲", L"TRoom", L"5000,0", L"7000,3000", L"乙"});
  Type({L"TAreaSum", L"ALL", L""});
  EXPECT_NE(ui.printed.find(L"2 个房间，共 18.00 平方米"), std::wstring::npos);
}

TEST_F(ChangedObjects, TextsOfTheHostAndOfTheModuleAreReplaced) {
  Append(new AcDbText({0, 0, 0}, L"甲a甲", 100));
  Type({L"TText", L"甲b", L"0,0", L"TFind", L"甲", L"丙丙"});
  EXPECT_STREQ(AcDbText::cast(Entities()[0])->textStringConst(), L"丙丙a丙丙");
  EXPECT_EQ(Last<QvxDbText>()->label, L"丙丙b");
  EXPECT_NE(ui.printed.find(L"替换了 3 处"), std::wstring::npos);
}

TEST_F(ChangedObjects, ALayerIsMadeAndBecomesCurrent) {
  Type({L"TLayer", L"家具", L"30"});
  EXPECT_EQ(Var(L"CLAYER"), L"家具");
  Type({L"LINE", L"0,0", L"10,0", L""});
  EXPECT_STREQ(Entities()[0]->layer(), L"家具");
  Type({L"TLayer", L"0"});
  EXPECT_EQ(Var(L"CLAYER"), L"0");
}

TEST_F(ChangedObjects, TheLinetypeOfAxesChangesToAndFro) {
  Type({L"TAxis", L"1", L"1", L"0,0", L"TAxisLtype"});
  const auto* layers =
      AcDbLayerTable::cast(host.documents.Current()->database()->layerTableId().object());
  AcDbObjectId id;
  ASSERT_EQ(layers->getAt(L"DOTE", id), Acad::eOk);
  const auto* layer = AcDbLayerTableRecord::cast(id.object());
  EXPECT_STREQ(layer->linetype(), L"DASHDOT");
  Type({L"TAxisLtype"});
  EXPECT_STREQ(layer->linetype(), L"CONTINUOUS");
}

class Blocks : public DesignTest {
 protected:
  void SetUp() override {
    DesignTest::SetUp();
    AcDbBlockTableRecord* block = AddBlock(L"马桶");
    block->appendAcDbEntity(new AcDbCircle({0, 0, 0}, 200));
  }
};

TEST_F(Blocks, AreInsertedFromThoseOfTheDrawing) {
  const CommandCase insert = {L"TLibrary", {L"马桶", L"100,200", L"说明"}, {}};
  for (std::size_t answers = 0; answers < 3; ++answers) {
    Answer(insert, answers);
    EXPECT_TRUE(Entities().empty()) << answers;
  }
  Run(insert);
  ASSERT_EQ(Entities().size(), 1u);
  const auto* reference = TDbBlockInsert::cast(Entities()[0]);
  ASSERT_NE(reference, nullptr);
  EXPECT_EQ(reference->Caption(), L"说明");
  EXPECT_NEAR(reference->position().distanceTo({100, 200, 0}), 0, 1e-9);
  devhost::UndoLatestStep(*host.documents.Current());
  EXPECT_TRUE(Entities().empty());
}

TEST_F(Blocks, AnUnknownNameIsReported) {
  Type({L"TLibrary", L"沙发"});
  EXPECT_NE(ui.printed.find(L"没有块 沙发"), std::wstring::npos);
  EXPECT_TRUE(Entities().empty());
}

TEST_F(Blocks, MoveToALayer) {
  Type({L"TLibrary", L"马桶", L"0,0", L"", L"LINE", L"0,0", L"10,0", L""});
  Type({L"TBlockLayer", L"ALL", L"", L"洁具"});
  EXPECT_STREQ(Entities()[0]->layer(), L"洁具");
  EXPECT_STREQ(Entities()[1]->layer(), L"0");
}

}  // namespace
