// The part of the start that the timers of the context window run, and the setup of each drawing.
#include <algorithm>

#include "devhost/ui/messages/message_pump.h"
#include "tests/module/win/module_test.h"

namespace {

constexpr char kDrawing[] = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";

std::wstring Titles() {
  std::wstring text;
  for (const auto& document : devhost::TheHost().documents.All()) text += document->Title() + L" ";
  return text;
}

class StartUp : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    for (const wchar_t* name : {L"a.dxf", L"b.dxf"}) HostProcess::Get().Write(name, kDrawing);
  }
  void TearDown() override {
    Module::TearDown();
    for (const wchar_t* name : {L"a.dxf", L"b.dxf"}) HostProcess::Get().Remove(name);
    for (const wchar_t* name : {L"g_bAutoOpenRecent", L"g_sRecentFiles", L"g_bHideCaption"})
      Forget(L"Settings", name);
    Forget(L"Settings\\ScreenMenu", L"Obsolete");
    Forget(L"Settings\\ScreenMenu", L"Visible");
  }
};

}  // namespace

TEST_F(StartUp, TheSecondFiringStopsTheReadinessTimerAndSendsShowBar) {
  devhost::TheHost().documents.New();
  ASSERT_TRUE(LoadModule());
  EXPECT_TRUE(Contains(Shell(), "\"exists\":false")) << "not before the message loop is free";
  HostProcess::Get().FireTimer(20);
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true"));
  EXPECT_EQ(Told("sent", "text"), "");
  HostProcess::Get().FireTimer(20);
  EXPECT_EQ(Told("sent", "text"), "\ntshowbar ");
  EXPECT_FALSE(StopTimer(20)) << "it has stopped itself";
  HostProcess::Get().FireTimer(20);
  EXPECT_EQ(Told("sent", "text"), "\ntshowbar ") << "once only";
}

TEST_F(StartUp, ObsoleteKeepsTheReadinessTimerRunningWithoutAScreenMenu) {
  SetNumber(L"Settings\\ScreenMenu", L"Obsolete", 1);
  ASSERT_TRUE(LoadModule());
  for (int firing = 0; firing < 20; ++firing) HostProcess::Get().FireTimer(20);
  EXPECT_TRUE(Contains(Shell(), "\"exists\":false"));
  EXPECT_TRUE(StopTimer(20)) << "it was still running";
  SetNumber(L"Settings\\ScreenMenu", L"Obsolete", 0);
  HostProcess::Get().FireTimer(20);
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << "the next firing finds the changed value";
}

TEST_F(StartUp, WithoutAMenuTheFirstFiringReportsItAndStopsTheTimer) {
  ASSERT_TRUE(LoadModule());
  HostProcess::Get().Remove(L"qvx.qmn");
  HostProcess::Get().Remove(L"qvx.qmc");
  HostProcess::Get().FireTimer(20);
  EXPECT_TRUE(Contains(Printed(), devhost::Utf8(L"\n未找到所需的qmn菜单文件!请重新安装奇维软件，或"
                                                L"在命令行运行<QMNLOAD>命令加载菜单文件。")))
      << Printed();
  EXPECT_FALSE(StopTimer(20));
}

TEST_F(StartUp, ProductSeventeenAboveSixPointNineDoesNotPrintTheLoadCommand) {
  const struct {
    const wchar_t *product, *version;
    bool isLimited;
  } rows[] = {{L"17", L"6.9", false}, {L"17", L"7", true}, {L"16", L"7", false}};
  for (const auto& row : rows) {
    ASSERT_TRUE(LoadModule());
    SetKernelSetting(L"g_nProductId", row.product);
    SetKernelSetting(L"g_nVersion", row.version);
    HostProcess::Get().Remove(L"qvx.qmn");
    HostProcess::Get().Remove(L"qvx.qmc");
    StartAnew();
    HostProcess::Get().FireTimer(20);
    EXPECT_TRUE(Contains(Printed(), devhost::Utf8(L"\n未找到所需的qmn菜单文件!"))) << Printed();
    EXPECT_EQ(Contains(Printed(), "QMNLOAD"), !row.isLimited) << devhost::Utf8(row.version);
    SetKernelSetting(L"g_nProductId", L"1");
    SetKernelSetting(L"g_nVersion", L"7");
    ASSERT_TRUE(UnloadModule());
  }
}

TEST_F(StartUp, AHiddenScreenMenuExistsAndPrintsNothing) {
  SetNumber(L"Settings\\ScreenMenu", L"Visible", 0);
  ASSERT_TRUE(LoadModule());
  BringUp();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true"));
  EXPECT_EQ(Export<int (*)()>(L"qvx_initstart.arx", "IsScreenMenuVisible")(), 0);
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"屏幕菜单初始关闭"))) << Printed();
}

