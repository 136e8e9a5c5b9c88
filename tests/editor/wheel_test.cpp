// The wheel: over the screen menu it scrolls a group, elsewhere the view.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

class WheelTest : public FilterTest {
 protected:
  static MSG Turn(int delta, WORD keys = 0) {
    return Message(WM_MOUSEWHEEL, (static_cast<WPARAM>(static_cast<WORD>(delta)) << 16) | keys);
  }
};

TEST_F(WheelTest, OverAGroupOfTheScreenMenuScrollsItByTheSignedDelta) {
  host.isInMenu = host.isInGroup = true;
  EXPECT_EQ(Order(Turn(120)),
            (Entries{"CMDNAMES?", "cursor?", "in menu?", "in group?", "wheel 120 200,150"}));
  EXPECT_TRUE(Filter(Turn(-120, MK_CONTROL)));
  EXPECT_EQ(Done(), Entries{"wheel -120 200,150"});
}

TEST_F(WheelTest, OverTheRestOfTheScreenMenuItIsSwallowedToo) {
  host.isInMenu = true;
  edit.isVisible = true;
  EXPECT_TRUE(Filter(Turn(120)));
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(WheelTest, IsTheCursorsAndNotTheMessagesPoint) {
  host.isInMenu = host.isInGroup = true;
  host.cursor = {3, 4};
  Filter(Turn(40));
  EXPECT_EQ(Done(), Entries{"wheel 40 3,4"});
}

TEST_F(WheelTest, ElsewhereItPassesAndTheBoxOfAnEditMovesOverItsText) {
  EXPECT_FALSE(Filter(Turn(120)));
  EXPECT_EQ(Done(), Entries{});
  edit.isVisible = true;
  EXPECT_FALSE(Filter(Turn(120)));
  EXPECT_EQ(Done(), Entries{"post move"});
}

}  // namespace
}  // namespace editortest
