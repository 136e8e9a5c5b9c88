// Keys and mouse of the in-place editor.
#include "tests/editor/edit_test.h"

namespace edittest {
namespace {

using InPlaceInput = EditTest;

constexpr WPARAM kProcessKey = 0xE5;  // VK_PROCESSKEY

// ---- keys

TEST_F(InPlaceInput, AnIdleEditorLetsEveryMessagePass) {
  for (const UINT number : {UINT{WM_KEYDOWN}, UINT{WM_LBUTTONDOWN}, UINT{WM_LBUTTONUP},
                            UINT{WM_MOUSEWHEEL}, UINT{1025}})
    EXPECT_FALSE(Message(number, VK_ESCAPE));
  editor->AfterButtonDown();
  editor->AfterMouseMove();
  editor->OnChange();
  editor->OnMenuCommand(5001);
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceInput, ABoxWhoseWindowIsGoneLetsEveryMessagePass) {
  Open(room);
  control.exists = false;
  control.text = L"a text that needs a larger box";
  EXPECT_FALSE(Key(VK_ESCAPE));
  editor->AfterButtonDown();
  editor->AfterMouseMove();
  editor->OnMenuCommand(5001);
  editor->AdjustEditSize();
  editor->RepositionEdit();
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceInput, OtherMessagesPass) {
  Open(room);
  for (const UINT number : {UINT{WM_CHAR}, UINT{WM_KEYUP}, UINT{WM_MOUSEMOVE}})
    EXPECT_FALSE(Message(number, VK_ESCAPE));
  EXPECT_EQ(diary.Take(), Entries{});
  EXPECT_TRUE(editor->IsEditing());
}

TEST_F(InPlaceInput, EnterCommitsOneLine) {
  Open(room);
  Type(L"Bath");
  EXPECT_TRUE(Key(VK_RETURN));
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(room.texts[0], L"Bath");
}

TEST_F(InPlaceInput, EnterInMultiLineTextFirstMakesTheBoxALineHigher) {
  Open(note);
  const RECT before = control.box;
  EXPECT_FALSE(Key(VK_RETURN));
  EXPECT_EQ(
      diary.Take(),
      Entries{"move " + RectText({before.left, before.top, before.right, before.bottom + 20})});
  EXPECT_TRUE(editor->IsEditing());
}

TEST_F(InPlaceInput, EnterDoesNotGrowABoxAsHighAsItsParentAllows) {
  control.parent = {0, 0, 800, 74};  // the box has 45, and 64 is the most
  Open(note);
  EXPECT_FALSE(Key(VK_RETURN));
  EXPECT_EQ(diary.Take(), Entries{});
  control.parent.bottom = 75;
  EXPECT_FALSE(Key(VK_RETURN));
  EXPECT_EQ(diary.Take().size(), 1u);
}

TEST_F(InPlaceInput, EnterInAWrappedBoxWithoutABreakDoesNotCommit) {
  host.screenWidth = 100;
  control.letterWidth = 5;
  room.texts[0] = L"abcdefghij";
  Open(room);
  EXPECT_FALSE(Key(VK_RETURN));
  EXPECT_TRUE(editor->IsEditing());
}

TEST_F(InPlaceInput, EscapeCancels) {
  Open(room);
  Type(L"Bath");
  EXPECT_TRUE(Key(VK_ESCAPE));
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(room.texts[0], L"Kitchen");
}

TEST_F(InPlaceInput, TabOpensTheNeighbourWithoutCondition) {
  Open(table, 0);
  Type(L"A");
  EXPECT_TRUE(Key(VK_TAB));
  EXPECT_EQ(diary.Take().front(), "next of 2.0");
  EXPECT_EQ(table.texts[0], L"A");
  EXPECT_EQ(control.text, L"b");
}

TEST_F(InPlaceInput, TheFragmentIsDeletedBeforeItsNeighbourOpens) {
  Open(table, 0);
  Key(VK_TAB);
  const Entries entries = diary.Take();
  EXPECT_EQ(Entries(entries.begin(), entries.begin() + 6),
            (Entries{"next of 2.0", "delete 2.0", "destroy", "lock", "unlock", "create in view"}));
}

TEST_F(InPlaceInput, TabAtTheLastFragmentLeavesTheBoxOpenAndUnchanged) {
  Open(table, 5);
  Type(L"typed");
  EXPECT_TRUE(Key(VK_TAB)) << "consumed nevertheless";
  EXPECT_EQ(diary.Take(), Entries{"next of 2.5"});
  EXPECT_EQ(control.text, L"typed");
  EXPECT_TRUE(control.isModified);
}

TEST_F(InPlaceInput, ANeighbourThatIsTheSameFragmentKeepsTheBox) {
  room.repeatsNext = true;
  Open(room);
  Type(L"Bath");
  EXPECT_TRUE(Key(VK_TAB));
  EXPECT_EQ(diary.Take(), (Entries{"next of 1.0", "delete 1.0"}));
  EXPECT_EQ(control.text, L"Bath");
}

TEST_F(InPlaceInput, TheNeighbourOpensWithoutTheTransform) {
  editor->BeginEdit(Piece(table, 0), AcGeMatrix3d::translation({100, 0, 0}));
  EXPECT_EQ(std::ranges::count(diary.Take(), "move 227,332,252,348"), 1);
  Key(VK_TAB);
  EXPECT_EQ(std::ranges::count(diary.Take(), "move 127,332,152,348"), 1);
}

TEST_F(InPlaceInput, TabInABlockCommitsAndClearsTheBlocks) {
  blocks.NoteDynamicBlock(Id(70));
  blocks.NoteSameName(
      std::make_unique<ReferenceSetDouble>(diary, std::vector<std::uintptr_t>{8, 9}));
  Open(table, 0);
  Key(VK_TAB);
  EXPECT_TRUE(blocks.DynamicBlock().isNull());
  EXPECT_FALSE(blocks.HasSameName());
}

TEST_F(InPlaceInput, RightLeavesAtTheEndOfTheSelectionOnAFreshBoxAtOnce) {
  Open(table, 1);
  EXPECT_TRUE(Key(kRight));
  EXPECT_EQ(control.text, L"c");
  table.texts[2] = L"long";
  control.text = L"long";
  control.selection = {0, 2};
  diary.Take();
  EXPECT_FALSE(Key(kRight));
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceInput, LeftLeavesWhenTheSelectionEndsAtZero) {
  Open(table, 1);
  control.selection = {0, 1};
  EXPECT_FALSE(Key(kLeft));
  control.selection = {0, 0};
  EXPECT_TRUE(Key(kLeft));
  EXPECT_EQ(diary.Take().front(), "next of 2.1 back");
  EXPECT_EQ(control.text, L"a");
}

TEST_F(InPlaceInput, UpAndDownLeaveOneLineTextFromAnywhere) {
  Open(table, 1);
  EXPECT_TRUE(Key(kDown));
  EXPECT_EQ(diary.Take().front(), "next of 2.1 vertical");
  EXPECT_EQ(control.text, L"e");
  EXPECT_TRUE(Key(kUp));
  EXPECT_EQ(diary.Take().front(), "next of 2.4 vertical back");
  EXPECT_EQ(control.text, L"b");
  EXPECT_TRUE(Key(kUp)) << "at the end of the chain";
  EXPECT_EQ(control.text, L"b");
}

TEST_F(InPlaceInput, UpAndDownLeaveAWrappedTextFromAnywhere) {
  host.screenWidth = 100;
  room.texts[0] = std::wstring(20, L'x');
  Open(room);
  control.selection = {10, 10};
  EXPECT_TRUE(Key(kUp));
  EXPECT_TRUE(Key(kDown));
}

TEST_F(InPlaceInput, UpAndDownLeaveMultiLineTextOnTheFirstAndLastLineOnly) {
  Open(note);
  control.selection = {2, 6};
  EXPECT_TRUE(Key(kUp)) << "the selection starts on the first line";
  EXPECT_TRUE(Key(kDown)) << "and ends on the last";
  control.selection = {6, 6};
  EXPECT_FALSE(Key(kUp));
  control.selection = {1, 2};
  EXPECT_FALSE(Key(kDown));
}

TEST_F(InPlaceInput, F4IsConsumedWhenAMenuWasShown) {
  Open(room);
  host.cursor = {11, 12};
  EXPECT_FALSE(Key(VK_F4));
  EXPECT_EQ(diary.Take(), Entries{"menu INPLACE"});
  host.menus[L"INPLACE"] = {};
  EXPECT_TRUE(Key(VK_F4));
  EXPECT_EQ(diary.Take(), (Entries{"menu INPLACE", "track 11,12"}));
}

TEST_F(InPlaceInput, OtherKeysAreTheControls) {
  Open(room);
  for (const WPARAM key : {WPARAM{'A'}, WPARAM{VK_DELETE}, WPARAM{VK_SPACE}, kProcessKey})
    EXPECT_FALSE(Key(key)) << key;
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceInput, KeysOfARunningCompositionAreTheInputMethods) {
  Open(table, 0);
  host.menus[L"INPLACE"] = {};
  editor->OnComposition(true);
  for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_TAB}, WPARAM{VK_ESCAPE}, kLeft, kRight, kUp,
                           kDown, WPARAM{VK_F4}, kProcessKey})
    EXPECT_FALSE(Key(key)) << key;
  EXPECT_EQ(diary.Take(), Entries{});
  editor->OnComposition(false);
  EXPECT_TRUE(Key(VK_TAB));
  EXPECT_EQ(control.text, L"b");
}

