// Ends a test program whose test processes no message for twenty seconds, in which a user
// would see the host hang. A test that processes messages has no time limit. Part of every
// test program on Windows.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <cstdio>

namespace {

constexpr ULONGLONG kLongest = 20000;  // milliseconds
constexpr DWORD kLook = 250;

std::atomic<ULONGLONG> s_lastSign;

LRESULT CALLBACK NoteMessage(int code, WPARAM wParam, LPARAM lParam) {
  s_lastSign = ::GetTickCount64();
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

class Watchdog : public testing::EmptyTestEventListener {
 public:
  void OnTestStart(const testing::TestInfo& test) override {
    m_test = &test;
    s_lastSign = ::GetTickCount64();
    m_hook = ::SetWindowsHookExW(WH_GETMESSAGE, NoteMessage, nullptr, ::GetCurrentThreadId());
    m_done = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_thread = ::CreateThread(nullptr, 0, Watch, this, 0, nullptr);
  }
  void OnTestEnd(const testing::TestInfo&) override {
    ::SetEvent(m_done);
    ::WaitForSingleObject(m_thread, INFINITE);
    ::CloseHandle(m_thread);
    ::CloseHandle(m_done);
    ::UnhookWindowsHookEx(m_hook);
  }

 private:
  static DWORD WINAPI Watch(void* self) {
    auto& watchdog = *static_cast<Watchdog*>(self);
    while (::WaitForSingleObject(watchdog.m_done, kLook) == WAIT_TIMEOUT) {
      if (::GetTickCount64() - s_lastSign <= kLongest) continue;
      std::printf("watchdog: %s.%s took no message for twenty seconds\n",
                  watchdog.m_test->test_suite_name(), watchdog.m_test->name());
      std::fflush(stdout);
      ::TerminateProcess(::GetCurrentProcess(), 3);
    }
    return 0;
  }

  const testing::TestInfo* m_test = nullptr;
  HHOOK m_hook = nullptr;
  HANDLE m_done = nullptr;
  HANDLE m_thread = nullptr;
};

[[maybe_unused]] const bool s_installed = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new Watchdog);
  return true;
}();

}  // namespace
