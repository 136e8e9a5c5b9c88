// A host without free window handles.
#pragma once

#include "afxwin.h"

namespace fixture {

// Fails window creations of this thread: that with the given number, counted from 0, or all from
// there on, as when handles have run out.
class RefusedWindows {
 public:
  RefusedWindows(int number, bool allFromThere) : m_number(number), m_all(allFromThere) {
    s_now = this;
    m_hook = ::SetWindowsHookExW(WH_CBT, Refuse, nullptr, ::GetCurrentThreadId());
  }
  ~RefusedWindows() {
    ::UnhookWindowsHookEx(m_hook);
    s_now = nullptr;
  }
  RefusedWindows(const RefusedWindows&) = delete;
  RefusedWindows& operator=(const RefusedWindows&) = delete;
  int Asked() const { return m_asked; }

 private:
  static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND) {
      const int asked = s_now->m_asked++;
      if (asked == s_now->m_number || (s_now->m_all && asked > s_now->m_number)) return 1;
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  }
  inline static RefusedWindows* s_now = nullptr;
  HHOOK m_hook;
  int m_number, m_asked = 0;
  bool m_all;
};

inline int CountWindows(HWND below) {
  int count = 0;
  ::EnumChildWindows(
      below, [](HWND, LPARAM n) -> BOOL { return ++*reinterpret_cast<int*>(n), TRUE; },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

}  // namespace fixture
