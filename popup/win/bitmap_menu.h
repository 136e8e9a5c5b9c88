// CBitmapMenu: a native menu whose rows the program draws, each with an icon or a check mark in a
// box at the left and an accelerator text at the right. Its owner window passes measuring and menu
// letters on (see CContextMenuWnd); what a row looks like is row_layout's.
#pragma once

#include "afxwin.h"
#include "ground/win/owned_handle.h"
#include "frame/containers/tdptrlist.h"
#include "menu/menu_item.h"
#include "popup/row_layout.h"

#include <oleacc.h>

// Both kinds of pictures of a row. As a device independent section, which every context draws from
// without a copy of its own: a menu of forty icons comes up in half the time.
constexpr UINT kRowBitmapFlags = LR_LOADMAP3DCOLORS | LR_CREATEDIBSECTION;

// One a row, separators have none; the item data of the native menu points here. Screen readers
// find the row's text in the published record in front. Plain data but for the bitmap, which goes
// with it.
struct CBitmapMenuItemData {
  MSAAMENUINFO m_accessible{MSAA_MENU_SIG, 0, const_cast<wchar_t*>(L"")};
  TMenuItem* m_pMenuItem = nullptr;  // not owned
  qvx::OwnedBitmap m_hBitmap;
  int m_nIndex = -1;  // of the line in its bar, and of the row in the menu

  void Show(TMenuItem* line, int index);
  void Forget();  // the line goes while the row stays: nothing is drawn any more
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
  // The answer to WM_MENUCHAR.
  LRESULT MenuCharSearch(UINT character, UINT flags) const;

  TDPtrList<CBitmapMenuItemData> m_items;

  static int Alive() { return s_alive; }  // menus that live, in this module

 private:
  int MenuHeight();

  int m_nMenuHeight = 0;          // the system's, asked for at the first row; 0 before
  inline static int s_alive = 0;  // menus live on one thread
};
