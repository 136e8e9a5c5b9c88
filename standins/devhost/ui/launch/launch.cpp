// Start and end of the development host; see the header.
#include "devhost/ui/launch/launch.h"

#include <fcntl.h>
#include <io.h>
#include <ole2.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <memory>
#include <thread>

#include "dbapserv.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/host/command_list.h"
#include "devhost/core/host/host.h"
#include "devhost/play/play_driver.h"
#include "devhost/ui/frame/host_actions.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/launch/first_width.h"
#include "devhost/ui/launch/host_app.h"
#include "devhost/ui/launch/dialog_closer.h"
#include "devhost/ui/launch/host_title.h"
#include "devhost/ui/launch/restart.h"
#include "devhost/ui/messages/start_watch.h"
#include "devhost/ui/modules/autoload_modules.h"
#include "devhost/ui/modules/module_loader.h"
#include "devhost/ui/palette/palette_store.h"
#include "devhost/ui/port/ui_port_impl.h"

namespace devhost {

const wchar_t kProductModule[] = L"qvx_initstart.arx";

std::wstring ProgramFolder() {
  wchar_t path[1024] = L"";
  ::GetModuleFileNameW(nullptr, path, 1024);
  std::wstring folder = path;
  return folder.substr(0, folder.find_last_of(L"\\/"));
}

HostOptions OptionsForCore(const LaunchOptions& options) {
  HostOptions out;
  out.major = static_cast<int>(options.hostVersion);
  out.minor = static_cast<int>(std::lround((options.hostVersion - out.major) * 10));
  out.profile = options.profile;
  if (!options.productFolder.empty()) out.supportPath.push_back(options.productFolder);
  out.supportPath.push_back(ProgramFolder());
  return out;
}

namespace {

// Each profile has its own key for palettes.
std::wstring PaletteKeyOf(const std::wstring& profile) {
  std::wstring key = acdbHostApplicationServices()->getMachineRegistryProductRootKey();
  if (!profile.empty()) key += L"\\Profiles\\" + profile;
  return key + L"\\Palettes";
}

bool Exists(const std::wstring& path) {
  return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The journal's stream, closed at the end unless it is standard output.
class JournalFile {
 public:
  bool Open(const std::wstring& name, bool goesOn) {
    if (name.empty()) return true;
    if (name == L"-") {
      ::_setmode(::_fileno(stdout), _O_BINARY);
      TheJournal().WriteTo(stdout);
      return true;
    }
    m_stream = ::_wfopen(name.c_str(), goesOn ? L"ab" : L"wb");
    TheJournal().WriteTo(m_stream);
    return m_stream != nullptr;
  }
  ~JournalFile() {
    TheJournal().WriteTo(nullptr);
    if (m_stream) std::fclose(m_stream);
  }

 private:
  std::FILE* m_stream = nullptr;
};

// The first drawing that can be opened, or a new one. Returns the number of names used.
std::size_t OpenFirstDrawing(const std::vector<std::wstring>& names) {
  for (std::size_t i = 0; i < names.size(); ++i)
    if (OpenDrawingFile(names[i])) return i + 1;
  MakeNewDrawing();
  return names.size();
}

void LoadModules(const LaunchOptions& options) {
  TheHost().modules.OnPersistentLoad(AddAutoloadModule);
  std::vector<std::wstring> modules = options.modules;
  const std::wstring product = ProgramFolder() + L"\\" + kProductModule;
  if (modules.empty() && Exists(product)) modules.push_back(product);
  for (const std::wstring& module : modules)
    TheHost().modules.loadModule(module.c_str(), true, false);
  for (const std::wstring& module : AutoloadModules())
    TheHost().modules.loadModule(module.c_str(), true, false);
}

// The driver's thread may be inside a call to the main thread, so messages are processed until it
// has ended.
void StopDriver(UiPortImpl& port, std::unique_ptr<PlayDriver> driver) {
  if (!driver) return;
  port.RejectCalls();
  const DWORD mainThread = ::GetCurrentThreadId();
  std::atomic<bool> ended = false;
  std::thread waiting([&] {
    driver.reset();
    ended = true;
    ::PostThreadMessageW(mainThread, WM_NULL, 0, 0);
  });
  while (!ended) {
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
  }
  waiting.join();
}

void PrintCommands() {
  ::_setmode(::_fileno(stdout), _O_BINARY);
  const Document* document = TheHost().documents.FindDocument(TheHost().documents.curDocument());
  if (document) std::fputs(ListOfCommands(TheHost().commands, *document).c_str(), stdout);
  std::fflush(stdout);
}

int RunFrame(const LaunchOptions& options, HostApp& app, std::unique_ptr<PlayDriver> driver,
             bool* again) {
  auto* frame = new MainFrame;  // deleted with its window
  app.m_pMainWnd = frame;
  if (!frame->CreateAndShow(HostTitle(options.hostVersion))) return 3;
  int exitCode = 0;
  {
    // Started before modules are loaded: a script can answer message boxes of a module's start.
    UiPortImpl port;
    if (driver) driver->Start(port);
    // One drawing is open when modules are loaded, and they are notified of the others.
    const std::size_t opened = OpenFirstDrawing(options.drawings);
    const DialogCloser closer(options.listCommands);
    LoadModules(options);
    for (std::size_t i = opened; i < options.drawings.size(); ++i)
      OpenDrawingFile(options.drawings[i]);
    if (options.listCommands)
      PrintCommands();
    else
      exitCode = app.Run();
    *again = driver && driver->WantsRestart();
    StopDriver(port, std::move(driver));
  }
  TheHost().End();
  if (TheFrame()) TheFrame()->DestroyWindow();
  return exitCode;
}

// Screen readers in other processes need COM to reach the windows of a module.
class OleScope {
 public:
  OleScope() : m_up(SUCCEEDED(::OleInitialize(nullptr))) {}
  ~OleScope() {
    if (m_up) ::OleUninitialize();
  }
  OleScope(const OleScope&) = delete;
  OleScope& operator=(const OleScope&) = delete;

 private:
  bool m_up;
};

// Runs the program once. `again` is set if it is to be restarted.
int RunOnce(const LaunchOptions& options, bool* again) {
  JournalFile journal;
  if (!journal.Open(options.journal, RestartCount() > 0)) {
    std::fprintf(stderr, "devhost: the journal %s can't be written\n",
                 Utf8(options.journal).c_str());
    return 2;
  }
  std::unique_ptr<PlayDriver> driver;
  if (!options.script.empty()) {
    driver = std::make_unique<PlayDriver>();
    if (!driver->Load({options.script, RestartCount(), options.longestWait})) return 2;
  }
  // A play begins with the module's own default.
  if (options.script.empty()) StoreFirstPaletteWidth(options);
  const OleScope ole;
  HostApp app(L"DevHost");
  AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL);
  app.InitInstance();
  ModuleLoader loader;
  TheHost().Begin(OptionsForCore(options), &TheHostUi(), &loader);
  SetPaletteStoreKey(PaletteKeyOf(options.profile).c_str());
  std::unique_ptr<StartWatch> watch;
  if (!options.startTrace.empty()) watch = std::make_unique<StartWatch>(options.startTrace);
  int exitCode = RunFrame(options, app, std::move(driver), again);
  if (watch && !watch->Write()) {
    std::fprintf(stderr, "devhost: the trace %s can't be written\n",
                 Utf8(options.startTrace).c_str());
    exitCode = exitCode ? exitCode : 2;
  }
  AfxWinTerm();
  return exitCode;
}

}  // namespace

// Restarts only after everything is released, so that files and registry are written.
int RunDevelopmentHost(const LaunchOptions& options) {
  bool again = false;
  const int exitCode = RunOnce(options, &again);
  return again && exitCode == 0 ? RestartProgram() : exitCode;
}

}  // namespace devhost
