// Zoom about the pointer by backquote and Tab.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

using ZoomAtCursorTest = FilterTest;

TEST_F(ZoomAtCursorTest, ZoomsAboutThePointAndPutsThePointerBack) {
  EXPECT_EQ(Order(Key(VK_TAB)),
            (Entries{"CMDNAMES?", "ctrl?", "current view?", "idle?", "ctrl?", "shift?", "view?",
                     "viewport at 100,100?", "CVPORT?", "GRIDMODE?", "world of 100,100 in 2?",
                     "world of 100,100?", "zoom at 201,201,0 by 1600", "pixel of 200,200,5 in 2?",
                     "move cursor 303,254", "close tip"}));
  EXPECT_TRUE(Filter(Key(VK_TAB)));
  EXPECT_TRUE(Filter(Key(VK_OEM_3)));
  EXPECT_TRUE(Asked("zoom at 201,201,0 by 625"));
}

TEST_F(ZoomAtCursorTest, NeedsViewSettingIdleHostAndNeitherCtrlNorShift) {
  const auto zooms = [this](MSG message) {
    const bool swallowed = Filter(message);
    EXPECT_EQ(swallowed, !Done().empty());
    return swallowed;
  };
  for (const WPARAM key : {VK_TAB, VK_OEM_3}) {
    EXPECT_TRUE(zooms(Key(key)));
    MSG elsewhere = Key(key);
    elsewhere.hwnd = kOtherView;
    EXPECT_FALSE(zooms(elsewhere));
    g_bZoomKey = 0;
    EXPECT_FALSE(zooms(Key(key)));
    g_bZoomKey = 1;
    host.isIdle = false;
    EXPECT_FALSE(zooms(Key(key)));
    host.isIdle = true;
    Hold(VK_SHIFT);
    EXPECT_FALSE(zooms(Key(key)));
    host.keysDown.clear();
  }
  Hold(VK_CONTROL);
  EXPECT_FALSE(zooms(Key(VK_TAB)));
}

TEST_F(ZoomAtCursorTest, PassesWithoutAView) {
  host.hasView = false;
  EXPECT_FALSE(Filter(Key(VK_TAB)));
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(ZoomAtCursorTest, InModelSpacePassesOverAnotherViewportAndLeavesTheGrid) {
  host.viewport = 3;
  host.variables[L"GRIDMODE"] = 1;
  EXPECT_FALSE(Filter(Key(VK_TAB)));
  EXPECT_EQ(Done(), Entries{});
  EXPECT_FALSE(Asked("world of 100,100 in 3?"));
}

TEST_F(ZoomAtCursorTest, OnASheetZoomsInTheViewportUnderThePointer) {
  host.variables[L"CVPORT"] = 1;
  host.viewport = 4;
  EXPECT_TRUE(Filter(Key(VK_TAB)));
  EXPECT_TRUE(Asked("world of 100,100 in 4?"));
  EXPECT_TRUE(Asked("pixel of 200,200,5 in 4?"));
}

TEST_F(ZoomAtCursorTest, OnASheetWithThePointerOutsideTheKeyIsSwallowedWithNothingDone) {
  host.variables[L"CVPORT"] = 1;
  host.variables[L"GRIDMODE"] = 1;
  host.viewport = 0;
  host.canConvert = false;
  EXPECT_TRUE(Filter(Key(VK_TAB)));
  EXPECT_EQ(Done(), Entries{});
  EXPECT_FALSE(Asked("world of 100,100?"));
}

TEST_F(ZoomAtCursorTest, TurnsTheGridOffAheadOfTheZoom) {
  host.variables[L"GRIDMODE"] = 1;
  EXPECT_TRUE(Filter(Key(VK_OEM_3)));
  EXPECT_EQ(Done(), (Entries{"print 为了视图缩放, 网格(GRID)已自动关闭!", "send key 118",
                             "zoom at 201,201,0 by 625", "move cursor 303,254"}));
}

TEST_F(ZoomAtCursorTest, LeavesThePointerWhenThePointIsNoLongerInAViewport) {
  host.canConvertBack = false;
  EXPECT_TRUE(Filter(Key(VK_TAB)));
  EXPECT_EQ(Done(), Entries{"zoom at 201,201,0 by 1600"});
}

TEST_F(ZoomAtCursorTest, VariablesThatCannotBeReadCountAsNoViewportAndNoGrid) {
  host.variables.clear();
  EXPECT_FALSE(Filter(Key(VK_TAB))) << "viewport 2 is not 0";
  host.viewport = 0;
  EXPECT_TRUE(Filter(Key(VK_TAB)));
  EXPECT_EQ(Done().front(), "zoom at 201,201,0 by 1600");
}

}  // namespace
}  // namespace editortest
