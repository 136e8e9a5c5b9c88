// CBitmapMenu: a native menu with owner-drawn rows, each with an icon or a check mark in a box at
// the left and an accelerator text at the right. Its owner window forwards WM_MEASUREITEM and
// WM_MENUCHAR (see CContextMenuWnd); row_layout computes the appearance.
#pragma once

#include "afxwin.h"
#include "ground/win/owned_handle.h"
#include "frame/containers/tdptrlist.h"
#include "menu/menu_item.h"
#include "popup/row_layout.h"

#include <oleacc.h>

// For icons and check marks. A DIB section, which a device context draws from without a copy:
// halves the time to open a menu of forty icons.
constexpr UINT kRowBitmapFlags = LR_LOADMAP3DCOLORS | LR_CREATEDIBSECTION;

// One for each row, none for separators; the item data of the native menu points to it. Screen
// readers read the row's text from the published record, the first member. Owns the bitmap.
struct CBitmapMenuItemData {
  MSAAMENUINFO m_accessible{MSAA_MENU_SIG, 0, const_cast<wchar_t*>(L"")};
  TMenuItem* m_pMenuItem = nullptr;  // not owned
  qvx::OwnedBitmap m_hBitmap;
  int m_nIndex = -1;  // of the line in its bar, and of the row in the menu

  void Show(TMenuItem* line, int index);
  void Forget();  // for a line destroyed before its row, which is no longer drawn
};

class CBitmapMenu : public CMenu, private qvx::LiveHandles {
  DECLARE_DYNAMIC(CBitmapMenu)
 public:
  CBitmapMenu() {
    ++s_alive;
    ++s_count;
  }
  ~CBitmapMenu() override;

  void DrawItem(LPDRAWITEMSTRUCT item) override;
  void MeasureItem(LPMEASUREITEMSTRUCT item) override;
  // The result of WM_MENUCHAR.
  LRESULT MenuCharSearch(UINT character, UINT flags) const;

  TDPtrList<CBitmapMenuItemData> m_items;

  static int Alive() { return s_alive; }  // number of menus in this module

 private:
  int MenuHeight();

  int m_nMenuHeight = 0;          // the system's, cached at the first row; 0 before
  inline static int s_alive = 0;  // menus live on one thread
};
