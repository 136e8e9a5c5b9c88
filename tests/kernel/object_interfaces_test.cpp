// What drawing objects offer to the message filter: texts, the edit test, group keys and control
// states, and their way through a drawing file.
#include <gtest/gtest.h>

#include <chrono>

#include "devhost/core/dxf/drawing_file.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/model_number.h"
#include "kernel/tdbconfig.h"
#include "kernel/tdbfloorrect.h"
#include "kernel_objects_fixture.h"

namespace {

class Objects : public kerneltest::ObjectsTest {
 protected:
  // As the host opens objects for modules: for reading, from its message loop.
  static void Toggle(QvxDbEntity* entity) {
    AcDbObject* open = nullptr;
    ASSERT_EQ(Acad::eOk, acdbOpenAcDbObject(open, entity->objectId(), AcDb::kForRead));
    TEntityBase::Cast(open)->ToggleCtrl();
    open->close();
    EXPECT_FALSE(open->isReadEnabled()) << "closed as often as opened";
  }
};

TEST_F(Objects, WallsAreCurvesAndOthersAreNot) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* opening = Add<QvxDbOpening>({0, 0, 0}, {0, 0, 0});
  EXPECT_EQ(nullptr, TDbEntity::cast(wall));
  EXPECT_NE(nullptr, TDbCurveEntity::cast(wall));
  EXPECT_NE(nullptr, TDbEntity::cast(opening));
  EXPECT_EQ(nullptr, TDbCurveEntity::cast(opening));
  AcDbLine line;
  EXPECT_EQ(nullptr, TDbEntity::cast(&line));
  EXPECT_EQ(nullptr, TDbCurveEntity::cast(&line));
  EXPECT_EQ(nullptr, TDbEntity::cast(nullptr));
  EXPECT_EQ(nullptr, TDbCurveEntity::cast(nullptr));
}

constexpr char kLockedLayer[] =
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nFIXED\n70\n4\n62\n7\n6\n"
    "CONTINUOUS\n0\nENDTAB\n0\nENDSEC\n0\nEOF\n";

TEST_F(Objects, TheEditTestRefusesLockedLayersAndObjectsThatRefuse) {
  ASSERT_TRUE(host.documents.Open(MakeFile("locked.dxf", kLockedLayer)));
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* number = Add<QvxDbAxisNumber>({0, 0, 0}, {0, 0, 0});
  EXPECT_TRUE(TDbCurveEntity::cast(wall)->IsEditable());
  EXPECT_TRUE(TDbEntity::cast(number)->IsEditable());
  wall->setLayer(L"fixed");
  EXPECT_FALSE(TDbCurveEntity::cast(wall)->IsEditable());
  EXPECT_FALSE(TDbEntity::cast(Add<QvxDbSlow>({0, 0, 0}, {9, 9, 0}))->IsEditable());
}

TEST_F(Objects, AFloorRectIsOfItsOwnClass) {
  EXPECT_TRUE(Add<TDbFloorRect>({0, 0, 0}, {9, 9, 0})->isKindOf(TDbFloorRect::desc()));
  EXPECT_FALSE(Add<QvxDbSheet>({0, 0, 0}, {9, 9, 0})->isKindOf(TDbFloorRect::desc()));
}

TEST_F(Objects, ATextIsHitWhereItStands) {
  auto* text = new QvxDbText;
  text->label = L"客厅";
  text->width = 100;
  Prepare(text, {1000, 1000, 0}, {});
  TPickEntSet set;
  PickAll(set);
  const auto hit = TextAt(set, 1150, 1050);
  ASSERT_NE(nullptr, hit);
  EXPECT_STREQ(L"客厅", hit->GetText().GetString());
  EXPECT_EQ(0, hit->GetIndex());
  EXPECT_EQ(text->objectId(), hit->GetObjectId());
  EXPECT_FALSE(hit->IsMultiLine());
  AcGePoint3d lower, upper;
  hit->GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(1000, lower.x);
  EXPECT_DOUBLE_EQ(1200, upper.x);
  EXPECT_DOUBLE_EQ(1100, upper.y);
  hit->SetText(L"");
  hit->GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(0, lower.distanceTo(upper)) << "an empty text has no extent";
  EXPECT_EQ(L"客厅", text->label) << "only the fragment changed";
  EXPECT_EQ(nullptr, TextAt(set, 1250, 1050));
  EXPECT_EQ(nullptr, TextAt(set, 1150, 1150));
}

