// The autoload list in the registry; see the header.
#include "devhost/ui/modules/autoload_modules.h"

#include <windows.h>

#include "dbapserv.h"

namespace devhost {
namespace {

class Key {
 public:
  explicit Key(REGSAM access) {
    const std::wstring path =
        std::wstring(acdbHostApplicationServices()->getMachineRegistryProductRootKey()) +
        L"\\Applications";
    if (::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, access, nullptr, &m_key,
                          nullptr))
      m_key = nullptr;
  }
  ~Key() {
    if (m_key) ::RegCloseKey(m_key);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  HKEY Get() const { return m_key; }

 private:
  HKEY m_key = nullptr;
};

}  // namespace

void AddAutoloadModule(const std::wstring& path) {
  const Key key(KEY_SET_VALUE);
  const wchar_t empty[] = L"";
  if (key.Get())
    ::RegSetValueExW(key.Get(), path.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(empty),
                     sizeof empty);
}

std::vector<std::wstring> AutoloadModules() {
  std::vector<std::wstring> modules;
  const Key key(KEY_QUERY_VALUE);
  wchar_t name[1024];
  DWORD length = 1024;
  for (DWORD i = 0; key.Get() && !::RegEnumValueW(key.Get(), i, name, &length, nullptr, nullptr,
                                                  nullptr, nullptr);
       ++i, length = 1024)
    if (::GetFileAttributesW(name) != INVALID_FILE_ATTRIBUTES) modules.emplace_back(name);
  return modules;
}

}  // namespace devhost
