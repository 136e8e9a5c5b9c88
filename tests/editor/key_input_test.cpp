// The keys of the key table: conditions, effects, what is swallowed.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

using KeyInputTest = FilterTest;

TEST_F(KeyInputTest, EnterClearsWhatIsTypedAndPasses) {
  EXPECT_EQ(Order(Key(VK_RETURN)), (Entries{"CMDNAMES?", "ctrl?", "idle?", "typed?", "close tip"}));
  host.isTyped = true;
  EXPECT_FALSE(Filter(Key(VK_RETURN)));
  EXPECT_EQ(Done(), Entries{"clear typed"});
  host.isIdle = false;
  EXPECT_EQ(Order(Key(VK_RETURN)), (Entries{"CMDNAMES?", "ctrl?", "idle?", "close tip"}));
}

TEST_F(KeyInputTest, SpaceClearsWhatIsTypedUnlessItIsALispExpression) {
  host.isTyped = true;
  EXPECT_EQ(Order(Key(VK_SPACE)), (Entries{"CMDNAMES?", "ctrl?", "idle?", "typed?", "lisp?",
                                           "clear typed", "close tip"}));
  EXPECT_FALSE(Filter(Key(VK_SPACE)));
  host.isLisp = true;
  Filter(Key(VK_SPACE));
  EXPECT_EQ(Done(), Entries{});
  host.isLisp = host.isTyped = false;
  Filter(Key(VK_SPACE));
  EXPECT_EQ(Done(), Entries{});
  EXPECT_FALSE(Asked("lisp?"));
}

