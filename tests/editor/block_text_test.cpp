// The command that edits text inside a block: its loop, the rows of types and the dynamic block.
#include "editor/block_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "adscodes.h"
#include "editor/block_text_rows.h"
#include "tests/editor/block_text_double.h"

namespace edittest {
namespace {

using Entries = std::vector<std::string>;
using qvx::PlainTextClass;
using qvx::TextCarrier;

const std::string kPick = "pick \\n请选择需要修改的各类文字<退出> of QVX_*, TEXT, ATTRIB";
const std::string kCross = "cross 48,78,0 52,82,0 QVX_BLOCK_INSERT,INSERT";
const std::string kAll = "all INSERT,QVX_BLOCK_INSERT,QVX_MVINSERT named ";

// A pick at user point (50, 80) on entity 10, whose block is at (1010, 0) of the world; reference
// 20 of record 60 is there.
class BlockText : public ::testing::Test {
 protected:
  void SetUp() override {
    host.blocks[20] = {60, 0};
    host.names[60] = L"DOOR";
  }
  static qvx::NestedPick Pick() {
    return {Id(10), {50, 80, 0}, AcGeMatrix3d::translation({1010, 0, 0})};
  }
  PickedEntity& Entity() { return host.entities[10]; }
  // One pick, then a cancel.
  Entries Run() {
    host.picks = {{RTNORM, Pick()}};
    return RunPicks();
  }
  Entries RunPicks() {
    qvx::EditTextInBlock(host, blocks);
    EXPECT_EQ(host.object.live, 0);
    return diary.Take();
  }
  static bool Did(const Entries& entries, const std::string& entry) {
    return std::ranges::count(entries, entry) == 1;
  }
  // The prompt came back.
  static bool AskedAgain(const Entries& entries) { return std::ranges::count(entries, kPick) == 2; }

