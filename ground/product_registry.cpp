// See product_registry.h.
#include "ground/product_registry.h"

#include <string>

#include "kernel/globals.h"

namespace qvx {
namespace {

TRegProperty ProductKey(HKEY root, const wchar_t* folder) {
  TRegProperty key(GetRegLocation(), folder);
  key.SetTopRootKey(root);
  return key;
}

}  // namespace

TRegProperty UserKey(const wchar_t* folder) { return ProductKey(HKEY_CURRENT_USER, folder); }

TRegProperty MachineKey(const wchar_t* folder) { return ProductKey(HKEY_LOCAL_MACHINE, folder); }

TRegProperty ReleaseKey() {
  const std::wstring location = GetRegLocation();
  return {location.substr(0, location.rfind(L'\\')).c_str(), L""};
}

TRegProperty ScreenMenuKey() { return UserKey(L"Settings\\ScreenMenu"); }

}  // namespace qvx
