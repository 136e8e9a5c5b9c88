// The drawing program without its windows; see the header. Also the published odds and ends that
// reach it: the system registry, the application services, printing and files.
#include "devhost/core/host/host.h"

#include <cstdarg>
#include <cwchar>
#include <filesystem>

#include "aced.h"
#include "dbapserv.h"
#include "devhost/core/drawing/db_classes.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

namespace fs = std::filesystem;

// A path of the script or the product may come with either slash.
// Where paths are bytes they are UTF-8, whatever the locale: a path's own conversion would throw at
// a name that the locale lacks.
fs::path PathOf(std::wstring text) {
#ifdef _WIN32
  return fs::path(text);
#else
  for (wchar_t& c : text)
    if (c == L'\\') c = L'/';
  return fs::path(Utf8(text));
#endif
}

std::wstring TextOf(const fs::path& path) {
#ifdef _WIN32
  return path.wstring();
#else
  return Wide(path.string());
#endif
}

std::wstring Existing(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error) ? TextOf(path) : std::wstring();
}

// When nobody has given windows: prints nowhere, asks nobody.
class NoUi : public HostUi {
  void DocumentCreated(Document&) override {}
  void DocumentActivated(Document*) override {}
  void DocumentDestroyed(Document&) override {}
  void DocumentTitled(Document&) override {}
  void PictureChanged(Document&) override {}
  void SelectionChanged(Document&) override {}
  void Print(const std::wstring&) override {}
  void PromptChanged(const std::wstring&) override {}
  void VariableChanged(const std::wstring&) override {}
  void Alert(const std::wstring&) override {}
  bool PumpWhileWaiting() override { return false; }
  void EndProgram() override {}
};
NoUi noUi;

}  // namespace

Host::Host() : m_ui(&noUi) {
  RegisterDatabaseClasses();
  RegisterNativeCommands(commands);
}

Host::~Host() = default;

void Host::Begin(const HostOptions& options, HostUi* ui, ModuleSource* source) {
  m_options = options;
  m_ui = ui ? ui : &noUi;
  modules.SetSource(source);
}

void Host::End() {
  while (!documents.All().empty()) {
    Document& last = *documents.All().back();
    last.commands.clear();
    last.locks = 0;
    documents.Close(&last);
  }
  modules.UnloadAll();
  menuGroups.Clear();
  m_ui = &noUi;
  modules.SetSource(nullptr);
}

std::wstring Host::FindFile(const std::wstring& name) const {
  if (name.empty()) return {};
  const fs::path wanted = PathOf(name);
  if (wanted.has_parent_path()) {
    std::error_code error;
    const std::wstring found = Existing(wanted);
    if (!found.empty()) return TextOf(fs::absolute(wanted, error).lexically_normal());
    if (wanted.is_absolute()) return {};
  }
  std::error_code error;
  for (const std::wstring& folder : m_options.supportPath) {
    const std::wstring found = Existing(fs::absolute(PathOf(folder), error) / wanted);
    if (!found.empty()) return found;
  }
  const std::wstring here = Existing(fs::absolute(wanted, error));
  return here;
}

void Host::Print(const std::wstring& text) {
  TheJournal().Record("printed", {{"text", Utf8(text)}});
  m_ui->Print(text);
}

void Host::SetPrompt(const std::wstring& prompt) {
  if (prompt == m_prompt) return;
  m_prompt = prompt;
  TheJournal().Record("prompt", {{"text", Utf8(prompt)}});
  m_ui->PromptChanged(prompt);
}

Host& TheHost() {
  static Host* host = new Host;  // lives to the end of the process: modules' statics may still call
  return *host;
}

}  // namespace devhost

using devhost::TheHost;

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDictionary, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDynamicLinker, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcEdCommandStack, AcRxObject)