TEST_F(InPlaceInput, ACompositionEndsWithItsBox) {
  Open(room);
  editor->OnComposition(true);
  editor->EndEdit(true);
  Open(room);
  EXPECT_TRUE(Key(VK_ESCAPE));
}

// ---- wheel, view, text

TEST_F(InPlaceInput, TheWheelZoomsTheViewAndPasses) {
  Open(room);
  EXPECT_FALSE(Message(WM_MOUSEWHEEL, 120, 7));
  EXPECT_EQ(diary.Take(), Entries{"wheel 120 7"});
}

TEST_F(InPlaceInput, InOldHostsTheBoxMovesOverItsText) {
  g_dHostVersion = 17.2;
  Open(room);
  room.lower = {300, 150, 0};
  room.upper = {380, 170, 0};
  EXPECT_FALSE(Message(1025));
  EXPECT_EQ(diary.Take(), (Entries{"move 296,228,384,253", "invalidate", "show caret"}));
}

TEST_F(InPlaceInput, FromRelease1811OnOnlyTheCaretIsShown) {
  for (const double version : {18.11, 21.0, 24.1}) {
    g_dHostVersion = version;
    Open(room);
    EXPECT_FALSE(Message(1025));
    EXPECT_EQ(diary.Take(), Entries{"show caret"}) << version;
    editor->CancelEdit();
  }
}

