// Shared by the tests of the whole module: loading it as the host does, its exports, the shell
// state, the registry of the host process's release, and command texts.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "afxext.h"

#include "acstatusbar.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/host/host.h"
#include "tests/module/win/host_process.h"

constexpr wchar_t kProductKey[] = L"Software\\Quivera\\QVX\\R24.0\\QVX-1";

inline bool IsMapped(const wchar_t* file) { return ::GetModuleHandleW(file) != nullptr; }

template <class Function>
Function Export(const wchar_t* file, const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(file), name)));
}

inline std::string Shell() {
  const auto describe = Export<const char* (*)()>(L"qvx_initstart.arx", "QvxDescribeShell");
  return describe ? describe() : "(none)";
}

inline bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

inline std::wstring ProductKey(const wchar_t* folder) {
  return std::wstring(kProductKey) + L"\\" + folder;
}

inline void SetNumber(const wchar_t* folder, const wchar_t* name, DWORD value) {
  ::RegSetKeyValueW(HKEY_CURRENT_USER, ProductKey(folder).c_str(), name, REG_DWORD, &value,
                    sizeof value);
}

inline void SetText(const wchar_t* folder, const wchar_t* name, const std::wstring& text) {
  ::RegSetKeyValueW(HKEY_CURRENT_USER, ProductKey(folder).c_str(), name, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

inline void Forget(const wchar_t* folder, const wchar_t* name) {
  ::RegDeleteKeyValueW(HKEY_CURRENT_USER, ProductKey(folder).c_str(), name);
}

inline DWORD NumberOf(const wchar_t* folder, const wchar_t* name, HKEY root = HKEY_CURRENT_USER) {
  DWORD value = 0, size = sizeof value;
  ::RegGetValueW(root, ProductKey(folder).c_str(), name, RRF_RT_REG_DWORD, nullptr, &value, &size);
  return value;
}

inline std::wstring TextOf(const wchar_t* folder, const wchar_t* name) {
  wchar_t text[2000] = L"";
  DWORD size = sizeof text;
  ::RegGetValueW(HKEY_CURRENT_USER, ProductKey(folder).c_str(), name, RRF_RT_REG_SZ, nullptr, text,
                 &size);
  return text;
}

// A kernel global of the loaded module, by name and as text.
inline void SetKernelSetting(const wchar_t* name, const wchar_t* text) {
  const auto set =
      Export<int (*)(const wchar_t*, const wchar_t*)>(L"qvx_kernal.arx", "QvxSetSetting");
  ASSERT_NE(set, nullptr);
  EXPECT_TRUE(set(name, text));
}

inline std::wstring KernelSetting(const wchar_t* name) {
  const auto get =
      Export<int (*)(const wchar_t*, wchar_t*, int)>(L"qvx_kernal.arx", "QvxGetSetting");
  wchar_t text[600] = L"";
  if (get) get(name, text, 600);
  return text;
}

inline int ModuleCommands() {
  const auto& all = devhost::TheHost().commands.All();
  return static_cast<int>(std::count_if(
      all.begin(), all.end(),
      [](const devhost::Command& command) { return command.group == L"QVX_INITSTART"; }));
}

inline int Panes() {
  const AcApStatusBar* bar = acedGetApplicationStatusBar();
  return bar ? bar->GetPaneCount() : -1;
}

inline bool LoadModule() { return acrxLoadModule(L"qvx_initstart.arx", true); }
inline bool UnloadModule() { return acrxUnloadModule(L"qvx_initstart.arx"); }

class Module : public ::testing::Test {
 protected:
  void SetUp() override {
    HostProcess::Get().Write(L"qvx.qmn",
                             "MENU_TITLE = \"T\"\r\n***SCREEN\r\n[A]^C^CTWall;\r\n[->B]\r\n"
                             "[<-C]^C^CTDoor;\r\n[D]^C^CTWindow;\r\n***SWITCH\r\n***RESOURCE\r\n");
    // No tip of the day: its modal dialog would block the test.
    SetNumber(L"Settings", L"g_nCustomFlag", 2);
    m_journalStart = devhost::TheJournal().Count();
  }
  void TearDown() override {
    UnloadModule();
    auto& documents = devhost::TheHost().documents;
    while (documents.Current()) documents.Close(documents.Current());
  }

  // Fires the timer twice: the first creates the screen menu, the second finds it.
  static void BringUp() {
    HostProcess::Get().FireTimer(20);
    HostProcess::Get().FireTimer(20);
  }

  // Stops a timer of the context window; true if it was running.
  static bool StopTimer(UINT id) { return ::KillTimer(HostProcess::Get().ContextWindow(), id); }

  // Runs the commands of the text in the current drawing, as if typed.
  static void Run(const std::wstring& text) {
    auto& host = devhost::TheHost();
    host.documents.sendStringToExecute(host.documents.Current(), text.c_str(), true, false, true);
    while (host.engine.RunWaiting()) {
    }
  }

  // The values of one event and field in the journal since the test began, concatenated.
  std::string Told(const std::string& event, const char* field) const {
    std::string text;
    for (const devhost::JournalEntry& entry : devhost::TheJournal().Since(m_journalStart))
      if (entry.event == event && entry.fields.contains(field))
        text += entry.fields[field].is_string() ? entry.fields[field].get<std::string>()
                                                : entry.fields[field].dump();
    return text;
  }
  std::string Printed() const { return Told("printed", "text"); }
  void StartAnew() { m_journalStart = devhost::TheJournal().Count(); }

  int m_journalStart = 0;
};
