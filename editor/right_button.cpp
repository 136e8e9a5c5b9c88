#include "editor/right_button.h"

#include <cstdint>

#include "editor/filter_host.h"
#include "editor/in_place_edit.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr int kSpeedMenuByTime = 3;  // of g_nSpeedMenu
constexpr DWORD kAccidentalPress =
    3000;  // milliseconds; such a press and a longer one count as short

// The first row and column count as outside.
bool IsStrictlyInside(const RECT& area, POINT at) {
  return at.x > area.left && at.x < area.right && at.y > area.top && at.y < area.bottom;
}

}  // namespace

bool RightButton::Press(FilterHost& host, const MSG& message) {
  m_pressTime = kNotCaptured;
  if (host.CommandActive() != 0 || !host.IsIdle()) return false;
  if (g_nSpeedMenu < 1 || (message.wParam & MK_SHIFT)) return false;
  m_pressTime = message.time;
  return true;
}

bool RightButton::Release(FilterHost& host, InPlaceEdit& edit, const MSG& message) {
  if (host.CommandActive() != 0 || m_pressTime == kNotCaptured) return false;
  if (edit.IsVisible()) {
    const POINT at = host.CursorPosition();
    if (m_areMenusAllowed) edit.ShowInPlaceMenu(at);
    return true;
  }
  if (!host.IsCurrentView(message.hwnd) || (message.wParam & MK_SHIFT)) return false;
  const RECT view = host.ViewOnScreen();
  if (host.CommandActive() != 0 || !host.IsIdle() || !IsStrictlyInside(view, message.pt))
    return false;
  if (!host.IsCommandLineEmpty()) {
    host.ClearKeyboardBuffer();
    return false;  // Enter for the typed text
  }
  return ShowMenu(host, message);
}

// The menu may unload the module: nothing is read after it.
bool RightButton::ShowMenu(FilterHost& host, const MSG& message) {
  if (g_nSpeedMenu < 1 || !host.HasContextWindow() || !m_areMenusAllowed) return false;
  return host.ShowContextMenu(message.pt, IsForced(message));
}

bool RightButton::IsForced(const MSG& message) const {
  if (g_nSpeedMenu != kSpeedMenuByTime) return (message.wParam & MK_CONTROL) != 0;
  const DWORD held = message.time - m_pressTime;  // wraps as the times do
  return std::int64_t{held} > g_nRBtnMenuTime && held < kAccidentalPress;
}

}  // namespace qvx
