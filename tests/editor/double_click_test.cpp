// Clicks of the left button: the text search, clicks during an edit, and the double click.
#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

// The message's point is 100,100 in the view: 200,200 in the world, 1200,200 in the user's system.
constexpr char kPlain[] = "select at 1200,200,5 TEXT,MTEXT";
constexpr char kFamily[] = "select at 1200,200,5 QVX_*";
constexpr char kFamilyOrText[] = "select at 1200,200,5 QVX_*,TEXT";
constexpr char kAny[] = "select at 1200,200,5 *";
constexpr char kSheetFence[] =
    "fence 1200,1000000200,0 1200,-999999800,0 "
    "QVX_SHEET,QVX_DRAWINGINDEX,QVX_INDEXPOINTER,QVX_AXIS_LABEL";
constexpr char kAxisFence[] =
    "fence 1200,-9800,5 1200,10200,5 "
    "QVX_SHEET,QVX_DRAWINGINDEX,QVX_INDEXPOINTER,QVX_AXIS_LABEL";
constexpr char kTextAt[] = "text at 200,200,5?";
constexpr char kImplied[] = "selected QVX_*";

class LeftButtonTest : public FilterTest {
 protected:
  void SetUp() override {
    FilterTest::SetUp();
    g_nCustomFlag = 0x10;
  }
  bool DoubleClick() { return Filter(Message(WM_LBUTTONDBLCLK)); }
  bool Click() { return Filter(Message(WM_LBUTTONDOWN)); }
};
using TextSearch = LeftButtonTest;
using ClickDuringEdit = LeftButtonTest;
using DoubleClickTest = LeftButtonTest;

TEST_F(TextSearch, RunsThreeStagesUntilOneFindsSomething) {
  edit.isVisible = true;
  const Entries head = {
      "CMDNAMES?", "editing?", "view?", "CVPORT?", "world of 100,100 in 2?", "user of 200,200,5?"};
  const auto order = [&](Entries stages) {
    Entries all = head;
    all.insert(all.end(), stages.begin(), stages.end());
    all.insert(all.end(), {kTextAt, "end edit", "close tip"});
    EXPECT_EQ(Order(Message(WM_LBUTTONDOWN)), all);
  };
  order({kFamily, kSheetFence, "y direction?", kAxisFence});
  host.found[kSheetFence] = 1;
  order({kFamily, kSheetFence});
  host.found[kFamily] = 2;
  order({kFamily});
  host.found[kFamily] = 0;
  order({kFamily, kSheetFence});
}

TEST_F(TextSearch, PlainTextIsFoundOnHostsUpTo161Only) {
  edit.isVisible = true;
  for (const double release : {15.0, 16.1}) {
    g_dHostVersion = release;
    Click();
    EXPECT_TRUE(Asked(kFamilyOrText)) << release;
    EXPECT_FALSE(Asked(kFamily)) << release;
  }
  g_dHostVersion = 16.11;
  Click();
  EXPECT_TRUE(Asked(kFamily));
}

TEST_F(TextSearch, TheThirdStageFollowsTheDirectionOfTheUsersYAxisAtAnyLength) {
  edit.isVisible = true;
  host.yDirection = {0, 0.5, 0};
  Click();
  EXPECT_TRUE(Asked(kAxisFence));
  host.yDirection = {-3, 0, 0};
  Click();
  EXPECT_TRUE(
      Asked("fence 11200,200,5 -8800,200,5 "
            "QVX_SHEET,QVX_DRAWINGINDEX,QVX_INDEXPOINTER,QVX_AXIS_LABEL"));
}

TEST_F(ClickDuringEdit, ASetWithoutObjectsLeavesTheSearchToTheNextStage) {
  edit.isVisible = true;
  host.found = {{kFamily, 0}, {kSheetFence, 0}};
  Click();
  EXPECT_TRUE(Asked(kSheetFence));
  EXPECT_TRUE(Asked(kAxisFence));
  host.found = {{kFamily, 0}, {kSheetFence, 1}};
  Click();
  EXPECT_FALSE(Asked(kAxisFence));
}

TEST_F(ClickDuringEdit, PassesWhenNoEditIsUnderWay) {
  EXPECT_FALSE(Click());
  EXPECT_EQ(Done(), Entries{});
}

TEST_F(ClickDuringEdit, EditsTheNextTextOrEndsTheEditAndNeverReachesTheHost) {
  edit.isVisible = true;
  EXPECT_TRUE(Click());
  EXPECT_EQ(Done().back(), "end edit");
  host.hasText = true;
  EXPECT_TRUE(Click());
  EXPECT_EQ(Done().back(), "begin edit");
  EXPECT_FALSE(Asked("end edit"));
  EXPECT_TRUE(edit.isIdentity);
}

