// The filter as a whole: which messages it acts on, the order of its first steps, the pointer's
// moves, characters, and when an open tip closes.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

using MessageFilterTest = FilterTest;

TEST_F(MessageFilterTest, AsksForDocumentDatabaseWindowAndDrawingInThisOrder) {
  const MSG message = Message(0x400);
  EXPECT_FALSE(Filter(message));
  EXPECT_EQ(diary.entries, (Entries{"document?", "database?", "window?", "ready?", "CMDNAMES?"}));
  host.isReady = false;
  Filter(message);
  EXPECT_EQ(diary.entries, (Entries{"document?", "database?", "window?", "ready?"}));
  host.isHostWindow = false;
  Filter(message);
  EXPECT_EQ(diary.entries, (Entries{"document?", "database?", "window?"}));
  host.hasDatabase = false;
  Filter(message);
  EXPECT_EQ(diary.entries, (Entries{"document?", "database?"}));
  host.hasDocument = false;
  Filter(message);
  EXPECT_EQ(diary.entries, Entries{"document?"});
}

TEST_F(MessageFilterTest, ActsOnNothingUnlessEveryAcceptanceQuestionIsAnsweredYes) {
  Hold(VK_CONTROL);
  ASSERT_TRUE(Filter(Key(VK_OEM_PLUS)));
  for (bool FilterDouble::*answer : {&FilterDouble::hasDocument, &FilterDouble::hasDatabase,
                                     &FilterDouble::isHostWindow, &FilterDouble::isReady}) {
    host.*answer = false;
    EXPECT_FALSE(Filter(Key(VK_OEM_PLUS)));
    EXPECT_EQ(Done(), Entries{});
    host.*answer = true;
  }
}

TEST_F(MessageFilterTest, TheDisablingSettingPassesEverythingAndReadsNothing) {
  g_bDisableHook = 1;
  Hold(VK_CONTROL);
  EXPECT_EQ(Order(Key(VK_OEM_PLUS)), Entries{});
  EXPECT_FALSE(Filter(Message(WM_RBUTTONDOWN)));
  edit.isVisible = true;
  EXPECT_FALSE(Filter(Message(WM_LBUTTONDOWN)));
}

TEST_F(MessageFilterTest, ReadsNothingButTheRunningCommandsForMessagesThatNoStepNames) {
  for (UINT number = 0; number < 0x1000; ++number) {
    if ((number >= WM_KEYDOWN && number <= WM_CHAR) ||
        (number >= WM_MOUSEMOVE && number <= WM_MOUSEWHEEL && number != WM_RBUTTONDBLCLK &&
         number != 0x209))
      continue;
    EXPECT_EQ(Order(Message(number)), Entries{"CMDNAMES?"}) << number;
    EXPECT_FALSE(Filter(Message(number))) << number;
  }
}

TEST_F(MessageFilterTest, NoKeyAndNoButtonWorksWhileTheOrbitRuns) {
  host.running = L"3DORBIT";
  Hold(VK_CONTROL);
  for (const WPARAM key : {VK_OEM_PLUS, VK_OEM_MINUS, VK_OEM_3, VK_TAB, VK_F1})
    EXPECT_EQ(Order(Key(key)), Entries{"CMDNAMES?"}) << key;
  EXPECT_EQ(Order(Message(WM_RBUTTONDOWN)), Entries{"CMDNAMES?"});
  EXPECT_EQ(Order(Message(WM_LBUTTONDBLCLK)), Entries{"CMDNAMES?"});
  host.running = L"'PAN,3DORBITCTR";
  EXPECT_EQ(Order(Key(VK_OEM_PLUS)), Entries{"CMDNAMES?"}) << "anywhere in the names";
  host.running = L"LINE";
  EXPECT_TRUE(Filter(Key(VK_OEM_PLUS)));
}

TEST_F(MessageFilterTest, ThePressCapturedBeforeTheOrbitDecidesAfterIt) {
  EXPECT_TRUE(Filter(Message(WM_RBUTTONDOWN, 0, 1000)));
  host.running = L"3DORBIT";
  EXPECT_FALSE(Filter(Message(WM_RBUTTONDOWN, 0, 1900)));
  EXPECT_FALSE(Filter(Message(WM_RBUTTONUP, 0, 1950)));
  host.running.clear();
  EXPECT_TRUE(Filter(Message(WM_RBUTTONUP, 0, 2000)));
  EXPECT_EQ(Done().back(), "menu 200,150 forced") << "1000 ms since the captured press";
}

TEST_F(MessageFilterTest, APointerMoveInAnIdleHostOnlyRestartsTheTimer) {
  g_nCustomFlag = 0x10;
  EXPECT_EQ(Order(Message(WM_MOUSEMOVE)),
            (Entries{"CMDNAMES?", "editing?", "idle?", "drawing view?", "restart timer"}));
  MSG elsewhere = Message(WM_MOUSEMOVE);
  elsewhere.hwnd = kOtherView;
  Filter(elsewhere);
  EXPECT_TRUE(Asked("restart timer")) << "the view of any drawing";
  elsewhere.hwnd = kFrame;
  EXPECT_EQ(Order(elsewhere), (Entries{"CMDNAMES?", "editing?", "idle?", "drawing view?"}));
}

