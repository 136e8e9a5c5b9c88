// The host's drawings as the strip sees them, on the real host core.
#include "doctabs/host_drawings.h"

#include <gtest/gtest.h>

#include "acdocman.h"
#include "axlock.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/host/host.h"
#include "tests/doubles/silent_ui.h"

// A block reference of another class, as other modules define them.
class DerivedReference : public AcDbBlockReference {
 public:
  ACRX_DECLARE_MEMBERS(DerivedReference);
};
ACRX_DXF_DEFINE_MEMBERS(DerivedReference, AcDbBlockReference, 0, 0, 0, DERIVEDREFERENCE, tests)

namespace {

class NoDatabase : public AcApDocument {
 public:
  const ACHAR* fileName() const override { return L"Drawing1.dwg"; }
  const ACHAR* docTitle() const override { return L"Drawing1.dwg"; }
  AcDbDatabase* database() const override { return nullptr; }
  bool isQuiescent() const override { return true; }
  AcAp::DocLockMode lockMode() const override { return AcAp::kNotLocked; }
};

class HostDrawingsTest : public testing::Test {
 protected:
  void SetUp() override {
    DerivedReference::rxInit();
    devhost::TheHost().Begin({}, &ui, nullptr);
  }
  void TearDown() override { devhost::TheHost().End(); }

  static AcDbObjectId Append(AcApDocument* document, AcDbEntity* entity,
                             const wchar_t* space = ACDB_MODEL_SPACE) {
    const AcAxDocLock lock(document->database());
    AcDbBlockTable* table = nullptr;
    AcDbObjectId spaceId, id;
    document->database()->getBlockTable(table, AcDb::kForRead);
    table->getAt(space, spaceId);
    table->close();
    AcDbBlockTableRecord* record = nullptr;
    acdbOpenObject(record, spaceId, AcDb::kForWrite);
    record->appendAcDbEntity(id, entity);
    record->close();
    entity->close();
    return id;
  }
  static AcApDocument* New() { return devhost::TheHost().documents.New(); }

  SilentUi ui;
  HostDrawings host;
};

}  // namespace

TEST_F(HostDrawingsTest, WithoutDrawingsThereIsNoneAndNothingIsPosted) {
  EXPECT_EQ(host.Current(), nullptr);
  EXPECT_EQ(host.MdiActive(), nullptr);
  EXPECT_EQ(host.Count(), 0);
  EXPECT_TRUE(host.Documents().empty());
  host.Post(L"QSAVE\n");
}

TEST_F(HostDrawingsTest, DrawingsAreListedActivatedAndClosed) {
  AcApDocument *a = New(), *b = New();
  EXPECT_EQ(host.Documents(), (std::vector<AcApDocument*>{a, b}));
  EXPECT_EQ(host.Count(), 2);
  EXPECT_EQ(host.Current(), b);
  host.Activate(a);
  EXPECT_EQ(host.Current(), a);
  EXPECT_EQ(host.MdiActive(), a);
  EXPECT_STREQ(host.FileName(a), a->fileName());
  host.Close(b);
  EXPECT_EQ(host.Documents(), std::vector<AcApDocument*>{a});
}

TEST_F(HostDrawingsTest, ObjectsOfModelSpaceCountButBlockReferencesDoNot) {
  AcApDocument* document = New();
  EXPECT_EQ(host.CountOtherThanBlocks(document), 0);
  Append(document, new AcDbBlockReference);
  EXPECT_EQ(host.CountOtherThanBlocks(document), 0);
  Append(document, new AcDbLine({0, 0, 0}, {1, 1, 0}));
  Append(document, new AcDbLine({0, 0, 0}, {2, 1, 0}));
  EXPECT_EQ(host.CountOtherThanBlocks(document), 2);
}

TEST_F(HostDrawingsTest, AClassDerivedFromTheBlockReferenceCounts) {
  AcApDocument* document = New();
  Append(document, new DerivedReference);
  EXPECT_EQ(host.CountOtherThanBlocks(document), 1);
}

TEST_F(HostDrawingsTest, ErasedObjectsAndThoseOfPaperSpaceDoNotCount) {
  AcApDocument* document = New();
  const AcDbObjectId id = Append(document, new AcDbLine({0, 0, 0}, {1, 1, 0}));
  Append(document, new AcDbLine({0, 0, 0}, {1, 1, 0}), ACDB_PAPER_SPACE);
  EXPECT_EQ(host.CountOtherThanBlocks(document), 1);
  const AcAxDocLock lock(document->database());
  AcDbEntity* line = nullptr;
  ASSERT_EQ(acdbOpenObject(line, id, AcDb::kForWrite), Acad::eOk);
  line->erase();
  line->close();
  EXPECT_EQ(host.CountOtherThanBlocks(document), 0);
}

TEST_F(HostDrawingsTest, ADrawingWithoutADatabaseGivesNoCount) {
  NoDatabase document;
  EXPECT_EQ(host.CountOtherThanBlocks(&document), std::nullopt);
  host.ClearModified(&document);
}

TEST_F(HostDrawingsTest, TheModifiedStateIsCleared) {
  AcApDocument* document = New();
  acdbSetDbmod(document->database(), 5);
  host.ClearModified(document);
  resbuf value{};
  ASSERT_EQ(acedGetVar(L"DBMOD", &value), RTNORM);
  EXPECT_EQ(value.resval.rint, 0);
}

TEST_F(HostDrawingsTest, TheExportCommandHasItsFullName) {
  EXPECT_STREQ(host.FullCommandName(L"TSaveAs"), L"TSaveAs");
}

TEST_F(HostDrawingsTest, TheHostSaysWhetherDrawingsMayBeActivated) {
  EXPECT_EQ(MayActivateDrawings(), acDocManager->isDocumentActivationEnabled());
}
