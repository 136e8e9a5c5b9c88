// Hooks on the main thread for the trace of a start; see the header.
#include "devhost/ui/messages/start_watch.h"

#include <cstdio>

#include "afxext.h"

#include "aduipaletteset.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/utf8.h"

namespace devhost {
namespace {

bool IsPalette(HWND window) {
  CWnd* wnd = CWnd::FromHandlePermanent(window);
  return wnd && wnd->IsKindOf(RUNTIME_CLASS(CAdUiPaletteSet));
}

}  // namespace

StartWatch::StartWatch(std::wstring file) : m_file(std::move(file)) {
  const DWORD thread = ::GetCurrentThreadId();
  m_events = ::SetWindowsHookExW(WH_CBT, &StartWatch::OnEvent, nullptr, thread);
  m_returns = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &StartWatch::OnReturn, nullptr, thread);
  TheStartTrace().Arm();
}

StartWatch::~StartWatch() {
  ::UnhookWindowsHookEx(m_returns);
  ::UnhookWindowsHookEx(m_events);
}

LRESULT CALLBACK StartWatch::OnEvent(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_CREATEWND && TheStartTrace().IsRunning()) {
    wchar_t name[64] = L"";
    ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 64);
    TheStartTrace().Step("window made", Utf8(name));
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// Docking moves and hides a palette several times; it counts as shown when it and all its parents
// are visible.
LRESULT CALLBACK StartWatch::OnReturn(int code, WPARAM wParam, LPARAM lParam) {
  const auto* sent = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
  if (code == HC_ACTION && TheStartTrace().IsRunning() && !TheStartTrace().IsPaletteShown() &&
      sent->message == WM_WINDOWPOSCHANGED && ::IsWindowVisible(sent->hwnd) &&
      IsPalette(sent->hwnd))
    TheStartTrace().MarkPaletteShown();
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool StartWatch::Write() const {
  std::FILE* stream = ::_wfopen(m_file.c_str(), L"wb");
  if (!stream) return false;
  const std::string text = TheStartTrace().Json() + "\n";
  const bool whole = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  return std::fclose(stream) == 0 && whole;
}

}  // namespace devhost
