// Files that the frame and the kernel find along the support path of a host without windows.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "frame/start/first_start.h"
#include "frame/settings/menu_setting.h"
#include "kernel/globals.h"
#include "kernel/kernel_start.h"
#include "kernel/qvxexport.h"
#include "kernel/tadsprintf.h"
#include "tests/doubles/silent_ui.h"

namespace {

namespace fs = std::filesystem;

class SupportPath : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_folder = fs::temp_directory_path() / "qvx_support_path_test";
    fs::create_directories(s_folder);
    devhost::HostOptions options;
    options.major = 16;
    options.minor = 2;
    options.profile = L"测试";
    options.supportPath = {s_folder.wstring()};
    devhost::TheHost().Begin(options, &s_ui, nullptr);
  }
  static void TearDownTestSuite() {
    devhost::TheHost().End();
    fs::remove_all(s_folder);
  }
  void SetUp() override { s_ui.printed.clear(); }
  static void Write(const char* name, const std::string& bytes) {
    std::ofstream(s_folder / name, std::ios::binary) << bytes;
  }

  static SilentUi s_ui;
  static fs::path s_folder;
};
SilentUi SupportPath::s_ui;
fs::path SupportPath::s_folder;

std::vector<std::wstring> FirstStartList() {
  TWCStringList names;
  FindFirstStartModules(names);
  std::vector<std::wstring> out;
  for (int i = 0; i < names.Length(); ++i) out.emplace_back(names[i]);
  return out;
}

using List = std::vector<std::wstring>;

}  // namespace

TEST_F(SupportPath, FindsAFileAndReturnsItsFullPath) {
  Write("here.txt", "x");
  wchar_t path[QvxExport::kPathUnits] = L"untouched";
  EXPECT_EQ(QvxExport::FindFile(L"missing.txt", path), 0);
  EXPECT_STREQ(path, L"untouched");
  EXPECT_EQ(QvxExport::FindFile(L"here.txt", path), 1);
  EXPECT_TRUE(fs::exists(fs::path(path)));
  EXPECT_TRUE(fs::path(path).is_absolute());
  EXPECT_EQ(QvxExport::FindFile(L"here.txt", nullptr), 1);
  EXPECT_EQ(QvxExport::FindFile(L"", path), 0);
}

TEST_F(SupportPath, FindsAFileWhoseNameIsNotInTheLocale) {
  std::ofstream(s_folder / fs::u8path("\u5899\uFFFD.txt"), std::ios::binary) << "x";
  wchar_t path[QvxExport::kPathUnits] = L"";
  EXPECT_EQ(QvxExport::FindFile(L"\u5899\uFFFD.txt", path), 1);
  EXPECT_EQ(std::wstring(path).substr(std::wcslen(path) - 6), L"\u5899\uFFFD.txt");
  EXPECT_EQ(QvxExport::FindFile(L"\u95E8.txt", path), 0);
}

TEST_F(SupportPath, TheFirstStartListReturnsTheNamesThatExistUnchanged) {
  Write("a.arx", "");
  Write("b c.arx", "");
  Write("dmload.rx", "a.arx once\r\n\r\nmissing.arx\r\n   \"b c.arx\" 2\r\n; none\r\na.arx");
  EXPECT_EQ(FirstStartList(), (List{L"a.arx", L"b c.arx", L"a.arx"}));
}

TEST_F(SupportPath, ALongLineOfTheFirstStartListCountsAsSeveral) {
  Write("a.arx", "");
  Write("dmload.rx", std::string(255, 'x') + "a.arx\n");
  EXPECT_EQ(FirstStartList(), List{L"a.arx"});
}

TEST_F(SupportPath, WithoutAFirstStartListThereAreNoNames) {
  fs::remove(s_folder / "dmload.rx");
  EXPECT_EQ(FirstStartList(), List{});
}

TEST_F(SupportPath, TheKernelReadsTheReleaseFromTheHost) {
  StartKernel(L"C:\\QVX\\Sys\\qvx_kernal.arx");
  EXPECT_EQ(g_dHostVersion, 16.2);
  EXPECT_STREQ(QvxGeLib::g_sAppPath, L"C:\\QVX\\Sys\\");
  EXPECT_STREQ(GetRegLocation(), L"Software\\Quivera\\QVX\\R16.2\\QVX-1");
}

TEST_F(SupportPath, TheSavedMenuIsUnderTheHostsProfile) {
  g_dHostVersion = 96.1;
  SaveMenuSetting(L"D:\\菜单\\own");
  TWCString value;
  EXPECT_TRUE(LoadMenuSetting(value));
  EXPECT_STREQ(value, L"D:\\菜单\\own");
  g_dHostVersion = 95.1;
  value = L"kept";
  EXPECT_FALSE(LoadMenuSetting(value));
  EXPECT_STREQ(value, L"kept");
}

TEST_F(SupportPath, PrintingReachesTheCommandLineUnchanged) {
  adsout << L"\n墙宽 100%d: " << 240 << L' ' << 2.5;
  adsout(L"[%ls]", L"完");
  EXPECT_EQ(s_ui.printed, L"\n墙宽 100%d: 240 2.5[完]");
}

TEST_F(SupportPath, NoModuleIsLoadedHere) {
  EXPECT_FALSE(QvxExport::IsArxAppLoaded(L"qvx_kernal"));
  EXPECT_FALSE(QvxExport::IsArxAppLoaded(L""));
}
