// The commands that change the menu, on the real module: which file they take, what they print and
// remember, and what they leave as it was.
#include <filesystem>

#include "tests/module/win/module_test.h"

namespace {

namespace fs = std::filesystem;

// A menu whose first row and title tell which it is.
std::string MenuNamed(const std::string& name) {
  return "MENU_TITLE = \"" + name + "\"\r\n***SCREEN\r\n[" + name +
         "]^C^CTWall;\r\n***SWITCH\r\n***RESOURCE\r\n";
}

constexpr const char* kFiles[] = {"own.qmn",      "own.qmc", "other.qmn",  "other.qmc",
                                  "qvx2d.qmn",    "qvx.qmc", "qvxavi.qmc", "noscreen.qmn",
                                  "noscreen.qmc", "own.dll", "qvx.dll",    "qvx2d.qmc"};

class MenuChange : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    Clean();
    Write(L"qvx.qmn", MenuNamed("standard"));
    Write(L"own.qmn", MenuNamed("own"));
    devhost::TheHost().documents.New();
    ASSERT_TRUE(LoadModule());
    BringUp();
    Run(L"");  // what the start itself sent
    StartAnew();
  }
  void TearDown() override {
    Module::TearDown();
    Clean();
  }
  static void Clean() {
    for (const char* name : kFiles) fs::remove(Folder() / name);
    for (const wchar_t* name : {L"g_nRunMode", L"g_iMenuType", L"Menu"}) Forget(L"Settings", name);
  }
  static fs::path Folder() { return HostProcess::Get().Folder(); }
  static void Write(const wchar_t* name, const std::string& bytes) {
    HostProcess::Get().Write(name, bytes);
  }
  static bool Exists(const char* name) { return fs::exists(Folder() / name); }

  // Whether the palette shows the menu of that name, by its one row.
  static bool Shows(const std::string& name) {
    return Contains(Shell(), "\"label\":\"" + name + "\"");
  }
  std::string Loading(const char* name) const {
    return devhost::Utf8(L"\n加载奇维菜单文件: ") + (Folder() / name).string();
  }
};

}  // namespace

TEST_F(MenuChange, ASourceIsCompiledShownAndRememberedWithoutItsExtension) {
  EXPECT_TRUE(Shows("standard")) << Shell();
  Run(L"(TSetMenu \"own.qmn\")\n");
  EXPECT_TRUE(Shows("own")) << Shell();
  EXPECT_TRUE(Contains(Printed(), Loading("own.qmn"))) << Printed();
  EXPECT_TRUE(Exists("own.qmc"));
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), (Folder() / "own").wstring());
}

TEST_F(MenuChange, ACompiledFileIsShownAndItsSourceNotTouched) {
  Run(L"(TSetMenu \"own.qmn\")\n");
  Write(L"own.qmn", "this is no menu");
  Run(L"(TSetMenu \"qvx.qmn\")\n");
  const auto compiled = fs::last_write_time(Folder() / "own.qmc");
  StartAnew();
  Run(L"(TSetMenu \"own.QMC\")\n");
  EXPECT_TRUE(Shows("own")) << Shell();
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"语法错误"))) << Printed();
  EXPECT_EQ(fs::last_write_time(Folder() / "own.qmc"), compiled);
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), (Folder() / "own").wstring());
}

TEST_F(MenuChange, AMenuThatIsNotThereChangesNothing) {
  for (const wchar_t* call : {L"(TSetMenu \"none.qmn\")\n", L"(TSetMenu 5)\n", L"(TSetMenu)\n"})
    Run(call);
  EXPECT_TRUE(Shows("standard"));
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), L"");
}

