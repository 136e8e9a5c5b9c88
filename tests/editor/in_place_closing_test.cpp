// Commit and cancel of the in-place editor, and calls inside these calls.
#include "tests/editor/edit_test.h"

namespace edittest {
namespace {

using InPlaceClosing = EditTest;

TEST_F(InPlaceClosing, ANewEditorIsIdleAndHasNothingNoted) {
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_FALSE(editor->IsMultiLine());
  EXPECT_FALSE(editor->IsWrapped());
  EXPECT_FALSE(editor->IsInSubDialog());
  const qvx::TextDrag& drag = editor->Drag();
  EXPECT_EQ(drag.m_nDropPos, 0);
  EXPECT_EQ(drag.m_nSelStart, 0);
  EXPECT_EQ(drag.m_nSelEnd, 0);
  EXPECT_EQ(drag.m_nCaretHides, 0);
  EXPECT_FALSE(drag.m_bDragging || drag.m_bButtonDown || drag.m_bFreshClick);
  editor->OnMenuSelect(5007, 0);
  editor->OnExitMenuLoop();
  EXPECT_EQ(diary.Take(), Entries{});
}

// ---- commit

TEST_F(InPlaceClosing, AnIdleEditorHasNothingToClose) {
  editor->EndEdit(true);
  editor->CancelEdit();
  editor->GotoNextText(false, false);
  editor->AdjustEditSize();
  editor->RepositionEdit();
  EXPECT_EQ(diary.Take(), Entries{});
}

TEST_F(InPlaceClosing, ACommitWritesInsideOneLockAndThenReportsTheBlocks) {
  Open(room);
  Type(L"Bath");
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "lock", "update 1.0 Bath", "unlock",
                                   "delete 1.0", "destroy", "lock", "unlock"}));
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(room.texts[0], L"Bath");
}

TEST_F(InPlaceClosing, ACommitThatKeepsTheHighlightSetsItAgainOnlyAfterAWrite) {
  Open(room);
  Type(L"Bath");
  editor->EndEdit(false);
  EXPECT_EQ(diary.Take(), (Entries{"lock", "update 1.0 Bath", "unlock", "highlight 1", "delete 1.0",
                                   "destroy", "lock", "unlock"}));
  Open(room);
  editor->EndEdit(false);
  EXPECT_EQ(diary.Take(), (Entries{"delete 1.0", "destroy", "lock", "unlock"}));
}

TEST_F(InPlaceClosing, AnUnchangedBoxWritesNothingHoweverItCloses) {
  const std::function<void()> ways[] = {[this] { editor->EndEdit(true); },
                                        [this] { editor->EndEdit(false); },
                                        [this] { editor->CancelEdit(); },
                                        [this] { Key(VK_RETURN); },
                                        [this] { Key(VK_ESCAPE); },
                                        [this] { editor->OnMenuCommand(5001); },
                                        [this] { editor->OnMenuCommand(5002); },
                                        [this] { editor->OnMenuCommand(5019); },
                                        [this] { editor->OnMenuCommand(5022); },
                                        [this] { Unload(); },
                                        [this] {
                                          control.exists = false;
                                          editor->EndEdit(true);
                                        }};
  for (const auto& close : ways) {
    if (!editor) editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
    Open(room);
    close();
    for (const std::string& entry : diary.Take()) EXPECT_FALSE(entry.starts_with("update"));
    EXPECT_EQ(room.live, 0);
  }
}

TEST_F(InPlaceClosing, AWindowThatIsGoneOnlyReleasesTheFragment) {
  Open(room);
  Type(L"Bath");
  control.exists = false;
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(), Entries{"delete 1.0"});
  EXPECT_EQ(room.texts[0], L"Kitchen");
}

TEST_F(InPlaceClosing, ALockThatFailsWritesNothingAndClosesTheBox) {
  Open(room);
  Type(L"Bath");
  host.canLock = false;
  editor->EndEdit(false);
  EXPECT_EQ(diary.Take(), (Entries{"no lock", "delete 1.0", "destroy", "lock", "unlock"}));
  EXPECT_EQ(room.texts[0], L"Kitchen");
}

