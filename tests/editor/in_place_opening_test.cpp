// The opening of the in-place editor: the order of its steps and what each host release changes.
#include "tests/editor/edit_test.h"

namespace edittest {
namespace {

class InPlaceOpening : public EditTest {
 protected:
  Entries Begin(TextObject& object, size_t index = 0) {
    diary.Take();
    editor->BeginEdit(Piece(object, index), AcGeMatrix3d());
    return diary.Take();
  }
  bool Did(const Entries& entries, const std::string& entry) {
    return std::ranges::count(entries, entry) == 1;
  }
};

TEST_F(InPlaceOpening, TakesItsStepsInOrder) {
  EXPECT_EQ(Begin(room),
            (Entries{"highlight 1", "create in view", "font -16", "move 127,332,152,348",
                     "text Kitchen", "select all", "scroll", "focus", "unmodified",
                     "move 96,328,184,353", "cursor 1140,840", "to top"}));
  EXPECT_TRUE(editor->IsEditing());
  EXPECT_TRUE(editor->Drag().m_bFreshClick);
  EXPECT_EQ(room.live, 1);
}

TEST_F(InPlaceOpening, DoesNothingWithoutAFragment) {
  editor->BeginEdit(nullptr, AcGeMatrix3d());
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceOpening, OfTheOpenFragmentKeepsTheBoxAndFreesTheNewOne) {
  Open(room);
  Type(L"Bath");
  control.selection = {2, 2};
  EXPECT_EQ(Begin(room), Entries{"delete 1.0"});
  EXPECT_EQ(control.text, L"Bath");
  EXPECT_EQ(control.selection, (qvx::TextRange{2, 2}));
  EXPECT_TRUE(control.isModified);
  EXPECT_EQ(room.live, 1);
}

TEST_F(InPlaceOpening, WithoutAViewFreesTheFragmentAndKeepsTheRunningEdit) {
  host.hasView = false;
  EXPECT_EQ(Begin(room), Entries{"delete 1.0"});
  EXPECT_FALSE(editor->IsEditing());
  host.hasView = true;
  Open(room);
  host.hasView = false;
  EXPECT_EQ(Begin(table), Entries{"delete 2.0"});
  EXPECT_TRUE(editor->IsEditing());
  EXPECT_TRUE(control.exists);
}

TEST_F(InPlaceOpening, OnAnotherObjectCommitsTheRunningEditFirst) {
  Open(room);
  Type(L"Bath");
  const Entries entries = Begin(table);
  const Entries first(entries.begin(), entries.begin() + 10);
  EXPECT_EQ(first, (Entries{"unhighlight 1", "lock", "update 1.0 Bath", "unlock", "delete 1.0",
                            "destroy", "lock", "unlock", "highlight 2", "create in view"}));
  EXPECT_EQ(room.texts[0], L"Bath");
}

TEST_F(InPlaceOpening, OnTheSameObjectWithoutAChangeTouchesNoHighlight) {
  Open(table, 0);
  const Entries entries = Begin(table, 1);
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 5),
            (Entries{"delete 2.0", "destroy", "lock", "unlock", "create in view"}));
  for (const std::string& entry : entries) EXPECT_EQ(entry.find("highlight"), std::string::npos);
}

TEST_F(InPlaceOpening, OnTheSameObjectAfterAChangeHighlightsAgainAfterTheWrite) {
  Open(table, 0);
  Type(L"A");
  const Entries entries = Begin(table, 1);
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 8),
            (Entries{"lock", "update 2.0 A", "unlock", "highlight 2", "delete 2.0", "destroy",
                     "lock", "unlock"}));
  EXPECT_EQ(std::ranges::count(entries, "highlight 2"), 1);
}

TEST_F(InPlaceOpening, AfterEmptyingAPieceInSightEditsThePieceThatThePointerHit) {
  host.inSight = {4};
  Open(chain, 0);
  Type(L"");
  const Entries entries = Begin(chain, 2);
  EXPECT_EQ(entries.front(), "index of 4.2 is 1");
  EXPECT_EQ(chain.texts, (std::vector<std::wstring>{L"y", L"z"}));
  EXPECT_EQ(control.text, L"z");
  Type(L"Z");
  editor->EndEdit(true);
  EXPECT_EQ(chain.texts, (std::vector<std::wstring>{L"y", L"Z"}));
}

