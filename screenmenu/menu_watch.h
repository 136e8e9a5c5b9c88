// Whether the menu is still there. A LISP function of a line may load another menu or take the
// palette down: lines, switches, rows and the palette itself are then gone when it returns. Who
// calls such functions makes a watch first, keeps it on the stack and asks it behind every call;
// once the menu is gone he touches nothing of it and leaves.
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

// Stands for the menu as long as its palette shows it. The palette has one.
class MenuLife {
 public:
  MenuWatch Watch() const { return MenuWatch(m_token); }
  void Renew() { m_token = std::make_shared<char>(); }  // all watches made before say "gone"

 private:
  std::shared_ptr<const void> m_token = std::make_shared<char>();
};

}  // namespace qvx
