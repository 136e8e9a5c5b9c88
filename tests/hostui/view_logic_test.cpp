// Decisions of the host's windows: status bar layout, picking, command line keys.
#include <gtest/gtest.h>

#include "devhost/ui/bars/command_history.h"
#include "devhost/ui/bars/pane_layout.h"
#include "devhost/ui/launch/host_title.h"
#include "devhost/ui/painting/aci_color.h"
#include "devhost/ui/view/pick_logic.h"

using namespace devhost;

namespace {

PaneMeasure Pane(int content) { return {content, 0, 0, true}; }
LONG Width(const RECT& r) { return r.right - r.left; }

}  // namespace

TEST(StatusLayout, PanesAreRightAlignedAndTheMessageFillsTheRest) {
  const StatusLayout l = LayOutStatusBar({500, 22}, 100, 2, {Pane(30), Pane(40)});
  EXPECT_EQ(l.coordinates.right, 100);
  EXPECT_EQ(l.panes[0].left, 500 - 30 - 40 - 4);
  EXPECT_EQ(l.panes[1].left, l.panes[0].right + 2);
  EXPECT_EQ(l.panes[1].right, 498);
  EXPECT_EQ(l.message.left, 100);
  EXPECT_EQ(l.message.right, l.panes[0].left);
}

TEST(StatusLayout, WidthsAreLimited) {
  const StatusLayout l = LayOutStatusBar({500, 22}, 100, 0, {{10, 50, 0, true}, {90, 0, 60, true}});
  EXPECT_EQ(Width(l.panes[0]), 50);
  EXPECT_EQ(Width(l.panes[1]), 60);
}

TEST(StatusLayout, AHiddenPaneHasNoRectangleAndIsNeverHit) {
  const StatusLayout l =
      LayOutStatusBar({500, 22}, 100, 2, {Pane(30), {40, 0, 0, false}, Pane(20)});
  EXPECT_EQ(Width(l.panes[1]), 0);
  EXPECT_EQ(l.panes[2].left, l.panes[0].right + 2);
}

TEST(StatusLayout, PanesThatDoNotFitAreOmittedFromTheEnd) {
  const StatusLayout l = LayOutStatusBar({150, 22}, 100, 0, {Pane(30), Pane(30), Pane(5)});
  EXPECT_EQ(Width(l.panes[0]), 30);
  EXPECT_EQ(Width(l.panes[1]), 0);
  EXPECT_EQ(Width(l.panes[2]), 0);
}

TEST(StatusLayout, HitTestingFindsThePane) {
  const StatusLayout l = LayOutStatusBar({500, 22}, 100, 2, {Pane(30), Pane(40)});
  EXPECT_EQ(HitTestPane(l, {l.panes[0].left, 5}), 0);
  EXPECT_EQ(HitTestPane(l, {l.panes[0].right, 5}), -1) << "the gap belongs to no pane";
  EXPECT_EQ(HitTestPane(l, {l.panes[1].left, 5}), 1);
  EXPECT_EQ(HitTestPane(l, {50, 5}), -1);
}

TEST(PickLogic, ABoxDrawnToTheLeftIsCrossing) {
  EXPECT_TRUE(IsCrossing({100, 0}, {99, 50}));
  EXPECT_FALSE(IsCrossing({100, 0}, {100, 50}));
  EXPECT_FALSE(IsCrossing({100, 0}, {140, -50}));
}

TEST(PickLogic, SmallMovementsAreNotADrag) {
  EXPECT_FALSE(IsDrag({10, 10}, {14, 6}));
  EXPECT_TRUE(IsDrag({10, 10}, {15, 10}));
  EXPECT_TRUE(IsDrag({10, 10}, {10, 5}));
}

TEST(PickLogic, ABoxHasItsSidesInOrder) {
  const RECT r = BoxOf({10, 40}, {5, 60});
  EXPECT_EQ(r.left, 5);
  EXPECT_EQ(r.top, 40);
  EXPECT_EQ(r.right, 10);
  EXPECT_EQ(r.bottom, 60);
}

TEST(PickLogic, ANotchForwardAndBackRestoresTheScale) {
  EXPECT_DOUBLE_EQ(WheelZoom(120) * WheelZoom(-120), 1.0);
  EXPECT_GT(WheelZoom(120), 1.0);
}

