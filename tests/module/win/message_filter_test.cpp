// The message filter of the real module in the host's message loop.
#include "tests/module/win/module_test.h"
// after the class library
#include "rxmfcapi.h"

namespace {

constexpr UINT kPreviewTimer = 50;

class Filter : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    devhost::TheHost().documents.New();
    ASSERT_TRUE(LoadModule());
    BringUp();
    Run(L"");
    Pump();
  }
  static HWND View() { return acedGetAcadDwgView()->m_hWnd; }
  static void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
  }
  static void Post(HWND window, UINT message, WPARAM key = 0) {
    ::PostMessageW(window, message, key, 1);
    Pump();
  }
  // Whether the context window has the timer; it is stopped then.
  static bool StopsPreviewTimer() {
    return ::KillTimer(HostProcess::Get().ContextWindow(), kPreviewTimer) != FALSE;
  }
};

TEST_F(Filter, APointerMoveOverTheViewSetsThePreviewTimerAndOneOverTheFrameDoesNot) {
  StopsPreviewTimer();
  ::PostMessageW(View(), WM_MOUSEMOVE, 0, MAKELPARAM(40, 40));
  MSG message;
  while (::PeekMessageW(&message, View(), WM_MOUSEMOVE, WM_MOUSEMOVE, PM_NOREMOVE))
    AfxPumpMessage();
  EXPECT_TRUE(StopsPreviewTimer());
  ::PostMessageW(HostProcess::Get().Frame().m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(40, 40));
  while (::PeekMessageW(&message, HostProcess::Get().Frame().m_hWnd, WM_MOUSEMOVE, WM_MOUSEMOVE,
                        PM_NOREMOVE))
    AfxPumpMessage();
  EXPECT_FALSE(StopsPreviewTimer());
}

TEST_F(Filter, TheModuleUnloadsWhileThePreviewTimerWaits) {
  ::PostMessageW(View(), WM_MOUSEMOVE, 0, MAKELPARAM(40, 40));
  MSG message;
  while (::PeekMessageW(&message, View(), WM_MOUSEMOVE, WM_MOUSEMOVE, PM_NOREMOVE))
    AfxPumpMessage();
  ASSERT_TRUE(::SetTimer(HostProcess::Get().ContextWindow(), kPreviewTimer, 1, nullptr));
  ::PostMessageW(HostProcess::Get().ContextWindow(), WM_TIMER, kPreviewTimer, 0);
  ASSERT_TRUE(UnloadModule());
  EXPECT_FALSE(IsMapped(L"qvx_initstart.arx"));
  EXPECT_EQ(HostProcess::Get().ContextWindow(), nullptr);
  Pump();
}

TEST_F(Filter, AnUnloadedModuleSeesNoMessageAnyMore) {
  const std::wstring before = KernelSetting(L"g_bShiftToggle");
  Post(View(), WM_KEYUP, VK_SHIFT);
  EXPECT_NE(KernelSetting(L"g_bShiftToggle"), before);
  const std::wstring toggled = KernelSetting(L"g_bShiftToggle");
  ASSERT_TRUE(acrxLoadModule(L"qvx_design.arx", true));  // which keeps the kernel
  ASSERT_TRUE(UnloadModule());
  ASSERT_TRUE(IsMapped(L"qvx_kernal.arx"));
  Post(View(), WM_KEYUP, VK_SHIFT);
  EXPECT_EQ(KernelSetting(L"g_bShiftToggle"), toggled);
  acrxUnloadModule(L"qvx_design.arx");
}

TEST_F(Filter, ADisabledFilterTogglesNothing) {
  SetKernelSetting(L"g_bDisableHook", L"1");
  const std::wstring before = KernelSetting(L"g_bShiftToggle");
  Post(View(), WM_KEYUP, VK_SHIFT);
  EXPECT_EQ(KernelSetting(L"g_bShiftToggle"), before);
  SetKernelSetting(L"g_bDisableHook", L"0");
}

TEST_F(Filter, MessagesOfOtherWindowsAreNotItsOwn) {
  const std::wstring before = KernelSetting(L"g_bShiftToggle");
  CWnd other;
  ASSERT_TRUE(other.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
  Post(other.m_hWnd, WM_KEYUP, VK_SHIFT);
  EXPECT_EQ(KernelSetting(L"g_bShiftToggle"), before);
  other.DestroyWindow();
}

TEST_F(Filter, TheLastDrawingClosedDuringACapturedPressLeavesTheReleaseToTheHost) {
  SetKernelSetting(L"g_nSpeedMenu", L"2");
  Post(View(), WM_RBUTTONDOWN, MK_RBUTTON);
  auto& documents = devhost::TheHost().documents;
  while (documents.Current()) documents.Close(documents.Current());
  Post(HostProcess::Get().Frame().m_hWnd, WM_RBUTTONUP, 0);
  EXPECT_TRUE(Contains(Shell(), "\"faults\":0"));
  SetKernelSetting(L"g_nSpeedMenu", L"3");
}

}  // namespace
