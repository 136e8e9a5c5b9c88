// The reference for the context menu: a pop-up of as many owner-drawn rows by the window system
// alone. Its owner measures the text of a row once and draws background and text with one cached
// font; it has no model, no icons, no switches.
#pragma once

#include <string>
#include <vector>

#include "ground/plain_types.h"

namespace bench {

class BareMenu {
 public:
  explicit BareMenu(HWND parent);
  ~BareMenu();
  BareMenu(const BareMenu&) = delete;
  BareMenu& operator=(const BareMenu&) = delete;

  HWND Owner() const { return m_owner; }
  // Makes the menu, shows it and destroys it when it is dismissed.
  void Show(const std::vector<std::wstring>& labels, POINT at);

 private:
  HWND m_owner;
};

}  // namespace bench
