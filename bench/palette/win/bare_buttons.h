// The reference for the palette: as many owner-drawn buttons of the window system in one parent,
// created hidden, enabled, placed, shown and painted with a plain fill and a text.
#pragma once

#include <vector>

#include "afxwin.h"

namespace bench {

class BareButtons {
 public:
  // The parent is hidden until Show.
  BareButtons(CWnd& frame, const CRect& place);
  ~BareButtons();
  BareButtons(const BareButtons&) = delete;
  BareButtons& operator=(const BareButtons&) = delete;

  void Create(int count, int height);
  void Show();

 private:
  HWND m_parent;
  std::vector<HWND> m_buttons;
};

}  // namespace bench
