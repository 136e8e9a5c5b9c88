// The settings table and its values in the registry. Uses the number of a release that does not
// exist, so that real settings in the registry are not changed.
#include "kernel/settings.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "qvx_version.h"
#ifndef _WIN32
#include "kernel/native/file_store.h"
#include <cstdio>
#endif

namespace {

constexpr double kNobodysRelease = 98.7;

class KernelSettings : public ::testing::Test {
 protected:
  void SetUp() override {
    g_dHostVersion = kNobodysRelease;
    ResetAll();
    SaveGlobalToReg();
  }
  void TearDown() override { ResetAll(); }
  static void ResetAll() {
    ResetSettings();
    g_dHostVersion = kNobodysRelease;
  }
};

std::wstring Get(const wchar_t* name) {
  wchar_t text[600];
  return QvxGetSetting(name, text, 600) ? text : L"(unknown)";
}

}  // namespace

TEST_F(KernelSettings, EveryRowHasANameAMeaningAndADefaultThatReadsBack) {
  int count = 0;
  const Setting* all = Settings(&count);
  EXPECT_EQ(count, 37);
  std::set<std::wstring> names;
  for (const Setting* s = all; s != all + count; ++s) {
    EXPECT_TRUE(names.insert(s->name).second);
    EXPECT_GT(std::wstring(s->meaning).size(), 5u);
    EXPECT_NE(s->data, nullptr);
    if (s->type == SettingType::kHandle) continue;
    const bool isArray = s->type == SettingType::kColor && s->count > 1;
    const std::wstring name = isArray ? std::wstring(s->name) + L"[0]" : s->name;
    const std::wstring text = Get(name.c_str());
    EXPECT_EQ(QvxSetSetting(name.c_str(), text.c_str()), 1);
    EXPECT_EQ(Get(name.c_str()), text);
  }
}

TEST_F(KernelSettings, DefaultsAreTheOnesAUserStartsWith) {
  EXPECT_EQ(g_nSpeedMenu, 3);
  EXPECT_EQ(g_nRBtnMenuTime, 250);
  EXPECT_EQ(g_nProductId, 1);
  EXPECT_EQ(g_nVersion, std::stod(QVX_VERSION));
  EXPECT_EQ(g_iMenuRowHeight, 25);
  EXPECT_EQ(g_menuColors[0], 0xF7F3EEu);
  EXPECT_EQ(g_menuColors[3], 0xDCC6ACu);
  EXPECT_EQ(g_hQvxDll, nullptr);
}

TEST_F(KernelSettings, AreSetAndReadByName) {
  EXPECT_EQ(QvxSetSetting(L"g_nSpeedMenu", L"1"), 1);
  EXPECT_EQ(g_nSpeedMenu, 1);
  EXPECT_EQ(QvxSetSetting(L"g_menuColors[2]", L"0x123456"), 1);
  EXPECT_EQ(g_menuColors[2], 0x123456u);
  EXPECT_EQ(QvxSetSetting(L"g_nVersion", L"6.5"), 1);
  EXPECT_EQ(g_nVersion, 6.5);
  EXPECT_EQ(QvxSetSetting(L"g_sRecentFiles", L"a.dwg,b.dwg,"), 1);
  EXPECT_EQ(Get(L"g_sRecentFiles"), L"a.dwg,b.dwg,");
  EXPECT_EQ(QvxSetSetting(L"g_szInitCmdStr", L"TWall\n"), 1);
  EXPECT_STREQ(g_szInitCmdStr, L"TWall\n");
  EXPECT_EQ(Get(L"g_nVersion"), L"6.5");
  EXPECT_EQ(Get(L"g_iMaxDynDimNum"), L"2");
}

