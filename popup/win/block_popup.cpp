#include "popup/win/block_popup_door.h"

#include <utility>

#include "menu/menu_in_force.h"

// From the first call of a LISP function until the menu is closed.
class BlockPopup::Shown {
 public:
  explicit Shown(BlockPopup& popup) { s_shown = &popup; }
  ~Shown() { std::exchange(s_shown, nullptr)->m_popups.Clear(); }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;
};

CBitmapMenu* BlockPopup::AddPopup() { return AppendPopup(m_popups); }

void BlockPopup::Track(TMenuBar& block, CPoint screen, CWnd& owner) {
  if (s_shown) return;
  const Shown shown(*this);
  const PopupPlan plan = PlanPopup(block, PopupIds::kCommand, 0, MenuLines());
  if (plan.menus.empty()) return;
  CBitmapMenu* top = AddPopup();
  BuildPopup(plan, *top, *this);
  top->TrackPopupMenu(TPM_RIGHTBUTTON, screen.x, screen.y, &owner);
}

bool BlockPopup::Measure(MEASUREITEMSTRUCT& item) const {
  return !m_popups.IsEmpty() && MeasureSubMenuRow(*m_popups.At(0), item);
}

CBitmapMenu* BlockPopup::Find(const CMenu* menu) const { return FindPopup(m_popups, menu); }

void BlockPopup::Close() {
  if (s_shown == this) ::EndMenu();
}

void BlockPopup::ForgetLines() {
  if (!s_shown) return;
  ForgetPopupLines(s_shown->m_popups);
  ::EndMenu();
}
