// The context window as a real child of a real frame: its position, its readiness timer, the
// request to open a drawing, and that nothing is left after it is destroyed.
#include <gtest/gtest.h>

#include "kernel/globals.h"
#include "popup/win/context_menu_wnd.h"
#include "tests/doubles/win/palette_host.h"

namespace {

int g_firings = 0;  // of the readiness timer

class ContextWindow : public testing::Test {
 protected:
  ContextWindow() : host(ThePaletteHost()) {
    host.OpenFrame();
    InitContextWindow(true, [] { ++g_firings; });
  }
  ~ContextWindow() override {
    InitContextWindow(false, nullptr);
    host.CloseFrame();
  }

  PaletteHost& host;
};

TEST_F(ContextWindow, IsAChildOfOnePixelOfTheHostFrameWithItsPointerInTheKernel) {
  CContextMenuWnd* window = TheContextWindow();
  ASSERT_TRUE(window && window->GetSafeHwnd());
  EXPECT_EQ(::GetParent(window->m_hWnd), host.frame->m_hWnd);
  EXPECT_EQ(window->GetDlgCtrlID(), 310);
  const DWORD both = WS_CHILD | WS_VISIBLE;
  EXPECT_EQ(window->GetStyle() & both, both);
  CRect place;
  window->GetWindowRect(&place);
  EXPECT_EQ(place.Size(), CSize(1, 1));
  EXPECT_EQ(g_pContextMenu, window);
  EXPECT_NE(TheMenuInForce(), nullptr);
}

TEST_F(ContextWindow, ItsReadinessTimerRunsUntilItIsStopped) {
  const auto waitForFiring = [this](DWORD limit) {
    const int before = g_firings;
    for (const DWORD start = ::GetTickCount(); ::GetTickCount() - start < limit;) {
      host.Pump();
      if (g_firings > before) return true;
      ::Sleep(5);
    }
    return false;
  };
  EXPECT_TRUE(waitForFiring(5000));
  EXPECT_TRUE(waitForFiring(5000)) << "it goes on";
  StopReadinessTimer();
  host.Pump();
  EXPECT_FALSE(waitForFiring(300));
}

TEST_F(ContextWindow, ARequestToOpenADrawingIsHandledAndOtherMessagesPass) {
  CContextMenuWnd* window = TheContextWindow();
  MSG message{};
  message.hwnd = window->m_hWnd;
  message.message = 0x500;
  EXPECT_TRUE(window->PreTranslateMessage(&message));
  message.message = 0x501;
  EXPECT_FALSE(window->PreTranslateMessage(&message));
}

TEST_F(ContextWindow, ClearsItsPointerInTheKernelWhenDestroyed) {
  const HWND window = TheContextWindow()->m_hWnd;
  InitContextWindow(false, nullptr);
  EXPECT_FALSE(::IsWindow(window));
  EXPECT_EQ(TheContextWindow(), nullptr);
  EXPECT_EQ(g_pContextMenu, nullptr);
  EXPECT_EQ(TheMenuInForce(), nullptr);
  EXPECT_EQ(LoadedMenu(), nullptr);
}

}  // namespace
