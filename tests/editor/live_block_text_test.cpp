// Text in blocks over the real core of the host: what the command asks of it, the references that a
// change reaches, and the whole command on plain, turned and dynamic blocks.
#include <numbers>

#include "dbdynblk.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/view/scene.h"
#include "kernel/entities/block_inserts.h"
#include "kernel/pick_object.h"
#include "tests/editor/live_text_test.h"

namespace edittest {
namespace {

using qvx::PlainTextClass;
using qvx::TextCarrier;

constexpr double kQuarter = std::numbers::pi / 2;

class LiveBlockText : public LiveTextTest {
 protected:
  void SetUp() override {
    LiveTextTest::SetUp();
    room = AddBlock(L"ROOM");
    text = TextIn(room);
  }
  AcDbBlockReference* Place(double x, double y, double turn = 0, double scale = 1) {
    return Insert(nullptr, room, {x, y, 0}, turn, scale);
  }
  AcDbObjectId BlockNamed(const wchar_t* name) {
    AcDbObjectId id;
    AcDbBlockTable::cast(host.documents.Current()->database()->blockTableId().object())
        ->getAt(name, id);
    return id;
  }
  std::vector<AcDbObjectId> IdsOf(const qvx::ReferenceSet* set) {
    std::vector<AcDbObjectId> ids;
    for (int i = 0; set && i < set->Length(); ++i) ids.push_back(set->At(i));
    return ids;
  }
  static std::wstring Shown(AcDbEntity* entity) {
    for (const devhost::Shape& shape : devhost::ShapesOf(*entity, 1))
      if (shape.kind == devhost::Shape::Kind::Text) return shape.text;
    return {};
  }
  void RunCommand(const std::wstring& input) {
    Run(input, [this] {
      qvx::LiveBlockTextHost commandHost(opener);
      qvx::EditTextInBlock(commandHost, blocks);
    });
  }
  // As the in-place editor commits.
  void Commit(const wchar_t* typed) {
    devhost::EndLockSteps();  // as at idle time: what follows is a step of its own
    {
      const auto lock = qvx::LockCurrentForWrite();
      opener.fragment->Update(typed);
    }
    opener.fragment.reset();
    blocks.ReportSameNameBlocks();
    blocks.UpdateDynBlock();
  }
  std::size_t Printed(const std::wstring& part) { return ui.printed.find(part); }

