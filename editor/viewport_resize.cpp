#include "editor/viewport_resize.h"

#include <algorithm>

#include "editor/filter_host.h"
#include "editor/key_table.h"

namespace qvx {
namespace {

bool EndsResize(WPARAM key) {
  return std::ranges::any_of(KeyRows(), [key](const KeyRow& row) {
    return row.event == KeyEvent::kResize && row.key == key;
  });
}

bool ConcernsResize(const MSG& message) {
  switch (message.message) {
    case WM_KEYDOWN:
      return EndsResize(message.wParam);
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
      return true;
    default:
      return false;
  }
}

bool CanResize(FilterHost& host) {
  return host.IsIdle() && host.HasCurrentView() && host.IsCommandLineEmpty() &&
         host.ShortVariable(L"TILEMODE") == 1;
}

}  // namespace

bool StepViewportResize(FilterHost& host, const MSG& message) {
  if (!ConcernsResize(message) || !CanResize(host)) return false;
  if (message.message == WM_KEYDOWN) {
    host.ResizeOnEscape();
    return false;
  }
  if (!host.IsCurrentView(message.hwnd)) return false;
  const POINT at = host.ToView(message.pt);
  const UINT flags = static_cast<UINT>(message.wParam);
  switch (message.message) {
    case WM_MOUSEMOVE:
      return host.ResizeOnMouseMove(flags, at);
    case WM_LBUTTONDOWN:
      return host.ResizeOnButtonDown(flags, at);
    default:
      return host.ResizeOnButtonUp(flags, at);
  }
}

}  // namespace qvx
