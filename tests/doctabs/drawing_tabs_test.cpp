#include "doctabs/drawing_tabs.h"

#include <gtest/gtest.h>

#include "doctabs/tab_menu.h"
#include "tests/doctabs/strip_diary.h"

namespace {

using Names = std::vector<std::wstring>;

class DrawingTabsTest : public testing::Test {
 protected:
  // The host has opened drawing `number` and made it and its frame active, before it notifies.
  void Open(int number, const wchar_t* path, std::optional<int> objects = 0) {
    host.Add(Drawing(number), path, objects);
    host.current = host.mdiActive = Drawing(number);
    windows.titles[Frame(number)] = path;
    windows.active = Frame(number);
  }
  void OpenAndNotify(int number, const wchar_t* path, std::optional<int> objects = 0) {
    Open(number, path, objects);
    OnDrawingCreated(tabs, Drawing(number));
    OnDrawingActivated(tabs, Drawing(number));
  }
  // The start drawing, then the module, then drawing 2.
  void OpenBehindStart(std::optional<int> startObjects, const wchar_t* path) {
    Open(1, L"Drawing1.dwg", startObjects);
    InitDrawingStrip(tabs);
    host.whileClosing = [this](AcApDocument* document) { OnDrawingToBeDestroyed(tabs, document); };
    window.Take();
    OpenAndNotify(2, path);
  }
  // Only what the host was given.
  Diary HostCalls() {
    Diary calls;
    for (const std::wstring& line : window.Take())
      if (line.find(L"dwg") != line.npos) calls.push_back(line);
    return calls;
  }
  DiaryWindow window;
  TabStrip strip{window};
  DiaryFrames windows{window.diary};
  FrameTabs frames{strip, windows};
  DiaryHost host{window.diary};
  AcApDocument* current = nullptr;
  DrawingStrip tabs{strip, frames, windows, host, current};
};

}  // namespace

TEST_F(DrawingTabsTest, AtStartTheActiveDrawingGetsATabAndIsCurrent) {
  Open(1, L"Drawing1.dwg");
  InitDrawingStrip(tabs);
  EXPECT_EQ(NamesOf(strip), Names{L"Drawing1"});
  EXPECT_EQ(current, Drawing(1));
}

TEST_F(DrawingTabsTest, AtStartWithoutADrawingThereIsNoTabAndNoKey) {
  InitDrawingStrip(tabs);
  EXPECT_EQ(strip.Count(), 0);
  EXPECT_EQ(current, nullptr);
  host.Add(Drawing(1), L"a.dwg");
  host.current = Drawing(1);
  InitDrawingStrip(tabs);
  EXPECT_EQ(frames.m_mapKeyFrame.GetCount(), 0);
  EXPECT_EQ(current, Drawing(1));
}

TEST_F(DrawingTabsTest, TheStartDrawingClosedInTheBackgroundLosesItsTab) {
  Open(1, L"Drawing1.dwg", 3);
  InitDrawingStrip(tabs);
  OpenAndNotify(2, L"C:\\A\\Plan.dwg");
  OnDrawingToBeDestroyed(tabs, Drawing(1));
  EXPECT_EQ(NamesOf(strip), Names{L"Plan"});
  EXPECT_EQ(strip.ActiveTab(), 0);
}

TEST_F(DrawingTabsTest, ANewDrawingGetsATabAndIsCurrent) {
  OpenAndNotify(1, L"Drawing2.dwg");
  OpenAndNotify(2, L"Drawing3.dwg");
  EXPECT_EQ(NamesOf(strip), (Names{L"Drawing2", L"Drawing3"}));
  EXPECT_EQ(current, Drawing(2));
  EXPECT_EQ(strip.ActiveTab(), 1);
}

