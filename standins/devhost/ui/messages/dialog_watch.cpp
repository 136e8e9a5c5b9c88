// Recording dialogs by a CBT hook; see the header. A dialog is recorded when it is first activated,
// because then it has its final title.
#include "devhost/ui/messages/dialog_watch.h"

#include <algorithm>
#include <string>
#include <utility>

#include "devhost/core/base/journal.h"
#include "devhost/ui/messages/message_pump.h"

namespace devhost {
namespace {

DialogWatch* g_watch = nullptr;

std::wstring ClassOf(HWND window) {
  wchar_t name[16] = L"";
  ::GetClassNameW(window, name, 16);
  return name;
}

bool IsDialog(HWND window) {
  return ClassOf(window) == L"#32770" && !(::GetWindowLongW(window, GWL_STYLE) & WS_CHILD);
}

// Whether it is a dialog or a pop-up menu.
bool RunsMessageLoop(HWND window) { return ClassOf(window) == L"#32768" || IsDialog(window); }

}  // namespace

DialogWatch::DialogWatch() {
  g_watch = this;
  m_events = ::SetWindowsHookExW(WH_CBT, &DialogWatch::OnEvent, nullptr, ::GetCurrentThreadId());
}

DialogWatch::~DialogWatch() {
  if (m_sent) ::UnhookWindowsHookEx(m_sent);
  ::UnhookWindowsHookEx(m_events);
  g_watch = nullptr;
}

DialogWatch::MessageBoxScope::MessageBoxScope() {
  if (g_watch) ++g_watch->m_messageBoxes;
}

DialogWatch::MessageBoxScope::~MessageBoxScope() {
  if (g_watch && g_watch->m_messageBoxes > 0) --g_watch->m_messageBoxes;
}

LRESULT CALLBACK DialogWatch::OnEvent(int code, WPARAM wParam, LPARAM lParam) {
  if (g_watch && code == HCBT_CREATEWND) g_watch->Created(reinterpret_cast<HWND>(wParam));
  if (g_watch && code == HCBT_ACTIVATE) g_watch->Activated(reinterpret_cast<HWND>(wParam));
  if (g_watch && code == HCBT_DESTROYWND) g_watch->Destroyed(reinterpret_cast<HWND>(wParam));
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// Message loops of dialogs and menus send WM_ENTERIDLE when their queue is empty.
LRESULT CALLBACK DialogWatch::OnSent(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && reinterpret_cast<const CWPSTRUCT*>(lParam)->message == WM_ENTERIDLE)
    ThePump().MarkIdle();
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// A WH_CALLWNDPROC hook costs three server requests for each sent message, so it is installed only
// while such a loop exists.
void DialogWatch::Created(HWND window) {
  if (!RunsMessageLoop(window)) return;
  m_loops.push_back(window);
  if (!m_sent)
    m_sent =
        ::SetWindowsHookExW(WH_CALLWNDPROC, &DialogWatch::OnSent, nullptr, ::GetCurrentThreadId());
}

void DialogWatch::Activated(HWND window) {
  if (!IsDialog(window) || std::find(m_known.begin(), m_known.end(), window) != m_known.end())
    return;
  m_known.push_back(window);
  ThePump().MarkIdle();  // message boxes send no WM_ENTERIDLE
  if (m_messageBoxes > 0) return;
  wchar_t title[256] = L"";
  ::GetWindowTextW(window, title, 256);
  TheJournal().Record("dialog", {{"title", Utf8(title)}});
}

// The caller of the dialog continues now.
void DialogWatch::Destroyed(HWND window) {
  if (std::erase(m_known, window) > 0) ThePump().MarkBusy();
  if (std::erase(m_loops, window) > 0 && m_loops.empty())
    ::UnhookWindowsHookEx(std::exchange(m_sent, nullptr));
}

}  // namespace devhost
