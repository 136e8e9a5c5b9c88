// The box over texts of unusual length, content and place, and with unusual fonts.
#include "tests/editor/win/in_place_fixture.h"

#include <algorithm>

namespace {

class InPlaceBadInput : public InPlaceModule {
 protected:
  void SetUp() override {
    InPlaceModule::SetUp();
    m_table = Add(L"QVX_SHEET", [](QvxDbEntity& table) {
      table.start = {kMiddle.x - 1000, kMiddle.y + 500, 0};
      table.width = 2000;
      table.size = 1000;
      table.kind = table.flags = 1;
      table.cells = {L""};
    });
    ASSERT_FALSE(m_table.isNull());
    Run(L"REGEN\n");
  }
  QvxDbEntity& Table() const { return *static_cast<QvxDbEntity*>(m_table.object()); }
  std::wstring Written() const { return Table().cells.at(0); }
  // Opens the only cell of a table, which can be clicked without a text.
  void OpenWith(const std::wstring& text) {
    {
      const AcAxDocLock lock;
      const TAcDbObjectPtr<AcDbEntity> table(m_table, AcDb::kForWrite);
      Table().cells = {text};
    }
    DoubleClick(kMiddle);
    ASSERT_TRUE(IsOpen());
  }
  // The text is opened, a character is typed at its end, and all is written.
  void EditAtTheEnd(const std::wstring& text) {
    OpenWith(text);
    const auto end = static_cast<WPARAM>(::GetWindowTextLengthW(Box()));
    ::SendMessageW(Box(), EM_SETSEL, end, static_cast<LPARAM>(end));
    Type(L"x");
    ::SendMessageW(Box(), WM_COMMAND, 5001, 0);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Faults(), 0);
  }
  // Where the plan has no objects, in view.
  static constexpr AcGePoint3d kMiddle{14000, 4000, 0};
  AcDbObjectId m_table;

  static RECT ParentOnScreen() {
    RECT parent{};
    ::GetClientRect(::GetParent(Box()), &parent);
    ::MapWindowPoints(::GetParent(Box()), nullptr, reinterpret_cast<POINT*>(&parent), 2);
    return parent;
  }
  static std::wstring WithoutBreaks(std::wstring text) {
    std::erase_if(text, [](wchar_t one) { return one == L'\r' || one == L'\n'; });
    return text;
  }
};

}  // namespace

TEST_F(InPlaceBadInput, AnEmptyTextHasABoxAndTakesAText) {
  EditAtTheEnd(L"");
  EXPECT_EQ(Written(), L"x");
}

TEST_F(InPlaceBadInput, AnEmptyTextThatIsNotChangedStaysEmpty) {
  OpenWith(L"");
  EXPECT_EQ(BoxText(), L"") << "the word that is measured is not shown";
  const RECT box = BoxOnScreen();
  EXPECT_GE(box.right - box.left, 24);
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Written(), L"");
}

TEST_F(InPlaceBadInput, ATextOfOneCharacterIsEditedWhole) {
  EditAtTheEnd(L"a");
  EXPECT_EQ(Written(), L"ax");
}

TEST_F(InPlaceBadInput, AHundredThousandCharactersAreShownEditedAndWritten) {
  std::wstring text(100000, L'a');
  for (size_t i = 0; i < text.size(); i += 7) text[i] = L'文';
  OpenWith(text);
  EXPECT_TRUE(Editor()["wrapped"].get<bool>());
  // The last character is not shown where it would overrun its line.
  const std::wstring shown = WithoutBreaks(BoxText());
  ASSERT_GE(shown.size(), text.size() - 1);
  EXPECT_EQ(shown, text.substr(0, shown.size()));
  const auto length = static_cast<WPARAM>(::GetWindowTextLengthW(Box()));
  ::SendMessageW(Box(), EM_SETSEL, length, static_cast<LPARAM>(length));
  EXPECT_EQ(Editor()["selection"], Json({length, length})) << "beyond 65,535";
  ::SendMessageW(Box(), WM_COMMAND, 5007, 0);
  EXPECT_EQ(Editor()["selection"], Json({length + 3, length + 3}));
  ::SendMessageW(Box(), WM_COMMAND, 5001, 0);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Written(), shown + L"%%d");
}

