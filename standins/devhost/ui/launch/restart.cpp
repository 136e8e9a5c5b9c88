// Restarting the program; see the header.
#include "devhost/ui/launch/restart.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace devhost {
namespace {

constexpr wchar_t kRestarts[] = L"DEVHOST_RESTARTS";

class Process {
 public:
  ~Process() {
    if (m_info.hThread) ::CloseHandle(m_info.hThread);
    if (m_info.hProcess) ::CloseHandle(m_info.hProcess);
  }
  bool Start() {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    std::wstring line = ::GetCommandLineW();
    wchar_t program[1024] = L"";
    ::GetModuleFileNameW(nullptr, program, 1024);
    return ::CreateProcessW(program, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                            &start, &m_info) != FALSE;
  }
  int Wait() {
    DWORD exitCode = 1;
    ::WaitForSingleObject(m_info.hProcess, INFINITE);
    ::GetExitCodeProcess(m_info.hProcess, &exitCode);
    return static_cast<int>(exitCode);
  }

 private:
  PROCESS_INFORMATION m_info{};
};

}  // namespace

int RestartCount() {
  wchar_t text[16] = L"";
  const DWORD length = ::GetEnvironmentVariableW(kRestarts, text, 16);
  return length > 0 && length < 16 ? static_cast<int>(std::wcstol(text, nullptr, 10)) : 0;
}

int RestartProgram() {
  ::SetEnvironmentVariableW(kRestarts, std::to_wstring(RestartCount() + 1).c_str());
  std::fflush(nullptr);
  Process next;
  if (next.Start()) return next.Wait();
  std::fprintf(stderr, "devhost: can't be started again, error %lu\n", ::GetLastError());
  return 1;
}

}  // namespace devhost