TEST_F(InPlaceClosing, AWrappedTextIsWrittenWithoutItsLineBreaks) {
  host.screenWidth = 100;
  room.texts[0] = L"abcdefghij";
  Open(room);
  control.selection = {12, 12};
  Type(L"K");
  EXPECT_FALSE(Key(VK_RETURN)) << "Enter does not commit a wrapped box";
  Type(L"\r\n");
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], L"abcdefghijK");
}

TEST_F(InPlaceClosing, ALastCharacterThatWasNotShownIsLostWhenTheBoxIsChanged) {
  host.screenWidth = 100;
  const std::wstring text = std::wstring(14, L'x') + L"L";
  room.texts[0] = text;
  Open(room);
  EXPECT_EQ(control.text, L"xxxxxxx\r\nxxxxxxx");
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], text) << "an unchanged box loses nothing";
  Open(room);
  control.selection = {0, 0};
  Type(L"N");
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], L"N" + std::wstring(14, L'x'));
}

TEST_F(InPlaceClosing, MultiLineTextKeepsItsLineBreaks) {
  Open(note);
  control.selection = {0, 0};
  Type(L"0\r\n");
  editor->EndEdit(true);
  EXPECT_EQ(note.texts[0], L"0\r\none\r\ntwo");
}

TEST_F(InPlaceClosing, ACommitReportsTheReferencesAndUpdatesTheDynamicBlock) {
  referenceHost.references[70] = {71, 72};
  blocks.NoteDynamicBlock(Id(70));
  blocks.NoteSameName(
      std::make_unique<ReferenceSetDouble>(diary, std::vector<std::uintptr_t>{8, 9}));
  Open(room);
  Type(L"Bath");
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(),
            (Entries{"unhighlight 1", "lock", "update 1.0 Bath", "unlock", "delete 1.0", "destroy",
                     "lock", "mark 8", "mark 9", "print \\n有1个同名的图块同时参与了修改",
                     "free set", "unlock", "activate", "lock", "graphics of 71", "graphics of 72",
                     "update copies of 70", "unlock"}));
  EXPECT_TRUE(blocks.DynamicBlock().isNull());
}

// ---- cancel

TEST_F(InPlaceClosing, ACancelWritesNothingAndLeavesTheBlocksForTheNextCommit) {
  blocks.NoteDynamicBlock(Id(70));
  blocks.NoteSameName(
      std::make_unique<ReferenceSetDouble>(diary, std::vector<std::uintptr_t>{8, 9}));
  Open(room);
  Type(L"Bath");
  editor->CancelEdit();
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "delete 1.0", "destroy"}));
  EXPECT_EQ(room.texts[0], L"Kitchen");
  EXPECT_EQ(blocks.DynamicBlock(), Id(70));
  EXPECT_TRUE(blocks.HasSameName());
  Open(room);
  editor->EndEdit(true);
  const Entries entries = diary.Take();
  EXPECT_EQ(std::ranges::count(entries, "mark 9"), 1);
  EXPECT_EQ(std::ranges::count(entries, "update copies of 70"), 1);
}

TEST_F(InPlaceClosing, ACancelWithoutAFragmentDestroysALeftWindow) {
  control.exists = true;
  editor->CancelEdit();
  EXPECT_EQ(diary.Take(), Entries{"destroy"});
  Open(room);
  control.exists = false;
  editor->CancelEdit();
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "delete 1.0"}));
}

// ---- drawings

TEST_F(InPlaceClosing, ADrawingThatIsDeactivatedCommits) {
  Open(room);
  Type(L"Bath");
  editor->OnDrawingDeactivated(Document(2));
  EXPECT_TRUE(editor->IsEditing()) << "another drawing";
  editor->OnDrawingDeactivated(Document(1));
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(room.texts[0], L"Bath");
}

TEST_F(InPlaceClosing, ADrawingThatIsDestroyedCancels) {
  Open(room);
  Type(L"Bath");
  editor->OnDrawingDestroyed(Document(2));
  EXPECT_TRUE(editor->IsEditing());
  editor->OnDrawingDestroyed(Document(1));
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(room.texts[0], L"Kitchen");
  host.document = nullptr;
  editor->OnDrawingDestroyed(nullptr);
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "delete 1.0", "destroy"}));
}

