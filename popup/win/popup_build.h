// Native menus out of a plan, with a record and an icon for each row. The context window builds
// with it, and so does any other owner of pop-ups.
#pragma once

#include "popup/win/bitmap_menu.h"
#include "popup/popup_plan.h"

class PopupOwner {
 public:
  virtual ~PopupOwner() = default;
  virtual CBitmapMenu* AddPopup() = 0;  // the owner's; empty
};

// The plan is not empty.
void BuildPopup(const PopupPlan& plan, CBitmapMenu& top, PopupOwner& owner);
