// Tests at other resolutions: a process reads the dots per inch once, so such a test runs its own
// program again.
#pragma once

#include <windows.h>

#include <string>

// Sets the resolution that processes started from now on read; restores it at the end.
class ScreenDots {
 public:
  ScreenDots() {
    DWORD size = sizeof m_before;
    m_had = ::RegGetValueW(HKEY_CURRENT_USER, kKey, kName, RRF_RT_REG_DWORD, nullptr, &m_before,
                           &size) == ERROR_SUCCESS;
  }
  ~ScreenDots() {
    if (m_had)
      Set(m_before);
    else
      ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kName);
  }
  ScreenDots(const ScreenDots&) = delete;
  ScreenDots& operator=(const ScreenDots&) = delete;
  static void Set(DWORD dots) {
    ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, REG_DWORD, &dots, sizeof dots);
  }

 private:
  static constexpr const wchar_t* kKey = L"Control Panel\\Desktop";
  static constexpr const wchar_t* kName = L"LogPixels";
  DWORD m_before = 0;
  bool m_had = false;
};

// The exit code of this program, run with these arguments; 998 or 999 if it didn't end or start.
inline DWORD RunSelf(const std::wstring& arguments) {
  wchar_t program[512] = L"";
  ::GetModuleFileNameW(nullptr, program, 512);
  std::wstring line = L"\"" + std::wstring(program) + L"\" " + arguments;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION child{};
  if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &child))
    return 999;
  DWORD code = 998;
  if (::WaitForSingleObject(child.hProcess, 60000) == WAIT_OBJECT_0)
    ::GetExitCodeProcess(child.hProcess, &code);
  ::CloseHandle(child.hThread);
  ::CloseHandle(child.hProcess);
  return code;
}

// Call before the first window: a process that is not DPI-aware always gets 96.
inline bool KnowsDotsIfExpected(const wchar_t* variable) {
  wchar_t expected[16];
  if (::GetEnvironmentVariableW(variable, expected, 16) > 0) ::SetProcessDPIAware();
  return true;
}
