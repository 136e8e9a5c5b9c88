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

// The plan must not be empty.
void BuildPopup(const PopupPlan& plan, CBitmapMenu& top, PopupOwner& owner);
