#include "devhost/ui/launch/dialog_closer.h"

#include <cwchar>

namespace devhost {
namespace {

LRESULT CALLBACK OnWindowEvent(int code, WPARAM window, LPARAM detail) {
  if (code == HCBT_ACTIVATE) {
    const auto dialog = reinterpret_cast<HWND>(window);
    wchar_t name[8] = L"";
    ::GetClassNameW(dialog, name, 8);
    if (std::wcscmp(name, L"#32770") == 0) ::PostMessageW(dialog, WM_CLOSE, 0, 0);
  }
  return ::CallNextHookEx(nullptr, code, window, detail);
}

}  // namespace

DialogCloser::DialogCloser(bool isNeeded) {
  if (isNeeded)
    m_hook = ::SetWindowsHookExW(WH_CBT, OnWindowEvent, nullptr, ::GetCurrentThreadId());
}

DialogCloser::~DialogCloser() {
  if (m_hook) ::UnhookWindowsHookEx(m_hook);
}

}  // namespace devhost
