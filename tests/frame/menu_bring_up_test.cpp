// The end of the start-up, as the diary of the calls that it makes. Settings are the real store's.
#include "frame/start/menu_bring_up.h"

#include <gtest/gtest.h>

#include "ground/product_registry.h"
#include "kernel/globals.h"
#include "tests/doubles/frame_steps.h"

namespace {

using Diary = std::vector<std::wstring>;

class BringUpTest : public ::testing::Test {
 protected:
  void SetUp() override {
    steps = {};
    steps.base = L"C:\\m\\qvx";
    steps.files = {L"C:\\m\\qvx.qmn"};
    g_nProductId = 1;
    Set(L"Obsolete", 0);
    Set(L"Visible", 1);
  }
  void TearDown() override { SetUp(); }
  static void Set(const wchar_t* name, int value) { qvx::ScreenMenuKey().SetValue(name, value); }

  FrameSteps& steps = TheFrameSteps();
};
using MenuBringUpTest = BringUpTest;
using MenuReadiness = BringUpTest;

const Diary kWhole = {L"palette shown", L"compile C:\\m\\qvx.qmn", L"lisp path", L"doc status",
                      L"recent"};

}  // namespace

TEST_F(MenuBringUpTest, RunsItsStepsInOrder) {
  MenuBringUp bringUp;
  bringUp.Run();
  EXPECT_EQ(steps.diary, kWhole);
}

TEST_F(MenuBringUpTest, ASecondRunReturnsAtOnce) {
  MenuBringUp bringUp;
  bringUp.Run();
  steps.diary.clear();
  bringUp.Run();
  EXPECT_EQ(steps.diary, Diary{});
}

TEST_F(MenuBringUpTest, AnInvisiblePaletteIsStillCreatedAndNothingIsPrinted) {
  Set(L"Visible", 0);
  MenuBringUp().Run();
  EXPECT_EQ(steps.diary.front(), L"palette hidden");
  for (const auto& line : steps.diary) EXPECT_NE(line.substr(0, 5), L"print");
}

TEST_F(MenuBringUpTest, WithoutASourceFileThePaletteComesUpEmptyAndTheRestGoesOn) {
  steps.files.clear();
  MenuBringUp().Run();
  EXPECT_EQ(steps.diary, (Diary{L"palette shown", L"lisp path", L"doc status", L"recent"}));
}

TEST_F(MenuBringUpTest, ObsoleteSwitchesTheScreenMenuOffAndIsAskedAgainEachTime) {
  Set(L"Obsolete", 1);
  MenuBringUp bringUp;
  for (int firing = 0; firing < 5; ++firing) bringUp.StepReadiness();
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_FALSE(bringUp.IsDone());
  Set(L"Obsolete", 0);
  bringUp.StepReadiness();
  EXPECT_EQ(steps.diary, kWhole);
}

TEST_F(MenuBringUpTest, WithNoMenuItIsDoneAllTheSame) {
  steps.base.clear();
  MenuBringUp bringUp;
  bringUp.Run();
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_TRUE(bringUp.IsDone());
}

TEST_F(MenuReadiness, TheFiringAfterTheBringUpStopsTheTimerAndSendsShowBarOnce) {
  MenuBringUp bringUp;
  bringUp.StepReadiness();
  EXPECT_EQ(steps.diary, kWhole);
  steps.diary.clear();
  bringUp.StepReadiness();
  EXPECT_EQ(steps.diary, (Diary{L"stop", L"send \ntshowbar "}));
  steps.diary.clear();
  bringUp.StepReadiness();
  EXPECT_EQ(steps.diary, Diary{L"stop"});
}

TEST_F(MenuReadiness, WithoutAMenuItSaysSoOnceAndStops) {
  steps.base.clear();
  MenuBringUp().StepReadiness();
  EXPECT_EQ(steps.diary, (Diary{L"print "
                                L"\n未找到所需的qmn菜单文件!请重新安装奇维软件，或在命令行运行<"
                                L"QMNLOAD>命令加载菜单文件。",
                                L"stop"}));
}

TEST_F(MenuReadiness, ProductSeventeenIsNotPointedToTheLoadCommand) {
  steps.base.clear();
  g_nProductId = 17;
  g_nVersion = 7.0;
  MenuBringUp().StepReadiness();
  EXPECT_EQ(steps.diary, (Diary{L"print \n未找到所需的qmn菜单文件!请重新安装奇维软件。", L"stop"}));
}
