// A hook on window activation, see the header. A dialog counts when it first becomes active: by
// then it has its final title.
#include "journal_hooks.h"

#include <algorithm>
#include <string>

#include "devhost/core/journal.h"
#include "message_pump.h"

namespace devhost {
namespace {

DialogWatch* g_watch = nullptr;

bool IsDialog(HWND window) {
  wchar_t name[16] = L"";
  ::GetClassNameW(window, name, 16);
  return std::wstring(name) == L"#32770" && !(::GetWindowLongW(window, GWL_STYLE) & WS_CHILD);
}

}  // namespace

DialogWatch::DialogWatch() {
  g_watch = this;
  m_events = ::SetWindowsHookExW(WH_CBT, &DialogWatch::OnEvent, nullptr, ::GetCurrentThreadId());
  m_sent =
      ::SetWindowsHookExW(WH_CALLWNDPROC, &DialogWatch::OnSent, nullptr, ::GetCurrentThreadId());
}

DialogWatch::~DialogWatch() {
  ::UnhookWindowsHookEx(m_sent);
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
  if (g_watch && code == HCBT_ACTIVATE) g_watch->Activated(reinterpret_cast<HWND>(wParam));
  if (g_watch && code == HCBT_DESTROYWND) g_watch->Destroyed(reinterpret_cast<HWND>(wParam));
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// The loops of dialogs and menus tell the owner when they have nothing left to do.
LRESULT CALLBACK DialogWatch::OnSent(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && reinterpret_cast<const CWPSTRUCT*>(lParam)->message == WM_ENTERIDLE)
    ThePump().MarkQuiet();
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void DialogWatch::Activated(HWND window) {
  if (!IsDialog(window) || std::find(m_known.begin(), m_known.end(), window) != m_known.end())
    return;
  m_known.push_back(window);
  ThePump().MarkQuiet();  // a message box is made not to tell when it waits
  if (m_messageBoxes > 0) return;
  wchar_t title[256] = L"";
  ::GetWindowTextW(window, title, 256);
  TheJournal().Record("dialog", {{"title", Utf8(title)}});
}

// What called for the dialog goes on now.
void DialogWatch::Destroyed(HWND window) {
  if (std::erase(m_known, window) > 0) ThePump().MarkBusy();
}

}  // namespace devhost
