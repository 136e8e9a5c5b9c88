// The module and the kernel, loaded and unloaded by the real linker of the host, again and again in
// one process. The kernel is not linked here, so that it can really go.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "accmd.h"
#include "devhost/core/host.h"
#include "rxregsvc.h"
#include "tests/module/host_process.h"

namespace {

bool IsMapped(const wchar_t* file) { return ::GetModuleHandleW(file) != nullptr; }

int ModuleCommands() {
  const auto& all = devhost::TheHost().commands.All();
  return static_cast<int>(std::count_if(
      all.begin(), all.end(),
      [](const devhost::Command& command) { return command.group == L"QVX_INITSTART"; }));
}

template <class Function>
Function Export(const wchar_t* file, const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(file), name)));
}

std::string Shell() {
  const auto describe = Export<const char* (*)()>(L"qvx_initstart.arx", "QvxDescribeShell");
  return describe ? describe() : "(none)";
}

bool Contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

constexpr wchar_t kProductKey[] = L"Software\\Quivera\\QVX\\R24.0\\QVX-1";

void SetNumber(const wchar_t* folder, const wchar_t* name, DWORD value) {
  const std::wstring key = std::wstring(kProductKey) + L"\\" + folder;
  ::RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name, REG_DWORD, &value, sizeof value);
}

DWORD NumberOf(const wchar_t* folder, const wchar_t* name) {
  const std::wstring key = std::wstring(kProductKey) + L"\\" + folder;
  DWORD value = 0, size = sizeof value;
  ::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &value, &size);
  return value;
}

bool LoadModule() { return acrxLoadModule(L"qvx_initstart.arx", true); }
bool UnloadModule() { return acrxUnloadModule(L"qvx_initstart.arx"); }

class Module : public ::testing::Test {
 protected:
  void SetUp() override {
    HostProcess::Get().Write(L"qvx.qmn",
                             "MENU_TITLE = \"T\"\r\n***SCREEN\r\n[A]^C^CTWall;\r\n[->B]\r\n"
                             "[<-C]^C^CTDoor;\r\n[D]^C^CTWindow;\r\n");
  }
  void TearDown() override { UnloadModule(); }
};

}  // namespace

TEST_F(Module, LoadsUnloadsAndLoadsAgainInOneProcess) {
  const int windowsBefore = HostProcess::Get().ChildWindows();
  for (int round = 0; round < 5; ++round) {
    ASSERT_TRUE(LoadModule()) << round;
    EXPECT_TRUE(IsMapped(L"qvx_initstart.arx"));
    EXPECT_TRUE(IsMapped(L"qvx_kernal.arx"));
    EXPECT_EQ(ModuleCommands(), 14);
    EXPECT_TRUE(HostProcess::Get().FireTimer(20));
    EXPECT_TRUE(HostProcess::Get().FireTimer(20));
    EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << Shell();
    ASSERT_TRUE(UnloadModule()) << round;
    EXPECT_FALSE(IsMapped(L"qvx_initstart.arx"));
    EXPECT_FALSE(IsMapped(L"qvx_kernal.arx"));
    EXPECT_EQ(ModuleCommands(), 0);
    EXPECT_EQ(HostProcess::Get().ContextWindow(), nullptr);
    EXPECT_EQ(HostProcess::Get().ChildWindows(), windowsBefore) << round;
  }
}

TEST_F(Module, ExportsWhatSiblingModulesCall) {
  ASSERT_TRUE(LoadModule());
  for (const char* name :
       {"acrxEntryPoint", "acrxGetApiVersion", "ShowScreenMenu", "IsScreenMenuVisible",
        "GetScreenMenuWidth", "HideTabBar", "UpdateStatusBar", "LoadContexMenu", "LoadMenuForSun",
        "QvxDescribeShell"})
    EXPECT_NE(::GetProcAddress(::GetModuleHandleW(L"qvx_initstart.arx"), name), nullptr) << name;
}

