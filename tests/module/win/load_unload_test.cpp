// The module and the kernel, loaded and unloaded repeatedly by the host's real linker in one
// process. The kernel is not linked here, so that it is really unloaded.
#include "tests/module/win/module_test.h"

#include <string>

#include "devhost/ui/messages/message_pump.h"
#include "rxregsvc.h"

namespace {

BOOL CALLBACK CountTopWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

// Top-level windows of the process, shown or not: frames, tool tips and message boxes.
int TopWindows() {
  int count = 0;
  ::EnumThreadWindows(::GetCurrentThreadId(), CountTopWindow, reinterpret_cast<LPARAM>(&count));
  return count;
}

int LispFunctions() {
  int count = 0;
  for (const auto& document : devhost::TheHost().documents.All())
    count += static_cast<int>(document->lispFunctions.size());
  return count;
}

std::wstring PathOfModule() {
  wchar_t path[512] = L"";
  ::GetModuleFileNameW(::GetModuleHandleW(L"qvx_initstart.arx"), path, 512);
  return path;
}

// Everything that would still call an unloaded module: messages through the filters, and each
// notification of the document manager.
void UseTheHost() {
  MSG message{};
  message.message = WM_NULL;
  message.hwnd = HostProcess::Get().Frame().m_hWnd;
  devhost::ThePump().Process(&message);
  auto& documents = devhost::TheHost().documents;
  devhost::Document* before = documents.Current();
  devhost::Document* made = documents.New();
  if (before) documents.Activate(before);
  documents.Close(made);
}

}  // namespace

TEST_F(Module, LoadsUnloadsAndLoadsAgainInOneProcess) {
  HostProcess::Get().CopyProductFile(L"qvx.dll");
  devhost::TheHost().documents.New();
  const int windows = HostProcess::Get().ChildWindows(), tops = TopWindows(), panes = Panes();
  for (int round = 0; round < 5; ++round) {
    SCOPED_TRACE(round);
    ASSERT_TRUE(LoadModule());
    EXPECT_TRUE(IsMapped(L"qvx_initstart.arx"));
    EXPECT_TRUE(IsMapped(L"qvx_kernal.arx"));
    EXPECT_TRUE(IsMapped(L"qvx.dll"));
    EXPECT_EQ(ModuleCommands(), 14);
    EXPECT_EQ(LispFunctions(), 6);
    BringUp();
    EXPECT_TRUE(Contains(Shell(), "\"label\":\"D\"")) << Shell();
    UseTheHost();
    ASSERT_TRUE(UnloadModule());
    EXPECT_FALSE(IsMapped(L"qvx_initstart.arx"));
    EXPECT_FALSE(IsMapped(L"qvx_kernal.arx"));
    EXPECT_FALSE(IsMapped(L"qvx.dll"));
    EXPECT_EQ(ModuleCommands(), 0);
    EXPECT_EQ(LispFunctions(), 0);
    EXPECT_EQ(HostProcess::Get().ContextWindow(), nullptr);
    EXPECT_EQ(HostProcess::Get().ChildWindows(), windows);
    EXPECT_EQ(TopWindows(), tops);
    EXPECT_EQ(Panes(), panes);
    UseTheHost();
  }
  HostProcess::Get().Remove(L"qvx.dll");
}

// The test's own reference keeps the library in memory, so that the handle counts can be read after
// the unload, and the next load finds the state that the last one left.
TEST_F(Module, LeaksNoHandleAndLoadsAgainWhereItStayedInMemory) {
  for (int round = 0; round < 3; ++round) {
    SCOPED_TRACE(round);
    ASSERT_TRUE(LoadModule());
    const HMODULE held = ::LoadLibraryW(PathOfModule().c_str());
    ASSERT_NE(held, nullptr);
    BringUp();
    EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << Shell();
    EXPECT_FALSE(Contains(Shell(), "\"handles\":0,")) << "the palette has fonts and brushes";
    ASSERT_TRUE(UnloadModule());
    EXPECT_TRUE(Contains(Shell(), "\"handles\":0,")) << Shell();
    EXPECT_TRUE(Contains(Shell(), "\"exists\":false")) << Shell();
    EXPECT_TRUE(Contains(Shell(), "\"recent\":[]")) << Shell();
    ::FreeLibrary(held);
  }
  EXPECT_FALSE(IsMapped(L"qvx_initstart.arx"));
}