TEST_F(MenuChange, ReloadTakesTheRememberedSourceAsItIsNow) {
  Run(L"(TSetMenu \"own.qmn\")\n");
  Write(L"own.qmn", MenuNamed("changed"));
  Run(L"QmnLoad\n");
  EXPECT_TRUE(Shows("changed"));
  EXPECT_FALSE(devhost::TheHost().documents.Current()->lispSymbols.count(L"_PREFIX"));
  ASSERT_TRUE(devhost::TheHost().documents.Current()->lispSymbols.count(L"_QVXATOML"));
  EXPECT_TRUE(devhost::TheHost().documents.Current()->lispSymbols[L"_QVXATOML"].IsNil());
}

TEST_F(MenuChange, ReloadOfAMenuThatIsGoneResetsTheModesAndStops) {
  SetText(L"Settings", L"Menu", L"C:\\gone\\menu");
  SetKernelSetting(L"g_nRunMode", L"1");
  SetKernelSetting(L"g_iMenuType", L"2");
  Run(L"QmnLoad\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"0");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"0");
  EXPECT_TRUE(Shows("standard"));
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
}

TEST_F(MenuChange, ReloadBySearchFallsBackToTheStandardMenu) {
  SetText(L"Settings", L"Menu", L"C:\\gone\\menu");
  Run(L"QmnLoad1\n");
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmn"))) << Printed();
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), L"C:\\gone\\menu") << "only TSetMenu writes it";
}

// The palette is made anew before the menu is read, so that nothing of the old one is there to
// stay.
TEST_F(MenuChange, AMenuWithoutAScreenBlockLeavesTheNewPaletteAsItCame) {
  Write(L"noscreen.qmn",
        "MENU_TITLE = \"x\"\r\n***COMMON\r\n[a]b;\r\n***SWITCH\r\n***RESOURCE\r\n");
  Run(L"(TSetMenu \"noscreen.qmn\")\n");
  EXPECT_TRUE(Contains(Printed(), Loading("noscreen.qmn"))) << Printed();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true"));
  EXPECT_TRUE(Contains(Shell(), "\"rows\":[]")) << Shell();
}

TEST_F(MenuChange, TheIconLibraryOfTheMenuComesAndGoesWithIt) {
  EXPECT_FALSE(IsMapped(L"own.dll"));
  HostProcess::Get().CopyProductFile(L"qvx.dll");
  fs::rename(Folder() / "qvx.dll", Folder() / "own.dll");
  Run(L"(TSetMenu \"own.qmn\")\n");
  EXPECT_TRUE(IsMapped(L"own.dll"));
  Run(L"(TSetMenu \"qvx.qmn\")\n");
  EXPECT_FALSE(IsMapped(L"own.dll")) << "the other menu has none";
}

TEST_F(MenuChange, RunModeReloadsAndGoesBack) {
  Write(L"qvx2d.qmn", MenuNamed("flat"));
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"1");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"2");
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmn"))) << Printed();
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"0");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"0");
}

TEST_F(MenuChange, RunModeWithoutItsFileChangesNothingInSilence) {
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"0");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"0");
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
}

TEST_F(MenuChange, DemonstrationModeTriedTwiceWithoutItsFileStaysOffInSilence) {
  Run(L"TSetAviMode\n");
  Run(L"TSetAviMode\n");
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
  // Were the mode on now, the next call would look for the standard menu, which is there.
  HostProcess::Get().CopyProductFile(L"qvxavi.qmc");
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Contains(Printed(), Loading("qvxavi.qmc"))) << Printed();
}

TEST_F(MenuChange, DemonstrationModeShowsItsCompiledMenuAndGoesBack) {
  HostProcess::Get().CopyProductFile(L"qvxavi.qmc");
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Shows(devhost::Utf8(L"轴网演示"))) << Shell();
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmc"))) << Printed();
  EXPECT_TRUE(Shows("standard"));
}

TEST_F(MenuChange, WhatSiblingModulesCallReloadsAsTheCommandDoes) {
  Export<void (*)()>(L"qvx_initstart.arx", "LoadContexMenu")();
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmn"))) << Printed();
}
