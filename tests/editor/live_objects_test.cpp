// What the message filter and the preview read from a drawing, over the real core of the host: sets
// at a point, along a line and of the selection, what can be edited, the control toggle, the
// selected objects, and the running commands.
#include "editor/live_objects.h"

#include "editor/selected_set.h"
#include "ground/command_line.h"
#include "kernel/current_drawing.h"
#include "kernel/drawing_data.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tdbfloorrect.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class LiveObjects : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginQvxEntities();
    BeginCurrentDrawing();
    NewDrawing();
  }
  void TearDown() override {
    EndCurrentDrawing();
    HostTest::TearDown();
    EndQvxEntities();
  }

  void AddCommand(const wchar_t* name, int flags, AcRxFunctionPtr function) {
    AcEdCommandStack& commands = host.commands;
    commands.addCommand(L"TEST", name, name, flags, function);
  }
  AcDbObjectId Append(AcDbEntity* entity) {
    AcDbBlockTableRecord::cast(host.documents.Current()->database()->currentSpaceId().object())
        ->appendAcDbEntity(entity);
    return entity->objectId();
  }
  template <class Entity>
  Entity* Add(const AcGePoint3d& start, const AcGePoint3d& end) {
    auto* entity = new Entity;
    entity->start = start;
    entity->end = end;
    Append(entity);
    return entity;
  }
  static TEntitySet Object(const AcDbEntity* entity) {
    ads_name name{};
    acdbGetAdsName(name, entity->objectId());
    return TEntitySet(name);
  }
  static void Select(std::initializer_list<const AcDbEntity*> entities) {
    ads_name set{};
    acedSSAdd(nullptr, nullptr, set);
    for (const AcDbEntity* entity : entities) acedSSAdd(Object(entity).Name(), set, set);
    acedSSSetFirst(set, set);
    acedSSFree(set);
  }
  static void SetTo(TPickEntSet& set, const AcDbEntity* entity) { set.Set(Object(entity)); }
  static void CloseDrawing() { acDocManager->closeDocument(acDocManager->curDocument()); }
};

TEST_F(LiveObjects, APointFindsTheObjectOfTheTypesThere) {
  const auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  Append(new AcDbLine({0, 500, 0}, {1000, 500, 0}));
  TPickEntSet set;
  EXPECT_EQ(qvx::SelectAtPoint({500, 0, 0}, nullptr, set), 1);
  EXPECT_TRUE(set[0] == Object(wall));
  EXPECT_EQ(qvx::SelectAtPoint({500, 0, 0}, L"QVX_*", set), 1);
  EXPECT_LE(qvx::SelectAtPoint({500, 0, 0}, L"TEXT,MTEXT", set), 0);
  EXPECT_EQ(set.Length(), 0) << "the earlier content is gone";
  EXPECT_EQ(qvx::SelectAtPoint({500, 500, 0}, L"LINE,TEXT", set), 1);
  EXPECT_LE(qvx::SelectAtPoint({500, 500, 0}, L"QVX_*", set), 0);
  EXPECT_LE(qvx::SelectAtPoint({5000, 5000, 0}, nullptr, set), 0);
}

TEST_F(LiveObjects, AFenceFindsTheObjectsOfTheTypesThatItCrosses) {
  const auto* near = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  const auto* far = Add<QvxDbWall>({0, 9000, 0}, {1000, 9000, 0});
  Add<QvxDbWall>({5000, 0, 0}, {6000, 0, 0});
  Append(new AcDbLine({0, 500, 0}, {1000, 500, 0}));
  TPickEntSet set;
  EXPECT_EQ(qvx::SelectAlongFence({500, 1e9, 0}, {500, -1e9, 0}, L"QVX_*", set), 2);
  EXPECT_TRUE(set.IsInclude(Object(near)));
  EXPECT_TRUE(set.IsInclude(Object(far)));
  EXPECT_EQ(qvx::SelectAlongFence({500, 1e9, 0}, {500, -1e9, 0}, nullptr, set), 3);
  EXPECT_EQ(qvx::SelectAlongFence({500, 100, 0}, {500, -100, 0}, nullptr, set), 1);
  EXPECT_LE(qvx::SelectAlongFence({3000, 100, 0}, {3000, -100, 0}, nullptr, set), 0);
}

