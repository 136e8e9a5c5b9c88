// The box under an input method: the messages that input methods send and post, without one.
#include "tests/editor/win/in_place_fixture.h"

#include <imm.h>

namespace {

class InPlaceInputMethod : public InPlaceModule {
 protected:
  // As an input method does: the composition runs until it has a result.
  static void Start() { ::SendMessageW(Box(), WM_IME_STARTCOMPOSITION, 0, 0); }
  static void End() { ::SendMessageW(Box(), WM_IME_ENDCOMPOSITION, 0, 0); }
  // The key that the input method takes for itself.
  static void ProcessedKey() { Key(VK_PROCESSKEY); }
  // The composed characters as the system posts them for a control.
  static void Compose(const std::wstring& text) {
    for (const wchar_t one : text) ::PostMessageW(Box(), WM_IME_CHAR, one, 1);
    Pump();
  }
  static POINT Caret() {
    POINT at{-1, -1};
    ::GetCaretPos(&at);
    return at;
  }
  // Where the box has put the composition window.
  static COMPOSITIONFORM Window() {
    COMPOSITIONFORM form{};
    const HIMC context = ::ImmGetContext(Box());
    EXPECT_TRUE(context && ::ImmGetCompositionWindow(context, &form));
    ::ImmReleaseContext(Box(), context);
    return form;
  }
};

constexpr WPARAM kKeysOfTheEditor[] = {VK_RETURN, VK_TAB, VK_ESCAPE, VK_LEFT,
                                       VK_RIGHT,  VK_UP,  VK_DOWN,   VK_F4};

}  // namespace

TEST_F(InPlaceInputMethod, TheComposedTextArrivesWholeAndIsWritten) {
  Open();
  Start();
  for (int key = 0; key < 4; ++key) ProcessedKey();
  Compose(L"起居室");
  End();
  EXPECT_EQ(BoxText(), L"起居室") << "it replaces the selection";
  EXPECT_TRUE(::SendMessageW(Box(), EM_GETMODIFY, 0, 0));
  Start();
  Compose(L"二");
  End();
  EXPECT_EQ(BoxText(), L"起居室二");
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), L"起居室二");
}

TEST_F(InPlaceInputMethod, CharactersOutsideTheFirstPlaneArriveAsBothHalves) {
  Open();
  Start();
  Compose(L"\xD842\xDFB7");
  End();
  Key(VK_RETURN);
  EXPECT_EQ(Content(), L"\xD842\xDFB7");
}

TEST_F(InPlaceInputMethod, WhileItComposesNoKeyEndsMovesOrLeavesTheEdit) {
  Open();
  const HWND box = Box();
  Start();
  for (const WPARAM key : kKeysOfTheEditor) {
    Key(key);
    EXPECT_EQ(Box(), box) << key;
    EXPECT_TRUE(IsOpen()) << key;
    EXPECT_FALSE(Popup()["open"].get<bool>()) << key;
  }
  EXPECT_EQ(Content(), m_before) << "nothing was written";
  End();
  Key(VK_ESCAPE);
  EXPECT_FALSE(IsOpen()) << "the key is the editor's again";
  EXPECT_EQ(Content(), m_before);
}

TEST_F(InPlaceInputMethod, AfterTheCompositionEnterCommits) {
  Open();
  Start();
  Compose(L"厅");
  Key(VK_RETURN);
  ASSERT_TRUE(IsOpen()) << "this one chooses the candidate";
  End();
  Key(VK_RETURN);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), L"厅");
}

TEST_F(InPlaceInputMethod, AKeyThatTheInputMethodTakesIsNotOneOfTheEditors) {
  Open();
  const HWND box = Box();
  ProcessedKey();
  EXPECT_EQ(Box(), box);
  EXPECT_EQ(BoxText(), m_before);
}

TEST_F(InPlaceInputMethod, ACompositionThatTheBoxCutsShortDoesNotReachTheNextOne) {
  Open();
  Start();
  Run(L"REGEN\n");  // a command that starts closes the box
  EXPECT_FALSE(IsOpen());
  Open();
  Key(VK_ESCAPE);
  EXPECT_FALSE(IsOpen());
}

TEST_F(InPlaceInputMethod, ItsWindowIsAtTheCaret) {
  Open();
  ::SendMessageW(Box(), EM_SETSEL, 1, 1);
  const POINT first = Caret();
  Start();
  EXPECT_EQ(Window().dwStyle, static_cast<DWORD>(CFS_POINT));
  EXPECT_EQ(Window().ptCurrentPos.x, first.x);
  EXPECT_EQ(Window().ptCurrentPos.y, first.y);
  End();
  ::SendMessageW(Box(), EM_SETSEL, 2, 2);
  const POINT second = Caret();
  EXPECT_GT(second.x, first.x);
  Start();
  EXPECT_EQ(Window().ptCurrentPos.x, second.x);
  EXPECT_EQ(Window().ptCurrentPos.y, second.y);
  End();
}

TEST_F(InPlaceInputMethod, ItsWindowFollowsTheCaretWhileTheTextIsComposed) {
  Open();
  ::SendMessageW(Box(), EM_SETSEL, 0, 0);
  Start();
  const LONG before = Window().ptCurrentPos.x;
  ::SendMessageW(Box(), EM_SETSEL, 2, 2);
  ::SendMessageW(Box(), WM_IME_COMPOSITION, 0, 0);
  EXPECT_EQ(Window().ptCurrentPos.x, Caret().x);
  EXPECT_GT(Window().ptCurrentPos.x, before);
  End();
}

TEST_F(InPlaceInputMethod, AResultWithoutAStartOfTheCompositionIsTextToo) {
  Open();
  ::SendMessageW(Box(), WM_IME_COMPOSITION, 0, GCS_RESULTSTR);  // without a string: nothing
  EXPECT_EQ(BoxText(), m_before);
  Compose(L"厅");
  EXPECT_EQ(BoxText(), L"厅");
}

// The system keeps the context of a window: the result is set there and reported by the message.
TEST_F(InPlaceInputMethod, AResultStringOfTheContextReplacesTheSelectionOnce) {
  Open();
  const HIMC context = ::ImmGetContext(Box());
  ASSERT_NE(context, nullptr);
  wchar_t text[] = L"书房";
  if (!::ImmSetCompositionStringW(context, SCS_SETSTR, text, sizeof text - sizeof *text, nullptr,
                                  0)) {
    ::ImmReleaseContext(Box(), context);
    GTEST_SKIP() << "no input method takes a composition string here";
  }
  ::ImmNotifyIME(context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
  ::ImmReleaseContext(Box(), context);
  Pump();
  EXPECT_EQ(BoxText(), L"书房");
  Key(VK_RETURN);
  EXPECT_EQ(Content(), L"书房");
}