TEST_F(InPlaceClosing, ADrawingThatIsDestroyedAfterItsEditChangesNothing) {
  Open(room);
  editor->EndEdit(true);
  diary.Take();
  editor->OnDrawingDestroyed(Document(1));
  EXPECT_EQ(diary.Take(), Entries{});
}

// ---- calls inside these calls

TEST_F(InPlaceClosing, ACommandThatStartsDuringTheWriteDoesNotCloseTheBoxTwice) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { editor->EndEdit(true); });
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "lock", "update 1.0 Bath", "unlock",
                                   "delete 1.0", "destroy", "lock", "unlock"}));
}

TEST_F(InPlaceClosing, NothingOpensWhileTheBoxCloses) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { editor->BeginEdit(Piece(table), AcGeMatrix3d()); });
  During("destroy", [this] { editor->BeginEdit(Piece(note), AcGeMatrix3d()); });
  editor->EndEdit(true);
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(table.live + note.live + room.live, 0);
}

TEST_F(InPlaceClosing, ACancelBeforeTheWritePreventsIt) {
  Open(room);
  Type(L"Bath");
  During("unhighlight 1", [this] { editor->CancelEdit(); });
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "delete 1.0", "destroy"}));
  EXPECT_EQ(room.texts[0], L"Kitchen");
  Open(room);
  Type(L"Bath");
  During("lock", [this] { editor->OnDrawingDestroyed(Document(1)); });
  editor->EndEdit(true);
  EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "lock", "unlock", "delete 1.0", "destroy"}));
}

TEST_F(InPlaceClosing, AWindowThatGoesDuringTheCommitIsNotRead) {
  Open(room);
  Type(L"Bath");
  During("unhighlight 1", [this] { control.exists = false; });
  editor->EndEdit(true);
  EXPECT_EQ(room.texts[0], L"Kitchen");
  EXPECT_FALSE(editor->IsEditing());
}

TEST_F(InPlaceClosing, ADrawingThatIsDestroyedDuringTheWriteIsNotTouchedAfterIt) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { editor->OnDrawingDestroyed(Document(1)); });
  editor->EndEdit(false);
  EXPECT_EQ(diary.Take(), (Entries{"lock", "update 1.0 Bath", "unlock", "delete 1.0", "destroy"}));
}

TEST_F(InPlaceClosing, ACancelDuringTheReportSkipsTheDynamicBlock) {
  Open(room);
  blocks.NoteDynamicBlock(Id(70));
  blocks.NoteSameName(
      std::make_unique<ReferenceSetDouble>(diary, std::vector<std::uintptr_t>{8, 9}));
  During("mark 8", [this] { editor->OnDrawingDestroyed(Document(1)); });
  editor->EndEdit(true);
  EXPECT_EQ(std::ranges::count(diary.Take(), "activate"), 0);
}

// The module is unloaded in the middle of each operation of a commit: nothing follows but what the
// stack releases.
TEST_F(InPlaceClosing, AfterAnUnloadNothingOfTheEditorIsUsed) {
  const std::string during[] = {"unhighlight 1", "lock",    "update 1.0 Bath", "unlock",
                                "delete 1.0",    "destroy", "mark 8"};
  for (const std::string& entry : during) {
    editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
    Open(room);
    Type(L"Bath");
    blocks.NoteSameName(
        std::make_unique<ReferenceSetDouble>(diary, std::vector<std::uintptr_t>{8}));
    diary.Take();
    During(entry, [this] { Unload(); });
    editor->EndEdit(true);
    EXPECT_FALSE(editor) << entry;
    EXPECT_EQ(room.live, 0) << entry;
    const bool isAfter = entry == "destroy" || entry == "mark 8";
    EXPECT_EQ(std::ranges::count(diary.Take(), "destroy"), isAfter) << entry;
    control.exists = false;
  }
}