TEST_F(LiveObjects, TheSelectionIsFilteredByType) {
  const auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* line = new AcDbLine({0, 500, 0}, {1000, 500, 0});
  Append(line);
  TPickEntSet set;
  EXPECT_LE(qvx::SelectImpliedObjects(nullptr, set), 0);
  Select({line, wall});
  EXPECT_EQ(qvx::SelectImpliedObjects(nullptr, set), 2);
  EXPECT_EQ(qvx::SelectImpliedObjects(L"QVX_*", set), 1);
  EXPECT_TRUE(set[0] == Object(wall));
  EXPECT_LE(qvx::SelectImpliedObjects(L"CIRCLE", set), 0);
}

TEST_F(LiveObjects, WithoutADrawingEverySelectionIsRefused) {
  CloseDrawing();
  TPickEntSet set;
  EXPECT_EQ(qvx::SelectAtPoint({0, 0, 0}, nullptr, set), -1);
  EXPECT_EQ(qvx::SelectAlongFence({0, 1, 0}, {0, -1, 0}, L"*", set), -1);
  EXPECT_EQ(qvx::SelectImpliedObjects(nullptr, set), -1);
  EXPECT_FALSE(qvx::IsEditableObject(set));
  EXPECT_FALSE(qvx::IsFloorRectangle(set));
  EXPECT_EQ(qvx::ReadSelectedObjects(), nullptr);
  EXPECT_FALSE(qvx::RunsCommand(L"3DORBIT"));
  EXPECT_FALSE(qvx::RunsAnyCommand());
}

constexpr char kLockedLayer[] =
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nFIXED\n70\n4\n62\n7\n6\n"
    "CONTINUOUS\n0\nENDTAB\n0\nENDSEC\n0\nEOF\n";

TEST_F(LiveObjects, CurvesAndOtherObjectsAreEditableUnlessTheirLayerIsLocked) {
  ASSERT_TRUE(host.documents.Open(MakeFile("locked.dxf", kLockedLayer)));
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* number = Add<QvxDbAxisNumber>({0, 0, 0}, {0, 0, 0});
  auto* line = new AcDbLine({0, 500, 0}, {1000, 500, 0});
  Append(line);
  TPickEntSet set;
  EXPECT_FALSE(qvx::IsEditableObject(set)) << "an empty set";
  for (QvxDbEntity* entity : {static_cast<QvxDbEntity*>(wall), static_cast<QvxDbEntity*>(number)}) {
    SetTo(set, entity);
    EXPECT_TRUE(qvx::IsEditableObject(set));
    entity->setLayer(L"FIXED");
    EXPECT_FALSE(qvx::IsEditableObject(set));
    EXPECT_FALSE(entity->isReadEnabled()) << "closed as often as opened";
  }
  SetTo(set, line);
  EXPECT_FALSE(qvx::IsEditableObject(set)) << "no object of the family";
}

TEST_F(LiveObjects, AFloorRectangleIsRecognised) {
  const auto* floor = Add<TDbFloorRect>({0, 0, 0}, {9, 9, 0});
  TPickEntSet set;
  EXPECT_FALSE(qvx::IsFloorRectangle(set));
  SetTo(set, floor);
  EXPECT_TRUE(qvx::IsFloorRectangle(set));
  SetTo(set, Add<QvxDbWall>({0, 0, 0}, {9, 0, 0}));
  EXPECT_FALSE(qvx::IsFloorRectangle(set));
}

TEST_F(LiveObjects, AnErasedObjectIsNeitherEditableNorAFloorRectangle) {
  auto* floor = Add<TDbFloorRect>({0, 0, 0}, {9, 9, 0});
  TPickEntSet set;
  SetTo(set, floor);
  ASSERT_TRUE(qvx::IsEditableObject(set));
  floor->objectId().object()->erase();
  EXPECT_FALSE(qvx::IsEditableObject(set));
  EXPECT_FALSE(qvx::IsFloorRectangle(set));
}

