#include "frame/commands/menu_commands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "kernel/globals.h"

namespace {

using Diary = std::vector<std::wstring>;

class DiarySteps : public MenuSteps {
 public:
  Diary diary;
  // On the support path; found under C:\s\ if the name has no path.
  std::set<std::wstring> files;
  std::wstring setting, base;

  bool ReadMenuSetting(TWCString& value) override {
    if (!setting.empty()) value = setting.c_str();
    return !setting.empty();
  }
  void WriteMenuSetting(const wchar_t* text) override {
    diary.push_back(std::wstring(L"remember ") + text);
  }
  bool FindMenuBase(TWCString& out) override {
    out = base.c_str();
    return !base.empty();
  }
  bool FindFile(const wchar_t* name, TWCString& path) override {
    if (!files.count(name)) return false;
    path = std::wstring(name).find(L'\\') == std::wstring::npos
               ? (std::wstring(L"C:\\s\\") + name).c_str()
               : name;
    return true;
  }
  bool FindHostFile(const wchar_t* name, TWCString& path) override { return FindFile(name, path); }
  void ReplaceIconLibrary(const wchar_t* name) override {
    diary.push_back(std::wstring(L"icons ") + name);
  }
  void RecreateScreenMenu() override { diary.push_back(L"palette"); }
  void CompileMenu(const wchar_t* path) override {
    diary.push_back(std::wstring(L"compile ") + path);
  }
  void LoadCompiledMenu(const wchar_t* path) override {
    diary.push_back(std::wstring(L"compiled ") + path);
  }
  void PublishLispPath() override { diary.push_back(L"lisp path"); }
  void RefreshDocStatus() override { diary.push_back(L"doc status"); }
  void ShowMessage(const wchar_t* text) override { diary.push_back(std::wstring(L"box ") + text); }
};

class MenuCommandsTest : public ::testing::Test {
 protected:
  void SetUp() override { g_iMenuType = g_nRunMode = 0; }
  void TearDown() override { g_iMenuType = g_nRunMode = 0; }
  DiarySteps steps;
  MenuCommands commands;
};

}  // namespace

TEST_F(MenuCommandsTest, ReloadLoadsTheDefaultMenuWhenNoneIsSaved) {
  steps.files = {L"qvx.qmn"};
  commands.Reload(steps);
  EXPECT_EQ(steps.diary, (Diary{L"icons qvx.dll", L"palette", L"compile C:\\s\\qvx.qmn",
                                L"lisp path", L"doc status"}));
}

TEST_F(MenuCommandsTest, ReloadLoadsTheSavedMenu) {
  steps.setting = L"D:\\m\\own";
  steps.files = {L"qvx.qmn", L"D:\\m\\own.qmn"};
  commands.Reload(steps);
  EXPECT_EQ(steps.diary[0], L"icons D:\\m\\own.dll");
  EXPECT_EQ(steps.diary[2], L"compile D:\\m\\own.qmn");
}

TEST_F(MenuCommandsTest, ReloadOfAMenuThatWasDeletedResetsTheModesAndStops) {
  steps.setting = L"D:\\m\\gone";
  steps.files = {L"qvx.qmn"};
  g_iMenuType = 2;
  g_nRunMode = 1;
  commands.Reload(steps);
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_EQ(g_iMenuType, 0);
  EXPECT_EQ(g_nRunMode, 0);
}

TEST_F(MenuCommandsTest, ReloadBySearchDoesTheMenuOnlyAndKeepsTheLispSymbols) {
  steps.base = L"C:\\s\\qvx";
  steps.files = {L"C:\\s\\qvx.qmn"};
  commands.ReloadBySearch(steps);
  EXPECT_EQ(steps.diary, (Diary{L"icons C:\\s\\qvx.dll", L"palette", L"compile C:\\s\\qvx.qmn"}));
}

TEST_F(MenuCommandsTest, ReloadBySearchFallsBackToTheDefaultName) {
  steps.files = {L"qvx.qmn"};
  commands.ReloadBySearch(steps);
  EXPECT_EQ(steps.diary.back(), L"compile C:\\s\\qvx.qmn");
}

TEST_F(MenuCommandsTest, ReloadBySearchReportsThatThereIsNone) {
  commands.ReloadBySearch(steps);
  EXPECT_EQ(steps.diary, Diary{L"box 未找到菜单文件!"});
}

TEST_F(MenuCommandsTest, SetMenuCompilesASourceAndSavesItsBaseName) {
  steps.files = {L"simple.qmn"};
  EXPECT_TRUE(commands.SetMenu(steps, L"simple.qmn"));
  EXPECT_EQ(steps.diary, (Diary{L"icons C:\\s\\simple.dll", L"palette",
                                L"compile C:\\s\\simple.qmn", L"remember C:\\s\\simple"}));
}

TEST_F(MenuCommandsTest, SetMenuDoesNotReadTheSourceOfACompiledFile) {
  steps.files = {L"simple.QMC", L"simple.qmn"};
  EXPECT_TRUE(commands.SetMenu(steps, L"simple.QMC"));
  EXPECT_EQ(steps.diary[2], L"compiled C:\\s\\simple.QMC");
}

TEST_F(MenuCommandsTest, SetMenuWithoutATextOrAFileChangesNothing) {
  EXPECT_FALSE(commands.SetMenu(steps, nullptr));
  EXPECT_FALSE(commands.SetMenu(steps, L"none.qmn"));
  EXPECT_EQ(steps.diary, Diary{});
}

TEST_F(MenuCommandsTest, RunModeTurnsOnAndOffAndReloads) {
  steps.files = {L"qvx.qmn", L"qvx2d.qmn"};
  commands.ToggleRunMode(steps);
  EXPECT_EQ(g_nRunMode, 1);
  EXPECT_EQ(g_iMenuType, 2);
  EXPECT_EQ(steps.diary[2], L"compile C:\\s\\qvx.qmn");
  commands.ToggleRunMode(steps);
  EXPECT_EQ(g_nRunMode, 0);
  EXPECT_EQ(g_iMenuType, 0);
}

TEST_F(MenuCommandsTest, RunModeWithoutItsFileChangesNothing) {
  steps.files = {L"qvx.qmn"};
  g_iMenuType = 1;
  commands.ToggleRunMode(steps);
  EXPECT_EQ(g_nRunMode, 0);
  EXPECT_EQ(g_iMenuType, 1);
  EXPECT_EQ(steps.diary, Diary{});
}

TEST_F(MenuCommandsTest, AviModeLoadsItsCompiledMenuAndSwitchesBack) {
  steps.files = {L"qvxavi.qmc", L"qvx.qmc"};
  commands.ToggleAviMode(steps);
  EXPECT_EQ(steps.diary, (Diary{L"icons qvx.dll", L"palette", L"compiled C:\\s\\qvxavi.qmc"}));
  EXPECT_TRUE(commands.IsAviMode());
  commands.ToggleAviMode(steps);
  EXPECT_EQ(steps.diary.back(), L"compiled C:\\s\\qvx.qmc");
  EXPECT_FALSE(commands.IsAviMode());
}

TEST_F(MenuCommandsTest, AviModeTriedTwiceWithoutItsFileStaysOffAndDoesNothing) {
  commands.ToggleAviMode(steps);
  commands.ToggleAviMode(steps);
  EXPECT_FALSE(commands.IsAviMode());
  EXPECT_EQ(steps.diary, Diary{});
}
