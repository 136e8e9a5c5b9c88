#include "frame/start/menu_bring_up.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using Diary = std::vector<std::wstring>;

class DiarySteps : public BringUpSteps {
 public:
  Diary diary;
  bool menuFound = true, sourceFound = true, screenMenuUp = false, limitedProduct = false;
  std::map<std::wstring, int> settings;

  bool FindMenu(TWCString& base) override {
    base = L"C:\\m\\qvx";
    return menuFound;
  }
  bool FindFile(const wchar_t* name, TWCString& path) override {
    path = name;
    return sourceFound;
  }
  int ScreenMenuSetting(const wchar_t* name, int otherwise) override {
    return settings.count(name) ? settings[name] : otherwise;
  }
  void CreateScreenMenu(bool show) override {
    diary.push_back(show ? L"palette shown" : L"palette hidden");
    screenMenuUp = true;
  }
  void LoadMenuFile(const wchar_t* path) override {
    diary.push_back(std::wstring(L"load ") + path);
  }
  void PublishLispPath() override { diary.push_back(L"lisp path"); }
  void RefreshDocStatus() override { diary.push_back(L"doc status"); }
  void RestoreRecentCommands() override { diary.push_back(L"recent"); }
  bool ScreenMenuHasWindow() override { return screenMenuUp; }
  bool IsLimitedProduct() override { return limitedProduct; }
  void Print(const wchar_t* text) override { diary.push_back(std::wstring(L"print ") + text); }
  void StopReadinessTimer() override { diary.push_back(L"stop"); }
  void SendToHost(const wchar_t* text) override { diary.push_back(std::wstring(L"send ") + text); }
};

const Diary kWhole = {L"palette shown", L"load C:\\m\\qvx.qmn", L"lisp path", L"doc status",
                      L"recent"};

}  // namespace

TEST(MenuBringUp, RunsItsStepsInOrder) {
  DiarySteps steps;
  MenuBringUp bringUp;
  bringUp.Run(steps);
  EXPECT_EQ(steps.diary, kWhole);
}

TEST(MenuBringUp, ASecondRunReturnsAtOnce) {
  DiarySteps steps;
  MenuBringUp bringUp;
  bringUp.Run(steps);
  steps.diary.clear();
  bringUp.Run(steps);
  EXPECT_EQ(steps.diary, Diary{});
}

TEST(MenuBringUp, AnInvisiblePaletteIsStillCreatedAndNothingIsPrinted) {
  DiarySteps steps;
  steps.settings[L"Visible"] = 0;
  MenuBringUp().Run(steps);
  EXPECT_EQ(steps.diary.front(), L"palette hidden");
  for (const auto& line : steps.diary) EXPECT_NE(line.substr(0, 5), L"print");
}

TEST(MenuBringUp, WithoutASourceFileThePaletteIsEmptyAndTheStartContinues) {
  DiarySteps steps;
  steps.sourceFound = false;
  MenuBringUp().Run(steps);
  EXPECT_EQ(steps.diary, (Diary{L"palette shown", L"lisp path", L"doc status", L"recent"}));
}

TEST(MenuBringUp, ObsoleteTurnsTheScreenMenuOffAndIsReadEachTime) {
  DiarySteps steps;
  steps.settings[L"Obsolete"] = 1;
  MenuBringUp bringUp;
  for (int firing = 0; firing < 5; ++firing) bringUp.StepReadiness(steps);
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_FALSE(bringUp.IsDone());
  steps.settings[L"Obsolete"] = 0;
  bringUp.StepReadiness(steps);
  EXPECT_EQ(steps.diary, kWhole);
}

TEST(MenuBringUp, WithoutAMenuItCountsAsDone) {
  DiarySteps steps;
  steps.menuFound = false;
  MenuBringUp bringUp;
  bringUp.Run(steps);
  EXPECT_EQ(steps.diary, Diary{});
  EXPECT_TRUE(bringUp.IsDone());
}

TEST(MenuReadiness, TheFiringAfterTheFirstStopsTheTimerAndSendsShowBarOnce) {
  DiarySteps steps;
  MenuBringUp bringUp;
  bringUp.StepReadiness(steps);
  EXPECT_EQ(steps.diary, kWhole);
  steps.diary.clear();
  bringUp.StepReadiness(steps);
  EXPECT_EQ(steps.diary, (Diary{L"stop", L"send \ntshowbar "}));
  steps.diary.clear();
  bringUp.StepReadiness(steps);
  EXPECT_EQ(steps.diary, Diary{L"stop"});
}

TEST(MenuReadiness, WithoutAMenuItReportsThatOnceAndStops) {
  DiarySteps steps;
  steps.menuFound = false;
  MenuBringUp().StepReadiness(steps);
  EXPECT_EQ(steps.diary, (Diary{L"print "
                                L"\n未找到所需的qmn菜单文件!请重新安装奇维软件，或在命令行运行<"
                                L"QMNLOAD>命令加载菜单文件。",
                                L"stop"}));
}

TEST(MenuReadiness, ProductSeventeenDoesNotPrintTheLoadCommand) {
  DiarySteps steps;
  steps.menuFound = false;
  steps.limitedProduct = true;
  MenuBringUp().StepReadiness(steps);
  EXPECT_EQ(steps.diary, (Diary{L"print \n未找到所需的qmn菜单文件!请重新安装奇维软件。", L"stop"}));
}
