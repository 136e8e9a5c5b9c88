// qmn which: the search for the menu file, as the module makes it with these settings and folders.
// Runs the module's own search with the given settings and folders and prints each name it looks
// up. Nothing is loaded or changed.
#include <filesystem>
#include <ostream>

#include "kernel/globals.h"
#include "kernel/settings.h"
#include "kernel/tregproperty.h"
#include "kernel/twcstring.h"
#include "menu/menu_loading.h"
#include "tools/qmn/commands.h"
#include "tools/qmn/tool_text.h"
#ifndef _WIN32
#include "kernel/native/file_store.h"
#endif

namespace {

namespace fs = std::filesystem;

fs::path PathOf(std::string utf8) {
#ifndef _WIN32
  for (char& c : utf8)
    if (c == '\\') c = '/';
#endif
  return fs::path(reinterpret_cast<const char8_t*>(utf8.c_str()));
}

std::string TextOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// Searches the given folders in the order of the host's support path and reports each step.
class ToldFiles : public MenuFiles {
 public:
  ToldFiles(const WhichOptions& options, std::ostream& out) : m_options(options), m_out(out) {}

  bool FindFile(const wchar_t* name, wchar_t* out) override {
    m_out << "  " << Utf8(name) << "\n";
    const fs::path wanted = PathOf(Utf8(name));
    if (wanted.empty()) return false;
    if (wanted.has_parent_path() && Try(wanted, out)) return true;
    if (wanted.is_absolute()) return false;
    for (const std::string& folder : m_options.product)
      if (Try(PathOf(folder) / wanted, out)) return true;
    return Try(wanted, out);
  }

  bool ReadMenuSetting(wchar_t* out) override {
    const std::wstring folder = m_options.profile.empty() ? L"Settings" : Wide(m_options.profile);
    TRegProperty key(GetRegLocation(), folder.c_str());
    key.SetTopRootKey(HKEY_CURRENT_USER);
    CString value;
    const bool found = key.GetValue(L"Menu", value);
    const std::string told = Utf8(value.GetString());
    m_out << "  Menu of " << Utf8(key.KeyPath().GetString()) << ": "
          << (found ? "\"" + told + "\"" : "not set") << "\n";
    if (found && value.GetLength() >= kPathUnits) m_out << "  too long, as if it weren't there\n";
    if (!found || value.GetLength() >= kPathUnits) return false;
    std::wcscpy(out, value.GetString());
    return true;
  }

  int MenuType() override { return g_iMenuType; }
  void TempFolder(wchar_t* out) override { out[0] = 0; }

 private:
  bool Try(const fs::path& path, wchar_t* out) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error).lexically_normal();
    const bool there = fs::is_regular_file(full, error);
    const std::wstring text = Wide(TextOf(full));
    const bool fits = text.size() < kPathUnits;
    m_out << "    " << TextOf(full)
          << (!there  ? ": not there\n"
              : !fits ? ": there, but the path is too long\n"
                      : ": found\n");
    if (!there || !fits) return false;
    std::wcscpy(out, text.c_str());
    return true;
  }

  const WhichOptions& m_options;
  std::ostream& m_out;
};

// Empty implementation: the search passes on no blocks and prints nothing.
class Nobody : public MenuUsers, public MenuPrinter, public MenuBoxes {
 public:
  TMenuSystem* CurrentSystem() override { return nullptr; }
  void AttachScreenBar(TMenuSystem&) override {}
  void AttachToolBar(TMenuSystem&) override {}
  void Print(const wchar_t*) override {}
  void ShowMessage(const wchar_t*) override {}
};

bool FindSource(ToldFiles& files, const wchar_t* base, wchar_t* path) {
  TWCString name(base);
  name += L".qmn";
  return files.FindFile(name, path);
}

void TellDefault(MenuLoading& loading, std::ostream& out) {
  wchar_t base[MenuFiles::kPathUnits];
  out << "DefaultMenuBase, with g_iMenuType " << g_iMenuType << ":\n";
  if (loading.DefaultMenuBase(base))
    out << "  base: " << Utf8(base) << "\n";
  else
    out << "  base: none\n";
}

bool ChooseSettings(const WhichOptions& options, const QmnStreams& streams) {
#ifdef _WIN32
  if (!options.registry.empty()) {
    ReportError(streams, "qmn which", "--registry is for systems without a registry"_say);
    return false;
  }
#else
  (void)streams;
  if (!options.registry.empty()) UseSettingsFile(options.registry.c_str());
#endif
  g_dHostVersion = options.hostVersion;
  LoadSettings();
  return true;
}

}  // namespace

int RunWhich(const WhichOptions& options, const QmnStreams& streams) {
  std::error_code error;
  if (!options.registry.empty() && !fs::is_regular_file(PathOf(options.registry), error)) {
    ReportError(streams, options.registry, "can't be read: {0}"_say("there is no such file"_say));
    return kFileTrouble;
  }
  if (!ChooseSettings(options, streams)) return kWrongUsage;
  ToldFiles files(options, streams.out);
  Nobody nobody;
  MenuLoading loading(nobody, files, nobody, nobody);
  wchar_t base[MenuFiles::kPathUnits] = L"", path[MenuFiles::kPathUnits] = L"";
  streams.out << "FindMenuBase:\n";
  const bool hasBase = loading.FindMenuBase(base);
  streams.out << "  base: " << (hasBase ? Utf8(base) : "none") << "\n";
  TellDefault(loading, streams.out);
  streams.out << "At start:\n";
  const bool hasSource = hasBase && FindSource(files, base, path);
  if (hasSource)
    streams.out << "menu: " << Utf8(path) << "\n";
  else if (hasBase)
    streams.out << "menu: none, there is only the compiled file and the start takes sources\n";
  else
    streams.out << "menu: none\n";
  return hasSource ? kFine : kFindings;
}