TEST_F(Objects, ATurnedTextIsHitInItsOwnDirection) {
  auto* text = new QvxDbText;
  text->label = L"房间";
  text->width = 100;
  text->angle = 1.5707963267948966;
  Prepare(text, {0, 0, 0}, {});
  TPickEntSet set;
  PickAll(set);
  EXPECT_NE(nullptr, TextAt(set, -50, 150));
  EXPECT_EQ(nullptr, TextAt(set, 150, 50));
}

TEST_F(Objects, PlainTextIsHitTooAndWhatHasNoTextIsNot) {
  Append(new AcDbLine({0, 0, 0}, {500, 0, 0}));
  auto* plain = new AcDbText({0, 0, 0}, L"图", 100);
  Append(plain);
  TPickEntSet set;
  EXPECT_EQ(nullptr, TextAt(set, 50, 50)) << "an empty set";
  PickAll(set);
  const auto hit = TextAt(set, 50, 50);
  ASSERT_NE(nullptr, hit);
  EXPECT_EQ(plain->objectId(), hit->GetObjectId());
  plain->erase();
  EXPECT_EQ(nullptr, TextAt(set, 50, 50)) << "erased since it was picked";
}

TEST_F(Objects, AFragmentOutlivesItsObject) {
  auto* text = new QvxDbText;
  text->label = L"房间";
  text->width = 100;
  Prepare(text, {0, 0, 0}, {});
  TPickEntSet set;
  PickAll(set);
  const auto hit = TextAt(set, 50, 50);
  ASSERT_NE(nullptr, hit);
  text->erase();
  AcGePoint3d lower(1, 1, 1), upper(2, 2, 2);
  hit->GetExtent2d(lower, upper);
  hit->Highlight(true);
  EXPECT_DOUBLE_EQ(0, lower.distanceTo(upper));
  EXPECT_STREQ(L"房间", hit->GetText().GetString());
}

TEST_F(Objects, TextsOfAnAxisLabelStandBeyondItsEnds) {
  auto* axis = new QvxDbAxisLabel;
  axis->label = L"A";
  axis->size = 1200;
  Prepare(axis, {0, 0, 0}, {0, 10000, 0});
  TPickEntSet set;
  PickAll(set);
  EXPECT_EQ(0, TextAt(set, 500, -1200)->GetIndex()) << "beside the letter, within its place";
  EXPECT_EQ(1, TextAt(set, 0, 11200)->GetIndex());
  EXPECT_EQ(nullptr, TextAt(set, 0, 5000)) << "on the line";
  EXPECT_EQ(nullptr, TextAt(set, 0, -500)) << "between the line and its text";
}

TEST_F(Objects, DrawingIndexAndPointerHaveTheirTexts) {
  auto* index = new QvxDbDrawingIndex;
  index->width = 8000;
  index->size = 800;
  index->label = L"目录";
  index->cells = {L"建施-01"};
  Prepare(index, {0, 0, 0}, {});
  auto* pointer = new QvxDbIndexPointer;
  pointer->width = 400;
  pointer->label = L"3";
  pointer->cells = {L"详图"};
  Prepare(pointer, {20000, 0, 0}, {22000, 2000, 0});
  TPickEntSet set;
  PickAll(set);
  EXPECT_STREQ(L"目录", TextAt(set, 6000, -400)->GetText().GetString());
  EXPECT_STREQ(L"建施-01", TextAt(set, 6000, -1200)->GetText().GetString());
  EXPECT_STREQ(L"3", TextAt(set, 22000, 2000)->GetText().GetString());
  EXPECT_STREQ(L"详图", TextAt(set, 23000, 3000)->GetText().GetString());
}

TEST_F(Objects, ObjectsOfAGroupShareAKeyAndOthersHaveTheirOwn) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* door = Add<QvxDbOpening>({500, 0, 0}, {500, 0, 0});
  auto* other = Add<QvxDbWall>({0, 9, 0}, {1000, 9, 0});
  EXPECT_NE(wall->GroupKey(), other->GroupKey());
  wall->group = door->group = 7;
  EXPECT_EQ(7, wall->GroupKey());
  EXPECT_EQ(7, door->GroupKey());
  EXPECT_LT(other->GroupKey(), 0);
}

