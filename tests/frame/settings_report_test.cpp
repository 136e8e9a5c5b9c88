// The report of all settings: a line for each row, with the value and its source.
#include "frame/settings/settings_report.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "frame/settings/settings_index.h"
#include "kernel/globals.h"
#include "kernel/settings.h"
#include "kernel/tregproperty.h"
#include "tests/doubles/silent_ui.h"

namespace {

namespace fs = std::filesystem;

class Report : public ::testing::Test {
 protected:
  void SetUp() override {
    s_folder = fs::temp_directory_path() / "qvx_settings_report_test";
    fs::remove_all(s_folder);
    fs::create_directories(s_folder);
    devhost::HostOptions options;
    options.profile = L"report";
    options.supportPath = {s_folder.wstring()};
    devhost::TheHost().Begin(options, &m_ui, nullptr);
    // Each test uses a release of its own, so that no stored values exist.
    static double s_release = 60;
    g_dHostVersion = s_release += 0.1;
#ifdef _WIN32
    ::RegDeleteTreeW(HKEY_CURRENT_USER, GetRegLocation());
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, GetRegLocation());
#endif
    LoadSettings();
  }
  void TearDown() override {
    devhost::TheHost().End();
    fs::remove_all(s_folder);
    ResetSettings();
  }
  static void Write(const char* name, const std::string& bytes) {
    std::ofstream(s_folder / name, std::ios::binary) << bytes;
  }

  SilentUi m_ui;
  static fs::path s_folder;
};
fs::path Report::s_folder;

// The report's line with that beginning; empty if there is none.
std::string LineOf(const std::string& begin) {
  std::istringstream lines(SettingsReport());
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(begin)) return line;
  return "";
}

bool Has(const std::string& line, const std::string& part) { return line.find(part) != line.npos; }

void SetUser(const wchar_t* folder, const wchar_t* name, const wchar_t* text) {
  TRegProperty key(GetRegLocation(), folder);
  key.SetTopRootKey(HKEY_CURRENT_USER);
  key.SetValue(name, text);
}

void SetFlag(const wchar_t* name, int value) {
  TRegProperty key(GetRegLocation(), L"InitFlag");
  key.SetTopRootKey(HKEY_LOCAL_MACHINE);
  key.SetValue(name, value);
}

}  // namespace

TEST_F(Report, HasALineForEveryRowOfTheIndex) {
  int count = 0;
  SettingsIndex(&count);
  const std::string report = SettingsReport();
  std::istringstream lines(report);
  int rows = 0;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("  ")) continue;
    ++rows;
    EXPECT_TRUE(Has(line, "  [") && Has(line, "]  ") && Has(line, "  -- ")) << line;
  }
  EXPECT_EQ(rows, count);
  EXPECT_EQ(report, SettingsReport()) << "the same settings, the same text";
}

TEST_F(Report, AMissingValueShowsItsDefault) {
  EXPECT_EQ(
      LineOf("  Settings\\ScreenMenu\\SizeX ="),
      "  Settings\\ScreenMenu\\SizeX = 76  [default]  default: 76  -- width of the screen menu "
      "in pixels");
  EXPECT_EQ(LineOf("  g_nSpeedMenu = ").substr(0, 31), "  g_nSpeedMenu = 3  [default]  ");
}

TEST_F(Report, AStoredValueShowsThatItIsInTheRegistry) {
  SetUser(L"Settings\\ScreenMenu", L"SizeX", L"120");
  SetUser(L"Settings", L"g_nSpeedMenu", L"1");
  SetUser(L"report", L"Menu", L"D:\\\x56FE\\own");
  LoadSettings();
  EXPECT_TRUE(Has(LineOf("  Settings\\ScreenMenu\\SizeX ="), "= 120  [registry]  default: 76"));
  EXPECT_TRUE(Has(LineOf("  g_nSpeedMenu ="), "= 1  [registry]  default: 3"));
  EXPECT_TRUE(Has(LineOf("  report\\Menu ="), "= D:\\\xE5\x9B\xBE\\own  [registry]"));
}

TEST_F(Report, AValueOfTheWrongTypeIsReportedWithTheDefault) {
  SetUser(L"Settings\\ScreenMenu", L"SizeX", L"wide");
  SetUser(L"Settings", L"g_nSpeedMenu", L"often");
  LoadSettings();
  EXPECT_TRUE(Has(LineOf("  Settings\\ScreenMenu\\SizeX ="),
                  "= 76  [default, the registry's value is of the wrong form]"));
  EXPECT_TRUE(Has(LineOf("  g_nSpeedMenu ="), "= 3  [this run, the registry has another value]"));
}

TEST_F(Report, TheProductFileIsNamedAndRead) {
  EXPECT_TRUE(Has(LineOf("product file qvx.ini:"), "not found  warning"));
  EXPECT_TRUE(Has(LineOf("  Title ="), "=   [default]"));
  Write("qvx.ini", "[Product]\nTitle=\xC6\xE6\xCE\xAC\n");
  EXPECT_FALSE(Has(LineOf("product file qvx.ini:"), "warning"));
  EXPECT_TRUE(Has(LineOf("  Title ="), "= \xE5\xA5\x87\xE7\xBB\xB4  [qvx.ini]"));
}

TEST_F(Report, NamesTheFlagThatSuppressesTheFirstStartList) {
  EXPECT_TRUE(Has(LineOf("first-start list"), "processed at the next start, no value"));
  SetFlag(L"InitStart19.1", 1);
  EXPECT_TRUE(Has(LineOf("first-start list"), "stopped by InitStart19.1 = 1"));
  SetFlag(L"InitStart19", 0);
  EXPECT_TRUE(Has(LineOf("first-start list"), "processed at the next start, InitStart19 is 0"));
  SetFlag(L"InitStart19", 1);
  EXPECT_TRUE(Has(LineOf("first-start list"), "stopped by InitStart19 = 1"));
  g_nCustomFlag = 0x08;
  EXPECT_TRUE(Has(LineOf("first-start list"), "left out by bit 0x08"));
}

TEST_F(Report, WarnsOfATipFileWithoutTips) {
  EXPECT_TRUE(Has(LineOf("tip file"), "not found"));
  Write("qvxtips.txt", "; a\n\n\tb\n c\n");
  EXPECT_TRUE(Has(LineOf("tip file"), "warning: it has no tip"));
  Write("qvxtips.txt", "; a\ntip\n");
  EXPECT_FALSE(Has(LineOf("tip file"), "warning"));
}

TEST_F(Report, ALineEndInAValueDoesNotBreakItsLine) {
  SetUser(L"Settings", L"RecentCmd", L"TWall\n,");
  EXPECT_TRUE(Has(LineOf("  Settings\\RecentCmd ="), "= TWall ,  [registry]"));
}