TEST_F(InPlaceOpening, LowersTheIndexOnlyWhenAllFourConditionsHold) {
  const auto lowers = [this](TextObject& object, size_t from, size_t to, bool isEmptied,
                             bool isModified) {
    Open(object, from);
    if (isModified) Type(isEmptied ? L"" : L"q");
    if (isEmptied) control.text.clear();
    const Entries entries = Begin(object, to);
    editor->CancelEdit();
    return entries.front().starts_with("index of");
  };
  host.inSight = {4};
  EXPECT_FALSE(lowers(chain, 0, 2, false, true)) << "not empty";
  EXPECT_FALSE(lowers(chain, 2, 1, true, true)) << "the new one is before it";
  chain.texts = {L"x", L"y", L"z"};
  EXPECT_FALSE(lowers(chain, 0, 2, true, false)) << "not modified";
  EXPECT_FALSE(lowers(table, 0, 2, true, true)) << "another class";
  EXPECT_TRUE(lowers(chain, 0, 2, true, true));
}

TEST_F(InPlaceOpening, OfAnotherPieceWithoutAWindowOnlyReleasesTheFirst) {
  host.inSight = {4};
  Open(chain, 0);
  Type(L"");
  control.exists = false;
  const Entries entries = Begin(chain, 2);
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 2),
            (Entries{"delete 4.0", "create in view"}));
  EXPECT_EQ(control.text, L"z") << "nothing was written, so the index stays";
}

TEST_F(InPlaceOpening, WithoutAnExtentMeasuresAWordInItsPlace) {
  room.texts[0].clear();
  const Entries entries = Begin(room);
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 4),
            (Entries{"highlight 1", "measured text Vexra", "measured text ", "create in view"}));
  EXPECT_EQ(control.text, L"") << "the text stays empty";
  EXPECT_EQ(RectText(control.box), "126,328,154,353") << "around the word's centre";
  EXPECT_FALSE(control.isModified);
}

TEST_F(InPlaceOpening, MeasuresTheWordAlsoForExchangedCorners) {
  room.lower.x = 300;
  const Entries entries = Begin(room);
  EXPECT_TRUE(Did(entries, "measured text Vexra"));
  EXPECT_TRUE(Did(entries, "measured text Kitchen")) << "the text is set back";
}

TEST_F(InPlaceOpening, CarriesTheCornersToTheWorld) {
  editor->BeginEdit(Piece(room), AcGeMatrix3d::translation({100, 50, 0}));
  EXPECT_TRUE(Did(diary.Take(), "move 227,282,252,298"));
}

TEST_F(InPlaceOpening, InTheFrameConvertsTheCentreAlone) {
  g_dHostVersion = 21;
  host.cursor = {1150, 840};  // 150,340 of the parent: inside the text's rectangle of the view
  const Entries entries = Begin(room);
  EXPECT_TRUE(Did(entries, "create in frame"));
  EXPECT_TRUE(Did(entries, "move 157,372,182,388"));
  for (const std::string& entry : entries) EXPECT_FALSE(entry.starts_with("cursor")) << entry;
}

TEST_F(InPlaceOpening, InOldHostsAnEmptyTextStartsAtTheTextsLeftEdge) {
  g_dHostVersion = 18.1;
  room.texts[0].clear();
  EXPECT_TRUE(Did(Begin(room), "move 100,332,125,348"));
  editor->CancelEdit();
  g_dHostVersion = 18.11;
  EXPECT_TRUE(Did(Begin(room), "move 127,332,152,348"));
  editor->CancelEdit();
  room.texts[0] = L"Kitchen";
  g_dHostVersion = 17.2;
  EXPECT_TRUE(Did(Begin(room), "move 127,332,152,348")) << "a text with characters";
}

TEST_F(InPlaceOpening, OnlyLaterHostsBringTheBoxToTheTop) {
  for (const auto& [version, isOnTop] :
       {std::pair{17.2, false}, {18.11, false}, {18.12, true}, {24.1, true}}) {
    g_dHostVersion = version;
    EXPECT_EQ(Did(Begin(room), "to top"), isOnTop) << version;
    editor->CancelEdit();
  }
}

TEST_F(InPlaceOpening, LeavesAPointerOnTheTextWhereItIs) {
  host.cursor = {1179, 849};
  for (const std::string& entry : Begin(room)) EXPECT_FALSE(entry.starts_with("cursor")) << entry;
  editor->CancelEdit();
  host.cursor = {1180, 849};
  EXPECT_TRUE(Did(Begin(room), "cursor 1140,840"));
}