TEST_F(DrawingTabsTest, OpeningAFileBehindAnUntouchedStartDrawingLeavesOneTab) {
  OpenBehindStart(0, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(HostCalls(), (Diary{L"unmodified Drawing1.dwg", L"close Drawing1.dwg"}));
  EXPECT_EQ(NamesOf(strip), Names{L"Plan"});
  EXPECT_EQ(frames.m_frames.GetLength(), 1);
  EXPECT_EQ(frames.m_frames.At(0), Frame(2));
  EXPECT_EQ(current, Drawing(2));
}

TEST_F(DrawingTabsTest, WhileTheStartDrawingGoesItIsStillTheCurrentOne) {
  Open(1, L"Drawing1.dwg", 0);
  InitDrawingStrip(tabs);
  AcApDocument* seen = nullptr;
  host.whileClosing = [&](AcApDocument* document) {
    seen = current;
    OnDrawingToBeDestroyed(tabs, document);
    EXPECT_EQ(current, nullptr);
  };
  OpenAndNotify(2, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(seen, Drawing(1));
  EXPECT_EQ(NamesOf(strip), Names{L"Plan"});
}

TEST_F(DrawingTabsTest, AStartDrawingWithAnyOtherObjectIsKept) {
  OpenBehindStart(1, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(HostCalls(), Diary{});
  EXPECT_EQ(NamesOf(strip), (Names{L"Drawing1", L"Plan"}));
}

TEST_F(DrawingTabsTest, AStartDrawingThatCannotBeReadIsKept) {
  OpenBehindStart(std::nullopt, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(HostCalls(), Diary{});
}

TEST_F(DrawingTabsTest, CreatingANewDrawingNeverClosesTheStartDrawing) {
  OpenBehindStart(0, L"Drawing2.dwg");
  EXPECT_EQ(HostCalls(), Diary{});
  EXPECT_EQ(NamesOf(strip), (Names{L"Drawing1", L"Drawing2"}));
}

TEST_F(DrawingTabsTest, ADrawingFromANetworkPathKeepsTheStartDrawing) {
  OpenBehindStart(0, L"\\\\server\\share\\Plan.dwg");
  EXPECT_EQ(HostCalls(), Diary{});
}

TEST_F(DrawingTabsTest, TheStartDrawingIsKeptWhenThereIsMoreThanOneTab) {
  Open(1, L"Drawing1.dwg");
  InitDrawingStrip(tabs);
  OpenAndNotify(2, L"Drawing2.dwg");
  window.Take();
  OpenAndNotify(3, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(HostCalls(), Diary{});
  EXPECT_EQ(strip.Count(), 3);
}

TEST_F(DrawingTabsTest, TheFileNameOfTheStartDrawingIsComparedWithoutCaseButWhole) {
  OpenBehindStart(0, L"C:\\A\\Plan.dwg");
  EXPECT_EQ(host.Count(), 1);
  host.Add(Drawing(3), L"DRAWING1.DWG");
  host.Add(Drawing(4), L"C:\\A\\Drawing1.dwg");
  window.Take();
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take().back(), L"close DRAWING1.DWG");
  EXPECT_EQ(host.Count(), 2);
}

TEST_F(DrawingTabsTest, TheTabOfTheStartDrawingIsSoughtByItsExactText) {
  Open(1, L"DRAWING1.dwg");
  InitDrawingStrip(tabs);
  window.Take();
  Open(2, L"C:\\A\\Plan.dwg");
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(NamesOf(strip), Names{L"DRAWING1"}) << "closed, but its tab stays until it goes";
  EXPECT_EQ(window.Take(), (Diary{L"unmodified DRAWING1.dwg", L"close DRAWING1.dwg"}));
}

TEST_F(DrawingTabsTest, TheCountGoesOnAcrossDrawings) {
  host.Add(Drawing(3), L"Drawing1.dwg", 2);
  host.Add(Drawing(4), L"Drawing1.dwg", 0);
  Open(2, L"C:\\A\\Plan.dwg");
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take(), Diary{}) << "the second is empty, but the count is 2";
}

TEST_F(DrawingTabsTest, AnEmptyStartDrawingBeforeOneThatIsNotIsClosed) {
  host.Add(Drawing(3), L"drawing1.dwg", 0);
  host.Add(Drawing(4), L"Drawing1.dwg", 2);
  Open(2, L"C:\\A\\Plan.dwg");
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take(), (Diary{L"unmodified drawing1.dwg", L"close drawing1.dwg"}));
}

TEST_F(DrawingTabsTest, ADrawingThatWentWhileAnEarlierOneClosedIsLeftAlone) {
  host.Add(Drawing(3), L"drawing1.dwg", 0);
  host.Add(Drawing(4), L"Drawing1.dwg", 0);
  Open(2, L"C:\\A\\Plan.dwg");
  host.whileClosing = [&](AcApDocument*) { host.Drop(Drawing(4)); };
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take(), (Diary{L"unmodified drawing1.dwg", L"close drawing1.dwg"}));
}

TEST_F(DrawingTabsTest, ADrawingThatGoesWithItsTabIsNotClosedAgain) {
  Open(1, L"Drawing1.dwg", 0);
  InitDrawingStrip(tabs);
  window.Take();
  Open(2, L"C:\\A\\Plan.dwg");
  window.whileRecalc = [&] { host.Drop(Drawing(1)); };
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take(), (Diary{L"hide", L"recalc"}));
}

