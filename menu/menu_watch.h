// Whether the lines of the menu still exist. A LISP function of a line may load another menu or
// destroy the palette: lines, switches, rows and the palette itself are then gone when it returns.
// Create a watch on the stack before such a call and check it after each one. If IsGone() is true,
// return without using anything of the menu.
#pragma once

#include <memory>

namespace qvx {

class MenuWatch {
 public:
  MenuWatch() = default;  // of a menu that is never gone
  explicit MenuWatch(const std::shared_ptr<const void>& menu) : m_menu(menu), m_isSet(true) {}

  bool IsGone() const { return m_isSet && m_menu.expired(); }

 private:
  std::weak_ptr<const void> m_menu;
  bool m_isSet = false;
};

// The source of watches; a member of the owner of the menu system.
class MenuLife {
 public:
  MenuWatch Watch() const {
    if (!m_token) m_token = std::make_shared<char>();
    return MenuWatch(m_token);
  }
  // All earlier watches: IsGone(). Allocates nothing: destructors call it.
  void Renew() noexcept { m_token.reset(); }

 private:
  mutable std::shared_ptr<const void> m_token;  // created by the first watch
};

}  // namespace qvx
