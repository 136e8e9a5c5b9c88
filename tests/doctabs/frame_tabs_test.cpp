#include "doctabs/frame_tabs.h"

#include <gtest/gtest.h>

#include "tests/doctabs/strip_diary.h"

namespace {

using Names = std::vector<std::wstring>;

class FrameTabsTest : public testing::Test {
 protected:
  void Add(int number, const wchar_t* title) {
    windows.titles[Frame(number)] = title;
    windows.active = Frame(number);
    frames.AddFrame(nullptr, Drawing(number));
  }
  bool HasKey(int number) {
    void* frame = nullptr;
    return frames.m_mapKeyFrame.Lookup(Drawing(number), frame);
  }
  DiaryWindow window;
  TabStrip strip{window};
  DiaryFrames windows{window.diary};
  FrameTabs frames{strip, windows};
};

}  // namespace

TEST_F(FrameTabsTest, ATabHasTheFileNameWithoutItsExtension) {
  Add(1, L"C:\\Projects\\Plan.v2.dwg");
  Add(2, L"Drawing1.dwg");
  Add(3, L"Drawing");
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan.v2", L"Drawing1", L"Drawing"}));
}

TEST_F(FrameTabsTest, TwoFramesOfOneFileNameInDifferentFoldersAreToldApartByAStar) {
  Add(1, L"C:\\A\\Plan.dwg");
  Add(2, L"C:\\B\\Plan.dwg");
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan", L"Plan*"}));
}

TEST_F(FrameTabsTest, AGivenFrameIsTakenInsteadOfTheActiveOne) {
  windows.titles[Frame(1)] = L"a.dwg";
  windows.titles[Frame(2)] = L"b.dwg";
  windows.active = Frame(1);
  frames.AddFrame(Frame(2), Drawing(2));
  EXPECT_EQ(NamesOf(strip), Names{L"b"});
  EXPECT_EQ(frames.m_frames.At(0), Frame(2));
  EXPECT_TRUE(HasKey(2));
}

