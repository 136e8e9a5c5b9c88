// The pop-up menu of the in-place editor and its commands.
#include "tests/editor/edit_test.h"

namespace edittest {
namespace {

class InPlaceMenu : public EditTest {
 protected:
  void SetUp() override {
    EditTest::SetUp();
    host.menus[L"INPLACE"] = {{5001, L"commit"}, {5007, L"degree"}};
    room.texts[0] = L"abcdef";
    Open(room);
    control.selection = {2, 4};
  }
  Entries Choose(int command) {
    diary.Take();
    editor->OnMenuCommand(command);
    return diary.Take();
  }
};

constexpr UINT kPopup = 0x10, kSeparator = 0x800, kSystem = 0x2000;

TEST_F(InPlaceMenu, IsThatOfTheFragmentsType) {
  for (int type = -1; type <= 9; ++type) {
    room.menuType = type;
    const bool isNumbered = type >= 1 && type <= 7;
    const std::string name = "INPLACE" + (isNumbered ? std::to_string(type) : std::string());
    EXPECT_EQ(editor->ShowInPlaceMenu({3, 4}), !isNumbered);
    EXPECT_EQ(diary.Take().front(), "menu " + name);
  }
  host.menus[L"INPLACE7"] = {};
  room.menuType = 7;
  EXPECT_TRUE(editor->ShowInPlaceMenu({3, 4}));
  EXPECT_EQ(diary.Take(), (Entries{"menu INPLACE7", "track 3,4"}));
}

TEST_F(InPlaceMenu, IsNotShownWithoutAnEdit) {
  editor->CancelEdit();
  diary.Take();
  EXPECT_FALSE(editor->ShowInPlaceMenu({3, 4}));
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceMenu, ShowsTheTipsOfItsLinesOnTheStatusLine) {
  During("track 3,4", [this] {
    diary.Take();
    editor->OnMenuSelect(5007, 0);
    editor->OnMenuSelect(5008, 0);
    editor->OnMenuSelect(5001, 0);
    EXPECT_EQ(diary.Take(), (Entries{"status degree", "status ", "status commit"}))
        << "an empty text without a tip";
    editor->OnMenuSelect(5000, 0);
    for (const UINT flag : {kPopup, kSeparator, kSystem}) editor->OnMenuSelect(5007, flag);
    EXPECT_EQ(diary.Take(), Entries{});
    editor->OnExitMenuLoop();
  });
  editor->ShowInPlaceMenu({3, 4});
  EXPECT_EQ(diary.Take(), Entries{"restore status"});
  editor->OnMenuSelect(5007, 0);
  editor->OnExitMenuLoop();
  EXPECT_EQ(diary.Take(), Entries{}) << "after its menu has closed";
}

TEST_F(InPlaceMenu, ShowsTheTipOfALineInEveryStateOfIt) {
  During("track 3,4", [this] {
    diary.Take();
    editor->OnMenuSelect(5007, 0xFFFF & ~(kPopup | kSeparator | kSystem));
    EXPECT_EQ(diary.Take(), Entries{"status degree"}) << "greyed, checked, under the pointer";
  });
  EXPECT_TRUE(editor->ShowInPlaceMenu({3, 4}));
}

TEST_F(InPlaceMenu, IsLetGoWhenAMenuIsLoadedMeanwhile) {
  During("track 3,4", [this] {
    editor->OnMenuSelect(5007, 0);
    editor->OnMenuReplaced();
    diary.Take();
    editor->OnMenuSelect(5007, 0);
    editor->OnExitMenuLoop();
  });
  EXPECT_TRUE(editor->ShowInPlaceMenu({3, 4}));
  EXPECT_EQ(diary.Take(), Entries{"restore status"});
}

TEST_F(InPlaceMenu, MayUnloadTheModule) {
  During("track 3,4", [this] { Unload(); });
  EXPECT_TRUE(editor->ShowInPlaceMenu({3, 4}));
  EXPECT_EQ(room.live, 0);
}

TEST_F(InPlaceMenu, AChangeOfTheTextSetsFlagAndCaretThenGrowsTheBox) {
  const RECT before = control.box;
  EXPECT_EQ(
      Choose(5004),
      (Entries{"text ab^Lcd^Lef", "modified", "select 8-8", "scroll",
               "move " + RectText({before.left, before.top, before.left + 118, before.bottom})}));
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], L"ab^Lcd^Lef");
}

TEST_F(InPlaceMenu, CommandsThatDoNotExistDoNothing) {
  for (const int command : {5017, 5025, 6000}) EXPECT_EQ(Choose(command), Entries{}) << command;
  EXPECT_TRUE(editor->IsEditing());
}

TEST_F(InPlaceMenu, AnEditThatEndsDuringAChangeIsNotTouched) {
  for (const std::string entry : {"text ab%%def", "scroll"}) {
    control.selection = {2, 4};
    During(entry, [this] { editor->CancelEdit(); });
    EXPECT_EQ(Choose(5007).back(), "destroy") << entry;
    Open(room);
  }
}

// ---- dialogs

TEST_F(InPlaceMenu, ADialogHidesTheBoxAndItsChoiceReplacesTheSelection) {
  During("character dialog", [this] { EXPECT_TRUE(editor->IsInSubDialog()); });
  EXPECT_EQ(Choose(5015), (Entries{"hide", "character dialog", "show", "focus", "text ab℃ef",
                                   "modified", "select 3-3", "scroll"}));
  EXPECT_FALSE(editor->IsInSubDialog());
  host.choice = L"reinforced concrete";
  control.selection = {2, 3};
  Choose(5016);
  EXPECT_EQ(control.text, L"abreinforced concreteef");
  EXPECT_EQ(control.selection, (qvx::TextRange{21, 21}));
}

