// The references that a change of text in a block reaches.
#include "editor/block_references.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/editor/edit_double.h"

namespace edittest {
namespace {

using Entries = std::vector<std::string>;

class BlockReferencesTest : public ::testing::Test {
 protected:
  void NoteSame(std::vector<std::uintptr_t> numbers) {
    blocks->NoteSameName(std::make_unique<ReferenceSetDouble>(diary, std::move(numbers)));
    diary.Take();
  }
  Entries Report() {
    blocks->ReportSameNameBlocks();
    return diary.Take();
  }
  Entries Update() {
    blocks->UpdateDynBlock();
    return diary.Take();
  }
  EditDiary diary;
  ReferenceHostDouble host{diary};
  std::unique_ptr<qvx::BlockReferences> blocks = std::make_unique<qvx::BlockReferences>(host);
};

TEST_F(BlockReferencesTest, ASingleReferenceIsMarkedAndPrintsNothing) {
  NoteSame({8});
  EXPECT_EQ(Report(), (Entries{"lock", "mark 8", "free set", "unlock"}));
  EXPECT_FALSE(blocks->HasSameName());
}

TEST_F(BlockReferencesTest, TwoReferencesPrintThatOneOtherTookPart) {
  NoteSame({8, 9});
  EXPECT_EQ(Report(), (Entries{"lock", "mark 8", "mark 9", "print \\n有1个同名的图块同时参与了修改",
                               "free set", "unlock"}));
  EXPECT_EQ(Report(), (Entries{"lock", "unlock"})) << "the set is empty now";
}

TEST_F(BlockReferencesTest, ThousandsOfReferencesAreAllMarked) {
  NoteSame(std::vector<std::uintptr_t>(10000, 8));
  const Entries entries = Report();
  EXPECT_EQ(std::ranges::count(entries, "mark 8"), 10000);
  EXPECT_EQ(entries[10001], "print \\n有9999个同名的图块同时参与了修改");
}

TEST_F(BlockReferencesTest, AnEmptySetPrintsNothing) {
  NoteSame({});
  EXPECT_EQ(Report(), (Entries{"lock", "free set", "unlock"}));
}

TEST_F(BlockReferencesTest, WithoutALockNothingIsMarkedAndTheSetIsEmptied) {
  NoteSame({8, 9});
  host.canLock = false;
  EXPECT_EQ(Report(), (Entries{"no lock", "free set"}));
  EXPECT_FALSE(blocks->HasSameName());
}

TEST_F(BlockReferencesTest, AReportDuringAReportFindsNothing) {
  NoteSame({8, 9});
  diary.hooks["mark 8"] = [this] { blocks->ReportSameNameBlocks(); };
  EXPECT_EQ(Report(), (Entries{"lock", "mark 8", "lock", "unlock", "mark 9",
                               "print \\n有1个同名的图块同时参与了修改", "free set", "unlock"}));
}

TEST_F(BlockReferencesTest, ABlockThatIsNotDynamicIsNotUpdated) { EXPECT_EQ(Update(), Entries{}); }

TEST_F(BlockReferencesTest, ADynamicBlockMarksItsReferencesAndUpdatesItsCopies) {
  host.references[70] = {71, 72};
  blocks->NoteDynamicBlock(Id(70));
  EXPECT_EQ(Update(), (Entries{"activate", "lock", "graphics of 71", "graphics of 72",
                               "update copies of 70", "unlock"}));
  EXPECT_TRUE(blocks->DynamicBlock().isNull());
  EXPECT_EQ(Update(), Entries{});
}

TEST_F(BlockReferencesTest, ADynamicBlockWithoutReferencesOrRecordStillUpdatesItsCopies) {
  host.references[70] = {};
  blocks->NoteDynamicBlock(Id(70));
  EXPECT_EQ(Update(), (Entries{"activate", "lock", "update copies of 70", "unlock"}));
  blocks->NoteDynamicBlock(Id(75));
  EXPECT_EQ(Update(), (Entries{"activate", "lock", "update copies of 75", "unlock"}));
}

TEST_F(BlockReferencesTest, WithoutALockADynamicBlockIsForgotten) {
  host.canLock = false;
  blocks->NoteDynamicBlock(Id(70));
  EXPECT_EQ(Update(), (Entries{"activate", "no lock"}));
  EXPECT_TRUE(blocks->DynamicBlock().isNull());
}

TEST_F(BlockReferencesTest, BothAreDroppedWithTheirDrawing) {
  NoteSame({8, 9});
  blocks->NoteDynamicBlock(Id(70));
  blocks->OnDrawingDestroyed(Document(2));
  blocks->OnDrawingDestroyed(nullptr);
  EXPECT_TRUE(blocks->HasSameName());
  blocks->OnDrawingDestroyed(Document(1));
  EXPECT_FALSE(blocks->HasSameName());
  EXPECT_TRUE(blocks->DynamicBlock().isNull());
  blocks->OnDrawingDestroyed(Document(1));
}

TEST_F(BlockReferencesTest, ADrawingThatGoesMeanwhileIsNotTouchedAfterIt) {
  for (const std::string entry : {"lock", "mark 8"}) {
    NoteSame({8, 9});
    diary.hooks[entry] = [this] { blocks->OnDrawingDestroyed(Document(1)); };
    const Entries entries = Report();
    EXPECT_EQ(std::ranges::count(entries, "mark 9"), 0) << entry;
    EXPECT_EQ(entries.back(), "unlock");
  }
  for (const std::string entry : {"activate", "lock", "graphics of 71"}) {
    host.references[70] = {71, 72};
    blocks->NoteDynamicBlock(Id(70));
    diary.hooks[entry] = [this] { blocks->OnDrawingDestroyed(Document(1)); };
    const Entries entries = Update();
    EXPECT_EQ(std::ranges::count(entries, "graphics of 72"), 0) << entry;
    EXPECT_EQ(std::ranges::count(entries, "update copies of 70"), 0) << entry;
  }
}

TEST_F(BlockReferencesTest, AfterAnUnloadNothingIsUsed) {
  for (const std::string entry : {"lock", "mark 8", "mark 9"}) {
    blocks = std::make_unique<qvx::BlockReferences>(host);
    NoteSame({8, 9});
    diary.hooks[entry] = [this] { blocks.reset(); };
    for (const std::string& done : Report()) EXPECT_FALSE(done.starts_with("print")) << entry;
  }
}

}  // namespace
}  // namespace edittest