  EditDiary diary;
  BlockTextDouble host{diary};
  ReferenceHostDouble referenceHost{diary};
  qvx::BlockReferences blocks{referenceHost};
};

// ---- the loop

TEST_F(BlockText, EndsOnAnErrorOrACancelOnly) {
  for (const int answer : {RTERROR, RTCAN}) {
    host.picks = {{answer, Pick()}, {RTNORM, Pick()}};
    EXPECT_EQ(RunPicks(), Entries{kPick});
  }
  host.picks = {{RTNONE, Pick()}, {RTREJ, Pick()}, {0, Pick()}};
  EXPECT_EQ(RunPicks(), (Entries{kPick, kPick, kPick, kPick}));
}

TEST_F(BlockText, APickOutsideOfAnyReferenceLeadsBackToThePrompt) {
  host.crossing.clear();
  EXPECT_EQ(Run(), (Entries{kPick, kCross, "free set", kPick}));
  host.canCross = false;
  EXPECT_EQ(Run(), (Entries{kPick, kCross, kPick}));
}

TEST_F(BlockText, WithAZeroApertureThePromptComesBackAtOnce) {
  for (const double aperture : {0.0, 0.9e-6, -1.0}) {
    host.aperture = aperture;
    EXPECT_EQ(Run(), (Entries{kPick, kPick}));
  }
  host.aperture = 1e-6;
  EXPECT_EQ(Run().size(), 5u) << "the smallest that selects";
}

TEST_F(BlockText, ATransformWithoutAnInverseLeadsBackToThePrompt) {
  qvx::NestedPick flat = Pick();
  flat.toWorld.a = flat.toWorld.d = 0;
  host.picks = {{RTNORM, flat}};
  EXPECT_EQ(RunPicks(), (Entries{kPick, kPick}));
}

TEST_F(BlockText, ASelectedObjectThatIsNoReferenceLeadsBackToThePrompt) {
  host.crossing = {25};
  EXPECT_EQ(Run(), (Entries{kPick, kCross, "free set", kPick}));
}

TEST_F(BlockText, ARecordWithoutANameLeadsBackToThePrompt) {
  host.names.clear();
  EXPECT_EQ(Run(), (Entries{kPick, kCross, "free set", kPick}));
}

TEST_F(BlockText, ATypeOfNoRowLeadsBackToThePrompt) {
  Entity().name = L"LINE";
  EXPECT_EQ(Run(), (Entries{kPick, kCross, kAll + "DOOR", "free set", kPick}));
  EXPECT_TRUE(blocks.HasSameName());
}

TEST_F(BlockText, TouchesNothingOnceTheDrawingIsGone) {
  Entity().name = L"QVX_TEXT";
  Entity().carriers = {TextCarrier::kEntity};
  Entity().editFunctions = {TextCarrier::kEntity};
  for (const std::string& entry :
       {kPick, kCross, kAll + "DOOR", std::string("edit 10"), std::string("unlock")}) {
    host.isGone = false;
    diary.hooks[entry] = [this] { host.isGone = true; };
    blocks.NoteDynamicBlock(Id(70));
    const Entries entries = Run();
    EXPECT_FALSE(AskedAgain(entries)) << entry;
    EXPECT_FALSE(Did(entries, "activate")) << entry;
    EXPECT_TRUE(diary.hooks.empty()) << entry;
  }
  host.isGone = false;
  Entity().name = L"TEXT";
  Entity().plain = {PlainTextClass::kText};
  diary.hooks["clear selection"] = [this] { host.isGone = true; };
  EXPECT_FALSE(Did(Run(), "begin edit at 1010,0,0"));
}

// ---- the block

TEST_F(BlockText, TheDynamicBlockIsForgottenBeforeEachPick) {
  blocks.NoteDynamicBlock(Id(99));
  diary.hooks[kPick] = [this] { EXPECT_TRUE(blocks.DynamicBlock().isNull()); };
  host.picks = {};
  RunPicks();
  EXPECT_TRUE(diary.hooks.empty());
  host.blocks[20] = {60, 70};
  host.crossing = {20};
  Entity().name = L"LINE";
  Run();
  EXPECT_TRUE(blocks.DynamicBlock().isNull()) << "of the pick before";
}

TEST_F(BlockText, ADynamicBlockIsEditedInItsDefinitionUnderTheNameOfTheCopy) {
  host.blocks[20] = {60, 70};
  host.names[60] = L"*U12";
  host.contents[60] = {5, 10, 7};
  host.contents[70] = {15, 16, 17};
  host.entities[16].name = L"TEXT";
  host.entities[16].plain = {PlainTextClass::kText};
  EXPECT_EQ(Run(), (Entries{kPick, kCross, "entities of 60", "entities of 70", kAll + "`*U12",
                            "new text of 16", "clear selection", "begin edit at 1010,0,0",
                            "delete 1.0", "free set"}));
  EXPECT_EQ(blocks.DynamicBlock(), Id(70));
  EXPECT_TRUE(blocks.HasSameName());
}

TEST_F(BlockText, TheFirstSelectedReferenceCounts) {
  host.crossing = {20, 25};
  Entity().name = L"ATTRIB";
  EXPECT_TRUE(Did(Run(), "attribute editor on 20"));
}

TEST_F(BlockText, NamesFullOfWildCardsAreEscaped) {
  host.names[60] = L"a#@.*?~[b]-,`";
  Entity().name = L"LINE";
  EXPECT_TRUE(Did(Run(), kAll + "a`#`@`.`*`?`~`[b`]`-`,``"));
}

TEST_F(BlockText, TheSetOfTheEditBeforeIsFreedBeforeANewOneIsMade) {
  Entity().name = L"LINE";
  Run();
  const Entries entries = Run();
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 4),
            (Entries{kPick, kCross, "free set", kAll + "DOOR"}));
}

TEST_F(BlockText, TheCounterpartIsFoundByTheStepsToThePickedEntity) {
  host.contents[60] = {1, 2, 3};
  host.contents[70] = {11, 12};
  const auto counterpart = [this](std::uintptr_t copy, std::uintptr_t picked) {
    return NumberOf(qvx::FindCounterpart(host, Id(copy), Id(70), Id(picked)));
  };
  EXPECT_EQ(counterpart(60, 1), 11u);
  EXPECT_EQ(counterpart(60, 2), 12u);
  EXPECT_EQ(counterpart(60, 3), 3u) << "a shorter definition leaves the picked entity";
  diary.Take();
  EXPECT_EQ(counterpart(60, 9), 9u);
  EXPECT_EQ(counterpart(65, 1), 1u);
  EXPECT_EQ(diary.Take(), (Entries{"entities of 60", "entities of 65"}))
      << "the definition is not walked then";
}

