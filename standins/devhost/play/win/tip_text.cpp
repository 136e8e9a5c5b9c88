// Reading the tool tip; see the header.
#include "devhost/play/win/tip_text.h"

#include <windows.h>

#include <commctrl.h>

#include <cwchar>

namespace devhost {
namespace {

bool IsShownTip(HWND window) {
  wchar_t name[64] = L"";
  return ::IsWindowVisible(window) && ::GetClassNameW(window, name, 64) &&
         _wcsicmp(name, TOOLTIPS_CLASSW) == 0;
}

BOOL CALLBACK FindShownTip(HWND window, LPARAM found) {
  if (!IsShownTip(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

std::wstring ShownTipText() {
  HWND tip = nullptr;
  ::EnumThreadWindows(::GetCurrentThreadId(), FindShownTip, reinterpret_cast<LPARAM>(&tip));
  if (!tip) return {};
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(tip)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(::GetWindowTextW(tip, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace devhost