TEST(PickLogic, TheNearestGripIsHit) {
  const POINT spots[] = {{0, 0}, {6, 0}, {100, 100}};
  EXPECT_EQ(NearestSpot(spots, 3, {4, 0}, 5), 1);
  EXPECT_EQ(NearestSpot(spots, 3, {1, 1}, 5), 0);
  EXPECT_EQ(NearestSpot(spots, 3, {50, 50}, 5), -1);
}

TEST(CommandHistory, TheUpArrowRecallsLinesAndTheDownArrowReturnsToTheInput) {
  CommandHistory h;
  h.Add(L"LINE");
  h.Add(L"ZOOM");
  EXPECT_EQ(h.Older(L"half"), L"ZOOM");
  EXPECT_EQ(h.Older(L"ZOOM"), L"LINE");
  EXPECT_EQ(h.Older(L"LINE"), L"LINE") << "the oldest line stays";
  EXPECT_EQ(h.Newer(L"LINE"), L"ZOOM");
  EXPECT_EQ(h.Newer(L"ZOOM"), L"half");
  EXPECT_EQ(h.Newer(L"half"), L"half");
}

TEST(CommandHistory, RepeatsAndEmptyLinesAreNotStored) {
  CommandHistory h;
  h.Add(L"LINE");
  h.Add(L"");
  h.Add(L"LINE");
  EXPECT_EQ(h.Older(L""), L"LINE");
  EXPECT_EQ(h.Older(L""), L"LINE");
  EXPECT_EQ(h.Newer(L""), L"");
}

TEST(CommandHistory, WithAnEmptyHistoryTheArrowsKeepTheText) {
  CommandHistory h;
  EXPECT_EQ(h.Older(L"abc"), L"abc");
  EXPECT_EQ(h.Newer(L"abc"), L"abc");
}

TEST(BlankEndsLine, ExceptInTextQuotesAndOpenParentheses) {
  EXPECT_TRUE(BlankEndsLine(L"LINE", false));
  EXPECT_FALSE(BlankEndsLine(L"some text", true));
  EXPECT_FALSE(BlankEndsLine(L"(setq a", false));
  EXPECT_TRUE(BlankEndsLine(L"(setq a 1)", false));
  EXPECT_FALSE(BlankEndsLine(L"(princ \")", false));
}

TEST(AciColor, NamedColoursAndTheContrastToTheBackground) {
  EXPECT_EQ(ColorOfAci(1, true), RGB(255, 0, 0));
  EXPECT_EQ(ColorOfAci(5, true), RGB(0, 0, 255));
  EXPECT_EQ(ColorOfAci(7, true), RGB(255, 255, 255));
  EXPECT_EQ(ColorOfAci(7, false), RGB(0, 0, 0));
  EXPECT_EQ(ColorOfAci(256, true), RGB(255, 255, 255)) << "no colour of its own";
}

TEST(AciColor, TensSelectTheHueAndTheLastDigitTheStrength) {
  EXPECT_EQ(ColorOfAci(10, true), RGB(255, 0, 0));
  EXPECT_EQ(ColorOfAci(11, true), RGB(255, 128, 128)) << "odd numbers are pale";
  EXPECT_EQ(ColorOfAci(50, true), RGB(255, 255, 0));
  EXPECT_EQ(ColorOfAci(90, true), RGB(0, 255, 0));
  EXPECT_EQ(ColorOfAci(170, true), RGB(0, 0, 255));
  EXPECT_EQ(ColorOfAci(12, true), RGB(165, 0, 0));
  EXPECT_EQ(ColorOfAci(18, true), RGB(38, 0, 0));
  EXPECT_EQ(ColorOfAci(255, true), RGB(255, 255, 255));
}

TEST(HostTitle, NamesTheYearOfTheRelease) {
  EXPECT_EQ(HostTitle(24.0), L"DevHost 2021");
  EXPECT_EQ(HostTitle(18.2), L"DevHost 2012");
  EXPECT_EQ(HostTitle(16.0), L"DevHost 2004");
  EXPECT_EQ(HostTitle(15.0), L"DevHost 2002");
}
