// Runs read_accessible.exe, a screen reader in another process, on a window of this one.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <cwchar>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

inline void PumpUntilEndOf(HANDLE process) {
  const ULONGLONG end = ::GetTickCount64() + 20000;
  while (::MsgWaitForMultipleObjects(1, &process, FALSE, 500, QS_ALLINPUT) != WAIT_OBJECT_0) {
    ASSERT_LT(::GetTickCount64(), end) << "the reader hangs";
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
  }
}

// The reader's lines. Processes this program's messages meanwhile.
inline std::vector<std::string> ReadFromOutside(HWND window, const wchar_t* what = L"") {
  HANDLE readEnd = nullptr, writeEnd = nullptr;
  SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
  ::CreatePipe(&readEnd, &writeEnd, &inherit, 1 << 16);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = writeEnd;
  start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION reader{};
  wchar_t line[MAX_PATH + 40];
  ::GetModuleFileNameW(nullptr, line, MAX_PATH);
  *(std::wcsrchr(line, L'\\') + 1) = 0;
  ::swprintf(line, std::size(line), L"%lsread_accessible.exe %llx %ls", std::wstring(line).c_str(),
             static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(window)), what);
  const BOOL made =
      ::CreateProcessW(nullptr, line, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &reader);
  ::CloseHandle(writeEnd);
  EXPECT_TRUE(made);
  if (made) PumpUntilEndOf(reader.hProcess);
  std::string text(1 << 16, '\0');
  DWORD got = 0;
  ::ReadFile(readEnd, text.data(), static_cast<DWORD>(text.size()), &got, nullptr);
  text.resize(got);
  for (HANDLE handle : {readEnd, reader.hProcess, reader.hThread}) ::CloseHandle(handle);
  std::vector<std::string> lines;
  std::istringstream parts(text);
  for (std::string one; std::getline(parts, one);) {
    if (!one.empty() && one.back() == '\r') one.pop_back();
    lines.push_back(one);
  }
  return lines;
}
