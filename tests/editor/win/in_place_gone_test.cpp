// What happens to the box, its menu and its dialogs when the object, the drawing, the menu or the
// module goes while they are open.
#include "tests/editor/win/in_place_fixture.h"

#include "devhost/core/undo/undo.h"

namespace {

class InPlaceGone : public InPlaceModule {
 protected:
  void LoadDialogs() { ASSERT_TRUE(acrxLoadModule(L"qvx_annotate.arx", true)); }
  static void PressButton(HWND dialog, int id) {
    ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
  }
  // Runs the command of a dialog of the box; `act` takes place while it is open, then it is closed
  // by OK.
  void WithDialog(int command, const std::function<void()>& act) {
    bool wasOpen = false;
    m_watch.whenDialogIsOpen = [&](HWND dialog) {
      wasOpen = true;
      EXPECT_FALSE(::IsWindowVisible(Box())) << "the box is hidden";
      act();
      if (::IsWindow(dialog)) PressButton(dialog, IDOK);
    };
    ::SendMessageW(Box(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    m_watch.whenDialogIsOpen = nullptr;
    EXPECT_TRUE(wasOpen);
    Pump();
  }
  void Erase() const {
    const AcAxDocLock lock;
    m_room.object()->erase();
  }
  void CloseDrawing() const { acDocManager->closeDocument(m_document); }
  static AcApDocument* NewDrawing() { return devhost::TheHost().documents.New(); }
  void ReloadMenu() { Run(L"QmnLoad\n"); }
};

constexpr int kDialogs[] = {5015, 5016};

}  // namespace

TEST_F(InPlaceGone, AnErasedObjectLosesWhatWasTyped) {
  Open();
  Type(L"hall");
  Erase();
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(RoomText(), m_before);
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, AnErasedObjectHasNoNeighbourAndItsBoxCloses) {
  Open();
  Erase();
  for (const WPARAM key : {WPARAM{VK_TAB}, WPARAM{VK_RIGHT}, WPARAM{VK_UP}, WPARAM{VK_DOWN}})
    Key(key);
  ::SendMessageW(Box(), 1025, 0, 0);
  EXPECT_TRUE(IsOpen());
  Key(VK_ESCAPE);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, ATextThatUndoChangedIsOverwrittenByACommitOnlyIfTheBoxWasChanged) {
  {
    const AcAxDocLock lock;
    TextOf(m_room)->Update(L"study");
  }
  Pump();
  Open();
  EXPECT_EQ(BoxText(), L"study");
  devhost::EndLockSteps();
  devhost::UndoLatestStep(*devhost::TheHost().documents.Current());
  EXPECT_EQ(RoomText(), m_before);
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), m_before) << "the box was not changed";
  Open();
  Type(L"hall");
  SetRoomText(L"study");
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), L"hall");
}

TEST_F(InPlaceGone, AnUndoThatRemovesTheObjectLeavesABoxThatWritesNothing) {
  AcDbObjectId added;
  {
    const devhost::UndoRecording step(*devhost::TheHost().documents.Current(), L"ADD");
    added = Add(L"QVX_TEXT", [](QvxDbEntity& entity) {
      entity.start = {14000, 4000, 0};
      entity.width = 500;
      entity.label = L"note";
    });
  }
  Run(L"REGEN\n");
  DoubleClick(added);
  ASSERT_TRUE(IsOpen());
  Type(L"hall");
  devhost::UndoLatestStep(*devhost::TheHost().documents.Current());
  ASSERT_TRUE(added.isErased());
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(static_cast<QvxDbEntity*>(added.object())->label, L"note");
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, AMovedObjectIsWrittenWhereItIs) {
  Open();
  Type(L"hall");
  {
    const AcAxDocLock lock;
    const TAcDbObjectPtr<AcDbEntity> room(m_room, AcDb::kForWrite);
    room->transformBy(AcGeMatrix3d::translation({500, 0, 0}));
  }
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), L"hall");
}

TEST_F(InPlaceGone, TilingTheDrawingsLeavesTheBoxOpenWithWhatWasTyped) {
  AcApDocument* other = NewDrawing();
  acDocManager->activateDocument(m_document);
  Open();
  Type(L"hall");
  const HWND client = ::GetParent(::GetParent(View()));
  ::SendMessageW(client, WM_MDITILE, MDITILE_VERTICAL, 0);
  Pump();
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(BoxText(), L"hall");
  EXPECT_EQ(RoomText(), m_before) << "not written yet";
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), L"hall");
  EXPECT_EQ(Faults(), 0);
  acDocManager->closeDocument(other);
}

