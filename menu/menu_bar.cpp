#include "menu/menu_bar.h"

IMPLEMENT_DYNAMIC(TMenuBar, CObject)

namespace {

// Depth first over lines without a sub-menu, until one matches. Uses operator[], which moves the
// bar's cursor, so that the cursors show where the search ended.
template <class Matches>
TMenuItem* FindLeaf(TMenuBar& root, Matches matches) {
  struct Place {
    TMenuBar* bar;
    int next;
  };
  std::vector<Place> path{{&root, 0}};
  while (!path.empty()) {
    Place& place = path.back();
    if (place.next >= place.bar->Length()) {
      path.pop_back();
      continue;
    }
    TMenuItem* item = (*place.bar)[place.next++];
    if (item->m_pSubMenu)
      path.push_back({item->m_pSubMenu, 0});
    else if (matches(*item))
      return item;
  }
  return nullptr;
}

}  // namespace

TMenuItem* TMenuBar::FindItemByCommand(const wchar_t* command) {
  return FindLeaf(*this, [command](const TMenuItem& item) { return item.m_strCommand == command; });
}

TMenuItem* TMenuBar::FindItemById(int id) {
  return FindLeaf(*this, [id](const TMenuItem& item) {
    return item.m_nCommandId == id && !item.IsSeparator();
  });
}

TMenuItem* TMenuBar::FindItemByLabel(const wchar_t* label) {
  for (int i = 0; i < Length(); ++i) {
    TMenuItem* item = (*this)[i];
    if (item->m_strLabel == label) return item;
  }
  return nullptr;
}

TMenuItem* MenuWalk::Next() {
  while (!m_path.empty()) {
    Place& place = m_path.back();
    if (place.next >= place.bar->Length()) {
      m_path.pop_back();
      continue;
    }
    TMenuItem* item = place.bar->At(place.next++);
    if (item->m_pSubMenu) m_path.push_back({item->m_pSubMenu, 0});
    return item;
  }
  return nullptr;
}
