// The in-place editor of the real module: a double click opens it over a text of the drawing.
#include "tests/module/win/module_test.h"
// after the class library
#include "acdocman.h"
#include "dbapserv.h"
#include "devhost/ui/messages/message_pump.h"
#include "dbsymtb.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"
#include "kernel/tentityset.h"
#include "kernel/tsubtext.h"
#include "rxmfcapi.h"

using Json = nlohmann::json;

namespace {

class InPlaceModule : public Module {
 protected:
  void TearDown() override {
    Module::TearDown();
    acrxUnloadModule(L"qvx_design.arx");
    HostProcess::Get().Remove(L"plan.dxf");
  }
  void SetUp() override {
    Module::SetUp();
    HostProcess::Get().CopyProductFile(L"plan.dxf");
    ASSERT_TRUE(LoadModule());
    ASSERT_TRUE(acrxLoadModule(L"qvx_design.arx", true));
    m_document = devhost::TheHost().documents.Open(HostProcess::Get().Folder() + L"\\plan.dxf");
    ASSERT_NE(m_document, nullptr);
    BringUp();
    Run(L"");
    Pump();
    m_room = FindRoom();
    ASSERT_FALSE(m_room.isNull());
    m_before = Content();
  }
  static HWND View() { return acedGetAcadDwgView()->m_hWnd; }
  static Json Editor() { return Json::parse(Shell())["editor"]; }
  static bool IsOpen() { return Editor()["open"].get<bool>(); }
  static HWND Box() {
    HWND box = ::GetDlgItem(View(), 6000);
    return box ? box : ::GetDlgItem(HostProcess::Get().Frame().m_hWnd, 6000);
  }
  static void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
  }
  static void Key(WPARAM key) {
    ::PostMessageW(Box(), WM_KEYDOWN, key, 1);
    Pump();
  }
  // The first room of the current drawing.
  static AcDbObjectId FindRoom() {
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    AcDbBlockTable* table = nullptr;
    AcDbObjectId model;
    database->getBlockTable(table, AcDb::kForRead);
    table->getAt(ACDB_MODEL_SPACE, model);
    table->close();
    const TAcDbObjectPtr<AcDbBlockTableRecord> space(model, AcDb::kForRead);
    for (const AcDbObjectId& id : space->entities()) {
      const TAcDbObjectPtr<AcDbEntity> entity(id, AcDb::kForRead);
      if (entity && std::wstring(TEntitySet::TypeOf(*entity.Get())) == L"QVX_SPACE") return id;
    }
    return {};
  }
  std::unique_ptr<TSubText> Name() const {
    const TAcDbObjectPtr<AcDbEntity> entity(m_room, AcDb::kForRead);
    const TDbEntity* room = TDbEntity::cast(entity.Get());
    return std::unique_ptr<TSubText>(room ? room->GetSubText(0) : nullptr);
  }
  std::wstring Content() const { return Name()->GetText().GetString(); }
  // Double clicks in the middle of the room's name.
  void Open() {
    AcGePoint3d lower, upper;
    Name()->GetExtent2d(lower, upper);
    const ads_point at = {(lower.x + upper.x) / 2, (lower.y + upper.y) / 2, 0};
    CPoint pixel;
    ASSERT_TRUE(acedCoordFromWorldToPixel(2, at, pixel));
    const LPARAM place = MAKELPARAM(pixel.x, pixel.y);
    ::ClientToScreen(View(), &pixel);
    ::SetCursorPos(pixel.x, pixel.y);
    // Not posted: the system would add the position that the pointer had before.
    MSG click{View(), WM_LBUTTONDBLCLK, MK_LBUTTON, place, ::GetTickCount(), pixel};
    devhost::ThePump().Process(&click);
    Pump();
    ASSERT_TRUE(IsOpen());
  }
  // Replaces the selection as typing does.
  static void Type(const wchar_t* text) {
    for (; *text; ++text) ::PostMessageW(Box(), WM_CHAR, *text, 1);
    Pump();
  }

  AcApDocument* m_document = nullptr;
  AcDbObjectId m_room;
  std::wstring m_before;
};

}  // namespace

TEST_F(InPlaceModule, ADoubleClickOpensTheBoxOverTheTextWithAllOfItSelected) {
  Open();
  const Json editor = Editor();
  EXPECT_EQ(editor["text"], "次卧");
  EXPECT_EQ(editor["selection"], Json({0, 2}));
  EXPECT_FALSE(editor["wrapped"].get<bool>());
  EXPECT_EQ(::GetFocus(), Box());
  EXPECT_EQ(::GetWindowLongPtrW(Box(), GWL_STYLE) & 0x50001084, 0x50001084);
  POINT at{};
  ::GetCursorPos(&at);
  RECT box{};
  ::GetWindowRect(Box(), &box);
  EXPECT_TRUE(::PtInRect(&box, at));
}

