// Editable texts of drawing objects: fragments of every class, what they write, neighbours, undo,
// drawing files.
#include "kernel/text_place.h"

#include "devhost/core/dxf/drawing_file.h"
#include "kernel/entities/block_inserts.h"
#include "kernel/entities/edit_routines.h"
#include "kernel/entities/tdbinsight.h"
#include "kernel/model_number.h"
#include "kernel_objects_fixture.h"

namespace {

// What each class of the family has: the texts of an object with two stored texts, their menu, and
// whether it has an edit routine of its own.
struct ClassRow {
  const wchar_t* type;
  int texts, menu;
  TTextOwner::EditFunction edit;
  bool isCurve = false;
  bool isNumber = false;
};
const ClassRow kClasses[] = {
    {L"QVX_MTEXT", 1, kAnnotation, EditTexts},
    {L"QVX_TEXT", 1, kAnnotation, EditTexts},
    {L"QVX_ARROW", 2, kAnnotation, EditTexts},
    {L"QVX_MULTILEADER", 2, kSteelText, EditTexts},
    {L"QVX_COMPOSING", 3, kAnnotation, EditTexts},
    {L"QVX_INDEXPOINTER", 2, kSymbolText, EditTexts},
    {L"QVX_DRAWINGINDEX", 3, kSymbolText, EditTexts},
    {L"QVX_SYMB_SECTION", 2, kSymbolText, EditTexts},
    {L"QVX_DRAWINGNAME", 2, kAnnotation, EditTexts},
    {L"QVX_TDBINSIGHT", 2, kSymbolText, EditTexts},
    {L"QVX_ELEVATION", 1, kSymbolText, EditElevation},
    {L"QVX_SPACE", 1, kGeneralText, nullptr},
    {L"QVX_AXIS_LABEL", 2, kAxisName, nullptr},
    {L"QVX_OPENING", 1, kOpeningNumber, nullptr, false, true},
    {L"QVX_CORNER_WINDOW", 1, kOpeningNumber, nullptr, false, true},
    {L"QVX_DORMER", 1, kOpeningNumber, nullptr, false, true},
    {L"QVX_COORD", 2, kSymbolText, nullptr},
    {L"QVX_MODI", 2, kGeneralText, nullptr},
    {L"QVX_NORTHTHUMB", 1, kSymbolText, nullptr},
    {L"QVX_DIMENSION2", 1, kMeasuredText, nullptr},
    {L"QVX_SHEET", 6, kTableCell, nullptr},
    {L"QVX_EVACPATH", 1, kGeneralText, nullptr, true},
    {L"QVX_FIREZONE", 2, kGeneralText, nullptr, true},
    {L"QVX_AREAREDLINE", 1, kGeneralText, nullptr, true},
    {L"QVX_RADIUSDIM", 1, kMeasuredText, nullptr},
};

class SubTexts : public kerneltest::ObjectsTest {
 protected:
  QvxDbEntity* AddRow(const ClassRow& row) {
    auto* entity = AddOfType(row.type);
    if (!entity) return nullptr;
    entity->start = {1000, 2000, 0};
    entity->end = {6000, 4000, 0};
    entity->outline = {{1000, 2000, 0}, {6000, 2000, 0}, {6000, 4000, 0}};
    entity->width = 500;
    entity->size = 5000;
    if (QvxDbSheet* table = QvxDbSheet::cast(entity)) {
      table->width = 3000;
      table->size = 800;
      table->kind = 3;
      table->flags = 2;
    }
    entity->label = L"甲一";
    entity->cells = {L"乙二", L"丙三"};
    return entity;
  }
  void ShowNumbers() {
    if (!m_shows) ToggleModelNumber();
    m_shows = true;
  }
  // The indices of a walk from a fragment to the end of the chain.
  static std::vector<long> Walk(std::unique_ptr<TSubText> from, bool vertical, bool backward) {
    std::vector<long> indices;
    for (; from; from.reset(from->GetNext(vertical, backward))) indices.push_back(from->GetIndex());
    return indices;
  }
  void Reopen() {
    const std::wstring path = (folder / "saved.dxf").wstring();
    std::wstring why;
    ASSERT_TRUE(devhost::WriteDrawing(path, *host.documents.Current()->database(), &why));
    ASSERT_TRUE(host.documents.Open(path));
  }

