#include "popup/host_menu_files.h"

namespace {

constexpr wchar_t kShortcutGroup[] = L"奇维快捷菜单";
constexpr double kFirstWithCui = 17.2;

bool HasShortcutMenu(int productId) {
  switch (productId) {
    case 2:
    case 4:
    case 5:
    case 7:
    case 9:
    case 11:
    case 12:
    case 17:
      return true;
    default:
      return false;
  }
}

// A group of an earlier run is refreshed once; one that was just loaded is fresh.
void LoadShortcutMenu(HostMenus& menus, const wchar_t* path, bool& isRefreshed) {
  if (menus.IsGroupLoaded(kShortcutGroup)) {
    if (isRefreshed) return;
    menus.Run(L".MENUUNLOAD", kShortcutGroup);
  }
  menus.Run(L".MENULOAD", path);
  isRefreshed = true;
}

void LoadUnlessLoaded(HostMenus& menus, const wchar_t* file, const wchar_t* group) {
  TWCString path;
  if (menus.FindFile(file, path) && !menus.IsGroupLoaded(group)) menus.Run(L".MENULOAD", path);
}

}  // namespace

void LoadHostMenuFiles(HostMenus& menus, int productId, double hostVersion, bool& isRefreshed) {
  TWCString path;
  if (menus.FindFile(L"QVX.MNS", path) && HasShortcutMenu(productId))
    LoadShortcutMenu(menus, path, isRefreshed);
  if (hostVersion > kFirstWithCui) LoadUnlessLoaded(menus, L"quivera.cuix", L"quivera");
  if (hostVersion == kFirstWithCui) LoadUnlessLoaded(menus, L"quivera09.cui", L"quivera09");
}