// ---- the rows

TEST_F(BlockText, AnAttributeRunsTheHostsEditorAndLeavesBothSets) {
  Entity().name = L"Attrib";
  EXPECT_EQ(Run(), (Entries{kPick, kCross, kAll + "DOOR", "attribute editor on 20", "free set"}));
  EXPECT_TRUE(blocks.HasSameName());
}

TEST_F(BlockText, PlainTextOpensInPlaceWithoutAHitTest) {
  Entity().name = L"text";
  Entity().plain = {PlainTextClass::kText};
  EXPECT_EQ(Run(), (Entries{kPick, kCross, kAll + "DOOR", "new text of 10", "clear selection",
                            "begin edit at 1010,0,0", "delete 1.0", "free set"}));
  Entity().plain = {PlainTextClass::kMText};
  EXPECT_TRUE(AskedAgain(Run())) << "an object of another class";
}

TEST_F(BlockText, TextObjectsRunTheirOwnEditWithoutAHitTest) {
  for (const wchar_t* name : {L"QVX_MTEXT", L"qvx_text"}) {
    host.entities.clear();
    Entity().name = name;
    Entity().carriers = {TextCarrier::kEntity};
    Entity().editFunctions = {TextCarrier::kEntity};
    host.sameName = {20, 21};
    blocks.NoteSameName(nullptr);
    diary.Take();
    EXPECT_EQ(Run(), (Entries{kPick, kCross, kAll + "DOOR", "highlight 10",
                              "entity edit function of 10", "edit 10", "unhighlight 10", "lock",
                              "mark 20", "mark 21", "print \\n有1个同名的图块同时参与了修改",
                              "free set", "unlock", "free set"}));
  }
}

TEST_F(BlockText, AnOwnEditUpdatesTheDynamicBlockAtOnce) {
  host.blocks[20] = {60, 70};
  Entity().name = L"QVX_TEXT";
  const Entries entries = Run();
  EXPECT_TRUE(Did(entries, "update copies of 70"));
  EXPECT_TRUE(blocks.DynamicBlock().isNull());
  EXPECT_FALSE(blocks.HasSameName());
}

TEST_F(BlockText, RowThreeSucceedsWithoutAnEditFunction) {
  Entity().name = L"QVX_TEXT";
  Entity().carriers = {TextCarrier::kEntity, TextCarrier::kCurve};
  const Entries entries = Run();
  EXPECT_FALSE(AskedAgain(entries));
  EXPECT_TRUE(Did(entries, "entity edit function of 10"));
  EXPECT_TRUE(Did(entries, "curve edit function of 10"));
  EXPECT_TRUE(Did(entries, "unhighlight 10"));
  EXPECT_FALSE(Did(entries, "edit 10"));
}

TEST_F(BlockText, ReferencesHaveNoEditRoutineOfTheirOwn) {
  Entity().name = L"QVX_TEXT";
  Entity().carriers = {TextCarrier::kEntity};
  Entity().editFunctions = {TextCarrier::kEntity};
  Entity().isReference = true;
  EXPECT_FALSE(Did(Run(), "edit 10"));
  Entity().isReference = false;
  Entity().kinds = {L"QVX_MVINSERT"};
  EXPECT_FALSE(Did(Run(), "edit 10"));
  Entity().kinds = {};
  EXPECT_TRUE(Did(Run(), "edit 10"));
}

TEST_F(BlockText, InRowFourAHitDeletesTheFragmentAndRunsTheOwnEdit) {
  Entity().kinds = {L"QVX_ARROW"};
  Entity().carriers = {TextCarrier::kEntity};
  Entity().hits = {TextCarrier::kEntity};
  Entity().editFunctions = {TextCarrier::kEntity};
  const Entries entries = Run();
  EXPECT_EQ(Entries(entries.begin() + 3, entries.begin() + 8),
            (Entries{"entity text of 10 at 40,80,0", "delete 1.0", "highlight 10",
                     "entity edit function of 10", "edit 10"}))
      << "the hit test works in the block's own space";
  EXPECT_FALSE(AskedAgain(entries));
  Entity().hits = {};
  EXPECT_TRUE(AskedAgain(Run()));
}