TEST_F(StartUp, ASecondBringUpReturnsAtOnce) {
  devhost::TheHost().documents.New();
  ASSERT_TRUE(LoadModule());
  BringUp();
  StartAnew();
  Run(L"TLoadMenu\n");
  EXPECT_TRUE(Contains(Printed(), "TLoadMenu")) << Printed();
  EXPECT_FALSE(Contains(Printed(), devhost::Utf8(L"加载奇维菜单文件"))) << Printed();
}

TEST_F(StartUp, TheCaptionIsHiddenWhenTheSettingIsOn) {
  SetNumber(L"Settings", L"g_bHideCaption", 1);
  CWnd& frame = HostProcess::Get().Frame();
  ASSERT_TRUE(frame.GetStyle() & WS_CAPTION);
  ASSERT_TRUE(LoadModule());
  EXPECT_FALSE(frame.GetStyle() & WS_CAPTION);
  frame.ModifyStyle(0, WS_CAPTION);
}

TEST_F(StartUp, RecentFilesAreReopenedOnePerFiring) {
  SetNumber(L"Settings", L"g_bAutoOpenRecent", 1);
  SetText(L"Settings", L"g_sRecentFiles", L"a.dxf,missing.dxf,b.dxf,");
  ASSERT_TRUE(LoadModule());
  EXPECT_EQ(Titles(), L"");
  HostProcess::Get().FireTimer(10);
  EXPECT_EQ(Titles(), L"a.dxf ");
  HostProcess::Get().FireTimer(10);
  EXPECT_EQ(Titles(), L"a.dxf b.dxf ");
  HostProcess::Get().FireTimer(10);
  EXPECT_EQ(Titles(), L"a.dxf b.dxf ");
  EXPECT_FALSE(StopTimer(10)) << "with nothing left it stops itself";
  ASSERT_TRUE(UnloadModule());
  const std::wstring next = TextOf(L"Settings", L"g_sRecentFiles");
  EXPECT_EQ(std::count(next.begin(), next.end(), L','), 2) << "what was reopened is noted anew";
  EXPECT_EQ(next.find(L"missing"), next.npos);
  EXPECT_TRUE(next.ends_with(L"\\b.dxf,")) << devhost::Utf8(next);
}

TEST_F(StartUp, WithoutAnExistingRecentFileNoTimerStarts) {
  SetNumber(L"Settings", L"g_bAutoOpenRecent", 1);
  SetText(L"Settings", L"g_sRecentFiles", L"missing.dxf,");
  ASSERT_TRUE(LoadModule());
  EXPECT_FALSE(StopTimer(10));
}

TEST_F(StartUp, RecentFilesAreNotReopenedUnlessTheSettingIsOn) {
  SetText(L"Settings", L"g_sRecentFiles", L"a.dxf,");
  ASSERT_TRUE(LoadModule());
  EXPECT_FALSE(StopTimer(10));
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(TextOf(L"Settings", L"g_sRecentFiles"), L"a.dxf,");
}

TEST_F(StartUp, ARequestFromAnotherProcessOpensItsFileAndThenSendsItsCommand) {
  ASSERT_TRUE(LoadModule());
  SetKernelSetting(L"g_szFileNameToOpen", L"b.dxf");
  SetKernelSetting(L"g_szInitCmdStr", L"_.LINE ");
  MSG request{};
  request.hwnd = HostProcess::Get().ContextWindow();
  request.message = 0x500;
  devhost::ThePump().Process(&request);
  EXPECT_EQ(Titles(), L"") << "a moment later";
  HostProcess::Get().FireTimer(5);
  EXPECT_EQ(Titles(), L"b.dxf ");
  EXPECT_EQ(Told("sent", "text"), "_.LINE ");
  EXPECT_FALSE(StopTimer(5)) << "it has stopped itself";
}

TEST_F(StartUp, RecentCommandsAreRestoredInTheirOrderAndSaved) {
  SetText(L"Settings", L"RecentCmd", L"first,second,third,lost");
  ASSERT_TRUE(LoadModule());
  BringUp();
  EXPECT_TRUE(Contains(Shell(), "\"recent\":[\"third\",\"second\",\"first\"]")) << Shell();
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(TextOf(L"Settings", L"RecentCmd"), L"first,second,third,");
  Forget(L"Settings", L"RecentCmd");
}

TEST_F(StartUp, EachDrawingGetsTheSixFunctionsInTheOrderOfTheirCodes) {
  const wchar_t* names[] = {L"TCMDAVI",  L"C:TDRAGVP",   L"C:QVXFAQ",
                            L"C:QVXTUT", L"C:TFLASHTUT", L"TSETMENU"};
  auto& documents = devhost::TheHost().documents;
  devhost::Document* early = documents.New();
  ASSERT_TRUE(LoadModule());
  devhost::Document* late = documents.New();
  for (devhost::Document* document : {early, late}) {
    ASSERT_EQ(document->lispFunctions.size(), 6u);
    for (int code = 0; code < 6; ++code)
      EXPECT_EQ(document->lispFunctions[names[code]].code, code) << code;
  }
}