 private:
  bool m_shows = false;
};

TEST_F(SubTexts, EveryClassHasItsTextsInOneOfTheTwoInterfaces) {
  ShowNumbers();
  for (const ClassRow& row : kClasses) {
    SCOPED_TRACE(devhost::Utf8(row.type));
    const QvxDbEntity* entity = AddRow(row);
    ASSERT_TRUE(entity);
    EXPECT_EQ(!row.isCurve, TDbEntity::cast(entity) != nullptr);
    EXPECT_EQ(row.isCurve, TDbCurveEntity::cast(entity) != nullptr);
    for (int i = 0; i < row.texts; ++i) {
      const auto fragment = Fragment(entity, i);
      ASSERT_TRUE(fragment) << i;
      EXPECT_EQ(i, fragment->GetIndex());
      EXPECT_EQ(entity->objectId(), fragment->GetObjectId());
      EXPECT_EQ(row.menu, fragment->GetMenuType());
      EXPECT_EQ(row.type == std::wstring(L"QVX_MTEXT"), fragment->IsMultiLine());
    }
    EXPECT_FALSE(Fragment(entity, row.texts));
    EXPECT_FALSE(Fragment(entity, -1));
    EXPECT_EQ(row.edit, TextOwnerOf(entity)->GetEditFunction());
  }
}

TEST_F(SubTexts, EveryTextIsHitInTheMiddleOfItsBoxAndHasItInTheDrawing) {
  ShowNumbers();
  for (const ClassRow& row : kClasses) {
    SCOPED_TRACE(devhost::Utf8(row.type));
    const QvxDbEntity* entity = AddRow(row);
    AcDbExtents drawn;
    ASSERT_EQ(Acad::eOk, entity->getGeomExtents(drawn));
    for (int i = 0; i < row.texts; ++i) {
      const auto fragment = Fragment(entity, i);
      if (fragment->GetText().IsEmpty()) continue;
      AcGePoint3d lower, upper;
      fragment->GetExtent2d(lower, upper);
      ASSERT_LT(lower.x, upper.x);
      ASSERT_LT(lower.y, upper.y);
      const AcGePoint3d middle = lower + (upper - lower) * 0.5;
      const std::unique_ptr<TSubText> hit(TextOwnerOf(entity)->GetSubTextAt(middle));
      ASSERT_TRUE(hit);
      EXPECT_EQ(fragment->GetText(), hit->GetText());
      EXPECT_GE(middle.x, drawn.minPoint().x);
      EXPECT_LE(middle.x, drawn.maxPoint().x);
      EXPECT_GE(middle.y, drawn.minPoint().y);
      EXPECT_LE(middle.y, drawn.maxPoint().y);
    }
  }
}

TEST_F(SubTexts, EveryTextIsWrittenUndoneAndReadBackFromAFile) {
  ShowNumbers();
  std::vector<QvxDbEntity*> entities;
  for (const ClassRow& row : kClasses) {
    SCOPED_TRACE(devhost::Utf8(row.type));
    entities.push_back(AddRow(row));
    for (int i = 0; i < row.texts; ++i) {
      const auto fragment = Fragment(entities.back(), i);
      const std::wstring before = fragment->GetText().GetString();
      Commit(*fragment, L"新^U2^U");
      EXPECT_EQ(L"新^U2^U", TextOf(entities.back(), i));
      EXPECT_STREQ(L"新^U2^U", fragment->GetText().GetString());
      Send(L"U\n");
      EXPECT_EQ(before, TextOf(entities.back(), i)) << "one step";
      Commit(*fragment, (L"文" + std::to_wstring(i)).c_str());
    }
  }
  std::vector<std::vector<std::wstring>> texts;
  for (std::size_t i = 0; i < entities.size(); ++i) {
    texts.emplace_back();
    for (int k = 0; k < kClasses[i].texts; ++k) texts.back().push_back(TextOf(entities[i], k));
  }
  Reopen();
  const std::vector<AcDbEntity*> read = Entities();
  ASSERT_EQ(entities.size(), read.size());
  for (std::size_t i = 0; i < read.size(); ++i) {
    SCOPED_TRACE(devhost::Utf8(kClasses[i].type));
    EXPECT_STREQ(kClasses[i].type, TEntitySet::TypeOf(*read[i]));
    for (int k = 0; k < kClasses[i].texts; ++k) EXPECT_EQ(texts[i][k], TextOf(read[i], k));
  }
}

TEST_F(SubTexts, EveryClassIsMovedWithItsTexts) {
  ShowNumbers();
  for (const ClassRow& row : kClasses) {
    SCOPED_TRACE(devhost::Utf8(row.type));
    QvxDbEntity* entity = AddRow(row);
    AcGePoint3d before, after, upper;
    Fragment(entity, 0)->GetExtent2d(before, upper);
    entity->transformBy(AcGeMatrix3d::translation({700, -300, 0}));
    Fragment(entity, 0)->GetExtent2d(after, upper);
    EXPECT_NEAR(before.x + 700, after.x, 1e-6);
    EXPECT_NEAR(before.y - 300, after.y, 1e-6);
  }
}

TEST_F(SubTexts, NumbersOfOpeningsAreTextsWhileTheDrawingShowsThem) {
  for (const ClassRow& row : kClasses) {
    const QvxDbEntity* entity = AddRow(row);
    EXPECT_EQ(!row.isNumber, Fragment(entity, 0) != nullptr) << devhost::Utf8(row.type);
  }
}

TEST_F(SubTexts, WithoutALockNothingIsWritten) {
  const QvxDbEntity* entity = AddRow(kClasses[1]);
  const auto fragment = Fragment(entity, 0);
  fragment->Update(L"新");
  EXPECT_EQ(L"甲一", entity->label);
  EXPECT_STREQ(L"甲一", fragment->GetText().GetString());
}

TEST_F(SubTexts, ALockIsOneUndoStep) {
  auto *first = AddRow(kClasses[1]), *second = AddRow(kClasses[2]);
  AcApDocument* document = acDocManager->curDocument();
  acDocManager->lockDocument(document);
  Fragment(first, 0)->Update(L"一");
  Fragment(second, 0)->Update(L"二");
  Fragment(second, 1)->Update(L"三");
  acDocManager->unlockDocument(document);
  Send(L"U\n");
  EXPECT_EQ(L"甲一", first->label);
  EXPECT_EQ(L"甲一", second->label);
  EXPECT_EQ(L"乙二", second->cells[0]);
}

TEST_F(SubTexts, SetTextChangesTheFragmentOnly) {
  const QvxDbEntity* entity = AddRow(kClasses[1]);
  const auto fragment = Fragment(entity, 0);
  AcGePoint3d lower, upper, longer;
  fragment->GetExtent2d(lower, upper);
  fragment->SetText(L"Vexra Vexra Vexra");
  fragment->GetExtent2d(lower, longer);
  EXPECT_GT(longer.x, upper.x);
  EXPECT_EQ(L"甲一", entity->label);
  EXPECT_STREQ(L"Vexra Vexra Vexra", fragment->GetText().GetString());
}

TEST_F(SubTexts, AnEmptyTextHasNoExtentButAPlace) {
  const QvxDbEntity* table = AddTable(4, 6);
  const auto fragment = Fragment(table, 5);
  Commit(*fragment, L"");
  AcGePoint3d lower, upper;
  fragment->GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(0, lower.distanceTo(upper));
  EXPECT_GT(lower.x, 3000);
  EXPECT_LT(lower.x, 6000) << "in its cell";
}

TEST_F(SubTexts, LineBreaksStayInATextOfSeveralLinesOnly) {
  auto *lines = AddRow(kClasses[0]), *line = AddRow(kClasses[1]);
  Commit(*Fragment(lines, 0), L"一\r\n二\r\n");
  Commit(*Fragment(line, 0), L"一\r\n二");
  EXPECT_EQ(L"一\n二\n", lines->label);
  EXPECT_EQ(L"一\r\n二\r\n", TextOf(lines, 0));
  EXPECT_EQ(L"一 二", line->label);
  line->kind = QvxDbText::kLines;
  EXPECT_TRUE(Fragment(line, 0)->IsMultiLine());
  Commit(*Fragment(line, 0), L"C:\\Plans\n三");
  Reopen();
  ASSERT_EQ(2u, Entities().size());
  EXPECT_EQ(L"一\r\n二\r\n", TextOf(Entities()[0], 0));
  EXPECT_EQ(L"C:\\Plans\r\n三", TextOf(Entities()[1], 0));
}

TEST_F(SubTexts, ALongLineIsBrokenAtTheWidthOfItsText) {
  auto* text = AddRow(kClasses[0]);
  text->label = L"一二三四五六";
  text->size = 1000;
  text->width = 500;  // two ideographs in a line
  AcGePoint3d lower, upper;
  Fragment(text, 0)->GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(1000, upper.x - lower.x);
  EXPECT_DOUBLE_EQ(500 + 2 * 500 * 5 / 3.0, upper.y - lower.y);
  EXPECT_NE(nullptr, std::unique_ptr<TSubText>(
                         TextOwnerOf(text)->GetSubTextAt(lower + AcGeVector3d(10, 10, 0))));
}

TEST_F(SubTexts, ATableIsWalkedAlongItsRows) {
  const QvxDbEntity* table = AddTable(4, 6);
  const std::vector<long> all = Walk(Fragment(table, 0), false, false);
  ASSERT_EQ(24u, all.size());
  for (long i = 0; i < 24; ++i) EXPECT_EQ(i, all[i]);
  EXPECT_EQ((std::vector<long>{5, 4, 3, 2, 1, 0}), Walk(Fragment(table, 5), false, true));
  EXPECT_EQ((std::vector<long>{23}), Walk(Fragment(table, 23), false, false));
}

TEST_F(SubTexts, ATableIsWalkedWithinAColumn) {
  const QvxDbEntity* table = AddTable(4, 6);
  EXPECT_EQ((std::vector<long>{1, 5, 9, 13, 17, 21}), Walk(Fragment(table, 1), true, false));
  EXPECT_EQ((std::vector<long>{21, 17, 13, 9, 5, 1}), Walk(Fragment(table, 21), true, true));
}

TEST_F(SubTexts, TheNeighbourInARowIsToTheRightAndInAColumnBelow) {
  const QvxDbEntity* table = AddTable(4, 6);
  AcGePoint3d at, right, below, upper;
  const auto fragment = Fragment(table, 5);
  fragment->GetExtent2d(at, upper);
  std::unique_ptr<TSubText>(fragment->GetNext(false, false))->GetExtent2d(right, upper);
  std::unique_ptr<TSubText>(fragment->GetNext(true, false))->GetExtent2d(below, upper);
  EXPECT_DOUBLE_EQ(3000, right.x - at.x);
  EXPECT_DOUBLE_EQ(at.y, right.y);
  EXPECT_DOUBLE_EQ(at.x, below.x);
  EXPECT_DOUBLE_EQ(800, at.y - below.y);
}

TEST_F(SubTexts, ATextThatReachesIntoTheNextCellDoesNotTakeItsClicks) {
  auto* table = AddTable(2, 1);
  table->cells[0] = L"一二三四五六七八九十";
  table->cells[1] = L"乙";
  const std::unique_ptr<TSubText> hit(table->GetSubTextAt({3300, 9600, 0}));
  ASSERT_TRUE(hit);
  EXPECT_EQ(1, hit->GetIndex());
  table->flags = 1;
  table->kind = 1;
  const std::unique_ptr<TSubText> beyond(table->GetSubTextAt({3300, 9600, 0}));
  ASSERT_TRUE(beyond) << "no cell is there";
  EXPECT_EQ(0, beyond->GetIndex());
}

TEST_F(SubTexts, ATableOfADamagedFileHasBoundedCells) {
  auto* table = AddTable(1, 1);
  table->kind = 2000000000;
  table->flags = 2000000000;
  EXPECT_LE(table->TextPlaces().size(), 10000u);
  table->kind = table->flags = -5;
  EXPECT_EQ(1u, table->TextPlaces().size());
}

TEST_F(SubTexts, ANeighbourOutlivesTheFragmentItCameFrom) {
  const QvxDbEntity* table = AddTable(4, 6);
  auto fragment = Fragment(table, 0);
  const std::unique_ptr<TSubText> next(fragment->GetNext(false, false));
  fragment.reset();
  EXPECT_STREQ(L"1", next->GetText().GetString());
  Commit(*next, L"新");
  EXPECT_EQ(L"新", TextOf(table, 1));
}

TEST_F(SubTexts, AnErasedObjectHasNoNeighbours) {
  QvxDbEntity* table = AddTable(4, 6);
  const auto fragment = Fragment(table, 0);
  table->erase();
  EXPECT_EQ(nullptr, fragment->GetNext(false, false));
  Commit(*fragment, L"新");
  EXPECT_EQ(L"0", table->cells[0]);
}

TEST_F(SubTexts, TheOtherEndOfAnAxisHasTheNewTextToo) {
  const ClassRow* axis = &kClasses[12];
  const QvxDbEntity* entity = AddRow(*axis);
  const auto first = Fragment(entity, 0);
  const std::unique_ptr<TSubText> second(first->GetNext(false, false));
  Commit(*first, L"B");
  EXPECT_STREQ(L"B", second->GetText().GetString());
}

TEST_F(SubTexts, AnEmptiedNumberOfAnInteriorViewIsRemoved) {
  auto* symbol = new TDbInSight;
  symbol->width = 400;
  symbol->cells = {L"1", L"2", L"3", L"4", L"5"};
  Prepare(symbol, {}, {});
  EXPECT_TRUE(symbol->isA()->isDerivedFrom(TDbInSight::desc()));
  const auto second = Fragment(symbol, 1), fourth = Fragment(symbol, 3);
  fourth->SetIndex(fourth->GetIndex() - 1);
  Commit(*second, L"");
  EXPECT_EQ((std::vector<std::wstring>{L"1", L"3", L"4", L"5"}), symbol->cells);
  EXPECT_STREQ(L"4", fourth->GetText().GetString()) << "moved up with its text";
  Commit(*fourth, L"四");
  EXPECT_EQ((std::vector<std::wstring>{L"1", L"3", L"四", L"5"}), symbol->cells);
  Send(L"U\nU\n");
  EXPECT_EQ((std::vector<std::wstring>{L"1", L"2", L"3", L"4", L"5"}), symbol->cells);
  for (int i = 0; i < 5; ++i) Commit(*Fragment(symbol, 0), L"");
  EXPECT_FALSE(Fragment(symbol, 0));
  EXPECT_TRUE(AddRow(kClasses[1])->isA()->isDerivedFrom(QvxDbText::desc()));
  EXPECT_FALSE(Entities().back()->isA()->isDerivedFrom(TDbInSight::desc()));
}

TEST_F(SubTexts, ADimensionHasItsMeasuredTextUntilItGetsItsOwn) {
  for (const auto& [row, measured] : {std::pair{19, L"5385"}, {24, L"R5385"}}) {
    QvxDbEntity* dimension = AddRow(kClasses[row]);
    dimension->label.clear();
    EXPECT_EQ(measured, TextOf(dimension, 0));
    Commit(*Fragment(dimension, 0), measured);
    EXPECT_EQ(L"", dimension->label) << "still measured";
    Commit(*Fragment(dimension, 0), L"6 等分");
    EXPECT_EQ(L"6 等分", TextOf(dimension, 0));
    Commit(*Fragment(dimension, 0), L"6 等分<");
    EXPECT_EQ(measured, TextOf(dimension, 0));
    EXPECT_EQ(L"", dimension->label);
  }
}

TEST_F(SubTexts, AReferenceOfTheFamilyHasACaption) {
  auto* block = AddBlock(L"BASIN");
  block->appendAcDbEntity(new AcDbCircle({0, 0, 0}, 300));
  Append(new TDbBlockInsert({5000, 5000, 0}, block->objectId()));
  Append(new TDbMvInsert({8000, 5000, 0}, block->objectId()));
  for (const wchar_t* type : {L"QVX_BLOCK_INSERT", L"QVX_MVINSERT"}) {
    AcDbEntity* entity = Entities()[type == std::wstring(L"QVX_MVINSERT")];
    EXPECT_STREQ(type, TEntitySet::TypeOf(*entity));
    ASSERT_TRUE(AcDbBlockReference::cast(entity));
    EXPECT_EQ(block->objectId(), AcDbBlockReference::cast(entity)->blockTableRecord());
    Commit(*Fragment(entity, 0), L"洗手盆");
    EXPECT_EQ(L"洗手盆", TextOf(entity, 0));
    Send(L"U\n");
    EXPECT_EQ(L"", TextOf(entity, 0));
    Commit(*Fragment(entity, 0), L"C:\\盆");
  }
  ads_name set{};
  resbuf* filter = acutBuildList(0, L"INSERT,QVX_BLOCK_INSERT,QVX_MVINSERT", 2, L"BASIN", 0);
  ASSERT_EQ(RTNORM, acedSSGet(L"X", nullptr, nullptr, filter, set));
  int length = 0;
  acedSSLength(set, &length);
  EXPECT_EQ(2, length) << "found by the name of the block";
  acutRelRb(filter);
  acedSSFree(set);
  Reopen();
  ASSERT_EQ(2u, Entities().size());
  EXPECT_TRUE(TDbBlockInsert::cast(Entities()[0]));
  EXPECT_TRUE(TDbMvInsert::cast(Entities()[1]));
  for (const AcDbEntity* entity : Entities()) EXPECT_EQ(L"C:\\盆", TextOf(entity, 0));
}

TEST_F(SubTexts, TextsOfTheHostAreFragmentsToo) {
  auto* text = new AcDbText({1000, 1000, 0}, L"图纸", 100);
  Append(text);
  TPickEntSet set;
  PickAll(set);
  const auto fragment = TextAt(set, 1050, 1050);
  ASSERT_TRUE(fragment);
  EXPECT_EQ(kGeneralText, fragment->GetMenuType());
  EXPECT_EQ(nullptr, fragment->GetNext(false, false));
  Commit(*fragment, L"目录");
  EXPECT_STREQ(L"目录", text->textStringConst());
  Send(L"U\n");
  EXPECT_STREQ(L"图纸", text->textStringConst());
}

TEST_F(SubTexts, AFragmentOfACopyMeasuresTheCopyAndWritesTheObject) {
  auto* text = new AcDbText({1000, 1000, 0}, L"图纸", 100);
  Append(text);
  TSubText fragment(text->objectId(), new AcDbText({7000, 7000, 0}, L"图纸", 100), 0, true, false);
  AcGePoint3d lower, upper;
  fragment.GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(7000, lower.x);
  EXPECT_DOUBLE_EQ(7200, upper.x);
  Commit(fragment, L"目录一");
  EXPECT_STREQ(L"目录一", text->textStringConst());
  EXPECT_STREQ(L"目录一", fragment.GetText().GetString());
  fragment.GetExtent2d(lower, upper);
  EXPECT_DOUBLE_EQ(7300, upper.x);
}

TEST_F(SubTexts, AParagraphOfTheHostKeepsItsCodes) {
  auto* paragraph = new AcDbMText;
  paragraph->setContents(L"{\\fArial;一}\\P二");
  Append(paragraph);
  TSubText fragment(paragraph->objectId(), paragraph, 0, false, false);
  EXPECT_TRUE(fragment.IsMultiLine());
  EXPECT_STREQ(L"{\\fArial;一}\r\n二", fragment.GetText().GetString());
  Commit(fragment, L"{\\fArial;一}\r\n三");
  EXPECT_STREQ(L"{\\fArial;一}\\P三", paragraph->contents());
}

TEST_F(SubTexts, ALongTextIsWrittenAndReadBack) {
  QvxDbEntity* text = AddRow(kClasses[1]);
  const std::wstring huge(100000, L'长');
  Commit(*Fragment(text, 0), huge.c_str());
  Reopen();
  EXPECT_EQ(huge, TextOf(Entities()[0], 0));
}

TEST_F(SubTexts, TheEditRoutineAsksForEachText) {
  QvxDbEntity* arrow = AddRow(kClasses[2]);
  static AcDbObjectId edited;
  edited = arrow->objectId();
  auto* stack = AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS));
  stack->addCommand(L"TEST", L"EDITIT", L"EDITIT", ACRX_CMD_MODAL,
                    [] { TextOwnerOf(edited.object())->GetEditFunction()(edited); });
  Send(L"EDITIT\n新 文字\n\n");
  EXPECT_EQ(L"新 文字", arrow->label);
  EXPECT_EQ(L"乙二", arrow->cells[0]) << "Enter keeps it";
  EXPECT_NE(ui.printed.npos, ui.printed.find(L"文字 <甲一>"));
  Send(L"U\n");
  EXPECT_EQ(L"甲一", arrow->label);
  QvxDbEntity* lines = AddRow(kClasses[0]);
  edited = lines->objectId();
  Send(L"EDITIT\n一\\P二\n");
  EXPECT_EQ(L"一\n二", lines->label);
  QvxDbEntity* elevation = AddRow(kClasses[10]);
  edited = elevation->objectId();
  Send(L"EDITIT\n3.3\n");
  EXPECT_EQ(L"+3.300", elevation->label);
  Send(L"EDITIT\n-0.45\n");
  EXPECT_EQ(L"-0.450", elevation->label);
  Send(L"EDITIT\n0\n");
  EXPECT_EQ(L"%%p0.000", elevation->label);
  Send(L"EDITIT\n\n");
  EXPECT_EQ(L"%%p0.000", elevation->label) << "Enter keeps it";
  stack->removeGroup(L"TEST");
}

}  // namespace