TEST_F(InPlaceGone, AClosedDrawingCancelsWhileADialogIsOpen) {
  LoadDialogs();
  for (const int command : kDialogs) {
    SCOPED_TRACE(command);
    if (!devhost::TheHost().documents.Current()) {
      m_document = devhost::TheHost().documents.Open(HostProcess::Get().Folder() + L"\\plan.dxf");
      Run(L"");
      Pump();
      m_room = FindRoom();
    }
    Open();
    Type(L"hall");
    WithDialog(command, [&] { CloseDrawing(); });
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Faults(), 0);
  }
}

TEST_F(InPlaceGone, AnotherDrawingCommitsWhileADialogIsOpenAndTheChoiceIsDropped) {
  LoadDialogs();
  Open();
  Type(L"hall");
  AcApDocument* other = nullptr;
  WithDialog(5015, [&] { other = NewDrawing(); });
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(RoomText(), L"hall");
  EXPECT_EQ(Faults(), 0);
  acDocManager->closeDocument(other);
}

TEST_F(InPlaceGone, AnObjectErasedWhileADialogIsOpenLeavesTheChoiceInTheBoxOnly) {
  LoadDialogs();
  Open();
  WithDialog(5015, [&] { Erase(); });
  EXPECT_TRUE(IsOpen());
  EXPECT_NE(BoxText(), m_before);
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), m_before);
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, AnUndoWhileADialogIsOpenIsFollowedByTheChoice) {
  LoadDialogs();
  {
    const AcAxDocLock lock;
    TextOf(m_room)->Update(L"study");
  }
  devhost::EndLockSteps();
  Open();
  WithDialog(5015, [&] { devhost::UndoLatestStep(*devhost::TheHost().documents.Current()); });
  ASSERT_TRUE(IsOpen());
  const std::wstring chosen = BoxText();
  Key(VK_RETURN);
  EXPECT_EQ(RoomText(), chosen);
}

TEST_F(InPlaceGone, AnUnloadWhileADialogIsOpenCommits) {
  LoadDialogs();
  const HeldInMemory held;
  Open();
  Type(L"hall");
  WithDialog(5016, [&] { EXPECT_TRUE(UnloadModule()); });
  EXPECT_EQ(Box(), nullptr);
  ASSERT_TRUE(LoadModule());
  m_room = FindRoom();
  EXPECT_EQ(Content(), L"hall");
}

TEST_F(InPlaceGone, AClosedDrawingClosesTheMenuOfTheBox) {
  Open();
  Type(L"hall");
  StartAnew();
  ShowMenu({Press(VK_DOWN), Closing([&] { CloseDrawing(); })});
  EXPECT_GE(StatusTexts().size(), 2u) << "the host's text is back";
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(Popup()["open"].get<bool>());
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, AnotherDrawingCommitsWhileTheMenuIsOpen) {
  Open();
  Type(L"hall");
  AcApDocument* other = nullptr;
  StartAnew();
  ShowMenu({Press(VK_DOWN), Closing([&] { other = NewDrawing(); })});
  EXPECT_GE(StatusTexts().size(), 2u) << "the host's text is back";
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(Popup()["open"].get<bool>());
  EXPECT_EQ(RoomText(), L"hall");
  acDocManager->closeDocument(other);
}

TEST_F(InPlaceGone, AnObjectErasedWhileTheMenuIsOpenLeavesTheMenu) {
  Open();
  Type(L"hall");
  ShowMenu({[&] { Erase(); }, Letter(L'o')});
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(RoomText(), m_before);
  EXPECT_EQ(Faults(), 0);
}

TEST_F(InPlaceGone, AnotherMenuClosesTheMenuOfTheBoxAndTheStatusLineIsRestored) {
  Open();
  Type(L"hall");
  StartAnew();
  ShowMenu({Press(VK_DOWN), [&] { EXPECT_EQ(StatusTexts().size(), 1u); },
            Closing(Export<void (*)()>(L"qvx_initstart.arx", "LoadContexMenu"))});
  EXPECT_FALSE(Popup()["open"].get<bool>());
  EXPECT_EQ(StatusTexts().size(), 2u) << "the host's text is back";
  EXPECT_EQ(Faults(), 0);
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(BoxText(), L"hall");
  std::vector<std::string> labels;
  ShowMenu({[&] { labels.push_back(Popup()["rows"][0]["label"]); }});
  EXPECT_EQ(labels, std::vector<std::string>{devhost::Utf8(L"确定(&O)")}) << "the new menu's";
}

TEST_F(InPlaceGone, AnUnloadWhileTheMenuIsOpenCommitsAndClosesTheMenu) {
  const HeldInMemory held;
  Open();
  Type(L"hall");
  ShowMenu({Press(VK_DOWN), Closing([&] { EXPECT_TRUE(UnloadModule()); })});
  EXPECT_EQ(Box(), nullptr);
  EXPECT_EQ(::FindWindowW(L"#32768", nullptr), nullptr);
  ASSERT_TRUE(LoadModule());
  m_room = FindRoom();
  EXPECT_EQ(Content(), L"hall");
}
