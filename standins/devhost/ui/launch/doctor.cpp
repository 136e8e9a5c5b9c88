#include "devhost/ui/launch/doctor.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "devhost/core/base/utf8.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/launch/host_app.h"
#include "devhost/ui/launch/launch.h"
#include "devhost/ui/modules/module_loader.h"

namespace devhost {
namespace {

using Describe = const char* (*)();

class MappedModule {
 public:
  explicit MappedModule(const std::wstring& path)
      : m_module(::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {}
  ~MappedModule() {
    if (m_module) ::FreeLibrary(m_module);
  }
  MappedModule(const MappedModule&) = delete;
  MappedModule& operator=(const MappedModule&) = delete;

  Describe Report() const {
    if (!m_module) return nullptr;
    return reinterpret_cast<Describe>(
        reinterpret_cast<void*>(::GetProcAddress(m_module, "QvxDescribeSettings")));
  }

 private:
  HMODULE m_module;
};

void PrintHost(const HostOptions& host) {
  std::printf("host release: %d.%d\n", host.major, host.minor);
  std::printf("host profile: %s\n", Utf8(host.profile).c_str());
  std::printf("code page: %u\n", ::GetACP());
  std::printf("support path:\n");
  for (const std::wstring& folder : host.supportPath) {
    const bool there = ::GetFileAttributesW(folder.c_str()) != INVALID_FILE_ATTRIBUTES;
    std::printf("  %s%s\n", Utf8(folder).c_str(), there ? "" : "  warning: not there");
  }
}

int PrintProduct(const LaunchOptions& options) {
  const std::wstring product =
      options.modules.empty() ? ProgramFolder() + L"\\" + kProductModule : options.modules.front();
  TheHost().modules.loadModule(L"qvx_kernal.arx", false, false);
  const MappedModule module(product);
  const Describe report = module.Report();
  if (report) {
    std::fputs(report(), stdout);
    return 0;
  }
  std::printf("module: %s  warning: it can't be loaded or has no report\n", Utf8(product).c_str());
  return 3;
}

}  // namespace

int RunDoctor(const LaunchOptions& options) {
  ::_setmode(::_fileno(stdout), _O_BINARY);
  HostApp app(L"DevHost");
  AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_HIDE);
  ModuleLoader loader;
  const HostOptions host = OptionsForCore(options);
  TheHost().Begin(host, &TheHostUi(), &loader);
  PrintHost(host);
  const int exitCode = PrintProduct(options);
  TheHost().End();
  AfxWinTerm();
  return exitCode;
}

}  // namespace devhost
