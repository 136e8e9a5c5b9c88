// The step that drags the border between viewports, ahead of everything else.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

using ViewportResizeTest = FilterTest;

TEST_F(ViewportResizeTest, AsksIdleViewLineAndModelSpaceInThisOrderAndThenTheWindow) {
  const MSG move = Message(WM_MOUSEMOVE, MK_SHIFT);
  host.resizeTakes = true;
  EXPECT_EQ(Order(move), (Entries{"idle?", "view?", "typed?", "TILEMODE?", "current view?",
                                  "resize move 4 100,100"}));
  EXPECT_TRUE(Filter(move));
}

TEST_F(ViewportResizeTest, ABusyHostIsNotAskedForTheCommandLine) {
  host.isIdle = false;
  Filter(Message(WM_LBUTTONUP));
  EXPECT_FALSE(Asked("typed?"));
  EXPECT_FALSE(Asked("TILEMODE?"));
}

TEST_F(ViewportResizeTest, EachOfTheThreePointerMessagesGoesToItsOwnHandler) {
  const std::pair<UINT, std::string> rows[] = {
      {WM_MOUSEMOVE, "move"}, {WM_LBUTTONDOWN, "down"}, {WM_LBUTTONUP, "up"}};
  for (const auto& [number, name] : rows) {
    for (const bool takes : {true, false}) {
      host.resizeTakes = takes;
      EXPECT_EQ(Filter(Message(number, 1)), takes);
      EXPECT_EQ(Done().front(), "resize " + name + " 1 100,100");
      EXPECT_EQ(Asked("CMDNAMES?"), !takes);
    }
  }
}

TEST_F(ViewportResizeTest, EscapeEndsTheDragAndGoesOn) {
  const MSG key = Key(VK_ESCAPE);
  EXPECT_FALSE(Filter(key));
  EXPECT_EQ(Done(), (Entries{"resize escape", "clear typed"}));
  MSG elsewhere = key;
  elsewhere.hwnd = kFrame;
  Filter(elsewhere);
  EXPECT_EQ(Done().front(), "resize escape") << "in any window";
}

TEST_F(ViewportResizeTest, OtherKeysAndMessagesAskNothing) {
  EXPECT_EQ(Order(Key('A')), (Entries{"CMDNAMES?", "ctrl?", "close tip"}));
  EXPECT_EQ(Order(KeyUp(VK_ESCAPE)), Entries{"CMDNAMES?"});
  EXPECT_EQ(Order(Message(WM_RBUTTONUP)), (Entries{"CMDNAMES?", "CMDACTIVE?"}));
}

TEST_F(ViewportResizeTest, EveryConditionIsNeeded) {
  host.resizeTakes = true;
  const MSG down = Message(WM_LBUTTONDOWN);
  ASSERT_TRUE(Filter(down));
  host.isIdle = false;
  EXPECT_FALSE(Filter(down));
  host.isIdle = true;
  host.hasView = false;
  EXPECT_FALSE(Filter(down));
  host.hasView = true;
  host.isTyped = true;
  EXPECT_FALSE(Filter(down));
  host.isTyped = false;
  for (const int mode : {0, 2}) {
    host.variables[L"TILEMODE"] = mode;
    EXPECT_FALSE(Filter(down)) << mode;
  }
  host.variables[L"TILEMODE"] = 1;
  MSG elsewhere = down;
  elsewhere.hwnd = kOtherView;
  EXPECT_FALSE(Filter(elsewhere));
  EXPECT_TRUE(Filter(down));
}

TEST_F(ViewportResizeTest, TheCustomFlagTurnsItOff) {
  host.resizeTakes = true;
  g_nCustomFlag = 0x10;
  EXPECT_FALSE(Filter(Message(WM_LBUTTONDOWN)));
  EXPECT_EQ(Done(), Entries{});
  g_nCustomFlag = 0x2F;
  EXPECT_TRUE(Filter(Message(WM_LBUTTONDOWN)));
}

// The drag was begun before the orbit; its messages still belong to it.
TEST_F(ViewportResizeTest, WorksWhileTheOrbitRunsIfTheHostIsIdle) {
  host.running = L"3DORBIT";
  host.resizeTakes = true;
  EXPECT_TRUE(Filter(Message(WM_LBUTTONUP)));
  EXPECT_FALSE(Asked("CMDNAMES?"));
}

}  // namespace
}  // namespace editortest