TEST_F(LiveObjects, TheToggleOpensTheSelectedObjectsOfTheFamily) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  auto* line = new AcDbLine({0, 500, 0}, {1000, 500, 0});
  Append(line);
  wall->group = 7;
  EXPECT_EQ(qvx::OpenToggleObjects(qvx::ToggleSource::kSelection)->Count(), 0);
  Select({line, wall});
  const auto objects = qvx::OpenToggleObjects(qvx::ToggleSource::kSelection);
  ASSERT_EQ(objects->Count(), 2);
  EXPECT_EQ(objects->Open(0), nullptr) << "a line has no control state";
  auto object = objects->Open(1);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(object->GroupKey(), 7);
  object->ToggleControl();
  EXPECT_EQ(wall->control, 1);
  object.reset();
  EXPECT_FALSE(wall->isReadEnabled()) << "closed as often as opened";
  EXPECT_EQ(objects->Open(2), nullptr) << "past the end";
}

TEST_F(LiveObjects, TheToggleSkipsAnObjectErasedMeanwhile) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  Select({wall});
  const auto objects = qvx::OpenToggleObjects(qvx::ToggleSource::kSelection);
  ASSERT_EQ(objects->Count(), 1);
  wall->objectId().object()->erase();
  EXPECT_EQ(objects->Open(0), nullptr);
}

TEST_F(LiveObjects, DuringACommandTheToggleCanTakeWhatWasSelectedBefore) {
  auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  static int s_before, s_now;
  s_before = s_now = -1;
  AddCommand(L"TAKE", ACRX_CMD_USEPICKSET, [] {
    acedSSSetFirst(nullptr, nullptr);
    s_before = qvx::OpenToggleObjects(qvx::ToggleSource::kPickFirst)->Count();
    s_now = qvx::OpenToggleObjects(qvx::ToggleSource::kSelection)->Count();
  });
  Select({wall});
  Send(L"TAKE\n");
  EXPECT_EQ(s_before, 1);
  EXPECT_EQ(s_now, 0);
}

TEST_F(LiveObjects, TheSelectedObjectsAreIncludedAndNoOthers) {
  const auto* wall = Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0});
  const auto* other = Add<QvxDbWall>({0, 500, 0}, {1000, 500, 0});
  const auto none = qvx::ReadSelectedObjects();
  ASSERT_NE(none, nullptr) << "nothing selected is no refusal";
  EXPECT_FALSE(none->Includes(Object(wall)));
  Select({wall});
  const auto one = qvx::ReadSelectedObjects();
  ASSERT_NE(one, nullptr);
  EXPECT_TRUE(one->Includes(Object(wall)));
  EXPECT_FALSE(one->Includes(Object(other)));
  EXPECT_FALSE(one->Includes(TEntitySet()));
}

// The host numbers its sets: those between two of our own are the sets that were read.
TEST_F(LiveObjects, TheSetsOfTheHostAreFreed) {
  Select({Add<QvxDbWall>({0, 0, 0}, {1000, 0, 0})});
  ads_name first{}, last{};
  acedSSAdd(nullptr, nullptr, first);
  auto selected = qvx::ReadSelectedObjects();
  acedSSAdd(nullptr, nullptr, last);
  ASSERT_EQ(last[0] - first[0], 3) << "one of the grips, one of the picked objects";
  const auto live = [&] {
    int count = 0, length = 0;
    for (ads_name name = {first[0] + 1, first[1]}; name[0] < last[0]; ++name[0])
      count += acedSSLength(name, &length) == RTNORM;
    return count;
  };
  EXPECT_EQ(live(), 1) << "the second set is freed at once";
  selected.reset();
  EXPECT_EQ(live(), 0);
  acedSSFree(first);
  acedSSFree(last);
}

TEST_F(LiveObjects, ARunningCommandIsFoundByAnyPartOfTheNames) {
  static std::vector<bool> s_seen;
  s_seen.clear();
  AddCommand(L"3DORBITCTR", 0, [] {
    for (const wchar_t* part : {L"3DORBIT", L"3DORBITCTR", L"CTR", L"3DORBITS", L"LINE"})
      s_seen.push_back(qvx::RunsCommand(part));
    s_seen.push_back(qvx::RunsAnyCommand());
  });
  EXPECT_FALSE(qvx::RunsCommand(L"3DORBIT"));
  EXPECT_FALSE(qvx::RunsAnyCommand());
  Send(L"3DORBITCTR\n");
  EXPECT_EQ(s_seen, (std::vector<bool>{true, true, true, false, false, true}));
  EXPECT_FALSE(qvx::RunsCommand(L"3DORBIT")) << "it has ended";
}

}  // namespace
