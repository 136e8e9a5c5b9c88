#include "popup/win/describe_popup.h"

#include <algorithm>

#include "afxwin.h"

#include "ground/guard.h"
#include "popup/popup_json.h"
#include "rxmfcapi.h"

#include <oleacc.h>

namespace {

constexpr UINT kGetMenuOfWindow = 0x01E1;  // MN_GETHMENU
constexpr wchar_t kMenuWindowClass[] = L"#32768";

BOOL CALLBACK CollectMenu(HWND window, LPARAM menus) {
  wchar_t name[16];
  if (!::IsWindowVisible(window) || !::GetClassNameW(window, name, 16) ||
      std::wcscmp(name, kMenuWindowClass))
    return TRUE;
  if (const auto menu = reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenuOfWindow, 0, 0)))
    qvx::Guarded([&] { reinterpret_cast<std::vector<HMENU>*>(menus)->push_back(menu); });
  return TRUE;
}

std::vector<HMENU> ShownMenus() {
  std::vector<HMENU> menus;
  ::EnumThreadWindows(::GetCurrentThreadId(), CollectMenu, reinterpret_cast<LPARAM>(&menus));
  return menus;
}

bool Holds(HMENU menu, HMENU subMenu) {
  for (int i = 0, count = menu ? ::GetMenuItemCount(menu) : 0; i < count; ++i)
    if (::GetSubMenu(menu, i) == subMenu) return true;
  return false;
}

// The shown menu that is no sub-menu of another shown menu; null without one.
HMENU TopOf(const std::vector<HMENU>& shown) {
  CWnd* frame = acedGetAcadFrame();
  const HMENU bar = frame ? ::GetMenu(frame->m_hWnd) : nullptr;
  for (const HMENU menu : shown)
    if (!Holds(bar, menu) && std::none_of(shown.begin(), shown.end(),
                                          [menu](HMENU other) { return Holds(other, menu); }))
      return menu;
  return nullptr;
}

// Owner-drawn rows have the record for screen readers.
std::wstring LabelOf(HMENU menu, UINT row, const MENUITEMINFOW& info) {
  const auto* accessible = reinterpret_cast<const MSAAMENUINFO*>(info.dwItemData);
  if ((info.fType & MFT_OWNERDRAW) && accessible &&
      accessible->dwMSAASignature == static_cast<DWORD>(MSAA_MENU_SIG))
    return {accessible->pszWText, accessible->cchWText};
  wchar_t text[256];
  const int length = ::GetMenuStringW(menu, row, text, 256, MF_BYPOSITION);
  return {text, static_cast<size_t>(std::max(length, 0))};
}

std::vector<ShellPopupRow> DescribeRows(HMENU menu, const std::vector<HMENU>& shown) {
  std::vector<ShellPopupRow> rows;
  const bool isShown = std::find(shown.begin(), shown.end(), menu) != shown.end();
  for (UINT i = 0, count = static_cast<UINT>(::GetMenuItemCount(menu)); i < count; ++i) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_DATA | MIIM_SUBMENU;
    if (!::GetMenuItemInfoW(menu, i, TRUE, &info)) continue;
    ShellPopupRow& row = rows.emplace_back();
    row.separator = (info.fType & MFT_SEPARATOR) != 0;
    row.enabled = !row.separator && !(info.fState & MFS_GRAYED);
    row.checked = (info.fState & MFS_CHECKED) != 0;
    if (!row.separator) row.label = LabelOf(menu, i, info);
    if (!info.hSubMenu) row.id = row.separator ? 0 : static_cast<int>(info.wID);
    if (isShown && !::GetMenuItemRect(nullptr, menu, i, &row.rect)) row.rect = {};
    if (info.hSubMenu) row.rows = DescribeRows(info.hSubMenu, shown);
  }
  return rows;
}

}  // namespace

std::string DescribePopup() {
  const std::vector<HMENU> shown = ShownMenus();
  const HMENU top = TopOf(shown);
  return PopupToJson(top != nullptr, top ? DescribeRows(top, shown) : std::vector<ShellPopupRow>());
}
