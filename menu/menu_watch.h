// Whether the lines of the menu still exist. A LISP function of a line may load another menu or
// destroy the palette: lines, switches, rows and the palette itself are then gone when it returns.
// A caller of such functions makes a watch first, keeps it on the stack and checks it after each
// call; once it says "gone" the caller touches nothing of the menu and returns.
#pragma once

#include <memory>

namespace qvx {

class MenuWatch {
 public:
  MenuWatch() = default;  // over a menu that can't go
  explicit MenuWatch(const std::shared_ptr<const void>& menu) : m_menu(menu), m_isSet(true) {}

  bool IsGone() const { return m_isSet && m_menu.expired(); }

 private:
  std::weak_ptr<const void> m_menu;
  bool m_isSet = false;
};

// What watches are made from. The owner of the menu system has one.
class MenuLife {
 public:
  MenuWatch Watch() const { return MenuWatch(m_token); }
  void Renew() { m_token = std::make_shared<char>(); }  // all watches made before say "gone"

 private:
  std::shared_ptr<const void> m_token = std::make_shared<char>();
};

}  // namespace qvx