TEST_F(KernelSettings, RefuseUnknownNamesAndValuesOfTheWrongForm) {
  EXPECT_EQ(QvxSetSetting(L"g_nothing", L"1"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_nSpeedMenu", L"two"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_nSpeedMenu", L""), 0);
  EXPECT_EQ(QvxSetSetting(L"g_nSpeedMenu", L"99999999999"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_nSpeedMenu[1]", L"1"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_menuColors[4]", L"1"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_menuColors[", L"1"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_hQvxDll", L"1"), 0);
  EXPECT_EQ(QvxSetSetting(L"g_szFileNameToOpen", std::wstring(260, L'x').c_str()), 0);
  EXPECT_EQ(g_nSpeedMenu, 3);
  EXPECT_EQ(Get(L"g_nothing"), L"(unknown)");
}

TEST_F(KernelSettings, AreUnchangedBySavingAndLoading) {
  g_nSpeedMenu = 0;
  g_menuColors[1] = 0xABCDEF;
  g_sRecentFiles = L"C:\\图\\一层.dwg,";
  QvxGeLib::g_bDynInput = 0;
  g_nVersion = 6.9;
  g_bShiftToggle = 1;
  SaveGlobalToReg();
  ResetAll();
  LoadSettings();
  EXPECT_EQ(g_nSpeedMenu, 0);
  EXPECT_EQ(g_menuColors[1], 0xABCDEFu);
  EXPECT_STREQ(g_sRecentFiles.GetString(), L"C:\\图\\一层.dwg,");
  EXPECT_EQ(QvxGeLib::g_bDynInput, 0);
  EXPECT_EQ(g_nVersion, 6.9);
  EXPECT_EQ(g_bShiftToggle, 0) << "of one run only";
  EXPECT_EQ(g_dHostVersion, kNobodysRelease);
}

TEST_F(KernelSettings, EachReleaseAndEachProductHasItsOwnPlace) {
  const std::wstring here = GetRegLocation();
  g_nProductId = 17;
  const std::wstring product = GetRegLocation();
  g_nProductId = 1;
  g_dHostVersion = 16.1;
  const std::wstring release = GetRegLocation();
  EXPECT_EQ(here, L"Software\\Quivera\\QVX\\R98.7\\QVX-1");
  EXPECT_EQ(product, L"Software\\Quivera\\QVX\\R98.7\\QVX-17");
  EXPECT_EQ(release, L"Software\\Quivera\\QVX\\R16.1\\QVX-1");
}

TEST_F(KernelSettings, TheProductIsRememberedOutsideItsOwnPlace) {
  g_nProductId = 17;
  g_nSpeedMenu = 1;
  SaveGlobalToReg();
  ResetAll();
  LoadSettings();
  EXPECT_EQ(g_nProductId, 17);
  EXPECT_EQ(g_nSpeedMenu, 1);
  g_nProductId = 1;
  SaveGlobalToReg();
}

TEST(HostRelease, IsReadFromTheHostsVersionText) {
  EXPECT_EQ(ReleaseOfVersionText(L"24.0s (LMS Tech)"), 24.0);
  EXPECT_EQ(ReleaseOfVersionText(L"16.1"), 16.1);
  EXPECT_EQ(ReleaseOfVersionText(L"x"), 0);
  EXPECT_EQ(ReleaseOfVersionText(nullptr), 0);
}

TEST_F(KernelSettings, AMissingValueLeavesTheCallersVariable) {
  TRegProperty key(GetRegLocation(), L"Settings\\NoSuchFolder");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  int number = 76;
  CString text(L"default");
  bool exists = true;
  EXPECT_FALSE(key.GetValue(L"SizeX", number));
  EXPECT_FALSE(key.GetValue(L"Menu", text, &exists));
  EXPECT_EQ(number, 76);
  EXPECT_STREQ(text.GetString(), L"default");
  EXPECT_FALSE(exists);
}

TEST_F(KernelSettings, ValuesKeepTheirKindAndIgnoreCase) {
  TRegProperty key(GetRegLocation(), L"Settings\\Test");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  EXPECT_TRUE(key.SetValue(L"Number", -5));
  EXPECT_TRUE(key.SetValue(L"Text", L"墙\t一,\n"));
  EXPECT_TRUE(key.SetValue(L"Digits", L"42"));
  TRegProperty again(GetRegLocation(), L"settings\\TEST");
  int number = 0;
  CString text;
  bool exists = false;
  EXPECT_TRUE(again.GetValue(L"number", number));
  EXPECT_EQ(number, -5);
  EXPECT_TRUE(again.GetValue(L"TEXT", text));
  EXPECT_STREQ(text.GetString(), L"墙\t一,\n");
  EXPECT_TRUE(again.GetValue(L"Digits", number));
  EXPECT_EQ(number, 42);
  EXPECT_FALSE(again.GetValue(L"Text", number));
  EXPECT_FALSE(again.GetValue(L"Number", text, &exists));
  EXPECT_TRUE(exists);
}

TEST_F(KernelSettings, PathAndFolderAreJoinedOnce) {
  EXPECT_STREQ(TRegProperty(L"A", L"B\\C").KeyPath().GetString(), L"A\\B\\C");
  EXPECT_STREQ(TRegProperty(L"A\\", L"B").KeyPath().GetString(), L"A\\B");
  EXPECT_STREQ(TRegProperty(L"A", L"").KeyPath().GetString(), L"A");
  EXPECT_STREQ(TRegProperty(L"", L"B").KeyPath().GetString(), L"B");
}

#ifndef _WIN32
TEST(SettingsFile, KeepsValuesBetweenRuns) {
  const std::string path = ::testing::TempDir() + "qvx_settings_test.txt";
  std::remove(path.c_str());
  UseSettingsFile(path.c_str());
  TRegProperty key(L"Software\\测试", L"A");
  key.SetValue(L"Text", L"tab\there\nand \\ 中文");
  key.SetValue(L"Number", 7);
  UseSettingsFile(path.c_str());
  CString text;
  int number = 0;
  EXPECT_TRUE(key.GetValue(L"Text", text));
  EXPECT_STREQ(text.GetString(), L"tab\there\nand \\ 中文");
  EXPECT_TRUE(key.GetValue(L"Number", number));
  EXPECT_EQ(number, 7);
  UseSettingsFile(nullptr);
  EXPECT_FALSE(key.GetValue(L"Number", number));
  std::remove(path.c_str());
}

TEST(SettingsFile, TheMachineRootCanRefuseWrites) {
  TRegProperty key(L"Software\\X", L"");
  key.SetTopRootKey(HKEY_LOCAL_MACHINE);
  RefuseSettingsWrites(true);
  EXPECT_FALSE(key.SetValue(L"V", 1));
  RefuseSettingsWrites(false);
  EXPECT_TRUE(key.SetValue(L"V", 1));
}
#endif