TEST_F(FrameTabsTest, AddingTheSameFrameTwiceKeepsOneTabAndDoesNotRefreshIt) {
  Add(1, L"a.dwg");
  window.Take();
  windows.titles[Frame(1)] = L"b.dwg";
  frames.AddFrame(Frame(1), Drawing(7));
  EXPECT_EQ(NamesOf(strip), Names{L"a"});
  EXPECT_FALSE(HasKey(7));
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(FrameTabsTest, WithoutAnActiveFrameNothingIsAdded) {
  frames.AddFrame(nullptr, Drawing(1));
  frames.InitFromActiveFrame();
  EXPECT_EQ(strip.Count(), 0);
  EXPECT_EQ(frames.m_frames.GetLength(), 0);
  EXPECT_FALSE(HasKey(1));
}

TEST_F(FrameTabsTest, TheFrameActiveAtStartGetsATabWithoutAKey) {
  windows.titles[Frame(1)] = L"Drawing1.dwg";
  windows.active = Frame(1);
  frames.InitFromActiveFrame();
  EXPECT_EQ(NamesOf(strip), Names{L"Drawing1"});
  EXPECT_EQ(frames.m_mapKeyFrame.GetCount(), 0);
}

TEST_F(FrameTabsTest, AFrameWithoutAWindowHasAnEmptyText) {
  frames.AddFrame(Frame(1), Drawing(1));
  EXPECT_EQ(NamesOf(strip), Names{L""});
  Add(2, L"b.dwg");
  windows.titles.clear();
  frames.RefreshTabName(Frame(2));
  EXPECT_EQ(NamesOf(strip), (Names{L"", L"*"}));
}

TEST_F(FrameTabsTest, RefreshingTakesThePresentTitle) {
  Add(1, L"Drawing1.dwg");
  Add(2, L"b.dwg");
  windows.titles[Frame(1)] = L"C:\\A\\Plan.dwg";
  frames.RefreshTabName(Frame(1));
  EXPECT_EQ(NamesOf(strip), (Names{L"Plan", L"b"}));
}

TEST_F(FrameTabsTest, RefreshingAnUnknownFrameDoesNothing) {
  Add(1, L"a.dwg");
  window.Take();
  frames.RefreshTabName(Frame(9));
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(FrameTabsTest, SyncMakesTheActiveFramesTabActiveWithoutActivatingIt) {
  Add(1, L"a.dwg");
  Add(2, L"b.dwg");
  windows.active = Frame(1);
  window.Take();
  frames.SyncActiveTab();
  EXPECT_EQ(strip.ActiveTab(), 0);
  EXPECT_EQ(window.Take(), Diary{L"invalidate"});
}

TEST_F(FrameTabsTest, SyncWithoutAnActiveFrameOrWithAnUnknownOneLeavesTheStrip) {
  Add(1, L"a.dwg");
  Add(2, L"b.dwg");
  window.Take();
  windows.active = nullptr;
  frames.SyncActiveTab();
  windows.active = Frame(9);
  frames.SyncActiveTab();
  EXPECT_EQ(strip.ActiveTab(), 1);
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(FrameTabsTest, RemovingTheActiveTabDropsItsFrameAndLeavesItsKey) {
  Add(1, L"a.dwg");
  Add(2, L"b.dwg");
  Add(3, L"c.dwg");
  strip.SetActiveTab(1);
  frames.RemoveActiveTab();
  EXPECT_EQ(NamesOf(strip), (Names{L"a", L"c"}));
  EXPECT_EQ(frames.m_frames.At(0), Frame(1));
  EXPECT_EQ(frames.m_frames.At(1), Frame(3));
  EXPECT_EQ(frames.m_frames.GetLength(), 2);
  EXPECT_TRUE(HasKey(2));
}

TEST_F(FrameTabsTest, RemovingTheActiveTabWithoutTabsDoesNothing) {
  frames.RemoveActiveTab();
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(FrameTabsTest, RemovingByKeyDropsTabFrameAndKey) {
  Add(1, L"a.dwg");
  Add(2, L"b.dwg");
  frames.RemoveKeyTab(Drawing(1));
  EXPECT_EQ(NamesOf(strip), Names{L"b"});
  EXPECT_EQ(frames.m_frames.At(0), Frame(2));
  EXPECT_FALSE(HasKey(1));
  EXPECT_TRUE(HasKey(2));
}

TEST_F(FrameTabsTest, AnUnknownKeyOrAStripWithoutTabsIsIgnored) {
  Add(1, L"a.dwg");
  window.Take();
  frames.RemoveKeyTab(Drawing(9));
  EXPECT_EQ(window.Take(), Diary{});
  frames.RemoveActiveTab();
  frames.RemoveKeyTab(Drawing(1));
  EXPECT_TRUE(HasKey(1));
}

TEST_F(FrameTabsTest, AKeyWhoseFrameHasNoTabStays) {
  Add(1, L"a.dwg");
  Add(2, L"b.dwg");
  frames.RemoveActiveTab();
  window.Take();
  frames.RemoveKeyTab(Drawing(2));
  EXPECT_TRUE(HasKey(2));
  EXPECT_EQ(window.Take(), Diary{});
}

TEST_F(FrameTabsTest, TabAndFrameIndexStayTheSameNumber) {
  for (int i = 0; i < 6; ++i) Add(i, (std::to_wstring(i) + L".dwg").c_str());
  strip.SetActiveTab(4);
  frames.RemoveActiveTab();
  frames.RemoveKeyTab(Drawing(1));
  Add(7, L"7.dwg");
  for (int i = 0; i < strip.Count(); ++i)
    EXPECT_EQ(windows.titles[frames.m_frames.At(i)], strip.m_names.At(i) + L".dwg");
}

TEST_F(FrameTabsTest, TheFrameOfTheActiveTabIsNullWithoutOne) {
  EXPECT_EQ(frames.ActiveTabFrame(), nullptr);
  Add(1, L"a.dwg");
  EXPECT_EQ(frames.ActiveTabFrame(), Frame(1));
  EXPECT_TRUE(frames.Has(Frame(1)));
  EXPECT_FALSE(frames.Has(Frame(2)));
}

TEST_F(FrameTabsTest, ATabWithoutAFrameIsRemovedAlone) {
  Add(1, L"a.dwg");
  strip.AddTab(L"extra");
  EXPECT_EQ(frames.ActiveTabFrame(), nullptr);
  frames.RemoveTab(1);
  EXPECT_EQ(NamesOf(strip), Names{L"a"});
  EXPECT_EQ(frames.m_frames.GetLength(), 1);
}
