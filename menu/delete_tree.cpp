// The destructors of lines and bars. Sub-menus are moved to a chain and deleted from it: recursion
// would overflow the stack on a deeply nested menu.
#include "menu/menu_bar.h"

TMenuItem::~TMenuItem() {
  if (m_pSubMenu && m_pSubMenu->m_bOwned) TMenuBar::Delete(m_pSubMenu);
}

TMenuBar::~TMenuBar() {
  TMenuBar* chain = nullptr;
  CollectSubMenus(*this, chain);
  DeleteChain(chain);
}

void TMenuBar::Delete(TMenuBar* bar) { DeleteChain(bar); }

// Moves the owned sub-menus of a bar's lines to the chain, so that deleting the lines does not
// recurse.
void TMenuBar::CollectSubMenus(TMenuBar& bar, TMenuBar*& chain) {
  if (!bar.OwnsElements()) return;
  for (TMenuItem* item : bar) {
    if (!item || !item->m_pSubMenu || !item->m_pSubMenu->m_bOwned) continue;
    item->m_pSubMenu->m_pNextToDelete = chain;
    chain = item->m_pSubMenu;
    item->m_pSubMenu = nullptr;
  }
}

void TMenuBar::DeleteChain(TMenuBar* chain) {
  while (chain) {
    TMenuBar* bar = chain;
    chain = bar->m_pNextToDelete;
    CollectSubMenus(*bar, chain);
    delete bar;
  }
}
