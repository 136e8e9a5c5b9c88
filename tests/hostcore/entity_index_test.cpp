// The index over entities: it finds what drawing everything would find, after every kind of change.
#include "devhost/core/view/entity_index.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "devhost/core/view/scene.h"
#include "devhost/core/view/shape_geometry.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

AcDbBlockTableRecord& Space(AcDbDatabase& database) {
  return *AcDbBlockTableRecord::cast(database.currentSpaceId().object());
}

// The hit test without an index: draws everything.
AcDbEntity* EntityAtByDrawing(AcDbDatabase& database, const AcGePoint3d& at, double reach) {
  AcDbObject* best = nullptr;
  double nearest = reach;
  for (const Shape& shape : BuildScene(database, 1 / reach)) {
    const double distance = DistanceTo(shape, at);
    if (distance > nearest) continue;
    nearest = distance;
    best = shape.entity;
  }
  return AcDbEntity::cast(best);
}

class Numbers {
 public:
  double Between(double low, double high) {
    return low + (high - low) * (m_random() % 100000) / 100000.0;
  }
  int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

 private:
  std::mt19937 m_random{11};
};

AcDbEntity* AnyEntity(Numbers& numbers) {
  const AcGePoint3d at(numbers.Between(-500, 500), numbers.Between(-500, 500), 0);
  const double size = std::pow(10, numbers.Between(-2, 3));
  switch (numbers.Below(4)) {
    case 0:
      return new AcDbLine(at, {at.x + size, at.y - size / 3, 0});
    case 1:
      return new AcDbCircle(at, size);
    case 2:
      return new AcDbArc(at, size, numbers.Between(0, 6), numbers.Between(0, 6));
    default:
      return new AcDbText(at, L"轴 12", size / 4, numbers.Between(0, 6));
  }
}

}  // namespace

TEST(BoxGrid, FindsEveryBoxThatTouchesAndFarFewerThanAll) {
  Numbers numbers;
  BoxGrid grid;
  std::vector<Box> boxes;
  for (int i = 0; i < 2000; ++i) {
    const double x = numbers.Between(-1000, 1000), y = numbers.Between(-1000, 1000),
                 size = std::pow(10, numbers.Between(-3, 2));
    boxes.push_back({x, y, x + size, y + size * numbers.Between(0, 1)});
    grid.Insert(i, boxes.back());
  }
  std::size_t visited = 0;
  for (int i = 0; i < 500; ++i) {
    const double x = numbers.Between(-1100, 1100), y = numbers.Between(-1100, 1100);
    const Box asked = {x, y, x + numbers.Between(0, 5), y + numbers.Between(0, 5)};
    std::vector<int> found;
    grid.Find(asked, &found);
    visited += found.size();
    const std::set<int> set(found.begin(), found.end());
    EXPECT_EQ(set.size(), found.size()) << "an item is found once";
    for (int k = 0; k < 2000; ++k)
      if (boxes[static_cast<std::size_t>(k)].Touches(asked)) {
        EXPECT_TRUE(set.count(k)) << k;
      }
  }
  EXPECT_LT(visited, 500u * 100u);
}

TEST(BoxGrid, BoxesThatNoCellCanHoldAreAlwaysFound) {
  BoxGrid grid;
  const Box distant = {1e300, 0, 1e300, 1}, endless = {-INFINITY, 0, INFINITY, 1};
  grid.Insert(1, distant);
  grid.Insert(2, endless);
  std::vector<int> found;
  grid.Find({0, 0, 1, 1}, &found);
  EXPECT_EQ(found, (std::vector<int>{1, 2}));
  grid.Remove(1, distant);
  found.clear();
  grid.Find({-1e9, -1e9, 1e9, 1e9}, &found);
  EXPECT_EQ(found, (std::vector<int>{2}));
}

TEST(BoxGrid, AnEndlessQuestionVisitsTheUsedCellsOnly) {
  BoxGrid grid;
  grid.Insert(7, {1, 1, 1.5, 1.5});
  std::vector<int> found;
  grid.Find({1, -1e9, 1, 1e9}, &found);
  EXPECT_EQ(found, (std::vector<int>{7}));
  found.clear();
  grid.Find({5, -1e9, 5, 1e9}, &found);
  EXPECT_TRUE(found.empty());
}

class EntityIndexTest : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
  }
  AcDbDatabase& Database() { return *host.documents.Current()->database(); }

  // Changes the drawing within one undo step, with the calls of a module.
  void Change(const std::function<void()>& change) {
    host.documents.lockDocument(host.documents.Current(), AcAp::kWrite, L"TEST", nullptr, false);
    change();
    host.documents.unlockDocument(host.documents.Current());
    EndLockSteps();
  }
  AcDbEntity* At(double x, double y) { return EntityAt(Database(), {x, y, 0}, 0.5); }
};

