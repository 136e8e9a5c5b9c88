#include "popup/win/popup_build.h"

#include "kernel/globals.h"

namespace {

void AppendRow(CBitmapMenu& menu, const PopupRow& row, const std::vector<CBitmapMenu*>& menus) {
  if (row.flags & kRowSeparator) {
    menu.AppendMenu(MF_SEPARATOR);
    return;
  }
  auto* record = new CBitmapMenuItemData;
  menu.m_items.Append(record);
  record->Show(row.line, row.index);
  if (row.bitmap)
    record->m_hBitmap.Reset(static_cast<HBITMAP>(
        ::LoadImageW(g_hQvxDll, row.bitmap, IMAGE_BITMAP, 0, 0, kRowBitmapFlags)));
  const bool leadsOn = (row.flags & kRowSubMenu) != 0;
  const UINT_PTR id =
      leadsOn ? reinterpret_cast<UINT_PTR>(menus[static_cast<size_t>(row.subMenu)]->m_hMenu)
              : static_cast<UINT_PTR>(row.id);
  menu.AppendMenu(row.flags, id, reinterpret_cast<const wchar_t*>(record));
}

}  // namespace

CBitmapMenu* AppendPopup(TDPtrList<CBitmapMenu>& popups) {
  auto* menu = new CBitmapMenu;
  popups.Append(menu);
  menu->CreatePopupMenu();
  return menu;
}

CBitmapMenu* FindPopup(const TDPtrList<CBitmapMenu>& popups, const CMenu* menu) {
  for (CBitmapMenu* ours : popups)
    if (menu && ours->m_hMenu == menu->m_hMenu) return ours;
  return nullptr;
}

void ForgetPopupLines(const TDPtrList<CBitmapMenu>& popups) {
  for (CBitmapMenu* menu : popups)
    for (CBitmapMenuItemData* row : menu->m_items) row->Forget();
}

bool MeasureSubMenuRow(CBitmapMenu& top, MEASUREITEMSTRUCT& item) {
  if (item.CtlType != ODT_MENU ||
      !::IsMenu(reinterpret_cast<HMENU>(static_cast<UINT_PTR>(item.itemID))))
    return false;
  top.MeasureItem(&item);
  return true;
}

void BuildPopup(const PopupPlan& plan, CBitmapMenu& top, PopupOwner& owner) {
  std::vector<CBitmapMenu*> menus{&top};
  while (menus.size() < plan.menus.size()) menus.push_back(owner.AddPopup());
  for (size_t i = 0; i < menus.size(); ++i)
    for (const PopupRow& row : plan.menus[i]) AppendRow(*menus[i], row, menus);
}
