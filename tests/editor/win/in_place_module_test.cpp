// The in-place editor of the real module: a double click opens it over a text of the drawing.
#include "tests/editor/win/in_place_fixture.h"

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