TEST_F(MessageFilterTest, APointerMoveInABusyHostClosesTheTip) {
  g_nCustomFlag = 0x10;
  host.isIdle = false;
  EXPECT_EQ(Order(Message(WM_MOUSEMOVE)), (Entries{"CMDNAMES?", "editing?", "idle?", "close tip"}));
}

TEST_F(MessageFilterTest, APointerMoveDuringAnEditSetsTheEditCursorUnlessTheViewIsPanned) {
  g_nCustomFlag = 0x10;
  edit.isVisible = true;
  EXPECT_EQ(Order(Message(WM_MOUSEMOVE)), (Entries{"CMDNAMES?", "editing?", "edit cursor"}));
  EXPECT_EQ(Order(Message(WM_MOUSEMOVE, MK_MBUTTON | MK_SHIFT)),
            (Entries{"CMDNAMES?", "editing?"}));
  EXPECT_FALSE(Filter(Message(WM_MOUSEMOVE)));
}

TEST_F(MessageFilterTest, APointerMovePicksNothing) {
  for (const bool isIdle : {true, false}) {
    host.isIdle = isIdle;
    Filter(Message(WM_MOUSEMOVE));
    for (const std::string& entry : diary.entries) {
      EXPECT_NE(entry.rfind("select", 0), 0u) << entry;
      EXPECT_NE(entry.rfind("fence", 0), 0u) << entry;
    }
  }
}

TEST_F(MessageFilterTest, ACharacterGoesToTheDrawingWithRepeatAndFlagsAndPasses) {
  MSG message = Message(WM_CHAR, 0xC1);
  message.lParam = 0x401E0003;
  EXPECT_EQ(Order(message), (Entries{"CMDNAMES?", "char 193 3 16414", "close tip"}));
  EXPECT_FALSE(Filter(message));
}

TEST_F(MessageFilterTest, AnOpenTipClosesAfterKeysCharactersAndPressesAlsoWhenSwallowed) {
  g_nCustomFlag = 0x10;
  Hold(VK_CONTROL);
  ASSERT_TRUE(Filter(Key(VK_OEM_PLUS)));
  EXPECT_EQ(diary.entries.back(), "close tip");
  host.helpFile = L"qvx.chm";
  Filter(Key(VK_F1));
  EXPECT_EQ(diary.entries.back(), "close tip");
  ASSERT_TRUE(Filter(Message(WM_RBUTTONDOWN)));
  EXPECT_EQ(diary.entries.back(), "close tip");
  Filter(Message(WM_LBUTTONDOWN));
  EXPECT_EQ(diary.entries.back(), "close tip");
  for (const UINT other : {WM_KEYUP, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONUP, WM_MBUTTONDOWN,
                           WM_MBUTTONUP, WM_MOUSEWHEEL, WM_MOUSEMOVE}) {
    Filter(Message(other));
    EXPECT_FALSE(Asked("close tip")) << other;
  }
}

TEST_F(MessageFilterTest, AnOpenTipStaysWhenOneOfTheFirstStepsReturns) {
  host.running = L"3DORBIT";
  Filter(Key(VK_ESCAPE));
  EXPECT_FALSE(Asked("close tip"));
  host.running.clear();
  host.resizeTakes = true;
  EXPECT_TRUE(Filter(Message(WM_LBUTTONDOWN)));
  EXPECT_FALSE(Asked("close tip"));
  g_bDisableHook = 1;
  Filter(Key(VK_ESCAPE));
  EXPECT_FALSE(Asked("close tip"));
}

TEST_F(MessageFilterTest, TheMiddleButtonHidesTheCaretAndItsReleaseMovesTheBox) {
  EXPECT_EQ(Order(Message(WM_MBUTTONDOWN)), (Entries{"CMDNAMES?", "editing?"}));
  EXPECT_EQ(Order(Message(WM_MBUTTONUP)), (Entries{"CMDNAMES?", "editing?"}));
  edit.isVisible = true;
  EXPECT_FALSE(Filter(Message(WM_MBUTTONDOWN)));
  EXPECT_EQ(Done(), Entries{"hide caret"});
  EXPECT_FALSE(Filter(Message(WM_MBUTTONUP)));
  EXPECT_EQ(Done(), Entries{"post move"});
}

// The context menu handles messages, and the filter sees them too.
TEST_F(MessageFilterTest, MessagesOfItsOwnMenuAreFilteredInside) {
  class Reentering : public FilterDouble {
   public:
    using FilterDouble::FilterDouble;
    bool ShowContextMenu(POINT screen, bool force) override {
      inner = filter->Filter(Message(WM_RBUTTONDOWN, 0, 5000));
      filter->Filter(Message(WM_RBUTTONUP, 0, 5001));
      return depth++ == 0 ? FilterDouble::ShowContextMenu(screen, force) : false;
    }
    qvx::MessageFilter* filter = nullptr;
    bool inner = false;
    int depth = 0;
  };
  Reentering again(diary);
  again.nextActive = {0, 0, 0, 0, 1};  // the inner release finds the host busy
  qvx::MessageFilter filter(again, edit);
  again.filter = &filter;
  EXPECT_TRUE(filter.Filter(Message(WM_RBUTTONDOWN, 0, 1000)));
  EXPECT_TRUE(filter.Filter(Message(WM_RBUTTONUP, 0, 1100)));
  EXPECT_TRUE(again.inner);
  EXPECT_EQ(again.depth, 1);
}

}  // namespace
}  // namespace editortest