AcRxDictionary* acrxSysRegistry() {
  class Registry : public AcRxDictionary {
    AcRxObject* at(const ACHAR* key) const override {
      if (!key) return nullptr;
      if (!std::wcscmp(key, L"DynamicLinker")) return &TheHost().modules;
      if (!std::wcscmp(key, ACRX_CMDS)) return &TheHost().commands;
      return nullptr;
    }
  };
  static Registry registry;
  return &registry;
}

AcDbHostApplicationServices* acdbHostApplicationServices() {
  class Services : public AcDbHostApplicationServices {
    AcDbDatabase* workingDatabase() const override {
      AcApDocument* current = TheHost().documents.curDocument();
      return current ? current->database() : nullptr;
    }
    int releaseMajorVersion() const override { return TheHost().Options().major; }
    int releaseMinorVersion() const override { return TheHost().Options().minor; }
    const ACHAR* getMachineRegistryProductRootKey() override {
      static std::wstring key;
      key = L"Software\\DevHost\\R" + std::to_wstring(releaseMajorVersion()) + L"." +
            std::to_wstring(releaseMinorVersion());
      return key.c_str();
    }
  };
  static Services services;
  return &services;
}

namespace {

// Strings and characters in a format are wide here, as they are for modules of the host; the C
// library of neither build takes %s so in its wide form.
std::wstring WithWideStrings(const wchar_t* format) {
  std::wstring out;
  while (*format) {
    out += *format++;
    if (out.back() != L'%') continue;
    while (*format && std::wcschr(L"-+ #0123456789.*", *format)) out += *format++;
    const bool plain = *format == L's' || *format == L'c';
    if (plain)
      out += L'l';
    else if (*format == L'S' || *format == L'C') {
      out += *format++ == L'S' ? L's' : L'c';
      continue;
    }
    if (*format) out += *format++;
  }
  return out;
}

}  // namespace

int acutPrintf(const ACHAR* narrowFormat, ...) {
  if (!narrowFormat) return RTERROR;
  const std::wstring format = WithWideStrings(narrowFormat);
  std::wstring text(1024, L'\0');
  int length = -1;
  // The widest line that a caller may print at once; longer ones are cut, as the host cuts them.
  for (std::size_t limit : {std::size_t{1024}, std::size_t{65536}}) {
    text.assign(limit, L'\0');
    va_list args;
    va_start(args, narrowFormat);
    length = std::vswprintf(text.data(), limit, format.c_str(), args);
    va_end(args);
    if (length >= 0 && static_cast<std::size_t>(length) < limit) break;
    length = -1;  // some libraries answer what would have been needed, others that it failed
  }
  text.resize(length < 0 ? std::wcslen(text.c_str()) : static_cast<std::size_t>(length));
  TheHost().Print(text);
  return RTNORM;
}

int acedPrompt(const ACHAR* text) {
  if (!text) return RTERROR;
  TheHost().Print(text);
  return RTNORM;
}

int acedAlert(const ACHAR* text) {
  TheHost().Ui().Alert(text ? text : L"");
  return RTNORM;
}

void acedPostCommandPrompt() {
  if (TheHost().documents.Current()) TheHost().Ui().Print(L"\n");
}

int acedFindFile(const ACHAR* name, ACHAR* path) {
  devhost::TheStartTrace().Step("acedFindFile", name ? devhost::Utf8(name) : std::string());
  const std::wstring found = name ? TheHost().FindFile(name) : std::wstring();
  if (found.empty() || found.size() >= 260) return RTERROR;
  std::wcscpy(path, found.c_str());
  return RTNORM;
}

int acedRedraw(const ads_name, int) {
  devhost::Document* current = TheHost().documents.Current();
  if (!current) return RTERROR;
  TheHost().Ui().PictureChanged(*current);
  return RTNORM;
}

bool acedIsMenuGroupLoaded(const ACHAR* group) {
  return group && TheHost().menuGroups.IsLoaded(group);
}

int acedTrans(const ads_point point, const resbuf*, const resbuf*, int, ads_point result) {
  if (!point || !result) return RTERROR;
  for (int i = 0; i < 3; ++i) result[i] = point[i];
  return RTNORM;
}