TEST_F(BlockText, TheHitTestAsksEntityThenCurveThenPlainText) {
  Entity().kinds = {L"QVX_SPACE"};
  Entity().carriers = {TextCarrier::kEntity, TextCarrier::kCurve};
  Entity().plain = {PlainTextClass::kMText};
  const Entries entries = Run();
  EXPECT_EQ(
      Entries(entries.begin() + 3, entries.begin() + 10),
      (Entries{"entity text of 10 at 40,80,0", "curve text of 10 at 40,80,0", "new text of 10",
               "new mtext of 10", "clear selection", "begin edit at 1010,0,0", "delete 1.0"}));
  Entity().isEntity = false;
  EXPECT_TRUE(AskedAgain(Run())) << "no entity, no text";
}

TEST_F(BlockText, InRowSixOnlyAHitOpensTheEditor) {
  Entity().kinds = {L"QVX_SHEET"};
  EXPECT_TRUE(AskedAgain(Run()));
  Entity().carriers = {TextCarrier::kCurve};
  Entity().hits = {TextCarrier::kCurve};
  const Entries entries = Run();
  EXPECT_TRUE(Did(entries, "begin edit at 1010,0,0"));
  EXPECT_FALSE(AskedAgain(entries));
  EXPECT_TRUE(blocks.HasSameName()) << "for the commit";
}

// ---- the table

class FakeType : public qvx::TypeTest {
 public:
  explicit FakeType(std::wstring name, std::set<std::wstring> kinds = {})
      : m_name(std::move(name)), m_kinds(std::move(kinds)) {}
  bool HasName(const wchar_t* type) const override { return m_name == type; }
  bool Is(const wchar_t* type) const override { return m_kinds.count(type) != 0; }

 private:
  std::wstring m_name;
  std::set<std::wstring> m_kinds;
};

TEST(BlockTextRows, EachTypeHasItsAction) {
  using Action = qvx::BlockTextAction;
  const auto byKind = [](const wchar_t* kind) {
    return qvx::FindBlockTextAction(FakeType(L"", {kind}));
  };
  for (const wchar_t* kind :
       {L"QVX_ARROW", L"QVX_MULTILEADER", L"QVX_COMPOSING", L"QVX_INDEXPOINTER",
        L"QVX_DRAWINGINDEX", L"QVX_SYMB_SECTION", L"QVX_DRAWINGNAME", L"QVX_TDBINSIGHT"})
    EXPECT_EQ(byKind(kind), Action::kOwnEditAtText);
  EXPECT_EQ(byKind(L"QVX_ELEVATION"), Action::kOwnEdit);
  for (const wchar_t* kind :
       {L"QVX_SPACE", L"QVX_AXIS_LABEL", L"QVX_OPENING", L"QVX_CORNER_WINDOW", L"QVX_DORMER",
        L"QVX_COORD", L"QVX_MODI", L"QVX_NORTHTHUMB", L"QVX_DIMENSION2", L"QVX_SHEET",
        L"QVX_EVACPATH", L"QVX_FIREZONE", L"QVX_AREAREDLINE", L"QVX_RADIUSDIM"})
    EXPECT_EQ(byKind(kind), Action::kInPlaceAtText);
  for (const wchar_t* kind : {L"ATTRIB", L"TEXT", L"QVX_TEXT", L"QVX_WALL"})
    EXPECT_EQ(byKind(kind), Action::kNone) << "told by the name alone";
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"ATTRIB")), Action::kAttributeEditor);
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"TEXT")), Action::kPlainText);
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"QVX_MTEXT")), Action::kOwnEdit);
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"QVX_TEXT")), Action::kOwnEdit);
  for (const wchar_t* name : {L"MTEXT", L"QVX_SPACE", L"QVX_ARROW", L""})
    EXPECT_EQ(qvx::FindBlockTextAction(FakeType(name)), Action::kNone);
}

TEST(BlockTextRows, TheFirstRowThatFitsCounts) {
  using Action = qvx::BlockTextAction;
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"TEXT", {L"QVX_SPACE", L"QVX_ARROW"})),
            Action::kPlainText);
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"", {L"QVX_SPACE", L"QVX_ARROW"})),
            Action::kOwnEditAtText);
  EXPECT_EQ(qvx::FindBlockTextAction(FakeType(L"", {L"QVX_SPACE", L"QVX_ELEVATION"})),
            Action::kOwnEdit);
}

}  // namespace
}  // namespace edittest