TEST_F(InPlaceInput, AMovedBoxIsShiftedInsideItsParent) {
  g_dHostVersion = 17.2;
  Open(room);
  room.lower = {-300, 150, 0};
  room.upper = {-220, 170, 0};
  Message(1025);
  EXPECT_EQ(diary.Take(),
            (Entries{"move -304,228,-216,253", "move 5,228,93,253", "invalidate", "show caret"}));
}

TEST_F(InPlaceInput, ABoxDoesNotMoveWithoutAView) {
  g_dHostVersion = 17.2;
  Open(room);
  host.hasView = false;
  Message(1025);
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceInput, AnEditThatEndsDuringTheMoveIsNotTouched) {
  g_dHostVersion = 17.2;
  for (const std::string entry : {"move -304,228,-216,253", "move 5,228,93,253"}) {
    room.lower = {100, 50, 0};
    room.upper = {180, 70, 0};
    Open(room);
    room.lower = {-300, 150, 0};
    room.upper = {-220, 170, 0};
    During(entry, [this] { editor->EndEdit(true); });
    Message(1025);
    EXPECT_EQ(diary.Take().back(), "unlock") << entry;
  }
}

TEST_F(InPlaceInput, AChangeOfTheTextGrowsTheBoxAndNeverShrinksIt) {
  Open(room);
  const RECT before = control.box;
  control.text = L"Kitchen and bath";
  editor->OnChange();
  EXPECT_EQ(
      diary.Take(),
      (Entries{"move " + RectText({before.left, before.top, before.left + 178, before.bottom}),
               "text cursor"}));
  control.text = L"K";
  editor->OnChange();
  EXPECT_EQ(diary.Take(), Entries{"text cursor"});
}

TEST_F(InPlaceInput, TheBoxGrowsToTheSizeOfItsParentLessTen) {
  Open(note);
  control.parent = {100, 200, 500, 400};
  control.text = std::wstring(100, L'x') + std::wstring(100, L'\n');
  editor->OnChange();
  EXPECT_EQ(diary.Take().front(), "move 105,205,495,395");
}

TEST_F(InPlaceInput, AChangeDuringTheOpeningDoesNotSizeTheBox) {
  During("text Kitchen", [this] { editor->OnChange(); });
  editor->BeginEdit(Piece(room), AcGeMatrix3d());
  const Entries entries = diary.Take();
  EXPECT_EQ(std::ranges::count(entries, "text cursor"), 0);
}