TEST_F(InPlaceOpening, WrapsLongOneLineText) {
  host.screenWidth = 100;  // 75 pixels: 9 characters of a fresh context, 7 of the box
  room.texts[0] = L"abcdefghij";
  const Entries entries = Begin(room);
  EXPECT_TRUE(Did(entries, "text abcdefghij")) << "the text is measured in the control";
  EXPECT_TRUE(Did(entries, "text abcdefg\\r\\nhij"));
  EXPECT_TRUE(editor->IsWrapped());
  EXPECT_FALSE(control.isModified);
  EXPECT_EQ(control.box.bottom - control.box.top, 45) << "two lines";
}

TEST_F(InPlaceOpening, WrapsByTheFontOfAContextAndBreaksByTheFontOfTheBox) {
  host.screenWidth = 100;
  room.texts[0] = L"abcdefghi";  // 72 pixels in a context, 90 in the box
  Begin(room);
  EXPECT_FALSE(editor->IsWrapped());
  EXPECT_EQ(control.text, L"abcdefghi");
  editor->CancelEdit();
  control.letterWidth = 5;
  room.texts[0] = L"abcdefghij";  // 80 pixels in a context, 50 in the box
  Begin(room);
  EXPECT_TRUE(editor->IsWrapped()) << "without any break";
  EXPECT_EQ(control.text, L"abcdefghij");
}

TEST_F(InPlaceOpening, DoesNotWrapMultiLineText) {
  host.screenWidth = 100;
  note.texts[0] = std::wstring(50, L'x');
  Begin(note);
  EXPECT_FALSE(editor->IsWrapped());
  EXPECT_EQ(control.text, note.texts[0]);
}

TEST_F(InPlaceOpening, WithAnUnusableScreenSizeTakesADefault) {
  room.texts[0] = std::wstring(180, L'x');  // 1440 pixels in a context
  for (const double size : {0.0, 4801.0}) {
    host.screenWidth = size;
    Begin(room);
    EXPECT_FALSE(editor->IsWrapped()) << size;
    editor->CancelEdit();
  }
  room.texts[0] += L"x";
  for (const double size : {0.0, 4801.0}) {
    host.screenWidth = size;
    Begin(room);
    EXPECT_TRUE(editor->IsWrapped()) << size;
    EXPECT_EQ(control.text.find(L'\r'), 144u);
    editor->CancelEdit();
  }
}

TEST_F(InPlaceOpening, ClearsTheDragOfTheBoxBefore) {
  Open(room);
  Message(WM_LBUTTONDOWN);
  Message(WM_LBUTTONUP);
  control.selection = {1, 4};
  Message(WM_LBUTTONDOWN);
  control.selection = {2, 2};
  editor->AfterButtonDown();
  control.selection = {1, 6};
  editor->AfterMouseMove();
  Begin(table);
  EXPECT_FALSE(editor->Drag().m_bDragging);
  EXPECT_FALSE(editor->Drag().m_bButtonDown);
  EXPECT_FALSE(editor->Drag().HasSaved());
  EXPECT_EQ(editor->Drag().m_nDropPos, 6);
}

TEST_F(InPlaceOpening, WithoutAControlReleasesTheFragment) {
  control.canCreate = false;
  EXPECT_EQ(Begin(room), (Entries{"highlight 1", "create in view", "unhighlight 1", "delete 1.0"}));
  EXPECT_FALSE(editor->IsEditing());
}

TEST_F(InPlaceOpening, OpensTextsOfEveryKind) {
  const std::wstring texts[] = {L"",
                                L"x",
                                std::wstring(1, static_cast<wchar_t>(0xD800)),
                                L"\x5D0\x5D1",
                                L"a\rb\nc\r\nd",
                                std::wstring(100000, L'x')};
  for (const std::wstring& text : texts) {
    room.texts[0] = text;
    Begin(room);
    ASSERT_TRUE(editor->IsEditing());
    EXPECT_GE(control.box.left, 5);
    EXPECT_LE(control.box.right, 795);
    editor->EndEdit(true);
    EXPECT_EQ(room.texts[0], text) << "an unchanged text is not written";
  }
}

TEST_F(InPlaceOpening, InAViewThatIsTooSmallPutsTheRightAndBottomEdgeInside) {
  control.parent = {0, 0, 20, 12};
  Begin(room);
  EXPECT_EQ(control.box.right, 15);
  EXPECT_EQ(control.box.bottom, 7);
}

}  // namespace
}  // namespace edittest