TEST_F(DrawingTabsTest, TheCheckWithoutACurrentDrawingOrAListEndsQuietly) {
  CloseUntouchedStartDrawing(tabs);
  host.names[Drawing(2)] = L"C:\\A\\Plan.dwg";
  host.current = Drawing(2);
  CloseUntouchedStartDrawing(tabs);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(DrawingTabsTest, ClosingTheCurrentDrawingRemovesTheActiveTabAndLeavesItsKey) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  OnDrawingToBeDestroyed(tabs, Drawing(2));
  EXPECT_EQ(NamesOf(strip), Names{L"a"});
  EXPECT_EQ(current, nullptr);
  EXPECT_EQ(frames.m_mapKeyFrame.GetCount(), 2);
}

TEST_F(DrawingTabsTest, ClosingABackgroundDrawingRemovesItsTabAndLeavesTheActiveOne) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  OpenAndNotify(3, L"C:\\A\\c.dwg");
  OnDrawingToBeDestroyed(tabs, Drawing(2));
  EXPECT_EQ(NamesOf(strip), (Names{L"a", L"c"}));
  EXPECT_EQ(strip.ActiveTab(), 1);
  EXPECT_EQ(current, Drawing(3));
  EXPECT_EQ(frames.m_mapKeyFrame.GetCount(), 2);
}

TEST_F(DrawingTabsTest, AfterTheLastDrawingNothingIsLeft) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OnDrawingToBeDestroyed(tabs, Drawing(1));
  OnDrawingToBeDestroyed(tabs, Drawing(9));
  EXPECT_EQ(strip.Count(), 0);
  EXPECT_EQ(frames.m_frames.GetLength(), 0);
}

TEST_F(DrawingTabsTest, AnActivatedDrawingBecomesCurrentAndItsTabActive) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  windows.active = Frame(1);
  OnDrawingActivated(tabs, Drawing(1));
  EXPECT_EQ(current, Drawing(1));
  EXPECT_EQ(strip.ActiveTab(), 0);
}

TEST_F(DrawingTabsTest, AnActivationWithoutDrawingsOrACurrentOneIsIgnored) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  window.Take();
  host.current = nullptr;
  OnDrawingActivated(tabs, Drawing(2));
  EXPECT_EQ(current, Drawing(1));
  host.current = Drawing(1);
  host.open.clear();
  OnDrawingActivated(tabs, Drawing(2));
  EXPECT_EQ(current, Drawing(1));
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(DrawingTabsTest, AChosenTabActivatesItsFrameAndThenItsDrawing) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  window.whileActivated = [&] { ActivateDrawingOfTab(tabs); };
  windows.whileActivating = [&](CFrameWnd*) { host.mdiActive = Drawing(1); };
  window.Take();
  strip.ActivateTab(0);
  EXPECT_EQ(window.Take(), (Diary{L"activated", L"activate frame C:\\A\\a.dwg",
                                  L"activate C:\\A\\a.dwg", L"invalidate"}));
  EXPECT_EQ(current, Drawing(1));
}

TEST_F(DrawingTabsTest, TheNotificationOfAChosenDrawingComesBackHarmlessly) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  window.whileActivated = [&] { ActivateDrawingOfTab(tabs); };
  windows.whileActivating = [&](CFrameWnd*) {
    host.current = host.mdiActive = Drawing(1);
    OnDrawingActivated(tabs, Drawing(1));
  };
  strip.ActivateTab(0);
  EXPECT_EQ(ValuesOf(strip.m_order), (std::vector<int>{0, 1}));
  EXPECT_EQ(current, Drawing(1));
}

TEST_F(DrawingTabsTest, AChosenTabWithoutAFrameOrAnActiveDrawingActivatesNone) {
  ActivateDrawingOfTab(tabs);
  EXPECT_EQ(window.Take(), Diary{});
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  host.mdiActive = nullptr;
  window.Take();
  ActivateDrawingOfTab(tabs);
  EXPECT_EQ(window.Take(), Diary{L"activate frame C:\\A\\a.dwg"});
}

TEST_F(DrawingTabsTest, AfterASaveUnderANewNameTheTimerRefreshesTheActiveTab) {
  OpenAndNotify(1, L"Drawing1.dwg", 1);
  OpenAndNotify(2, L"Drawing2.dwg");
  windows.titles[Frame(2)] = L"C:\\A\\Plan.dwg";
  window.Take();
  RefreshActiveTabName(tabs);
  EXPECT_EQ(NamesOf(strip), (Names{L"Drawing1", L"Plan"}));
  EXPECT_EQ(window.Take(),
            (Diary{L"hide arrows", L"invalidate", L"stop timer 1", L"hide arrows", L"invalidate"}));
}

