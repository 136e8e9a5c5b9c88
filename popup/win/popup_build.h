// Builds native menus from a plan, with a record and an icon for each row. Used by the context
// window and by other owners of pop-ups.
#pragma once

#include "popup/win/bitmap_menu.h"
#include "popup/popup_plan.h"

class PopupOwner {
 public:
  virtual ~PopupOwner() = default;
  virtual CBitmapMenu* AddPopup() = 0;  // an empty menu; the owner keeps it
};

// Adds an empty native menu to the list, which owns it.
CBitmapMenu* AppendPopup(TDPtrList<CBitmapMenu>& popups);
CBitmapMenu* FindPopup(const TDPtrList<CBitmapMenu>& popups, const CMenu* menu);  // by handle
// Their lines are about to be destroyed.
void ForgetPopupLines(const TDPtrList<CBitmapMenu>& popups);

// WM_MEASUREITEM of a row with a sub-menu brings a menu handle as identifier, by which the class
// library can't find the menu; the row's record is enough. False for any other row.
bool MeasureSubMenuRow(CBitmapMenu& top, MEASUREITEMSTRUCT& item);

// The plan must not be empty.
void BuildPopup(const PopupPlan& plan, CBitmapMenu& top, PopupOwner& owner);
