// A lone press of Ctrl, and the toggle that it runs.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

class ControlToggleTest : public FilterTest {
 protected:
  bool IsToggled() const { return Asked("selection") || Asked("pick-first"); }
};

TEST_F(ControlToggleTest, ALonePressOfCtrlTogglesTheSelectionAndPasses) {
  Hold(VK_CONTROL);
  EXPECT_FALSE(Filter(Key(VK_CONTROL)));
  EXPECT_FALSE(IsToggled());
  EXPECT_EQ(Order(KeyUp(VK_CONTROL)), (Entries{"CMDNAMES?", "command?", "selection"}));
  EXPECT_FALSE(Filter(KeyUp(VK_CONTROL)));
}

TEST_F(ControlToggleTest, HasNoIdleTest) {
  host.isIdle = false;
  host.active = 1;
  Filter(KeyUp(VK_CONTROL));
  EXPECT_TRUE(IsToggled());
  EXPECT_FALSE(Asked("idle?"));
}

TEST_F(ControlToggleTest, ACombinationTogglesNothingAndTheNextLonePressDoesAgain) {
  Hold(VK_CONTROL);
  Filter(Key(VK_CONTROL));
  Filter(Key('C'));
  EXPECT_FALSE(Filter(KeyUp(VK_CONTROL)));
  EXPECT_FALSE(IsToggled());
  Filter(KeyUp(VK_CONTROL));
  EXPECT_TRUE(IsToggled());
}

TEST_F(ControlToggleTest, AKeyWithoutCtrlDoesNotCount) {
  Filter(Key('C'));
  Filter(KeyUp(VK_CONTROL));
  EXPECT_TRUE(IsToggled());
}

TEST_F(ControlToggleTest, ARepeatedCtrlMakesACombinationLoneAgain) {
  Hold(VK_CONTROL);
  Filter(Key('C'));
  Filter(Key(VK_CONTROL));
  Filter(KeyUp(VK_CONTROL));
  EXPECT_TRUE(IsToggled());
}

TEST_F(ControlToggleTest, ReleasesOfOtherKeysChangeNothing) {
  Hold(VK_CONTROL);
  Filter(Key('C'));
  Filter(KeyUp('C'));
  Filter(KeyUp(VK_SHIFT));
  Filter(KeyUp(VK_CONTROL));
  EXPECT_FALSE(IsToggled());
}

TEST_F(ControlToggleTest, CtrlAndAClickIsALonePressOfCtrl) {
  Hold(VK_CONTROL);
  Filter(Key(VK_CONTROL));
  Filter(Message(WM_LBUTTONDOWN, MK_CONTROL));
  Filter(Message(WM_LBUTTONUP, MK_CONTROL));
  Filter(KeyUp(VK_CONTROL));
  EXPECT_TRUE(IsToggled());
}

TEST_F(ControlToggleTest, AHotKeyCountsAsCombination) {
  Hold(VK_CONTROL);
  Filter(Key(VK_CONTROL));
  EXPECT_TRUE(Filter(Key(VK_OEM_PLUS)));
  Filter(KeyUp(VK_CONTROL));
  EXPECT_FALSE(IsToggled());
}

TEST_F(ControlToggleTest, ObjectsOfOneKeyFlipOnceAtTheFirstOfThem) {
  host.objects = {{true, 7}, {true, 8}, {true, 7}, {true, -7}, {true, 8}, {true, 7}};
  Filter(KeyUp(VK_CONTROL));
  EXPECT_EQ(Done(), (Entries{"selection", "toggle 0", "close 0", "toggle 1", "close 1", "close 2",
                             "toggle 3", "close 3", "close 4", "close 5"}));
}

TEST_F(ControlToggleTest, ObjectsWithoutAStateAreSkipped) {
  host.objects = {{false, 0}, {true, 0}, {false, 0}, {true, 1}};
  Filter(KeyUp(VK_CONTROL));
  EXPECT_EQ(Done(), (Entries{"selection", "toggle 1", "close 1", "toggle 3", "close 3"}));
}

TEST_F(ControlToggleTest, AGripStretchTogglesWhatWasSelectedBeforeIt) {
  host.command = L"GRIP_STRETCH";
  Filter(KeyUp(VK_CONTROL));
  EXPECT_EQ(Done(), Entries{"pick-first"});
  for (const wchar_t* other : {L"GRIP_STRETCHX", L"GRIP_MOVE", L"grip_stretch"}) {
    host.command = other;
    Filter(KeyUp(VK_CONTROL));
    EXPECT_EQ(Done(), Entries{"selection"});
  }
}

}  // namespace
}  // namespace editortest