TEST_F(DrawingTabsTest, TheTimerWithoutTabsOnlyRunsTheLayout) {
  RefreshActiveTabName(tabs);
  EXPECT_EQ(window.Take(), (Diary{L"stop timer 1", L"hide", L"recalc"}));
}

TEST_F(DrawingTabsTest, ASaveShownWithAStarChangesTheTextAtEverySave) {
  OpenAndNotify(1, L"C:\\A\\plan.dwg");
  OpenAndNotify(2, L"C:\\B\\plan.dwg");
  RefreshActiveTabName(tabs);
  EXPECT_EQ(NamesOf(strip), (Names{L"plan", L"plan**"}));
  RefreshActiveTabName(tabs);
  EXPECT_EQ(NamesOf(strip), (Names{L"plan", L"plan*"}));
}

TEST_F(DrawingTabsTest, SavingAllPostsInEachDrawingInOrderAndReturnsToTheNotedOne) {
  OpenAndNotify(1, L"C:\\A\\a.dwg");
  OpenAndNotify(2, L"C:\\A\\b.dwg");
  OpenAndNotify(3, L"c.dwg");
  host.current = Drawing(2);
  window.Take();
  SaveAllDrawings(host);
  EXPECT_EQ(window.Take(),
            (Diary{L"activate C:\\A\\a.dwg", L"post QSAVE\n to C:\\A\\a.dwg",
                   L"activate C:\\A\\b.dwg", L"post QSAVE\n to C:\\A\\b.dwg", L"activate c.dwg",
                   L"post QSAVE\n to c.dwg", L"activate C:\\A\\b.dwg"}));
}

TEST_F(DrawingTabsTest, ADrawingThatClosesInTheMiddleOfSaveAllIsLeftOut) {
  OpenAndNotify(1, L"a.dwg");
  OpenAndNotify(2, L"b.dwg");
  window.Take();
  host.whileActivating = [&](AcApDocument*) { host.Drop(Drawing(2)); };
  SaveAllDrawings(host);
  EXPECT_EQ(window.Take(), (Diary{L"activate a.dwg", L"post QSAVE\n to a.dwg"}))
      << "the noted one is gone too";
}

TEST_F(DrawingTabsTest, SavingAllWithoutDrawingsOrACurrentOneReturnsToNone) {
  SaveAllDrawings(host);
  EXPECT_EQ(window.Take(), Diary{});
  host.Add(Drawing(1), L"a.dwg");
  SaveAllDrawings(host);
  EXPECT_EQ(window.Take(), (Diary{L"activate a.dwg", L"post QSAVE\n to a.dwg"}));
}

TEST_F(DrawingTabsTest, TheCommandsPostTheHostsCommands) {
  Open(1, L"a.dwg");
  EXPECT_TRUE(RunDrawingCommand(host, kTabClose));
  EXPECT_EQ(window.Take(), Diary{L"post Close\n to a.dwg"});
  EXPECT_TRUE(RunDrawingCommand(host, kTabCloseAll));
  EXPECT_EQ(window.Take(), Diary{L"post CloseAll\n to a.dwg"});
  EXPECT_TRUE(RunDrawingCommand(host, kTabExport));
  EXPECT_EQ(window.Take(), Diary{L"post QVX.TSaveAs\n to a.dwg"});
  EXPECT_TRUE(RunDrawingCommand(host, kTabSaveAll));
  EXPECT_EQ(window.Take(), (Diary{L"activate a.dwg", L"post QSAVE\n to a.dwg", L"activate a.dwg"}));
  EXPECT_TRUE(RunDrawingCommand(host, kTabSaveAllQuit));
  EXPECT_EQ(window.Take(), (Diary{L"activate a.dwg", L"post QSAVE\n to a.dwg", L"activate a.dwg",
                                  L"post _quit\n to a.dwg"}));
}

TEST_F(DrawingTabsTest, OtherIdentifiersAreNotTaken) {
  Open(1, L"a.dwg");
  for (const unsigned id : {0u, 32842u, 32843u, 32844u, 32845u, 32851u})
    EXPECT_FALSE(RunDrawingCommand(host, id)) << id;
  EXPECT_EQ(window.Take(), Diary{});
}