TEST_F(KeyInputTest, EscapeClearsWhatIsTypedInAnIdleHost) {
  g_nCustomFlag = 0x10;
  EXPECT_FALSE(Filter(Key(VK_ESCAPE)));
  EXPECT_EQ(Done(), Entries{"clear typed"});
  host.isIdle = false;
  Filter(Key(VK_ESCAPE));
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(KeyInputTest, EscapeInEarlyHostsAlsoClearsASelectionOfFewerThanAHundredObjects) {
  g_nCustomFlag = 0x10;
  g_dHostVersion = 15.0;
  const auto clears = [this](int count) {
    host.found["selected *"] = count;
    EXPECT_FALSE(Filter(Key(VK_ESCAPE)));
    EXPECT_EQ(Done().front(), "clear typed");
    return Asked("clear selection");
  };
  EXPECT_TRUE(clears(99));
  EXPECT_TRUE(clears(0));
  EXPECT_FALSE(clears(100));
  EXPECT_FALSE(clears(-1));
  g_dHostVersion = 15.01;
  EXPECT_FALSE(clears(1));
  EXPECT_FALSE(Asked("selected *"));
}

TEST_F(KeyInputTest, CtrlBackquoteSendsTheProjectManagerOfTheProduct) {
  Hold(VK_CONTROL);
  const std::pair<int, std::string> rows[] = {{1, "TProjectManager"},  {4, "TCEGcgl"},
                                              {5, "nTBecGcgl"},        {9, "nTBecGcgl"},
                                              {12, "nTBecGcgl"},       {11, "TDLGcgl"},
                                              {10, "TProjectManager"}, {17, "TProjectManager"},
                                              {0, "TProjectManager"},  {6, "TProjectManager"}};
  for (const auto& [product, name] : rows) {
    g_nProductId = product;
    EXPECT_TRUE(Filter(Key(VK_OEM_3)));
    EXPECT_EQ(Done(), Entries{"send _" + name + "\n"}) << product;
  }
}

TEST_F(KeyInputTest, CtrlBackquoteInABusyHostSendsNothingAndPasses) {
  Hold(VK_CONTROL);
  host.isIdle = false;
  EXPECT_FALSE(Filter(Key(VK_OEM_3)));
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(KeyInputTest, HotKeysNeedNeitherTheViewNorAFreeShift) {
  Hold(VK_CONTROL);
  Hold(VK_SHIFT);
  for (const WPARAM key : {VK_OEM_3, VK_OEM_MINUS, VK_OEM_PLUS}) {
    MSG message = Key(key);
    message.hwnd = kFrame;
    EXPECT_TRUE(Filter(message)) << key;
    EXPECT_FALSE(Asked("shift?"));
    EXPECT_FALSE(Asked("current view?"));
  }
  EXPECT_FALSE(Filter(Key(0x6D))) << "minus of the number pad";
  EXPECT_FALSE(Filter(Key(0x6B))) << "plus of the number pad";
}

TEST_F(KeyInputTest, HotKeysNeedCtrlAndAnIdleHost) {
  for (const WPARAM key : {VK_OEM_MINUS, VK_OEM_PLUS}) {
    EXPECT_FALSE(Filter(Key(key)));
    EXPECT_EQ(Done(), Entries{});
    Hold(VK_CONTROL);
    host.isIdle = false;
    EXPECT_FALSE(Filter(Key(key)));
    EXPECT_EQ(Done(), Entries{});
    host.isIdle = true;
    host.keysDown.clear();
  }
}

TEST_F(KeyInputTest, CtrlMinusInvertsTheTabBarAndTellsHowItComesBack) {
  Hold(VK_CONTROL);
  EXPECT_TRUE(Filter(Key(VK_OEM_MINUS)));
  EXPECT_EQ(g_bDwgTabBar, 0);
  EXPECT_EQ(Done(), (Entries{"hide tabs", "print 热键<Ctrl ->显示文档标签"}));
  EXPECT_TRUE(Filter(Key(VK_OEM_MINUS)));
  EXPECT_EQ(g_bDwgTabBar, 1);
  EXPECT_EQ(Done(), Entries{"show tabs"});
}

TEST_F(KeyInputTest, CtrlMinusWithTheGridOnChangesOnlyTheTabBar) {
  Hold(VK_CONTROL);
  host.variables[L"GRIDMODE"] = 1;
  EXPECT_TRUE(Filter(Key(VK_OEM_MINUS)));
  EXPECT_EQ(Done(), (Entries{"hide tabs", "print 热键<Ctrl ->显示文档标签"}));
  EXPECT_FALSE(Asked("GRIDMODE?"));
}

TEST_F(KeyInputTest, CtrlPlusTogglesTheScreenMenuAndTellsHowItComesBack) {
  Hold(VK_CONTROL);
  EXPECT_TRUE(Filter(Key(VK_OEM_PLUS)));
  EXPECT_EQ(Done(), Entries{"show menu"});
  host.isMenuVisible = true;
  EXPECT_TRUE(Filter(Key(VK_OEM_PLUS)));
  EXPECT_EQ(Done(), (Entries{"hide menu", "print 热键<Ctrl +>显示屏幕菜单"}));
}

TEST_F(KeyInputTest, F12IsSwallowedByEarlyHostsOnly) {
  g_dHostVersion = 16.1;
  EXPECT_TRUE(Filter(KeyUp(VK_F12)));
  EXPECT_EQ(Done(), Entries{});
  Hold(VK_CONTROL);
  host.isMenuVisible = true;
  EXPECT_TRUE(Filter(KeyUp(VK_F12)));
  EXPECT_EQ(Done(), Entries{"hide menu"}) << "without the hint";
  Hold(VK_SHIFT);
  EXPECT_TRUE(Filter(KeyUp(VK_F12)));
  EXPECT_EQ(Done(), Entries{"model number"});
  g_dHostVersion = 16.11;
  EXPECT_FALSE(Filter(KeyUp(VK_F12)));
  EXPECT_EQ(Done(), Entries{});
  g_dHostVersion = 16.1;
  EXPECT_FALSE(Filter(Key(VK_F12))) << "at the release only";
}

TEST_F(KeyInputTest, F12AsksForShiftAheadOfCtrlAndNotForIdle) {
  g_dHostVersion = 15.0;
  host.isIdle = false;
  Hold(VK_CONTROL);
  EXPECT_EQ(Order(KeyUp(VK_F12)),
            (Entries{"CMDNAMES?", "shift?", "ctrl?", "menu visible?", "show menu"}));
}

TEST_F(KeyInputTest, EachReleaseOfShiftInvertsTheToggle) {
  EXPECT_FALSE(Filter(KeyUp(VK_SHIFT)));
  EXPECT_EQ(g_bShiftToggle, 1);
  EXPECT_FALSE(Filter(KeyUp(VK_SHIFT)));
  EXPECT_EQ(g_bShiftToggle, 0);
  Filter(Key(VK_SHIFT));
  EXPECT_EQ(g_bShiftToggle, 0);
}

TEST_F(KeyInputTest, KeysOutsideTheTableAskForCtrlOnly) {
  for (const WPARAM key :
       {WPARAM{'A'}, WPARAM{0x74}, WPARAM{0}, WPARAM{0xFFFF}, (WPARAM{1} << 32) | VK_RETURN}) {
    EXPECT_EQ(Order(Key(key)), (Entries{"CMDNAMES?", "ctrl?", "close tip"})) << key;
    EXPECT_EQ(Order(KeyUp(key)), Entries{"CMDNAMES?"}) << key;
  }
}

}  // namespace
}  // namespace editortest