TEST_F(InPlaceModule, EnterWritesTheTextInOneStepOfUndo) {
  Open();
  Type(L"hall");
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Box(), nullptr);
  EXPECT_EQ(Content(), L"hall");
  Run(L"_U\n");
  EXPECT_EQ(Content(), m_before);
}

TEST_F(InPlaceModule, EscapeLeavesTheTextAsItWas) {
  Open();
  Type(L"hall");
  Key(VK_ESCAPE);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), m_before);
}

TEST_F(InPlaceModule, TheBoxGrowsWithTheTextAndDoesNotShrink) {
  Open();
  RECT before{}, after{}, last{};
  ::GetWindowRect(Box(), &before);
  Type(L"a text that needs more room");
  ::GetWindowRect(Box(), &after);
  EXPECT_GT(after.right - after.left, before.right - before.left);
  ::SendMessageW(Box(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"a"));
  Type(L"b");
  ::GetWindowRect(Box(), &last);
  EXPECT_TRUE(::EqualRect(&after, &last));
}

TEST_F(InPlaceModule, TheStartOfACommandCommits) {
  Open();
  Type(L"hall");
  Run(L"REGEN\n");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), L"hall");
}

TEST_F(InPlaceModule, UnloadingCommits) {
  Open();
  Type(L"hall");
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(Box(), nullptr);
  ASSERT_TRUE(LoadModule());  // the objects are of their classes again
  m_room = FindRoom();
  EXPECT_EQ(Content(), L"hall");
}

TEST_F(InPlaceModule, AnotherDrawingCommitsAndAClosedOneCancels) {
  Open();
  Type(L"hall");
  AcApDocument* other = devhost::TheHost().documents.New();
  EXPECT_FALSE(IsOpen());
  acDocManager->closeDocument(other);
  EXPECT_EQ(Content(), L"hall");
  Open();
  Type(L"attic");
  acDocManager->closeDocument(m_document);
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Contains(Shell(), "\"faults\":0"));
}

TEST_F(InPlaceModule, ItsMenuCommandsChangeTheTextAndSetTheModifiedFlag) {
  Open();
  ::SendMessageW(Box(), WM_COMMAND, 5007, 0);
  EXPECT_EQ(Editor()["text"], "%%d");
  EXPECT_EQ(Editor()["selection"], Json({3, 3}));
  EXPECT_TRUE(::SendMessageW(Box(), EM_GETMODIFY, 0, 0));
  ::SendMessageW(Box(), WM_COMMAND, 5001, 0);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), L"%%d");
}

TEST_F(InPlaceModule, EnterOfAnInputMethodDoesNotEndTheEdit) {
  Open();
  ::SendMessageW(Box(), WM_IME_STARTCOMPOSITION, 0, 0);
  for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_TAB}, WPARAM{VK_RIGHT}, WPARAM{VK_ESCAPE}})
    Key(key);
  EXPECT_TRUE(IsOpen());
  ::SendMessageW(Box(), WM_IME_ENDCOMPOSITION, 0, 0);
  ::SendMessageW(Box(), EM_SETSEL, 0, -1);
  ::SendMessageW(Box(), WM_CHAR, L'厅', 1);
  EXPECT_EQ(Editor()["text"], "厅");
  Key(VK_PROCESSKEY);
  EXPECT_TRUE(IsOpen());
  Key(VK_RETURN);
  EXPECT_EQ(Content(), L"厅");
}

TEST_F(InPlaceModule, TheBoxHasTheColoursOfTheSettings) {
  SetKernelSetting(L"g_colorInPlaceGround", L"1193046");
  SetKernelSetting(L"g_colorInPlaceText", L"6636321");
  Open();
  const HDC dc = ::GetDC(Box());
  const auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(::GetParent(Box()), WM_CTLCOLOREDIT,
                                                             reinterpret_cast<WPARAM>(dc),
                                                             reinterpret_cast<LPARAM>(Box())));
  LOGBRUSH about{};
  ASSERT_TRUE(::GetObjectW(brush, sizeof about, &about));
  EXPECT_EQ(about.lbColor, 1193046u);
  EXPECT_EQ(::GetBkColor(dc), 1193046u);
  EXPECT_EQ(::GetTextColor(dc), 6636321u);
  ::ReleaseDC(Box(), dc);
}
