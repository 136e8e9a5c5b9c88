// A pop-up of a block for an owner outside this room. The rows have the identifiers that their
// command texts begin with. The owner's window forwards WM_MEASUREITEM and WM_MENUCHAR.
#pragma once

#include "popup/win/popup_build.h"

class BlockPopup : private PopupOwner {
 public:
  BlockPopup() = default;
  BlockPopup(const BlockPopup&) = delete;
  BlockPopup& operator=(const BlockPopup&) = delete;

  // Returns when the menu is closed, also because another menu replaced its lines. Does nothing
  // while one is shown, or when there are no rows. The object must outlive the call.
  void Track(TMenuBar& block, CPoint screen, CWnd& owner);
  bool Measure(MEASUREITEMSTRUCT& item) const;  // false: no row of this pop-up
  CBitmapMenu* Find(const CMenu* menu) const;   // null: no menu of this pop-up

  // Closes the pop-up if it is shown. For an owner whose window is destroyed: the menu loop ends
  // without a message to it.
  void Close();

  // The lines of the menu in force are about to be destroyed: closes the pop-up that is shown.
  static void ForgetLines();

 private:
  class Shown;

  CBitmapMenu* AddPopup() override;

  TDPtrList<CBitmapMenu> m_popups;  // the top menu first
  inline static BlockPopup* s_shown = nullptr;
};
