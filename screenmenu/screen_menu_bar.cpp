// See screen_menu_bar.h.
#include "screenmenu/screen_menu_bar.h"

#include <vector>

TScreenMenuBar::TScreenMenuBar() : m_stack(false) { SetOwnsElements(false); }

TScreenMenuBar::~TScreenMenuBar() { m_stack.Clear(); }

int TScreenMenuBar::EnterSubMenu(TMenuItem* line) {
  if (m_pCurrent) m_stack.Append(m_pCurrent);
  m_pCurrent = line;
  Clear();
  Mirror(line);
  return 1;
}

int TScreenMenuBar::BackTo(TMenuItem* line) {
  const int position = StackPosition(line);
  if (position >= 0) {
    Clear();
    m_stack.Truncate(position);
  } else {
    m_stack.Clear();
  }
  m_pCurrent = line;
  Mirror(line);
  return 1;
}

TMenuBar* TScreenMenuBar::RootBar() const {
  const TMenuItem* line = m_stack.IsEmpty() ? m_pCurrent : m_stack.First();
  return line ? line->m_pSubMenu : nullptr;
}

int TScreenMenuBar::PositionOf(const TMenuItem* line) const {
  for (int i = 0; i < Length(); ++i)
    if (At(i) == line) return i;
  return -1;
}

int TScreenMenuBar::StackPosition(const TMenuItem* line) const {
  for (int i = 0; i < m_stack.Length(); ++i)
    if (m_stack.At(i) == line) return i;
  return -1;
}

void TScreenMenuBar::Mirror(TMenuItem* line) {
  if (!line || !line->m_pSubMenu) return;
  for (TMenuItem* mirrored : *line->m_pSubMenu) Append(mirrored);
}

namespace qvx {

std::unique_ptr<TMenuBar> DetachScreenBar(TMenuSystem& system) {
  for (int i = 0; i < system.Length(); ++i)
    if (system.At(i)->m_strName.EqualsNoCase(L"SCREEN"))
      return std::unique_ptr<TMenuBar>(system.Detach(i));
  return nullptr;
}

// An explicit list instead of recursion: files may nest sub-menus without limit.
void DropSwitches(TMenuBar& bar) {
  std::vector<TMenuBar*> bars{&bar};
  while (!bars.empty()) {
    TMenuBar& next = *bars.back();
    bars.pop_back();
    for (TMenuItem* line : next) {
      line->m_pSwitch = nullptr;
      if (line->m_pSubMenu) bars.push_back(line->m_pSubMenu);
    }
  }
}

const wchar_t* RootTitle(const TMenuSystem& system) {
  if (system.m_strTitle.IsEmpty()) return L"奇维建筑";
  return system.m_strTitle;
}

}  // namespace qvx
