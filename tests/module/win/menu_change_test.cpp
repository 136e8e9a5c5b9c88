// The commands that change the menu, on the real module: the file they load, what they print and
// save, and what they do not change.
#include <filesystem>

#include "tests/module/win/module_test.h"

namespace {

namespace fs = std::filesystem;

// A menu that is identified by its first row and its title.
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
    Run(L"");  // texts sent by the start
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

  // True if the palette shows the menu of that name, by its one row.
  static bool Shows(const std::string& name) {
    return Contains(Shell(), "\"label\":\"" + name + "\"");
  }
  std::string Loading(const char* name) const {
    return devhost::Utf8(L"\n加载奇维菜单文件: ") + (Folder() / name).string();
  }
};

}  // namespace

TEST_F(MenuChange, ASourceIsCompiledShownAndSavedWithoutItsExtension) {
  EXPECT_TRUE(Shows("standard")) << Shell();
  Run(L"(TSetMenu \"own.qmn\")\n");
  EXPECT_TRUE(Shows("own")) << Shell();
  EXPECT_TRUE(Contains(Printed(), Loading("own.qmn"))) << Printed();
  EXPECT_TRUE(Exists("own.qmc"));
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), (Folder() / "own").wstring());
}

TEST_F(MenuChange, ACompiledFileIsShownAndItsSourceIsNotRead) {
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

TEST_F(MenuChange, AMissingMenuChangesNothing) {
  for (const wchar_t* call : {L"(TSetMenu \"none.qmn\")\n", L"(TSetMenu 5)\n", L"(TSetMenu)\n"})
    Run(call);
  EXPECT_TRUE(Shows("standard"));
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
  EXPECT_EQ(TextOf(L"Settings", L"Menu"), L"");
}

TEST_F(MenuChange, ReloadReadsTheSavedSourceAgain) {
  Run(L"(TSetMenu \"own.qmn\")\n");
  Write(L"own.qmn", MenuNamed("changed"));
  Run(L"QmnLoad\n");
  EXPECT_TRUE(Shows("changed"));
  EXPECT_FALSE(devhost::TheHost().documents.Current()->lispSymbols.count(L"_PREFIX"));
  ASSERT_TRUE(devhost::TheHost().documents.Current()->lispSymbols.count(L"_QVXATOML"));
  EXPECT_TRUE(devhost::TheHost().documents.Current()->lispSymbols[L"_QVXATOML"].IsNil());
}

TEST_F(MenuChange, ReloadOfAMenuThatWasDeletedResetsTheModesAndStops) {
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

TEST_F(MenuChange, ReloadBySearchTakesACompiledFileWhoseSourceIsGone) {
  Run(L"(TSetMenu \"own.qmn\")\n");
  fs::remove(Folder() / "own.qmn");
  Run(L"(TSetMenu \"qvx.qmn\")\n");
  SetText(L"Settings", L"Menu", (Folder() / "own").wstring());
  StartAnew();
  Run(L"QmnLoad1\n");
  EXPECT_TRUE(Shows("own")) << Shell();
}

// The palette is created again before the menu is read, so nothing of the old one can remain.
TEST_F(MenuChange, AMenuWithoutAScreenBlockLeavesTheNewPaletteEmpty) {
  Write(L"noscreen.qmn",
        "MENU_TITLE = \"x\"\r\n***COMMON\r\n[a]b;\r\n***SWITCH\r\n***RESOURCE\r\n");
  Run(L"(TSetMenu \"noscreen.qmn\")\n");
  EXPECT_TRUE(Contains(Printed(), Loading("noscreen.qmn"))) << Printed();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true"));
  EXPECT_TRUE(Contains(Shell(), "\"rows\":[]")) << Shell();
}

TEST_F(MenuChange, TheIconLibraryOfTheMenuIsLoadedAndFreedWithIt) {
  EXPECT_FALSE(IsMapped(L"own.dll"));
  HostProcess::Get().CopyProductFile(L"qvx.dll");
  fs::rename(Folder() / "qvx.dll", Folder() / "own.dll");
  Run(L"(TSetMenu \"own.qmn\")\n");
  EXPECT_TRUE(IsMapped(L"own.dll"));
  Run(L"(TSetMenu \"qvx.qmn\")\n");
  EXPECT_FALSE(IsMapped(L"own.dll")) << "the other menu has none";
}

TEST_F(MenuChange, RunModeReloadsAndSwitchesBack) {
  Write(L"qvx2d.qmn", MenuNamed("flat"));
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"1");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"2");
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmn"))) << Printed();
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"0");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"0");
}

TEST_F(MenuChange, RunModeWithoutItsFileChangesNothingSilently) {
  Run(L"TSetRunMode\n");
  EXPECT_EQ(KernelSetting(L"g_nRunMode"), L"0");
  EXPECT_EQ(KernelSetting(L"g_iMenuType"), L"0");
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
}

TEST_F(MenuChange, DemonstrationModeTriedTwiceWithoutItsFileStaysOffSilently) {
  Run(L"TSetAviMode\n");
  Run(L"TSetAviMode\n");
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
  // If the mode were on now, the next call would load the standard menu, which exists.
  HostProcess::Get().CopyProductFile(L"qvxavi.qmc");
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Contains(Printed(), Loading("qvxavi.qmc"))) << Printed();
}

TEST_F(MenuChange, DemonstrationModeShowsItsCompiledMenuAndSwitchesBack) {
  HostProcess::Get().CopyProductFile(L"qvxavi.qmc");
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Shows(devhost::Utf8(L"轴网演示"))) << Shell();
  Run(L"TSetAviMode\n");
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmc"))) << Printed();
  EXPECT_TRUE(Shows("standard"));
}

TEST_F(MenuChange, TheExportForSiblingModulesReloadsAsTheCommandDoes) {
  Export<void (*)()>(L"qvx_initstart.arx", "LoadContexMenu")();
  EXPECT_TRUE(Contains(Printed(), Loading("qvx.qmn"))) << Printed();
}