TEST_F(InPlaceMenu, NothingChosenChangesNothing) {
  host.chooses = false;
  for (const int command : {5015, 5016}) {
    EXPECT_EQ(
        Choose(command),
        (Entries{"hide", command == 5015 ? "character dialog" : "word dialog", "show", "focus"}));
    EXPECT_FALSE(control.isModified);
    EXPECT_EQ(control.text, L"abcdef");
  }
}

TEST_F(InPlaceMenu, AMissingDialogChangesNothing) {
  host.hasDialog = false;
  for (const int command : {5015, 5016}) EXPECT_EQ(Choose(command), Entries{"focus"});
  EXPECT_FALSE(editor->IsInSubDialog());
  EXPECT_FALSE(control.isModified);
}

TEST_F(InPlaceMenu, AnEditThatEndsDuringADialogIsNotTouched) {
  for (const std::string entry : {"hide", "character dialog", "show", "focus"}) {
    During(entry, [this] { editor->OnDrawingDeactivated(Document(1)); });
    EXPECT_EQ(Choose(5015).back(), "unlock") << entry;
    EXPECT_FALSE(editor->IsEditing()) << entry;
    EXPECT_FALSE(editor->IsInSubDialog()) << entry;
    Open(room);
    During(entry, [this] { Unload(); });
    EXPECT_EQ(Choose(5015).back(), "delete 1.0") << entry;
    control.exists = false;
    editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
    Open(room);
  }
}

// ---- commands that close the box

TEST_F(InPlaceMenu, CommitAndCancelCloseTheBox) {
  Type(L"X");
  EXPECT_EQ(Choose(5001), (Entries{"unhighlight 1", "lock", "update 1.0 abXef", "unlock",
                                   "delete 1.0", "destroy", "lock", "unlock"}));
  Open(room);
  Type(L"Y");
  EXPECT_EQ(Choose(5002), (Entries{"unhighlight 1", "delete 1.0", "destroy"}));
  EXPECT_EQ(room.texts[0], L"abXef");
}

TEST_F(InPlaceMenu, ObjectEditAndWindowLabelCancelPickTheObjectAndPostTheFullName) {
  Type(L"X");
  EXPECT_EQ(Choose(5003), (Entries{"unhighlight 1", "delete 1.0", "destroy", "select only 1",
                                   "post _TObjEdit\\n"}));
  Open(room);
  EXPECT_EQ(Choose(5021), (Entries{"unhighlight 1", "delete 1.0", "destroy", "select only 1",
                                   "post _TChWinLab\\n"}));
  EXPECT_EQ(room.texts[0], L"abcdef");
}

TEST_F(InPlaceMenu, AxisNumbersAndBatchLabelCommitFirst) {
  Type(L"X");
  EXPECT_EQ(Choose(5019),
            (Entries{"unhighlight 1", "lock", "update 1.0 abXef", "unlock", "delete 1.0", "destroy",
                     "lock", "unlock", "select only 1", "post TRevAxno\\n"}))
      << "the name as it is";
  Open(room);
  EXPECT_EQ(Choose(5020), (Entries{"unhighlight 1", "delete 1.0", "destroy", "lock", "unlock",
                                   "select only 1", "post _TBatLabel\\n"}));
}

TEST_F(InPlaceMenu, TheCellCommandCancelsAndPicksNothing) {
  Type(L"X");
  EXPECT_EQ(Choose(5022),
            (Entries{"unhighlight 1", "delete 1.0", "destroy", "post _TCellEdit\\n"}));
}

TEST_F(InPlaceMenu, AMarkIsAppendedAndCommitted) {
  EXPECT_EQ(Choose(5018),
            (Entries{"text abcdef<", "modified", "unhighlight 1", "lock", "update 1.0 abcdef<",
                     "unlock", "delete 1.0", "destroy", "lock", "unlock"}));
}

TEST_F(InPlaceMenu, AnEmptiedTextIsCommitted) {
  EXPECT_EQ(Choose(5023), (Entries{"text ", "modified", "unhighlight 1", "lock", "update 1.0 ",
                                   "unlock", "delete 1.0", "destroy", "lock", "unlock"}));
  EXPECT_EQ(room.texts[0], L"");
}

TEST_F(InPlaceMenu, AMarkInAWrappedTextIsCommittedWithoutTheBreaks) {
  editor->CancelEdit();
  host.screenWidth = 100;
  room.texts[0] = L"abcdefghij";
  Open(room);
  Choose(5018);
  EXPECT_EQ(room.texts[0], L"abcdefghij<");
}

TEST_F(InPlaceMenu, NothingIsPostedWhenTheModuleOrTheDrawingGoes) {
  During("destroy", [this] { editor->OnDrawingDestroyed(Document(1)); });
  EXPECT_EQ(Choose(5003).back(), "destroy");
  Open(room);
  During("text ", [this] { editor->CancelEdit(); });
  EXPECT_EQ(Choose(5023).back(), "destroy");
  Open(room);
  During("select only 1", [this] { Unload(); });
  EXPECT_EQ(Choose(5003).back(), "select only 1");
  editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
  Open(room);
  During("unhighlight 1", [this] { Unload(); });
  EXPECT_EQ(Choose(5003).back(), "delete 1.0");
}

}  // namespace
}  // namespace edittest
