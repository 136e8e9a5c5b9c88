#include "doctabs/tab_picture.h"

#include <gtest/gtest.h>

#include "tests/doctabs/strip_diary.h"

namespace {

class TabPictureTest : public testing::Test {
 protected:
  void Add(int count) {
    for (int i = 0; i < count; ++i) strip.AddTab((L"plan" + std::to_wstring(10 + i)).c_str());
    strip.RecalcTabs(0, 0);
  }
  StripPicture Picture() const { return PictureOf(strip, {0, 0, 400, 20}, kTabColours); }
  DiaryWindow window;
  TabStrip strip{window};
};

std::vector<int> Indices(const StripPicture& picture) {
  std::vector<int> indices;
  for (const TabPicture& tab : picture.tabs) indices.push_back(tab.index);
  return indices;
}

}  // namespace

TEST_F(TabPictureTest, AnInactiveTabLooksRaised) {
  Add(2);
  const TabPicture tab = Picture().tabs[0];
  EXPECT_EQ(Text(tab.box), L"[0 0 78 20]");
  EXPECT_EQ(tab.text.x, 10);
  EXPECT_EQ(tab.text.y, 3);
  EXPECT_FALSE(tab.active);
  EXPECT_EQ(tab.textColour, 0u);
  EXPECT_EQ(tab.topLeft, 0xFAFAFAu);
  EXPECT_EQ(tab.bottomRight, 0x323232u);
}

TEST_F(TabPictureTest, TheActiveTabLooksPressedInAndItsTextIsOnePixelLower) {
  Add(2);
  const TabPicture tab = Picture().tabs[1];
  EXPECT_EQ(Text(tab.box), L"[80 0 158 20]");
  EXPECT_EQ(tab.text.x, 90);
  EXPECT_EQ(tab.text.y, 4);
  EXPECT_TRUE(tab.active);
  EXPECT_EQ(tab.textColour, 16719390u);
  EXPECT_EQ(tab.topLeft, 0x323232u);
  EXPECT_EQ(tab.bottomRight, 0xFAFAFAu);
  EXPECT_EQ(kTabColours.activeBack, 15132410u);
}

TEST_F(TabPictureTest, TabsCoverTheClientHeight) {
  Add(2);
  EXPECT_EQ(PictureOf(strip, {0, 5, 400, 30}, kTabColours).tabs[0].box.bottom, 25);
}

TEST_F(TabPictureTest, OnlyWithArrowsItIsClippedAndMoved) {
  Add(2);
  EXPECT_FALSE(Picture().clipped);
  EXPECT_EQ(Picture().origin, 0);
  Add(13);  // the first two of them with a star
  strip.OnScroll(SB_THUMBPOSITION, 3);
  const StripPicture picture = Picture();
  EXPECT_TRUE(picture.clipped);
  EXPECT_EQ(Text(picture.clip), L"[0 0 358 20]");
  EXPECT_EQ(picture.origin, 250);
}

TEST_F(TabPictureTest, HoldsOnlyTabsInView) {
  Add(1000);
  EXPECT_EQ(Indices(Picture()), (std::vector<int>{0, 1, 2, 3, 4}));
  strip.OnScroll(SB_THUMBPOSITION, 3);
  EXPECT_EQ(Indices(Picture()), (std::vector<int>{3, 4, 5, 6, 7}));
  strip.OnLayoutTimer();
  EXPECT_EQ(Indices(Picture()), (std::vector<int>{997, 998, 999}));
}

TEST_F(TabPictureTest, ATabThatBeginsAtTheClipIsNotInView) {
  Add(5);
  window.client = {202, 20};
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(Indices(PictureOf(strip, {0, 0, 202, 20}, kTabColours)), (std::vector<int>{0, 1}));
  EXPECT_EQ(Indices(PictureOf(strip, {0, 0, 203, 20}, kTabColours)), (std::vector<int>{0, 1, 2}));
}

TEST_F(TabPictureTest, WithoutTabsOrBeyondTheLastOneNothingIsShown) {
  EXPECT_TRUE(Picture().tabs.empty());
  Add(2);
  strip.m_nFirstTab = 7;
  EXPECT_TRUE(Picture().tabs.empty());
  strip.m_nFirstTab = -1;
  EXPECT_EQ(Indices(Picture()), (std::vector<int>{0, 1}));
}

TEST_F(TabPictureTest, HighContrastTakesTheSystemsColoursAndNothingElseDoes) {
  const SystemColours system{1, 2, 3, 4, 5};
  const TabColours chosen = ChooseColours(kTabColours, true, system);
  EXPECT_EQ(chosen.text, 1u);
  EXPECT_EQ(chosen.activeText, 2u);
  EXPECT_EQ(chosen.activeBack, 3u);
  EXPECT_EQ(chosen.light, 4u);
  EXPECT_EQ(chosen.dark, 5u);
  EXPECT_EQ(ChooseColours(kTabColours, false, system).activeText, kTabColours.activeText);
}