TEST_F(EntityIndexTest, FindsWhatDrawingEverythingFindsAfterRandomChanges) {
  Numbers numbers;
  std::vector<AcDbEntity*> all;
  for (int round = 0; round < 60; ++round) {
    Change([&] {
      for (int i = 0; i < 6; ++i) {
        AcDbEntity* some =
            all.empty()
                ? nullptr
                : all[static_cast<std::size_t>(numbers.Below(static_cast<int>(all.size())))];
        switch (some ? numbers.Below(4) : 0) {
          case 0:
            all.push_back(AnyEntity(numbers));
            Space(Database()).appendAcDbEntity(all.back());
            break;
          case 1:
            some->erase(!some->isErased());
            break;
          case 2:
            some->transformBy(AcGeMatrix3d::translation({numbers.Between(-90, 90), 3, 0}));
            break;
          default:
            if (auto* text = AcDbText::cast(some); text && some->upgradeOpen() != Acad::eOk) {
              AcDbEntity* opened = nullptr;
              if (acdbOpenAcDbEntity(opened, text->objectId(), AcDb::kForWrite) != Acad::eOk) break;
              text->setTextString(L"a much longer text than before");
              opened->close();
            }
            break;
        }
      }
    });
    if (round % 4 == 3) UndoLatestStep(*host.documents.Current());
    for (int i = 0; i < 40; ++i) {
      const AcGePoint3d at(numbers.Between(-600, 600), numbers.Between(-600, 600), 0);
      ASSERT_EQ(EntityAt(Database(), at, 8), EntityAtByDrawing(Database(), at, 8))
          << "round " << round << " at " << at.x << ", " << at.y;
    }
  }
}

TEST_F(EntityIndexTest, AnEntityIsFoundWhereItIsNowAndAfterUndoWhereItWas) {
  auto* line = new AcDbLine({0, 0, 0}, {10, 0, 0});
  Change([&] { Space(Database()).appendAcDbEntity(line); });
  EXPECT_EQ(At(5, 0), line);
  Change([&] { line->transformBy(AcGeMatrix3d::translation({0, 100, 0})); });
  EXPECT_EQ(At(5, 0), nullptr);
  EXPECT_EQ(At(5, 100), line);
  UndoLatestStep(*host.documents.Current());
  EXPECT_EQ(At(5, 0), line);
  Change([&] { line->erase(); });
  EXPECT_EQ(At(5, 0), nullptr);
  UndoLatestStep(*host.documents.Current());
  EXPECT_EQ(At(5, 0), line);
}

TEST_F(EntityIndexTest, AnObjectThatIsStillOpenIsMeasuredAtEachQuestion) {
  auto* text = new AcDbText({0, 0, 0}, L"a", 2);
  Change([&] { Space(Database()).appendAcDbEntity(text); });
  EXPECT_EQ(At(30, 1), nullptr);
  Change([&] {
    AcDbEntity* opened = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(opened, text->objectId(), AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(At(30, 1), nullptr);
    text->setTextString(L"a text that reaches far beyond that place");
    EXPECT_EQ(At(30, 1), text);
    opened->close();
  });
  EXPECT_EQ(At(30, 1), text);
}

TEST_F(EntityIndexTest, AChangedBlockMovesItsReferences) {
  auto* block = new AcDbBlockTableRecord;
  block->setName(L"门");
  AcDbBlockTable::cast(Database().blockTableId().object())->add(block);
  block->appendAcDbEntity(new AcDbLine({0, 0, 0}, {1, 0, 0}));
  auto* reference = new AcDbBlockReference({100, 100, 0}, block->objectId());
  Space(Database()).appendAcDbEntity(reference);
  EXPECT_EQ(At(150, 100), nullptr);
  auto* part = new AcDbLine({40, 0, 0}, {60, 0, 0});
  block->appendAcDbEntity(part);
  EXPECT_EQ(At(150, 100), reference);
  part->erase();
  EXPECT_EQ(At(150, 100), nullptr);
}

TEST_F(EntityIndexTest, AnEntityOfAHiddenLayerIsFoundWhenTheLayerIsShownAgain) {
  auto* layer = new AcDbLayerTableRecord;
  layer->setName(L"轴线");
  layer->setColorIndex(-7);
  AcDbLayerTable::cast(Database().layerTableId().object())->add(layer);
  auto* line = new AcDbLine({0, 0, 0}, {10, 0, 0});
  line->setLayer(L"轴线");
  Space(Database()).appendAcDbEntity(line);
  EXPECT_EQ(At(5, 0), nullptr);
  layer->setColorIndex(7);
  EXPECT_EQ(At(5, 0), line);
}

TEST_F(EntityIndexTest, OnlyTheEntitiesNearAPlaceAreFound) {
  for (int i = 0; i < 1000; ++i)
    Space(Database()).appendAcDbEntity(new AcDbLine({i * 10.0, 0, 0}, {i * 10.0 + 5, 0, 0}));
  EntityIndex& index = EntityIndex::Of(Database());
  EXPECT_EQ(index.Find(Database(), {501, -1, 502, 1}).size(), 1u);
  EXPECT_EQ(index.Find(Database(), {-1e9, -1e9, 1e9, 1e9}).size(), 1000u);
}
