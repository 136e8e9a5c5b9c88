// Describing windows; see the header. Top-level windows are in z-order.
#include "devhost/ui/port/window_tree.h"

#include <vector>

#include "devhost/core/base/utf8.h"

namespace devhost {
namespace {

std::wstring TextOf(HWND window) {
  wchar_t text[512] = L"";
  // WM_GETTEXT also reads controls of other processes; GetWindowText does not.
  DWORD_PTR length = 0;
  ::SendMessageTimeoutW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                        500, &length);
  return text;
}

std::wstring ClassOf(HWND window) {
  wchar_t name[128] = L"";
  ::GetClassNameW(window, name, 128);
  return name;
}

std::vector<HWND> TopLevelWindows(DWORD thread) {
  std::vector<HWND> windows;
  ::EnumThreadWindows(
      thread,
      [](HWND window, LPARAM list) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

Json Describe(HWND window) {
  RECT r{};
  ::GetWindowRect(window, &r);
  Json out = {{"class", Utf8(ClassOf(window))},
              {"text", Utf8(TextOf(window))},
              {"id", ::GetDlgCtrlID(window)},
              {"visible", ::IsWindowVisible(window) != FALSE},
              {"enabled", ::IsWindowEnabled(window) != FALSE},
              {"rect", {r.left, r.top, r.right, r.bottom}},
              {"children", Json::array()}};
  if (window == ::GetFocus()) out["focus"] = true;
  for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
    out["children"].push_back(Describe(child));
  return out;
}

bool IsButtonWith(HWND window, const std::wstring& label) {
  return ::IsWindowVisible(window) && ::IsWindowEnabled(window) && ClassOf(window) == L"Button" &&
         WithoutMnemonic(TextOf(window)) == label;
}

HWND FindIn(HWND window, const std::wstring& label) {
  if (IsButtonWith(window, label)) return window;
  for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
    if (HWND found = FindIn(child, label)) return found;
  return nullptr;
}

}  // namespace

std::wstring WithoutMnemonic(const std::wstring& text) {
  std::wstring out;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool bracketed =
        text[i] == L'(' && i + 3 < text.size() && text[i + 1] == L'&' && text[i + 3] == L')';
    if (bracketed) {
      i += 3;
    } else if (text[i] == L'&' && i + 1 < text.size()) {
      out += text[++i];
    } else {
      out += text[i];
    }
  }
  return out;
}

Json DescribeWindowsOf(DWORD thread) {
  Json out = Json::array();
  for (HWND window : TopLevelWindows(thread)) out.push_back(Describe(window));
  return out;
}

HWND FindButton(DWORD thread, const std::wstring& label) {
  for (HWND window : TopLevelWindows(thread))
    if (::IsWindowVisible(window))
      if (HWND found = FindIn(window, WithoutMnemonic(label))) return found;
  return nullptr;
}

}  // namespace devhost