TEST_F(ClickDuringEdit, EndsTheEditWithoutAViewOrAPointOfTheDrawing) {
  edit.isVisible = host.hasText = true;
  host.canConvert = false;
  EXPECT_TRUE(Click());
  EXPECT_EQ(Done(), Entries{"end edit"});
  EXPECT_FALSE(Asked(kTextAt));
  host.canConvert = true;
  host.hasView = false;
  EXPECT_TRUE(Click());
  EXPECT_EQ(Done(), Entries{"end edit"});
}

TEST_F(DoubleClickTest, PassesWhileACommandRuns) {
  host.active = 1;
  EXPECT_EQ(Order(Message(WM_LBUTTONDBLCLK)), (Entries{"CMDNAMES?", "CMDACTIVE?"}));
  EXPECT_FALSE(DoubleClick());
}

TEST_F(DoubleClickTest, OnTextBeginsAnEditAndEndsTheHostsClick) {
  host.hasText = true;
  host.found[kFamily] = 1;
  EXPECT_EQ(Order(Message(WM_LBUTTONDBLCLK)),
            (Entries{"CMDNAMES?", "CMDACTIVE?", "view?", "CVPORT?", "world of 100,100 in 2?",
                     "user of 200,200,5?", "editing?", kPlain, kFamily, kTextAt, "clear selection",
                     "begin edit", "send \x1B"}));
  EXPECT_TRUE(DoubleClick());
  EXPECT_TRUE(edit.isIdentity);
}

TEST_F(DoubleClickTest, OnPlainTextPassesToTheHost) {
  host.hasText = true;
  host.found[kPlain] = 1;
  EXPECT_FALSE(DoubleClick());
  EXPECT_EQ(Done(), Entries{kPlain});
}

TEST_F(DoubleClickTest, BesideEverythingClearsTheSelectionAndPasses) {
  EXPECT_FALSE(DoubleClick());
  EXPECT_EQ(Done(), (Entries{kPlain, kFamily, kSheetFence, kAxisFence, kAny, "clear selection",
                             "send \x1B"}));
}

TEST_F(DoubleClickTest, OnAnObjectWithoutTextEditsTheOneSelectedObject) {
  host.found[kFamily] = 1;
  host.found[kAny] = 1;
  host.found[kImplied] = 1;
  EXPECT_TRUE(DoubleClick());
  EXPECT_EQ(Done(), (Entries{kPlain, kFamily, kAny, kImplied, "send _TObjEdit\n"}));
  EXPECT_FALSE(Asked("floor?"));
}

TEST_F(DoubleClickTest, EditsWhatIsSelectedAndNotWhatWasHit) {
  host.found[kAny] = 1;  // an object of another maker
  host.found[kImplied] = 1;
  EXPECT_TRUE(DoubleClick());
  EXPECT_EQ(Done().back(), "send _TObjEdit\n");
}

TEST_F(DoubleClickTest, NeedsExactlyOneSelectedObject) {
  host.found[kAny] = 1;
  for (const int count : {-1, 0, 2, 100}) {
    host.found[kImplied] = count;
    EXPECT_FALSE(DoubleClick()) << count;
    EXPECT_EQ(Done().back(), kImplied);
  }
}

TEST_F(DoubleClickTest, LeavesObjectsThatAreNotEditable) {
  host.found[kAny] = host.found[kImplied] = 1;
  host.isEditable = false;
  EXPECT_FALSE(DoubleClick());
  EXPECT_EQ(Done().back(), kImplied);
}

TEST_F(DoubleClickTest, DoesNothingToObjectsWhenTheSettingIsOff) {
  host.found[kAny] = host.found[kImplied] = 1;
  g_bDblClkEditObj = 0;
  EXPECT_FALSE(DoubleClick());
  EXPECT_FALSE(Asked(kImplied));
}

TEST_F(DoubleClickTest, LeavesFloorRectanglesToProductSeventeen) {
  host.found[kAny] = host.found[kImplied] = 1;
  host.isFloor = true;
  EXPECT_TRUE(DoubleClick()) << "of another product";
  g_nProductId = 17;
  EXPECT_FALSE(DoubleClick());
  EXPECT_FALSE(Asked("editable?"));
  host.isFloor = false;
  EXPECT_TRUE(DoubleClick());
}

TEST_F(DoubleClickTest, DuringAnEditSkipsTheTextSearchAndEditsTheObject) {
  edit.isVisible = host.hasText = true;
  host.found[kImplied] = 1;
  EXPECT_TRUE(DoubleClick());
  EXPECT_EQ(Done(), (Entries{kImplied, "send _TObjEdit\n"}));
}

TEST_F(DoubleClickTest, WithoutAViewOrAPointGoesStraightToTheObject) {
  host.found[kImplied] = 1;
  host.hasView = false;
  EXPECT_TRUE(DoubleClick());
  EXPECT_EQ(Done(), (Entries{kImplied, "send _TObjEdit\n"}));
  EXPECT_FALSE(Asked("CVPORT?"));
  host.hasView = true;
  host.canConvert = false;
  EXPECT_TRUE(DoubleClick());
  EXPECT_EQ(Done(), (Entries{kImplied, "send _TObjEdit\n"}));
}

}  // namespace
}  // namespace editortest