TEST_F(InPlaceClosing, AfterAnUnloadDuringACancelNothingIsUsed) {
  for (const std::string entry : {"unhighlight 1", "delete 1.0"}) {
    editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
    Open(room);
    During(entry, [this] { Unload(); });
    editor->CancelEdit();
    EXPECT_EQ(diary.Take(), (Entries{"unhighlight 1", "delete 1.0"})) << entry;
    control.exists = false;
  }
}

TEST_F(InPlaceClosing, AnExceptionInTheWriteLeavesTheEditOpen) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [] { throw std::bad_alloc(); });
  EXPECT_THROW(editor->EndEdit(true), std::bad_alloc);
  EXPECT_EQ(diary.Take().back(), "unlock");
  EXPECT_TRUE(editor->IsEditing());
  editor->EndEdit(true);
  EXPECT_FALSE(editor->IsEditing());
}

// ---- calls inside an opening

// Each operation of an opening after the highlight ends the edit, as a command that starts does.
TEST_F(InPlaceClosing, ACommandThatStartsDuringAnOpeningEndsIt) {
  const std::string during[] = {
      "highlight 1",          "to top",       "create in view", "font -16",
      "move 127,332,152,348", "text Kitchen", "focus",          "move 96,328,184,353"};
  for (const std::string& entry : during) {
    During(entry, [this] { editor->EndEdit(true); });
    editor->BeginEdit(Piece(room), AcGeMatrix3d());
    EXPECT_FALSE(editor->IsEditing()) << entry;
    EXPECT_FALSE(control.exists) << entry;
    EXPECT_EQ(room.live, 0) << entry;
    EXPECT_TRUE(diary.hooks.empty()) << entry;
    diary.Take();
  }
}

TEST_F(InPlaceClosing, AfterAnUnloadDuringAnOpeningNothingIsUsed) {
  const std::string during[] = {"highlight 1",          "to top",       "create in view",
                                "move 127,332,152,348", "text Kitchen", "focus",
                                "move 96,328,184,353"};
  for (const std::string& entry : during) {
    editor = std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
    During(entry, [this] { Unload(); });
    editor->BeginEdit(Piece(room), AcGeMatrix3d());
    EXPECT_EQ(diary.Take().back(), "delete 1.0") << entry;
    EXPECT_EQ(room.live, 0) << entry;
    control.exists = false;
  }
}

TEST_F(InPlaceClosing, AnEditThatEndsWhileItsNeighbourIsFoundOpensNothing) {
  Open(table);
  During("next of 2.0", [this] { editor->EndEdit(true); });
  editor->GotoNextText(false, false);
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(table.live, 0);
}

TEST_F(InPlaceClosing, ADrawingThatGoesDuringTheCommitBeforeDropsTheNewFragment) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { editor->OnDrawingDestroyed(Document(1)); });
  editor->BeginEdit(Piece(table), AcGeMatrix3d());
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(table.live, 0);
}

TEST_F(InPlaceClosing, ADrawingThatIsLeftDuringTheCommitBeforeDropsTheNewFragment) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { host.document = Document(2); });
  editor->BeginEdit(Piece(table), AcGeMatrix3d());
  EXPECT_FALSE(editor->IsEditing());
  EXPECT_EQ(table.live, 0);
}

TEST_F(InPlaceClosing, AnUnloadDuringTheCommitBeforeDropsTheNewFragment) {
  Open(room);
  Type(L"Bath");
  During("update 1.0 Bath", [this] { Unload(); });
  editor->BeginEdit(Piece(table), AcGeMatrix3d());
  EXPECT_EQ(table.live, 0);
}

TEST_F(InPlaceClosing, ANewEditDuringAnOpeningReplacesIt) {
  During("focus", [this] { editor->BeginEdit(Piece(table), AcGeMatrix3d()); });
  editor->BeginEdit(Piece(room), AcGeMatrix3d());
  EXPECT_EQ(control.text, L"a");
  EXPECT_EQ(room.live, 0);
  EXPECT_EQ(table.live, 1);
  EXPECT_TRUE(control.exists);
}

}  // namespace
}  // namespace edittest
