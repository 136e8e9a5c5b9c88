#include "frame/commands/menu_commands.h"

#include <gtest/gtest.h>

#include "kernel/globals.h"
#include "tests/doubles/frame_steps.h"

namespace {

using Diary = std::vector<std::wstring>;

class MenuCommandsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_iMenuType = g_nRunMode = 0;
    steps = {};
  }
  void TearDown() override { g_iMenuType = g_nRunMode = 0; }
  FrameSteps& steps = TheFrameSteps();
  MenuCommands commands;
};

}  // namespace

TEST_F(MenuCommandsTest, ReloadTakesTheDefaultMenuWhenNoneIsRemembered) {
  steps.files = {L"qvx.qmn"};
  commands.Reload();
  EXPECT_EQ(steps.diary, (Diary{L"icons qvx.dll", L"palette gone", L"palette shown",
                                L"compile C:\\s\\qvx.qmn", L"lisp path", L"doc status"}));
}

TEST_F(MenuCommandsTest, ReloadTakesTheRememberedMenu) {
  steps.menuSetting = L"D:\\m\\own";
  steps.files = {L"qvx.qmn", L"D:\\m\\own.qmn"};
  commands.Reload();
  EXPECT_EQ(steps.diary[0], L"icons D:\\m\\own.dll");
  EXPECT_EQ(steps.diary[3], L"compile D:\\m\\own.qmn");
}

TEST_F(MenuCommandsTest, ReloadOfAMenuThatIsGoneResetsTheModesAndStops) {
  steps.menuSetting = L"D:\\m\\gone";
  steps.files = {L"qvx.qmn"};
  g_iMenuType = 2;
  g_nRunMode = 1;
  commands.Reload();
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_EQ(g_iMenuType, 0);
  EXPECT_EQ(g_nRunMode, 0);
}

TEST_F(MenuCommandsTest, ReloadBySearchStopsAtTheMenuAndLeavesTheLispSymbolsAlone) {
  steps.base = L"C:\\s\\qvx";
  steps.files = {L"C:\\s\\qvx.qmn"};
  commands.ReloadBySearch();
  EXPECT_EQ(steps.diary, (Diary{L"icons C:\\s\\qvx.dll", L"palette gone", L"palette shown",
                                L"compile C:\\s\\qvx.qmn"}));
}

TEST_F(MenuCommandsTest, ReloadBySearchFallsBackToTheDefaultName) {
  steps.files = {L"qvx.qmn"};
  commands.ReloadBySearch();
  EXPECT_EQ(steps.diary.back(), L"compile C:\\s\\qvx.qmn");
}

TEST_F(MenuCommandsTest, ReloadBySearchLoadsACompiledFileWithoutASource) {
  steps.base = L"D:\\m\\own";
  steps.files = {L"D:\\m\\own.qmc"};
  commands.ReloadBySearch();
  EXPECT_EQ(steps.diary, (Diary{L"icons D:\\m\\own.dll", L"palette gone", L"palette shown",
                                L"compiled D:\\m\\own.qmc"}));
}

TEST_F(MenuCommandsTest, ReloadBySearchPrefersTheSource) {
  steps.base = L"D:\\m\\own";
  steps.files = {L"D:\\m\\own.qmc", L"D:\\m\\own.qmn"};
  commands.ReloadBySearch();
  EXPECT_EQ(steps.diary.back(), L"compile D:\\m\\own.qmn");
}

TEST_F(MenuCommandsTest, ReloadBySearchSaysWhenThereIsNone) {
  commands.ReloadBySearch();
  EXPECT_EQ(steps.diary, Diary{L"box 未找到菜单文件!"});
}

TEST_F(MenuCommandsTest, SetMenuCompilesASourceAndRemembersItsBase) {
  steps.files = {L"simple.qmn"};
  EXPECT_TRUE(commands.SetMenu(L"simple.qmn"));
  EXPECT_EQ(steps.diary, (Diary{L"icons C:\\s\\simple.dll", L"palette gone", L"palette shown",
                                L"compile C:\\s\\simple.qmn", L"remember C:\\s\\simple"}));
}

TEST_F(MenuCommandsTest, SetMenuNeverTouchesTheSourceOfACompiledFile) {
  steps.files = {L"simple.QMC", L"simple.qmn"};
  EXPECT_TRUE(commands.SetMenu(L"simple.QMC"));
  EXPECT_EQ(steps.diary[3], L"compiled C:\\s\\simple.QMC");
}

TEST_F(MenuCommandsTest, SetMenuWithoutATextOrAFileChangesNothing) {
  EXPECT_FALSE(commands.SetMenu(nullptr));
  EXPECT_FALSE(commands.SetMenu(L"none.qmn"));
  EXPECT_EQ(steps.diary, Diary{});
}

TEST_F(MenuCommandsTest, RunModeTurnsOnAndOffAndReloads) {
  steps.files = {L"qvx.qmn", L"qvx2d.qmn"};
  commands.ToggleRunMode();
  EXPECT_EQ(g_nRunMode, 1);
  EXPECT_EQ(g_iMenuType, 2);
  EXPECT_EQ(steps.diary[3], L"compile C:\\s\\qvx.qmn");
  commands.ToggleRunMode();
  EXPECT_EQ(g_nRunMode, 0);
  EXPECT_EQ(g_iMenuType, 0);
}

TEST_F(MenuCommandsTest, RunModeWithoutItsFileChangesNothing) {
  steps.files = {L"qvx.qmn"};
  g_iMenuType = 1;
  commands.ToggleRunMode();
  EXPECT_EQ(g_nRunMode, 0);
  EXPECT_EQ(g_iMenuType, 1);
  EXPECT_EQ(steps.diary, Diary{});
}

TEST_F(MenuCommandsTest, AviModeLoadsItsCompiledMenuAndGoesBack) {
  steps.files = {L"qvxavi.qmc", L"qvx.qmc"};
  commands.ToggleAviMode();
  EXPECT_EQ(steps.diary, (Diary{L"icons qvx.dll", L"palette gone", L"palette shown",
                                L"compiled C:\\s\\qvxavi.qmc"}));
  EXPECT_TRUE(commands.IsAviMode());
  commands.ToggleAviMode();
  EXPECT_EQ(steps.diary.back(), L"compiled C:\\s\\qvx.qmc");
  EXPECT_FALSE(commands.IsAviMode());
}

TEST_F(MenuCommandsTest, AviModeTriedTwiceWithoutItsFileStaysOffAndDoesNothing) {
  commands.ToggleAviMode();
  commands.ToggleAviMode();
  EXPECT_FALSE(commands.IsAviMode());
  EXPECT_EQ(steps.diary, Diary{});
}
