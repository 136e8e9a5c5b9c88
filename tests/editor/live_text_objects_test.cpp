// Fragments, locks, carriers of text and own edit routines over the real core of the host, and the
// command that edits a picked text.
#include "editor/live_text_objects.h"

#include "kernel/entities/edit_routines.h"
#include "tests/editor/live_text_test.h"

namespace edittest {
namespace {

using qvx::TextCarrier;

class LiveTextObjects : public LiveTextTest {
 protected:
  std::unique_ptr<qvx::EditFragment> Piece(const AcDbEntity* entity, int index) {
    return qvx::FindSubText(TextCarrier::kEntity, entity->objectId(), index);
  }
  QvxDbEntity* AddPath() {
    QvxDbEntity* path = AddOfType(L"QVX_EVACPATH");
    path->start = {1000, 1000, 0};
    path->end = {6000, 1000, 0};
    path->outline = {{1000, 1000, 0}, {6000, 1000, 0}};
    path->width = 500;
    path->label = L"出口";
    return path;
  }
};

// ---- fragments

class CountedText final : public TSubText {
 public:
  CountedText(AcDbObjectId object, int& live)
      : TSubText(object, nullptr, 0, false, false), m_live(live) {
    ++m_live;
  }
  ~CountedText() override { --m_live; }

