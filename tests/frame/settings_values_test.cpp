// The frame's values in the registry: recent commands, the first-start flags. Uses a host release
// number that does not exist.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "frame/start/first_start.h"
#include "frame/settings/recent_commands.h"
#include "kernel/globals.h"
#include "kernel/native_file.h"
#include "kernel/tregproperty.h"
#include "menu/menu_item.h"
#include "tests/doubles/loaded_menu.h"
#ifndef _WIN32
#include "kernel/native/file_store.h"
#endif

namespace {

constexpr double kNobodysRelease = 97.3;

CString RecentText() {
  TRegProperty key(GetRegLocation(), L"Settings");
  CString text(L"(none)");
  key.GetValue(L"RecentCmd", text);
  return text;
}

void SetRecentText(const wchar_t* text) {
  TRegProperty key(GetRegLocation(), L"Settings");
  key.SetValue(L"RecentCmd", text);
}

class FrameValues : public ::testing::Test {
 protected:
  void SetUp() override { g_dHostVersion = kNobodysRelease; }
};

void SetFlag(const wchar_t* name, int value) {
  TRegProperty key(GetRegLocation(), L"InitFlag");
  key.SetTopRootKey(HKEY_LOCAL_MACHINE);
  key.SetValue(name, value);
}

// Deletes the values that earlier tests and runs left in the machine's key.
void ForgetMachineValues() {
#ifdef _WIN32
  CString path(GetRegLocation());
  ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, path + L"\\InitFlag");
#else
  UseSettingsFile(nullptr);
#endif
}

int Flag(const wchar_t* name) {
  TRegProperty key(GetRegLocation(), L"InitFlag");
  key.SetTopRootKey(HKEY_LOCAL_MACHINE);
  int value = -1;
  key.GetValue(name, value);
  return value;
}

}  // namespace

TEST_F(FrameValues, RecentCommandsAreReadBackInTheirOrder) {
  LoadedMenuDouble menu;
  TMenuStack& recent = menu.system.m_recent;
  recent.AddRecent(L"TWall\n");
  recent.AddRecent(L"TDoor ");
  recent.AddRecent(L"(foo)\n");
  SaveRecentCommands();
  EXPECT_STREQ(RecentText().GetString(), L"TWall\n,TDoor ,(foo)\n,");
  LoadedMenuDouble reloaded;
  LoadRecentCommands();
  const TMenuStack& again = reloaded.system.m_recent;
  ASSERT_EQ(again.Length(), 3);
  EXPECT_STREQ(again.At(0)->m_strCommand, L"(foo)\n");
  EXPECT_STREQ(again.At(2)->m_strCommand, L"TWall\n");
}

TEST_F(FrameValues, RecentCommandsWithoutALastCommaLoseTheLast) {
  SetRecentText(L"a,b,c");
  LoadedMenuDouble menu;
  LoadRecentCommands();
  const TMenuStack& recent = menu.system.m_recent;
  ASSERT_EQ(recent.Length(), 2);
  EXPECT_STREQ(recent.At(0)->m_strCommand, L"b");
}

TEST_F(FrameValues, AnEmptyListIsWrittenAsEmptyText) {
  const LoadedMenuDouble empty;
  SaveRecentCommands();
  EXPECT_STREQ(RecentText().GetString(), L"");
}

TEST_F(FrameValues, TheFirstStartOfEachReleaseHappensOnceAndWritesItsOwnValueOnly) {
  const struct {
    double release;
    const wchar_t* name;
  } rows[] = {
      {15.0, L"InitStart15"},   {16.0, L"InitStart16"}, {16.1, L"InitStart16.1"},
      {16.2, L"InitStart16.2"}, {17.0, L"InitStart17"}, {17.1, L"InitStart17.1"},
      {17.2, L"InitStart17.2"}, {18.0, L"InitStart18"}, {18.1, L"InitStart18.1"},
      {18.2, L"InitStart18.2"}, {19.0, L"InitStart19"},
  };
  for (const auto& row : rows) {
    ForgetMachineValues();
    EXPECT_FALSE(HasStartedBefore(row.release)) << row.release;
    for (const auto& other : rows)
      EXPECT_EQ(Flag(other.name), other.name == row.name ? 1 : -1) << row.release;
    EXPECT_EQ(Flag(L"InitStart19.1"), -1) << row.release;
    EXPECT_TRUE(HasStartedBefore(row.release)) << row.release;
  }
}

TEST_F(FrameValues, AValueOfZeroIsAFirstStart) {
  ForgetMachineValues();
  SetFlag(L"InitStart17.2", 0);
  EXPECT_FALSE(HasStartedBefore(17.15));
  EXPECT_EQ(Flag(L"InitStart17.2"), 1);
}

// -1: the value does not exist. If the second one exists, it decides.
TEST_F(FrameValues, AboveNineteenTheSecondValueDecidesIfItExists) {
  for (const int newer : {-1, 0, 1}) {
    for (const int older : {-1, 0, 1}) {
      ForgetMachineValues();
      if (newer >= 0) SetFlag(L"InitStart19.1", newer);
      if (older >= 0) SetFlag(L"InitStart19", older);
      EXPECT_EQ(HasStartedBefore(24.0), older >= 0 ? older == 1 : newer == 1)
          << newer << " " << older;
      EXPECT_EQ(Flag(L"InitStart19.1"), 1);
      EXPECT_EQ(Flag(L"InitStart19"), 1);
    }
  }
}
