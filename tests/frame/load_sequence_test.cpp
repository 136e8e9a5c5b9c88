// Both sequences, as the diary of the calls that they make.
#include "frame/start/load_sequence.h"

#include <gtest/gtest.h>

#include "kernel/globals.h"
#include "tests/doubles/frame_steps.h"

namespace {

using Diary = std::vector<std::wstring>;

class SequenceTest : public ::testing::Test {
 protected:
  void TearDown() override { g_nCustomFlag = g_bHideCaption = g_bAutoOpenRecent = 0; }

  Diary Loaded(int flags, bool hidesCaption = false, bool reopens = false) {
    TheFrameSteps() = {};
    TheFrameSteps().base = base;
    g_nCustomFlag = flags;
    g_bHideCaption = hidesCaption;
    g_bAutoOpenRecent = reopens;
    int packet = 0;
    RunLoadSequence(&packet);
    return TheFrameSteps().diary;
  }
  Diary Unloaded(int flags) {
    TheFrameSteps() = {};
    g_nCustomFlag = flags;
    RunUnloadSequence();
    return TheFrameSteps().diary;
  }

  std::wstring base = L"C:\\m\\qvx";
};
using LoadSequence = SequenceTest;
using UnloadSequence = SequenceTest;

bool Contains(const Diary& diary, const std::wstring& entry) {
  for (const auto& line : diary)
    if (line == entry) return true;
  return false;
}

}  // namespace

TEST_F(LoadSequence, RunsEveryStepInItsOrder) {
  EXPECT_EQ(Loaded(0, true, true), (Diary{L"kernel",
                                          L"unlock",
                                          L"mdi aware",
                                          L"tips",
                                          L"icons C:\\m\\qvx.dll",
                                          L"+window",
                                          L"+filter",
                                          L"+commands",
                                          L"+reactor",
                                          L"first start",
                                          L"product file",
                                          L"help file a.chm",
                                          L"command help a.chm",
                                          L"title Title",
                                          L"caption",
                                          L"recent files",
                                          L"+tabs",
                                          L"init tabs",
                                          L"+group",
                                          L"+baseline",
                                          L"+fill",
                                          L"+bold",
                                          L"+dyndim",
                                          L"+scale"}));
}

TEST_F(LoadSequence, LeavesTheCaptionAndTheRecentFilesAloneUnlessAsked) {
  const Diary diary = Loaded(0);
  EXPECT_FALSE(Contains(diary, L"caption"));
  EXPECT_FALSE(Contains(diary, L"recent files"));
}

TEST_F(LoadSequence, EachCustomFlagLeavesOutItsOwnStepsOnly) {
  const Diary all = Loaded(0);
  const struct {
    int flag;
    Diary missing;
  } rows[] = {
      {0x01, {L"+scale"}},
      {0x02, {L"tips"}},
      {0x08, {L"first start"}},
      {0x10, {}},
      {0x20, {L"+baseline", L"+fill", L"+bold", L"+dyndim"}},
  };
  for (const auto& row : rows) {
    Diary expected;
    for (const auto& entry : all)
      if (!Contains(row.missing, entry)) expected.push_back(entry);
    EXPECT_EQ(Loaded(row.flag), expected) << "flag " << row.flag;
  }
}

TEST_F(UnloadSequence, RunsEveryStepInItsOrder) {
  EXPECT_EQ(Unloaded(0),
            (Diary{L"commit edit", L"save settings", L"save recent", L"-reactor", L"palette gone",
                   L"-window", L"-filter", L"-commands", L"free icons", L"destroy tabs", L"-group",
                   L"-baseline", L"-fill", L"-bold", L"-dyndim", L"-scale", L"unload kernel"}));
}

TEST_F(UnloadSequence, TakesBaseLineAndDynamicDimensionAwayEvenWhenTheyWereNeverAdded) {
  const Diary diary = Unloaded(0x20);
  EXPECT_TRUE(Contains(diary, L"-baseline"));
  EXPECT_TRUE(Contains(diary, L"-dyndim"));
  EXPECT_FALSE(Contains(diary, L"-fill"));
  EXPECT_FALSE(Contains(diary, L"-bold"));
}

TEST_F(UnloadSequence, LeavesTheScalePaneThatWasNeverAdded) {
  EXPECT_FALSE(Contains(Unloaded(0x01), L"-scale"));
}

TEST_F(LoadSequence, WithoutAMenuItSaysSoAndGoesOnWithoutIcons) {
  const Diary all = Loaded(0);
  base.clear();
  Diary without = Loaded(0);
  ASSERT_TRUE(Contains(without, L"box \n找不到菜单文件!"));
  std::erase(without, L"box \n找不到菜单文件!");
  Diary expected = all;
  std::erase(expected, L"icons C:\\m\\qvx.dll");
  EXPECT_EQ(without, expected);
}
