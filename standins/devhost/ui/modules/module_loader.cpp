// Loading modules; see the header. A library without the entry point is unloaded at once.
#include "devhost/ui/modules/module_loader.h"

#include "devhost/ui/modules/shell_watch.h"
#include "ground/plain_types.h"

namespace devhost {
namespace {

class LibraryFile : public ModuleFile {
 public:
  explicit LibraryFile(HMODULE library) : m_library(library) {}
  ~LibraryFile() override { ::FreeLibrary(m_library); }
  LibraryFile(const LibraryFile&) = delete;
  LibraryFile& operator=(const LibraryFile&) = delete;

  ModuleEntry Entry() const override {
    return reinterpret_cast<ModuleEntry>(
        reinterpret_cast<void*>(::GetProcAddress(m_library, "acrxEntryPoint")));
  }

 private:
  HMODULE m_library;
};

std::wstring Backslashed(std::wstring path) {
  for (wchar_t& c : path)
    if (c == L'/') c = L'\\';
  return path;
}

}  // namespace

std::unique_ptr<ModuleFile> ModuleLoader::Load(const std::wstring& path, std::wstring* why) {
  // With a full path, libraries beside the module are found.
  wchar_t full[1024] = L"";
  ::GetFullPathNameW(Backslashed(path).c_str(), 1024, full, nullptr);
  const HMODULE library = ::LoadLibraryExW(full, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!library) {
    *why = L"文件不能装入(错误 " + std::to_wstring(::GetLastError()) + L")";
    return nullptr;
  }
  auto file = std::make_unique<LibraryFile>(library);
  if (!file->Entry()) {
    *why = L"没有入口函数 acrxEntryPoint";
    return nullptr;
  }
  WatchShellCalls(library);
  return file;
}

}  // namespace devhost