TEST_F(InPlaceInput, AnEditThatEndsDuringAChangeIsNotTouched) {
  Open(room);
  control.text = L"Kitchen and bath";
  During("move 96,328,274,353", [this] { Unload(); });
  editor->OnChange();
  EXPECT_EQ(diary.Take(), (Entries{"move 96,328,274,353", "delete 1.0"}));
}

// ---- dragging

class InPlaceDrag : public EditTest {
 protected:
  void SetUp() override {
    EditTest::SetUp();
    room.texts[0] = L"abcdefg";
    Open(room);
    Message(WM_LBUTTONDOWN);  // the first click is no drag
    Message(WM_LBUTTONUP);
  }
  void Press(qvx::TextRange selected, int caret) {
    control.selection = selected;
    EXPECT_FALSE(Message(WM_LBUTTONDOWN));
    control.selection = {caret, caret};
    editor->AfterButtonDown();
  }
  void MoveTo(qvx::TextRange selection) {
    control.selection = selection;
    editor->AfterMouseMove();
  }
  Entries Release() {
    diary.Take();
    EXPECT_FALSE(Message(WM_LBUTTONUP));
    return diary.Take();
  }
};

TEST_F(InPlaceDrag, TheFirstClickAfterOpeningStartsNoDrag) {
  Open(table, 0);
  control.selection = {0, 1};
  Press({0, 1}, 1);
  MoveTo({0, 1});
  EXPECT_EQ(diary.Take(), Entries{});
  EXPECT_EQ(Release(), Entries{});
  EXPECT_EQ(control.selection, (qvx::TextRange{0, 1})) << "the selection is the control's own";
}

TEST_F(InPlaceDrag, APressInASelectionKeepsItAndAPlainReleaseCollapsesIt) {
  diary.Take();
  Press({1, 5}, 3);
  EXPECT_EQ(diary.Take(), (Entries{"select 1-5", "scroll"}));
  EXPECT_EQ(Release(), Entries{"select 3-3"});
  EXPECT_FALSE(control.isModified);
}

TEST_F(InPlaceDrag, ADragMovesTextAndShowsTheCaretAgain) {
  Press({1, 3}, 2);
  diary.Take();
  MoveTo({1, 4});
  MoveTo({1, 6});
  EXPECT_EQ(diary.Take(),
            (Entries{"select 1-3", "scroll", "hide caret", "select 1-3", "scroll", "hide caret"}));
  EXPECT_EQ(Release(), (Entries{"text adefbcg", "select 4-6", "scroll", "modified", "show caret",
                                "show caret"}));
  EXPECT_EQ(control.caretHides, 0);
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], L"adefbcg");
}

TEST_F(InPlaceDrag, CtrlAtTheReleaseCopiesAndTheBoxGrows) {
  Press({1, 3}, 2);
  MoveTo({1, 7});
  host.isCtrlDown = true;
  EXPECT_EQ(Release(), (Entries{"text abcdefgbc", "move 96,328,204,353", "select 7-9", "scroll",
                                "modified", "show caret"}));
}

TEST_F(InPlaceDrag, ADropInsideItsOwnRangeDoesNotSetTheModifiedFlag) {
  Press({1, 5}, 3);
  MoveTo({1, 4});
  EXPECT_EQ(Release(), Entries{"show caret"});
  EXPECT_FALSE(control.isModified);
  EXPECT_EQ(control.text, L"abcdefg");
}

TEST_F(InPlaceDrag, MovesWithoutAButtonAreIgnored) {
  diary.Take();
  MoveTo({1, 4});
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceDrag, AMoveOverAWindowThatIsGoneIsIgnored) {
  Press({1, 3}, 2);
  diary.Take();
  control.exists = false;
  MoveTo({1, 4});
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceDrag, AnEditThatEndsDuringTheDropIsNotTouched) {
  for (const std::string entry : {"text abcdefgbc", "move 96,328,204,353"}) {
    Press({1, 3}, 2);
    MoveTo({1, 7});
    host.isCtrlDown = true;
    During(entry, [this] { editor->CancelEdit(); });
    EXPECT_EQ(Release().back(), "destroy") << entry;
    Open(room);
    Message(WM_LBUTTONDOWN);
    Message(WM_LBUTTONUP);
  }
}

}  // namespace
}  // namespace edittest