// A key that needs a line more than the box shows is refused by the control, a command is not.
TEST_F(InPlaceBadInput, LineBreaksOfEveryKindInAOneLineTextBecomeBlanks) {
  const std::pair<const wchar_t*, const wchar_t*> texts[] = {{L"a\nb", L"a b%%d"},
                                                             {L"a\r\nb", L"a  b%%d"},
                                                             {L"a\rb", L"a b%%d"},
                                                             {L"\n", L" %%d"},
                                                             {L"a\n\n", L"a  %%d"}};
  for (const auto& [text, written] : texts) {
    SCOPED_TRACE(devhost::Utf8(written));
    OpenWith(text);
    const auto end = static_cast<WPARAM>(::GetWindowTextLengthW(Box()));
    ::SendMessageW(Box(), EM_SETSEL, end, static_cast<LPARAM>(end));
    ::SendMessageW(Box(), WM_COMMAND, 5007, 0);
    Key(VK_RETURN);
    EXPECT_FALSE(IsOpen()) << "the box is not wrapped";
    EXPECT_EQ(Written(), written);
    OpenWith(text);
    Type(L"x");
    Key(VK_RETURN);
    EXPECT_EQ(Written(), L"x") << "all was selected";
    OpenWith(text);
    Key(VK_RETURN);
    EXPECT_EQ(Written(), text) << "not changed, so not written";
  }
}

TEST_F(InPlaceBadInput, LoneSurrogatesAndTextFromRightToLeftAreWrittenAsTheyWere) {
  for (const std::wstring& text :
       {std::wstring(L"a\xD842"), std::wstring(L"\xDFB7"), std::wstring(L"\xDFB7\xD842"),
        std::wstring(L"\x05D0\x05D1 \x0661\x200F\x202E"), std::wstring(L"e\x0301")}) {
    SCOPED_TRACE(text.size());
    EditAtTheEnd(text);
    EXPECT_EQ(Written(), text + L"x");
  }
}

TEST_F(InPlaceBadInput, FontsOfEveryHeightGiveABoxInsideTheView) {
  for (const wchar_t* height : {L"0", L"1", L"1000", L"-1"}) {
    SCOPED_TRACE(devhost::Utf8(height));
    SetKernelSetting(L"g_iInPlaceFontHeight", height);
    OpenWith(L"room");
    const RECT box = BoxOnScreen(), parent = ParentOnScreen();
    EXPECT_GE(box.right - box.left, 24);
    EXPECT_LE(box.right - box.left, parent.right - parent.left - 10);
    EXPECT_LE(box.bottom - box.top, parent.bottom - parent.top - 10);
    EXPECT_GE(box.left, parent.left + 5);
    EXPECT_GE(box.top, parent.top + 5);
    EXPECT_LE(box.right, parent.right - 5);
    EXPECT_LE(box.bottom, parent.bottom - 5);
    Type(L"hall");
    Key(VK_RETURN);
    EXPECT_EQ(Written(), L"hall");
  }
  SetKernelSetting(L"g_iInPlaceFontHeight", L"16");
}

TEST_F(InPlaceBadInput, ATextBeyondEachEdgeOfTheViewHasItsBoxInside) {
  // Far to the side of the view, and back.
  devhost::Document& document = *devhost::TheHost().documents.Current();
  RECT view{};
  ::GetClientRect(View(), &view);
  for (const POINT by : {POINT{-view.right, 0}, POINT{view.right, 0}, POINT{0, -view.bottom},
                         POINT{0, view.bottom}, POINT{-9 * view.right, 9 * view.bottom}}) {
    SCOPED_TRACE(testing::Message() << by.x << ", " << by.y);
    OpenWith(L"first");
    {
      const AcAxDocLock lock;
      const TAcDbObjectPtr<AcDbEntity> table(m_table, AcDb::kForWrite);
      Table().flags = 2;  // another cell, which Tab opens
      Table().cells = {L"first", L"second"};
    }
    document.view.PanBy(by.x, by.y);
    Key(VK_TAB);
    EXPECT_EQ(BoxText(), L"second");
    const RECT box = BoxOnScreen(), parent = ParentOnScreen();
    EXPECT_GE(box.left, parent.left + 5);
    EXPECT_GE(box.top, parent.top + 5);
    EXPECT_LE(box.right, parent.right - 5);
    EXPECT_LE(box.bottom, parent.bottom - 5);
    Key(VK_ESCAPE);
    document.view.PanBy(-by.x, -by.y);
  }
}

TEST_F(InPlaceBadInput, InAViewSmallerThanTheBoxItIsEditedAllTheSame) {
  CWnd& frame = HostProcess::Get().Frame();
  RECT before{};
  ::GetWindowRect(frame.m_hWnd, &before);
  frame.SetWindowPos(nullptr, 0, 0, 200, 160, SWP_NOMOVE | SWP_NOZORDER);
  RECT view{};
  ::GetClientRect(View(), &view);
  OpenWith(L"room");
  Type(L"a text that is longer than the view is wide");
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Written(), L"a text that is longer than the view is wide");
  EXPECT_EQ(Faults(), 0);
  frame.SetWindowPos(nullptr, 0, 0, before.right - before.left, before.bottom - before.top,
                     SWP_NOMOVE | SWP_NOZORDER);
}