TEST_F(Objects, TheControlStateFlipsForTheWholeGroupOnce) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* door = Add<QvxDbOpening>({500, 0, 0}, {500, 0, 0});
  auto* single = Add<QvxDbWall>({0, 9, 0}, {1000, 9, 0});
  wall->group = door->group = 7;
  Toggle(wall);
  EXPECT_EQ(1, wall->control);
  EXPECT_EQ(1, door->control);
  EXPECT_EQ(0, single->control);
  Toggle(door);
  EXPECT_EQ(0, wall->control);
  EXPECT_EQ(0, door->control);
  Toggle(single);
  EXPECT_EQ(1, single->control);
  EXPECT_EQ(0, wall->control);
  Send(L"U\n");
  EXPECT_EQ(0, single->control) << "one undo step";
  EXPECT_EQ(0, wall->control);
}

TEST_F(Objects, AnObjectThatIsNotOpenIsNotFlipped) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  wall->ToggleCtrl();
  EXPECT_EQ(0, wall->control);
}

TEST_F(Objects, GroupControlStateAndCellsGoThroughAFile) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  wall->group = 7;
  wall->control = 1;
  auto* sheet = new QvxDbSheet;
  sheet->label = L"总图";
  sheet->cells = {L"甲", L"", L"丙"};
  sheet->kind = 3;
  Prepare(sheet, {0, 0, 0}, {42000, 29700, 0});
  const std::wstring path = (folder / "saved.dxf").wstring();
  std::wstring why;
  ASSERT_TRUE(devhost::WriteDrawing(path, *host.documents.Current()->database(), &why));
  ASSERT_TRUE(host.documents.Open(path));
  ASSERT_EQ(2u, Entities().size());
  const auto* readWall = QvxDbWall::cast(Entities()[0]);
  const auto* readSheet = QvxDbSheet::cast(Entities()[1]);
  ASSERT_TRUE(readWall && readSheet);
  EXPECT_EQ(7, readWall->group);
  EXPECT_EQ(1, readWall->control);
  EXPECT_EQ(sheet->cells, readSheet->cells);
  EXPECT_EQ(L"总图", readSheet->label);
}

TEST_F(Objects, AnObjectWithoutASecondPointInTheFileEndsAtItsFirst) {
  MakeFile("door.dxf",
           "0\nSECTION\n2\nENTITIES\n0\nQVX_OPENING\n5\n21\n100\nAcDbEntity\n8\n0\n"
           "100\nQvxDbOpening\n10\n500\n20\n7\n0\nENDSEC\n0\nEOF\n");
  ASSERT_TRUE(host.documents.Open(L"door.dxf"));
  ASSERT_EQ(1u, Entities().size());
  const auto* door = QvxDbOpening::cast(Entities()[0]);
  ASSERT_TRUE(door);
  ASSERT_EQ(500, door->start.x);
  EXPECT_EQ(500, door->end.x);
  EXPECT_EQ(7, door->end.y);
}

TEST_F(Objects, ModelNumbersAreTextsWhileTheDrawingShowsThem) {
  auto* door = new QvxDbOpening;
  door->label = L"M0921";
  door->width = 240;
  door->size = 900;
  Prepare(door, {0, 0, 0}, {});
  EXPECT_TRUE(door->TextPlaces().empty());
  ToggleModelNumber();
  ASSERT_EQ(1u, door->TextPlaces().size());
  EXPECT_EQ(L"M0921", door->TextPlaces()[0].text);
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb);
  EXPECT_EQ(TDbConfig::kModelNumbers, config->Flags()) << "saved with the drawing";
  config->close();
  ToggleModelNumber();
  EXPECT_TRUE(door->TextPlaces().empty());
  acDocManager->closeDocument(acDocManager->curDocument());
  ToggleModelNumber();
}

TEST_F(Objects, ASlowObjectTakesItsTime) {
  auto* slow = Add<QvxDbSlow>({0, 0, 0}, {9, 9, 0});
  slow->kind = 30;
  const auto before = std::chrono::steady_clock::now();
  EXPECT_TRUE(TEntityBase::Cast(slow)->AcceptsPointer({0, 0, 0}));
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(30));
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  EXPECT_TRUE(TEntityBase::Cast(wall)->AcceptsPointer({0, 0, 0}));
}

}  // namespace
