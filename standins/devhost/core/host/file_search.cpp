// Files along the support path; see the header.
#include "devhost/core/host/file_search.h"

#include <filesystem>

#include "devhost/core/base/utf8.h"

namespace devhost {
namespace {

namespace fs = std::filesystem;

// Paths may contain either slash. On systems with narrow paths they are UTF-8 in any locale; the
// conversion of fs::path would throw for characters that the locale lacks.
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

}  // namespace

std::wstring FindFileIn(const std::vector<std::wstring>& supportPath, const std::wstring& name) {
  if (name.empty()) return {};
  const fs::path wanted = PathOf(name);
  if (wanted.has_parent_path()) {
    std::error_code error;
    const std::wstring found = Existing(wanted);
    if (!found.empty()) return TextOf(fs::absolute(wanted, error).lexically_normal());
    if (wanted.is_absolute()) return {};
  }
  std::error_code error;
  for (const std::wstring& folder : supportPath) {
    const std::wstring found = Existing(fs::absolute(PathOf(folder), error) / wanted);
    if (!found.empty()) return found;
  }
  return Existing(fs::absolute(wanted, error));
}

}  // namespace devhost
