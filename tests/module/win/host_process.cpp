#include "tests/module/win/host_process.h"

#include "devhost/core/base/journal.h"
#include "devhost/core/host/host.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/launch/host_app.h"
#include "devhost/ui/modules/module_loader.h"

namespace {

devhost::ModuleLoader g_loader;

std::wstring FolderOfProgram() {
  wchar_t path[512] = L"";
  ::GetModuleFileNameW(nullptr, path, 512);
  std::wstring folder(path);
  return folder.substr(0, folder.find_last_of(L'\\'));
}

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

// Records message boxes as the host does and closes them at once.
class TestApp : public devhost::HostApp {
 public:
  using HostApp::HostApp;
  int DoMessageBox(LPCTSTR text, UINT flags, UINT) override {
    devhost::TheJournal().Record(
        "messagebox", {{"text", devhost::Utf8(text)}, {"flags", flags}, {"answer", IDOK}});
    return IDOK;
  }
};

// Sets the custom flag that skips the tip of the day, whose modal dialog would block the test,
// where the kernel of the host's default release reads it.
void LeaveOutTips() {
  const DWORD flags = 2;
  ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Quivera\\QVX\\R24.0\\QVX-1\\Settings",
                    L"g_nCustomFlag", REG_DWORD, &flags, sizeof flags);
}

}  // namespace

HostProcess& HostProcess::Get() {
  static HostProcess process;
  return process;
}

HostProcess::HostProcess() {
  LeaveOutTips();
  wchar_t temporary[512] = L"";
  ::GetTempPathW(512, temporary);
  m_folder = std::wstring(temporary) + L"qvx_module_test";
  ::CreateDirectoryW(m_folder.c_str(), nullptr);
  ::AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL);
  static TestApp app(L"test");
  app.InitInstance();
  devhost::HostOptions options;
  options.supportPath = {m_folder, FolderOfProgram()};
  devhost::TheHost().Begin(options, &devhost::TheHostUi(), &g_loader);
  auto* frame = new devhost::MainFrame;  // deletes itself
  frame->CreateAndShow(L"AutoCAD 2021");
  app.m_pMainWnd = frame;
}

CWnd& HostProcess::Frame() { return *devhost::TheFrame(); }

void HostProcess::Write(const wchar_t* name, const std::string& bytes) {
  std::FILE* file = ::_wfopen((m_folder + L"\\" + name).c_str(), L"wb");
  if (!file) return;
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

void HostProcess::Remove(const wchar_t* name) { ::DeleteFileW((m_folder + L"\\" + name).c_str()); }

void HostProcess::CopyProductFile(const wchar_t* name) {
  ::CopyFileW((FolderOfProgram() + L"\\product\\" + name).c_str(),
              (m_folder + L"\\" + name).c_str(), FALSE);
}

HWND HostProcess::ContextWindow() { return ::GetDlgItem(Frame().m_hWnd, 310); }

bool HostProcess::FireTimer(UINT id) {
  const HWND window = ContextWindow();
  if (!window) return false;
  ::SendMessageW(window, WM_TIMER, id, 0);
  return true;
}

int HostProcess::ChildWindows() {
  int count = 0;
  ::EnumChildWindows(Frame().m_hWnd, CountWindow, reinterpret_cast<LPARAM>(&count));
  return count;
}