  AcDbBlockTableRecord* room = nullptr;
  AcDbText* text = nullptr;
  qvx::LiveBlockTextHost live{opener};
  qvx::LiveReferenceHost references;
  qvx::BlockReferences blocks{references};
};

// ---- what the command asks

TEST_F(LiveBlockText, APickGivesTheEntityThePointOfTheUserAndTheWayToTheWorld) {
  Place(5000, 5000, kQuarter, 2);
  Send(L"UCS O 1000,2000\n");
  Run(L"3900,3300\n", [&] {
    qvx::NestedPick pick;
    ASSERT_EQ(live.PickNested(L"\nPick<exit>", L"QVX_*, TEXT, ATTRIB", pick), RTNORM);
    EXPECT_EQ(pick.entity, text->objectId());
    EXPECT_DOUBLE_EQ(pick.user.x, 3900);
    EXPECT_DOUBLE_EQ(pick.user.y, 3300);
    const AcGePoint3d corner = pick.toWorld * AcGePoint3d(200, 100, 0);
    EXPECT_NEAR(corner.x, 4800, 1e-6);
    EXPECT_NEAR(corner.y, 5400, 1e-6);
  });
  EXPECT_NE(Printed(L"Pick<exit>"), std::wstring::npos);
}

TEST_F(LiveBlockText, APickAlsoFindsTextThatIsInNoBlock) {
  const AcDbObjectId plain = Append(new AcDbText({1000, 1000, 0}, L"图", 100));
  Run(L"1050,1050\n", [&] {
    qvx::NestedPick pick;
    EXPECT_EQ(live.PickNested(L"", L"TEXT", pick), RTNORM);
    EXPECT_EQ(pick.entity, plain);
  });
  Run(L"1050,1050\n", [&] {
    qvx::NestedPick pick;
    EXPECT_EQ(live.PickNested(L"", L"ATTRIB", pick), kPickMissed);
    EXPECT_TRUE(pick.entity.isNull());
  });
}

TEST_F(LiveBlockText, PointsAreConvertedBetweenTheUsersSystemAndTheWorld) {
  Send(L"UCS O 1000,2000\n");
  const AcGePoint3d world = live.UserToWorld({3, 4, 0}), user = live.WorldToUser({1003, 2004, 0});
  EXPECT_DOUBLE_EQ(world.x, 1003);
  EXPECT_DOUBLE_EQ(world.y, 2004);
  EXPECT_DOUBLE_EQ(user.x, 3);
  EXPECT_DOUBLE_EQ(user.y, 4);
}

TEST_F(LiveBlockText, TheApertureIsThatOfTheKernel) {
  EXPECT_GT(live.Aperture(), 0);
  EXPECT_EQ(live.Aperture(), GetApertureWcs());
}

TEST_F(LiveBlockText, ACrossingSelectionFindsReferencesOfTheTypesInsideTheBox) {
  const AcDbObjectId near = Place(5000, 5000)->objectId();
  Place(8000, 8000);
  Append(new AcDbLine({5000, 5000, 0}, {5200, 5200, 0}));
  const auto found =
      live.SelectCrossing({5100, 5000, 0}, {5150, 5050, 0}, L"QVX_BLOCK_INSERT,INSERT");
  EXPECT_EQ(IdsOf(found.get()), std::vector<AcDbObjectId>{near});
  EXPECT_EQ(live.SelectCrossing({100, 100, 0}, {110, 110, 0}, L"INSERT"), nullptr);
  EXPECT_EQ(live.SelectCrossing({5100, 5000, 0}, {5150, 5050, 0}, L"QVX_MVINSERT"), nullptr);
}

TEST_F(LiveBlockText, ReferencesAreSelectedInTheWholeDrawingByTypeAndName) {
  auto* other = AddBlock(L"ROOM2");
  TextIn(other);
  const AcDbObjectId first = Place(5000, 5000)->objectId();
  Insert(nullptr, other, {6000, 6000, 0});
  const AcDbObjectId far = Place(90000, 90000)->objectId();
  EXPECT_EQ(IdsOf(live.SelectReferences(L"INSERT,QVX_BLOCK_INSERT", L"ROOM").get()),
            (std::vector<AcDbObjectId>{first, far}));
  EXPECT_EQ(IdsOf(live.SelectReferences(L"INSERT", L"ROOM*").get()).size(), 3u);
  EXPECT_EQ(live.SelectReferences(L"QVX_BLOCK_INSERT", L"ROOM"), nullptr);
}

TEST_F(LiveBlockText, WildCardsOfANameAreEscaped) {
  EXPECT_EQ(live.EscapeWildCards(L"*U12"), L"`*U12");
  EXPECT_EQ(live.EscapeWildCards(L"a-b,c"), L"a`-b`,c");
  EXPECT_EQ(live.EscapeWildCards(L"ROOM"), L"ROOM");
}

TEST_F(LiveBlockText, AReferenceHasItsRecordAndTheRecordItsName) {
  AcDbBlockReference* reference = Place(5000, 5000);
  EXPECT_TRUE(live.IsReference(reference->objectId()));
  EXPECT_EQ(live.RecordOf(reference->objectId()), room->objectId());
  EXPECT_EQ(live.NameOf(room->objectId()), L"ROOM");
  EXPECT_TRUE(live.DynamicRecordOf(reference->objectId()).isNull()) << "not dynamic";
  for (const AcDbObjectId none : {text->objectId(), AcDbObjectId()}) {
    EXPECT_FALSE(live.IsReference(none));
    EXPECT_TRUE(live.RecordOf(none).isNull());
    EXPECT_EQ(live.NameOf(none), std::nullopt);
    EXPECT_TRUE(live.DynamicRecordOf(none).isNull());
  }
  reference->erase();
  EXPECT_FALSE(live.IsReference(reference->objectId()));
}

TEST_F(LiveBlockText, ADynamicReferenceHasACopyAsItsRecordAndADefinition) {
  Send(L"BDYNMAKE ROOM\n");
  const AcDbObjectId reference = Place(5000, 5000)->objectId();
  EXPECT_EQ(live.DynamicRecordOf(reference), room->objectId());
  Send(L"BDYNFLIP 5150,5050\n");
  EXPECT_EQ(live.NameOf(live.RecordOf(reference)), L"*U1");
  EXPECT_EQ(live.DynamicRecordOf(reference), room->objectId());
}

TEST_F(LiveBlockText, TheEntitiesOfARecordAreInItsOrderWithoutErasedOnes) {
  auto *line = new AcDbLine({0, 0, 0}, {1, 0, 0}), *last = new AcDbLine({0, 0, 0}, {2, 0, 0});
  room->appendAcDbEntity(line);
  room->appendAcDbEntity(last);
  line->erase();
  EXPECT_EQ(live.EntitiesOf(room->objectId()),
            (std::vector<AcDbObjectId>{text->objectId(), last->objectId()}));
  EXPECT_TRUE(live.EntitiesOf(text->objectId()).empty()) << "no record";
}

TEST_F(LiveBlockText, TypesAreThoseOfDrawingFiles) {
  const AcDbObjectId mark = AddText({0, 0, 0})->objectId();
  EXPECT_EQ(live.TypeName(text->objectId()), L"TEXT");
  EXPECT_EQ(live.TypeName(mark), L"QVX_TEXT");
  EXPECT_EQ(live.TypeName(AcDbObjectId()), L"");
  EXPECT_TRUE(live.Is(mark, L"qvx_text"));
  EXPECT_FALSE(live.Is(mark, L"TEXT"));
  EXPECT_FALSE(live.Is(AcDbObjectId(), L"TEXT"));
  EXPECT_TRUE(live.IsEntity(mark));
  EXPECT_FALSE(live.IsEntity(room->objectId()));
  EXPECT_FALSE(live.IsEntity(AcDbObjectId()));
}

TEST_F(LiveBlockText, HighlightIsSetAndTakenBack) {
  const QvxDbText* mark = AddText({0, 0, 0});
  live.Highlight(mark->objectId(), true);
  EXPECT_TRUE(IsLit(mark));
  live.Highlight(mark->objectId(), false);
  EXPECT_FALSE(IsLit(mark));
}

TEST_F(LiveBlockText, ANewFragmentIsOverACopyOfTextOfTheWantedClass) {
  auto* lines = new AcDbMText;
  lines->setContents(L"一");
  Append(lines);
  EXPECT_EQ(live.NewFragment(text->objectId(), PlainTextClass::kMText), nullptr);
  EXPECT_EQ(live.NewFragment(lines->objectId(), PlainTextClass::kText), nullptr);
  EXPECT_EQ(live.NewFragment(AcDbObjectId(), PlainTextClass::kText), nullptr);
  const auto ofLines = live.NewFragment(lines->objectId(), PlainTextClass::kMText);
  ASSERT_TRUE(ofLines);
  EXPECT_EQ(ofLines->GetText(), L"一");
  const auto fragment = live.NewFragment(text->objectId(), PlainTextClass::kText);
  ASSERT_TRUE(fragment);
  EXPECT_EQ(fragment->GetText(), L"图");
  EXPECT_EQ(fragment->GetIndex(), 0);
  EXPECT_EQ(fragment->GetObjectId(), text->objectId());
  EXPECT_FALSE(fragment->IsMultiLine());
  EXPECT_FALSE(text->isReadEnabled()) << "closed";
  text->erase();
  AcGePoint3d lower, upper;
  fragment->GetExtent2d(lower, upper);
  EXPECT_GT(upper.x, lower.x) << "of the copy";
}

TEST_F(LiveBlockText, TheAttributeEditorGetsTheSelectedReferences) {
  Send(L"ATTDEF TAG\n\n甲\n100,200 50 0\n");
  Send(L"BLOCK DOOR\n0,0 ALL \nINSERT DOOR\n5000,5000 1 0\n");
  std::vector<std::wstring> edited;
  ui.editAttributes = [&](const std::wstring& block, std::vector<devhost::AttributeValue>&) {
    edited.push_back(block);
    return false;
  };
  RunCommand(L"5130,5225\n");
  EXPECT_EQ(edited, std::vector<std::wstring>{L"DOOR"});
  EXPECT_FALSE(opener.fragment);
  EXPECT_TRUE(blocks.HasSameName()) << "this row reports nothing";
}

// ---- the references of a changed block

TEST_F(LiveBlockText, TheCurrentDrawingIsActivatedAndLocked) {
  EXPECT_EQ(references.CurrentDocument(), host.documents.Current());
  ui.log.clear();
  references.ActivateCurrentDocument();
  EXPECT_EQ(references.CurrentDocument(), host.documents.Current());
  auto lock = references.LockCurrentDocument();
  EXPECT_TRUE(IsLocked());
  lock.reset();
  EXPECT_FALSE(IsLocked());
  acDocManager->closeDocument(acDocManager->curDocument());
  EXPECT_EQ(references.CurrentDocument(), nullptr);
  references.ActivateCurrentDocument();
  EXPECT_EQ(references.LockCurrentDocument(), nullptr);
}

TEST_F(LiveBlockText, AMarkedReferenceIsRecordedForUndoAndModifiesTheDrawing) {
  AcDbBlockReference* reference = Place(5000, 5000);
  devhost::Document& drawing = *host.documents.Current();
  Send(L"SAVEAS " + (folder / "a.dxf").wstring() + L"\n");
  const std::wstring saved = Var(L"DBMOD");
  devhost::EndLockSteps();
  const std::size_t steps = drawing.undo.size();
  {
    const auto lock = references.LockCurrentDocument();
    references.MarkChanged(reference->objectId());
    references.MarkChanged(AcDbObjectId());
    EXPECT_FALSE(reference->isReadEnabled()) << "closed";
  }
  EXPECT_EQ(saved, L"0");
  EXPECT_NE(Var(L"DBMOD"), L"0");
  ASSERT_EQ(drawing.undo.size(), steps + 1);
  EXPECT_EQ(drawing.undo.back().recorded.count(reference), 1u);
}

TEST_F(LiveBlockText, TheReferencesOfARecordAreThoseOfItAlone) {
  auto* other = AddBlock(L"OTHER");
  TextIn(other);
  const AcDbObjectId a = Place(1000, 1000)->objectId(), b = Place(2000, 1000)->objectId();
  Insert(nullptr, other, {3000, 1000, 0});
  EXPECT_EQ(references.ReferencesOf(room->objectId()), (std::vector<AcDbObjectId>{a, b}));
  EXPECT_EQ(references.ReferencesOf(text->objectId()), std::nullopt) << "no record";
  EXPECT_EQ(references.ReferencesOf(AcDbObjectId()), std::nullopt);
  EXPECT_EQ(references.ReferencesOf(AddBlock(L"NEVER")->objectId()), std::vector<AcDbObjectId>());
}

TEST_F(LiveBlockText, AReferenceWithModifiedGraphicsIsRepainted) {
  AcDbBlockReference* reference = Place(5000, 5000);
  const auto lock = references.LockCurrentDocument();
  ui.pictures = 0;
  references.MarkGraphicsModified(text->objectId());
  references.MarkGraphicsModified(AcDbObjectId());
  EXPECT_EQ(ui.pictures, 0) << "no reference";
  references.MarkGraphicsModified(reference->objectId());
  EXPECT_EQ(ui.pictures, 1);
  EXPECT_FALSE(reference->isReadEnabled()) << "closed";
}

TEST_F(LiveBlockText, TheCountIsFollowedByThePrompt) {
  ui.printed.clear();
  references.PrintWithPrompt(L"\n有1个");
  EXPECT_EQ(ui.printed, L"\n有1个\n");
}

// ---- the whole command

TEST_F(LiveBlockText, TextInATurnedBlockIsEditedInTheDefinitionForEveryReference) {
  auto *turned = Place(5000, 5000, kQuarter, 2), *plain = Place(1000, 1000);
  host.documents.Current()->pickFirst = {plain->objectId()};
  RunCommand(L"4900,5300\n");
  ASSERT_TRUE(opener.fragment);
  EXPECT_EQ(opener.fragment->GetText(), L"图");
  EXPECT_TRUE(host.documents.Current()->pickFirst.empty());
  const AcGePoint3d start = opener.matrix * AcGePoint3d(100, 0, 0);
  EXPECT_NEAR(start.x, 5000, 1e-6);
  EXPECT_NEAR(start.y, 5200, 1e-6);
  ui.printed.clear();
  Commit(L"表");
  EXPECT_EQ(Shown(turned), L"表");
  EXPECT_EQ(Shown(plain), L"表");
  EXPECT_EQ(ui.printed, L"\n有1个同名的图块同时参与了修改\n");
  Send(L"U\n");
  EXPECT_EQ(Shown(turned), L"图") << "the locks of a commit are one step";
}

TEST_F(LiveBlockText, ABlockWithOneReferencePrintsNothing) {
  Place(5000, 5000);
  RunCommand(L"5150,5050\n");
  ASSERT_TRUE(opener.fragment);
  ui.printed.clear();
  Commit(L"表");
  EXPECT_EQ(ui.printed, L"");
}

TEST_F(LiveBlockText, InADynamicBlockTheDefinitionIsEditedAndTheCopiesFollow) {
  room->appendAcDbEntity(new AcDbLine({0, 0, 0}, {400, 0, 0}));
  Send(L"BDYNMAKE ROOM\n");
  auto* reference = Place(5000, 5000);
  Send(L"BDYNFLIP 5150,5050\n");
  ASSERT_NE(reference->blockTableRecord(), room->objectId());
  RunCommand(L"4850,5050\n");
  ASSERT_TRUE(opener.fragment);
  EXPECT_EQ(opener.fragment->GetObjectId(), text->objectId()) << "of the definition";
  EXPECT_EQ(blocks.DynamicBlock(), room->objectId());
  Commit(L"表");
  EXPECT_EQ(Shown(reference), L"表");
  EXPECT_TRUE(blocks.DynamicBlock().isNull());
  Send(L"U\n");
  EXPECT_EQ(Shown(reference), L"图");
}

TEST_F(LiveBlockText, ANameFullOfWildCardsFindsItsOwnReferencesOnly) {
  auto *odd = AddBlock(L"A*-[x]"), *like = AddBlock(L"A12-x");
  TextIn(odd);
  TextIn(like);
  Insert(nullptr, odd, {1000, 5000, 0});
  Insert(nullptr, odd, {3000, 5000, 0});
  Insert(nullptr, like, {5000, 5000, 0});
  RunCommand(L"1150,5050\n");
  ASSERT_TRUE(opener.fragment);
  ui.printed.clear();
  Commit(L"表");
  EXPECT_EQ(ui.printed, L"\n有1个同名的图块同时参与了修改\n");
}

TEST_F(LiveBlockText, ARoomInABlockIsHitAtItsTextOnly) {
  auto* space = new QvxDbSpace;
  space->outline = {{0, 1000, 0}, {4000, 1000, 0}, {4000, 3000, 0}, {0, 3000, 0}};
  space->label = L"客厅";
  room->appendAcDbEntity(space);
  Place(5000, 5000);
  AcGePoint3d lower, upper;
  qvx::FindSubText(TextCarrier::kEntity, space->objectId(), 0)->GetExtent2d(lower, upper);
  const AcGePoint3d at = lower + (upper - lower) * 0.5;
  const auto point = [](double x, double y) {
    return std::to_wstring(x) + L"," + std::to_wstring(y) + L"\n";
  };
  RunCommand(point(5000, 6000) + point(5000 + at.x, 5000 + at.y));
  ASSERT_TRUE(opener.fragment) << "the corner of the room leads back to the prompt";
  EXPECT_EQ(opener.fragment->GetText(), L"客厅");
}

TEST_F(LiveBlockText, ATextObjectRunsItsOwnRoutineAndTheReportFollowsAtOnce) {
  auto* mark = new QvxDbText;
  mark->label = L"客厅";
  mark->width = 100;
  mark->start = {100, 1000, 0};
  room->appendAcDbEntity(mark);
  Place(5000, 5000);
  Place(1000, 1000);
  RunCommand(L"5150,6050\n卧室\n");
  EXPECT_EQ(mark->label, L"卧室");
  EXPECT_FALSE(opener.fragment);
  EXPECT_FALSE(IsLit(mark));
  EXPECT_NE(Printed(L"\n有1个同名的图块同时参与了修改\n"), std::wstring::npos);
  EXPECT_FALSE(blocks.HasSameName());
}

TEST_F(LiveBlockText, TextOfAReferenceWithoutABlockAroundItIsNotEdited) {
  Append(new AcDbText({1000, 1000, 0}, L"图", 100));
  RunCommand(L"1050,1050\n\n");
  EXPECT_FALSE(opener.fragment);
  EXPECT_FALSE(blocks.HasSameName());
}

}  // namespace
}  // namespace edittest