// The host itself removes a module's commands at its unload. Here only the module gets the unload
// message, so that whatever it does not remove would be left.
TEST_F(Module, RemovesItsRegistrationsItself) {
  HostProcess::Get().CopyProductFile(L"qvx.dll");
  devhost::TheHost().documents.New();
  const int windows = HostProcess::Get().ChildWindows(), tops = TopWindows(), panes = Panes();
  ASSERT_TRUE(LoadModule());
  BringUp();
  EXPECT_EQ(ModuleCommands(), 14);
  EXPECT_GT(Panes(), panes);
  const auto entry = Export<int (*)(int, void*)>(L"qvx_initstart.arx", "acrxEntryPoint");
  EXPECT_EQ(entry(AcRx::kUnloadAppMsg, nullptr), AcRx::kRetOK);
  EXPECT_EQ(ModuleCommands(), 0);
  EXPECT_EQ(HostProcess::Get().ContextWindow(), nullptr);
  EXPECT_EQ(HostProcess::Get().ChildWindows(), windows);
  EXPECT_EQ(TopWindows(), tops);
  EXPECT_EQ(Panes(), panes);
  EXPECT_FALSE(IsMapped(L"qvx.dll"));
  EXPECT_TRUE(Contains(Shell(), "\"handles\":0,")) << Shell();
  EXPECT_EQ(entry(AcRx::kUnloadAppMsg, nullptr), AcRx::kRetOK) << "a second time is harmless";
  HostProcess::Get().Remove(L"qvx.dll");
}

TEST_F(Module, ReturnsOkForEveryMessage) {
  ASSERT_TRUE(LoadModule());
  const auto entry = Export<int (*)(int, void*)>(L"qvx_initstart.arx", "acrxEntryPoint");
  for (const int message :
       std::initializer_list<int>{AcRx::kUnloadDwgMsg, AcRx::kCfgMsg, AcRx::kEndMsg, AcRx::kQuitMsg,
                                  AcRx::kSaveMsg, AcRx::kInvkSubrMsg, 99, -1})
    EXPECT_EQ(entry(message, nullptr), AcRx::kRetOK) << message;
  EXPECT_NE(HostProcess::Get().ContextWindow(), nullptr) << "none of them takes it down";
}

TEST_F(Module, ExportsWhatSiblingModulesCall) {
  ASSERT_TRUE(LoadModule());
  for (const char* name :
       {"acrxEntryPoint", "acrxGetApiVersion", "ShowScreenMenu", "IsScreenMenuVisible",
        "GetScreenMenuWidth", "HideTabBar", "UpdateStatusBar", "LoadContexMenu", "LoadMenuForSun",
        "QvxDescribeShell"})
    EXPECT_NE(::GetProcAddress(::GetModuleHandleW(L"qvx_initstart.arx"), name), nullptr) << name;
}

TEST_F(Module, LoadMenuForSunShowsThePaletteAtOnce) {
  ASSERT_TRUE(LoadModule());
  EXPECT_TRUE(Contains(Shell(), "\"exists\":false")) << Shell();
  Export<void (*)()>(L"qvx_initstart.arx", "LoadMenuForSun")();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << Shell();
  EXPECT_EQ(Export<int (*)()>(L"qvx_initstart.arx", "IsScreenMenuVisible")(), 1);
}

TEST_F(Module, AnyProductNumberOfTheRegistryShowsThePalette) {
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

TEST_F(Module, WithoutAHyphenInTheFramesTextTheReleaseDeterminesTheHostsName) {
  HostProcess::Get().Write(L"qvx.ini", "[Product]\nTitle=Test Product\n");
  HostProcess::Get().Frame().SetWindowText(L"Some host");
  ASSERT_TRUE(LoadModule());
  CString title;
  HostProcess::Get().Frame().GetWindowText(title);
  EXPECT_STREQ(title.GetString(), L"Test Product For AutoCAD 2013");
  HostProcess::Get().Remove(L"qvx.ini");
  HostProcess::Get().Frame().SetWindowText(L"AutoCAD 2021");
}

TEST_F(Module, WithoutATitleInTheProductFileTheFramesTextStartsWithFor) {
  for (const char* product : {"[Product]\nHelpFile=a.chm\n", "[Product]\n", "[Other]\nTitle=x\n"}) {
    HostProcess::Get().Write(L"qvx.ini", product);
    HostProcess::Get().Frame().SetWindowText(L"AutoCAD 2021 - [a.dxf]");
    ASSERT_TRUE(LoadModule());
    CString title;
    HostProcess::Get().Frame().GetWindowText(title);
    EXPECT_STREQ(title.GetString(), L" For AutoCAD 2021") << product;
    ASSERT_TRUE(UnloadModule());
  }
  HostProcess::Get().Remove(L"qvx.ini");
}

// A modal dialog would block this test.
TEST_F(Module, StartsWithoutTheTipThatTheUserTurnedOffAndAdvancesByOne) {
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

TEST_F(Module, TheContextWindowIsAChildOfTheFrameOfOnePixel) {
  ASSERT_TRUE(LoadModule());
  const HWND window = HostProcess::Get().ContextWindow();
  ASSERT_NE(window, nullptr);
  RECT place;
  ::GetWindowRect(window, &place);
  EXPECT_EQ(place.right - place.left, 1);
  EXPECT_EQ(place.bottom - place.top, 1);
}