TEST_F(Module, LoadMenuForSunBringsThePaletteUpAtOnce) {
  ASSERT_TRUE(LoadModule());
  EXPECT_TRUE(Contains(Shell(), "\"exists\":false")) << Shell();
  Export<void (*)()>(L"qvx_initstart.arx", "LoadMenuForSun")();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << Shell();
  EXPECT_EQ(Export<int (*)()>(L"qvx_initstart.arx", "IsScreenMenuVisible")(), 1);
}

TEST_F(Module, AnyProductNumberOfTheRegistryBringsThePaletteUp) {
  const wchar_t kRelease[] = L"Software\\Quivera\\QVX\\R24.0";
  for (const int product : {0, 12, 17, 2000000000, -2000000000}) {
    const std::wstring own = kRelease + (L"\\QVX-" + std::to_wstring(product));
    const int noTips = 2;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, (own + L"\\Settings").c_str(), L"g_nCustomFlag", REG_DWORD,
                      &noTips, sizeof noTips);
    ::RegSetKeyValueW(HKEY_CURRENT_USER, kRelease, L"g_nProductId", REG_DWORD, &product,
                      sizeof product);
    ASSERT_TRUE(LoadModule()) << product;
    Export<void (*)()>(L"qvx_initstart.arx", "LoadMenuForSun")();
    EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << product;
    ASSERT_TRUE(UnloadModule()) << product;
    ::RegDeleteTreeW(HKEY_CURRENT_USER, own.c_str());
  }
  ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kRelease, L"g_nProductId");
}

TEST_F(Module, SetsTheFramesTitleFromTheProductFile) {
  HostProcess::Get().Write(L"qvx.ini", "[Product]\nTitle=Test Product\n");
  HostProcess::Get().Frame().SetWindowText(L"AutoCAD 2021 - [a.dxf]");
  ASSERT_TRUE(LoadModule());
  CString title;
  HostProcess::Get().Frame().GetWindowText(title);
  EXPECT_STREQ(title.GetString(), L"Test Product For AutoCAD 2021");
  HostProcess::Get().Remove(L"qvx.ini");
}

// A dialog would wait for ever here.
TEST_F(Module, StartsWithoutTheTipThatTheUserTurnedOffAndMovesOnByOne) {
  HostProcess::Get().Write(L"qvxtips.txt", "one\r\ntwo\r\n");
  SetNumber(L"Settings", L"g_nCustomFlag", 0);
  SetNumber(L"Tips", L"StartUp", 0);
  SetNumber(L"Tips", L"Indicator", 0);
  EXPECT_TRUE(LoadModule());
  EXPECT_EQ(NumberOf(L"Tips", L"Indicator"), 5u);
  UnloadModule();
  EXPECT_TRUE(LoadModule());
  EXPECT_EQ(NumberOf(L"Tips", L"Indicator"), 10u);
  UnloadModule();
  SetNumber(L"Settings", L"g_nCustomFlag", 2);
  EXPECT_TRUE(LoadModule());
  EXPECT_EQ(NumberOf(L"Tips", L"Indicator"), 10u) << "the custom flag leaves the tips alone";
  SetNumber(L"Tips", L"StartUp", 1);
  HostProcess::Get().Remove(L"qvxtips.txt");
}

TEST_F(Module, ListsWhatHasNoRoomYetAndCountsItsCalls) {
  ASSERT_TRUE(LoadModule());
  EXPECT_TRUE(Contains(Shell(), "{\"name\":\"CreateDocTabBar\",\"room\":\"doctabs\",\"calls\":1}"))
      << Shell();
  EXPECT_TRUE(Contains(Shell(), "\"tabs\":null"));
}

TEST_F(Module, TheContextWindowIsAHiddenChildOfTheFrame) {
  ASSERT_TRUE(LoadModule());
  const HWND window = HostProcess::Get().ContextWindow();
  ASSERT_NE(window, nullptr);
  RECT place;
  ::GetWindowRect(window, &place);
  EXPECT_EQ(place.right - place.left, 0);
  EXPECT_EQ(place.bottom - place.top, 0);
}
