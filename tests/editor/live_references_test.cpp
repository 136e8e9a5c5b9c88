// What the change of a block does to its references, over the real core of the host.
#include "editor/block_references.h"
#include "editor/live_text_objects.h"

#include <algorithm>

#include "devhost/core/drawing/database_body.h"
#include "tests/hostcore/host_fixture.h"

namespace {

// The objects that the host was notified of.
class Changes final : public DatabaseWatcher {
 public:
  explicit Changes(std::vector<AcDbObject*>& log) : m_log(log) {}
  void OnChange(AcDbObject& object) override { m_log.push_back(&object); }
  void OnReplace() override {}

 private:
  std::vector<AcDbObject*>& m_log;
};

class LiveReferences : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
    Send(L"LINE 0,0 40,0 \nBLOCK DESK\n0,0 ALL \nBDYNMAKE DESK\n");
    for (AcDbBlockReference*& one : reference) {
      one = new AcDbBlockReference({100, 0, 0}, Desk());
      AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object())
          ->appendAcDbEntity(one);
    }
    document->database()->body().watcher = std::make_unique<Changes>(changed);
  }
  AcDbObjectId Desk() const {
    AcDbObjectId id;
    AcDbBlockTable::cast(document->database()->blockTableId().object())->getAt(L"DESK", id);
    return id;
  }
  // How often the host was notified of the object.
  int Count(const AcDbObject* object) const {
    return static_cast<int>(std::count(changed.begin(), changed.end(), object));
  }

  devhost::Document* document = nullptr;
  AcDbBlockReference* reference[2] = {};
  std::vector<AcDbObject*> changed;
  qvx::LiveReferenceHost live;
};

TEST_F(LiveReferences, GraphicsThatAreRecordedAsModifiedAreDrawnAgain) {
  AcDbBlockReference* open = nullptr;
  const std::unique_ptr<qvx::DocumentLock> lock = live.LockCurrentDocument();
  ASSERT_EQ(Acad::eOk, acdbOpenObject(open, reference[0]->objectId(), AcDb::kForWrite));
  changed.clear();
  open->recordGraphicsModified(false);
  EXPECT_EQ(Count(open), 0);
  open->recordGraphicsModified(true);
  EXPECT_EQ(Count(open), 1);
  open->close();
}

TEST_F(LiveReferences, AReferenceOfADynamicBlockIsOpenedRecordedAndClosed) {
  const std::unique_ptr<qvx::DocumentLock> lock = live.LockCurrentDocument();
  changed.clear();
  live.MarkGraphicsModified(reference[0]->objectId());
  EXPECT_EQ(Count(reference[0]), 2) << "opened for writing, and its graphics recorded";
  EXPECT_EQ(changed.size(), 2u);
  EXPECT_FALSE(reference[0]->isReadEnabled()) << "closed as often as opened";
}

TEST_F(LiveReferences, WithoutALockOrAReferenceNothingIsRecorded) {
  changed.clear();
  live.MarkGraphicsModified(reference[0]->objectId());
  {
    const std::unique_ptr<qvx::DocumentLock> lock = live.LockCurrentDocument();
    live.MarkGraphicsModified({});
    reference[1]->erase();
    changed.clear();
    live.MarkGraphicsModified(reference[1]->objectId());
  }
  EXPECT_TRUE(changed.empty());
}

TEST_F(LiveReferences, AnUpdateRecordsEachReferenceOfTheDynamicBlockOnce) {
  qvx::BlockReferences blocks(live);
  blocks.NoteDynamicBlock(Desk());
  changed.clear();
  blocks.UpdateDynBlock();
  EXPECT_EQ(Count(reference[0]), 2);
  EXPECT_EQ(Count(reference[1]), 2);
  EXPECT_TRUE(blocks.DynamicBlock().isNull());
  changed.clear();
  blocks.UpdateDynBlock();
  EXPECT_TRUE(changed.empty()) << "the block is forgotten";
}

}  // namespace
