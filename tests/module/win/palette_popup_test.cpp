// Right clicks on the palette of the real module while its own pop-up is shown: automation and
// screen readers send such messages.
#include "tests/module/win/module_test.h"
// after the class library
#include "afxwin.h"

namespace {

constexpr int kMessages = 50;

HWND g_row = nullptr;
int g_sent = 0;

HMENU ShownMenu() {
  const HWND window = ::FindWindowW(L"#32768", nullptr);
  return window && ::IsWindowVisible(window)
             ? reinterpret_cast<HMENU>(::SendMessageW(window, MN_GETHMENU, 0, 0))
             : nullptr;
}

void RightClickRow() {
  ::SendMessageW(g_row, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(g_row), MAKELPARAM(60, 300));
}

// Fires in the loop of the menu: the messages, then the last row by the keyboard.
VOID CALLBACK SendMessages(HWND, UINT, UINT_PTR timer, DWORD) {
  const HMENU menu = ShownMenu();
  if (!menu) return;
  ::KillTimer(nullptr, timer);
  const int rows = ::GetMenuItemCount(menu);
  for (; g_sent < kMessages; ++g_sent) {
    RightClickRow();
    EXPECT_EQ(ShownMenu(), menu) << g_sent;
    EXPECT_EQ(::GetMenuItemCount(menu), rows) << g_sent;
  }
  ::PostMessageW(g_row, WM_KEYDOWN, VK_UP, 0);
  ::PostMessageW(g_row, WM_KEYDOWN, VK_RETURN, 0);
}

HWND FindRow() {
  HWND found = nullptr;
  ::EnumChildWindows(
      HostProcess::Get().Frame().m_hWnd,
      [](HWND window, LPARAM argument) -> BOOL {
        wchar_t text[64] = L"";
        ::GetWindowTextW(window, text, 64);
        if (std::wcscmp(text, L"A")) return TRUE;
        *reinterpret_cast<HWND*>(argument) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

using PalettePopup = Module;

}  // namespace

TEST_F(PalettePopup, FiftyRightClicksInsideItsLoopLeaveItsLinesAlive) {
  devhost::TheHost().documents.New();
  ASSERT_TRUE(LoadModule());
  BringUp();
  Run(L"");
  g_row = FindRow();
  ASSERT_TRUE(g_row) << Shell();
  g_sent = 0;
  StartAnew();
  ::SetTimer(nullptr, 0, 20, SendMessages);
  RightClickRow();
  EXPECT_EQ(g_sent, kMessages);
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
  EXPECT_TRUE(Contains(Told("sent", "text"), "TCustomize")) << Told("sent", "text");
  EXPECT_TRUE(Contains(Shell(), "\"faults\":0")) << Shell();
}