 private:
  int& m_live;
};

TEST_F(LiveTextObjects, AFragmentOwnsTheKernelsFragment) {
  EXPECT_EQ(qvx::MakeFragment(nullptr), nullptr);
  int live = 0;
  auto fragment = qvx::MakeFragment(new CountedText(AddText({0, 0, 0})->objectId(), live));
  EXPECT_EQ(live, 1);
  fragment.reset();
  EXPECT_EQ(live, 0);
}

TEST_F(LiveTextObjects, AFragmentHasTextObjectIndexAndMenuOfItsPiece) {
  const QvxDbSheet* table = AddTable(3, 2);
  const auto cell = Piece(table, 4);
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->GetText(), L"4");
  EXPECT_EQ(cell->GetObjectId(), table->objectId());
  EXPECT_EQ(cell->GetIndex(), 4);
  EXPECT_EQ(cell->GetMenuType(), kTableCell);
  EXPECT_FALSE(cell->IsMultiLine());
  cell->SetIndex(2);
  EXPECT_EQ(cell->GetIndex(), 2);
  EXPECT_EQ(cell->GetText(), L"2");
  QvxDbText* lines = AddText({0, 0, 0});
  lines->kind = QvxDbText::kLines;
  EXPECT_TRUE(Piece(lines, 0)->IsMultiLine());
}

TEST_F(LiveTextObjects, SetTextChangesTheFragmentAndUpdateTheObject) {
  const QvxDbText* text = AddText({1000, 1000, 0});
  const auto fragment = Piece(text, 0);
  AcGePoint3d lower, upper, longer;
  fragment->GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(lower.x, 1000);
  EXPECT_DOUBLE_EQ(lower.y, 1000);
  EXPECT_GT(upper.x, lower.x);
  fragment->SetText(L"Vexra Vexra");
  EXPECT_EQ(fragment->GetText(), L"Vexra Vexra");
  fragment->GetExtent2d(lower, longer);
  EXPECT_GT(longer.x, upper.x);
  EXPECT_EQ(text->label, L"客厅");
  {
    const auto lock = qvx::LockCurrentForWrite();
    fragment->Update(L"卧室");
  }
  EXPECT_EQ(text->label, L"卧室");
}

TEST_F(LiveTextObjects, NeighboursInATableAreInRowsAndColumnsAndBothDirections) {
  const QvxDbSheet* table = AddTable(3, 3);
  const auto middle = Piece(table, 4);
  const auto next = [&](bool vertical, bool backward) {
    const auto fragment = middle->GetNext(vertical, backward);
    return fragment ? fragment->GetIndex() : -1;
  };
  EXPECT_EQ(next(false, false), 5);
  EXPECT_EQ(next(false, true), 3);
  EXPECT_EQ(next(true, false), 7);
  EXPECT_EQ(next(true, true), 1);
  EXPECT_EQ(Piece(table, 8)->GetNext(false, false), nullptr) << "the end of the chain";
}

TEST_F(LiveTextObjects, HighlightIsThatOfTheWholeObject) {
  const QvxDbSheet* table = AddTable(3, 2);
  const auto cell = Piece(table, 4);
  cell->Highlight(true);
  EXPECT_TRUE(IsLit(table));
  cell->Highlight(false);
  EXPECT_FALSE(IsLit(table));
}

// ---- locks

TEST_F(LiveTextObjects, ALockIsOfTheCurrentDrawingUntilItIsReleased) {
  devhost::Document& first = *host.documents.Current();
  auto lock = qvx::LockCurrentForWrite();
  ASSERT_TRUE(lock);
  EXPECT_EQ(first.lockMode(), AcAp::kWrite);
  NewDrawing();
  EXPECT_FALSE(IsLocked());
  lock.reset();
  EXPECT_EQ(first.lockMode(), AcAp::kNotLocked);
}

TEST_F(LiveTextObjects, ALockOfADrawingThatHasClosedReleasesNothing) {
  AcApDocument* first = acDocManager->curDocument();
  auto lock = qvx::LockCurrentForWrite();
  NewDrawing();
  const auto other = qvx::LockCurrentForWrite();
  acDocManager->unlockDocument(first);  // the host closes a locked drawing later
  acDocManager->closeDocument(first);
  lock.reset();
  EXPECT_TRUE(IsLocked());
}

TEST_F(LiveTextObjects, WithoutADrawingNothingIsLocked) {
  acDocManager->closeDocument(acDocManager->curDocument());
  EXPECT_EQ(qvx::LockCurrentForWrite(), nullptr);
}

// ---- carriers

TEST_F(LiveTextObjects, AnObjectCarriesTextByOneOfTheTwoClasses) {
  const AcDbObjectId text = AddText({0, 0, 0})->objectId(), path = AddPath()->objectId();
  const AcDbObjectId line = Append(new AcDbLine({0, 0, 0}, {1, 0, 0}));
  EXPECT_TRUE(qvx::IsTextCarrier(TextCarrier::kEntity, text));
  EXPECT_FALSE(qvx::IsTextCarrier(TextCarrier::kCurve, text));
  EXPECT_FALSE(qvx::IsTextCarrier(TextCarrier::kEntity, path));
  EXPECT_TRUE(qvx::IsTextCarrier(TextCarrier::kCurve, path));
  for (const AcDbObjectId none : {line, AcDbObjectId()})
    for (const TextCarrier carrier : {TextCarrier::kEntity, TextCarrier::kCurve}) {
      EXPECT_FALSE(qvx::IsTextCarrier(carrier, none));
      EXPECT_EQ(qvx::FindSubText(carrier, none, 0), nullptr);
      EXPECT_EQ(qvx::FindSubTextAt(carrier, none, {}), nullptr);
      EXPECT_FALSE(qvx::FindEditFunction(carrier, none));
    }
}

TEST_F(LiveTextObjects, ATextIsFoundByItsIndexAndByAPoint) {
  const AcDbObjectId table = AddTable(3, 2)->objectId(), path = AddPath()->objectId();
  EXPECT_EQ(qvx::FindSubText(TextCarrier::kEntity, table, 5)->GetText(), L"5");
  EXPECT_EQ(qvx::FindSubText(TextCarrier::kEntity, table, 6), nullptr);
  EXPECT_EQ(qvx::FindSubText(TextCarrier::kCurve, table, 5), nullptr) << "of the other class";
  AcGePoint3d lower, upper;
  qvx::FindSubText(TextCarrier::kEntity, table, 5)->GetExtent2d(lower, upper);
  const AcGePoint3d middle = lower + (upper - lower) * 0.5;
  EXPECT_EQ(qvx::FindSubTextAt(TextCarrier::kEntity, table, middle)->GetIndex(), 5);
  EXPECT_EQ(qvx::FindSubTextAt(TextCarrier::kEntity, table, {-9000, 0, 0}), nullptr);
  const auto onPath = qvx::FindSubText(TextCarrier::kCurve, path, 0);
  ASSERT_TRUE(onPath);
  EXPECT_EQ(onPath->GetText(), L"出口");
}

TEST_F(LiveTextObjects, TheEditRoutineIsThatOfTheObjectWhichIsClosedThen) {
  const QvxDbText* text = AddText({0, 0, 0});
  const auto edit = qvx::FindEditFunction(TextCarrier::kEntity, text->objectId());
  ASSERT_TRUE(edit);
  EXPECT_EQ(*edit.target<void (*)(AcDbObjectId)>(), &EditTexts);
  EXPECT_FALSE(text->isReadEnabled());
  EXPECT_FALSE(qvx::FindEditFunction(TextCarrier::kEntity, AddTable(2, 2)->objectId()))
      << "an object without a routine";
  EXPECT_FALSE(qvx::FindEditFunction(TextCarrier::kCurve, text->objectId()));
}

TEST_F(LiveTextObjects, ErasedObjectsGiveNothing) {
  QvxDbText* text = AddText({0, 0, 0});
  text->erase();
  EXPECT_FALSE(qvx::IsTextCarrier(TextCarrier::kEntity, text->objectId()));
  EXPECT_EQ(Piece(text, 0), nullptr);
  EXPECT_FALSE(qvx::FindEditFunction(TextCarrier::kEntity, text->objectId()));
}

// ---- the command

TEST_F(LiveTextObjects, TheCommandOpensTheFirstTextOfThePickedObjectAndDeselectsAll) {
  const QvxDbText* text = AddText({1000, 1000, 0});
  auto& selected = host.documents.Current()->pickFirst;
  Run(L"1050,1050\n", [&] {
    selected = {text->objectId()};
    qvx::LiveTextCommandHost commandHost(opener);
    qvx::EditPickedText(commandHost);
    EXPECT_TRUE(selected.empty());
  });
  ASSERT_TRUE(opener.fragment);
  EXPECT_EQ(opener.fragment->GetObjectId(), text->objectId());
  EXPECT_EQ(opener.fragment->GetIndex(), 0);
  EXPECT_NE(ui.printed.find(L"选择需要修改文字的图元<退出>:"), std::wstring::npos);
}

TEST_F(LiveTextObjects, TheCommandAcceptsObjectsOfTheFamilyOnly) {
  Append(new AcDbText({1000, 1000, 0}, L"图", 100));
  Run(L"1050,1050\n", [&] {
    qvx::LiveTextCommandHost commandHost(opener);
    qvx::EditPickedText(commandHost);
  });
  EXPECT_FALSE(opener.fragment);
}

TEST_F(LiveTextObjects, TheCommandEndsWhenADrawingClosesDuringThePick) {
  AddText({1000, 1000, 0});
  Run(L"1050,1050\n", [&] {
    qvx::LiveTextCommandHost commandHost(opener);
    EXPECT_FALSE(commandHost.IsGone());
    opener.drawings = std::make_unique<qvx::Lifetime>();
    EXPECT_TRUE(commandHost.IsGone());
    qvx::EditPickedText(commandHost);
  });
  EXPECT_FALSE(opener.fragment);
}

}  // namespace
}  // namespace edittest
