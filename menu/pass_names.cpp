// The passes that resolve names: icons and switches.
#include "menu/menu_passes.h"
#include "menu/menu_system.h"
#include "menu/name_index.h"

namespace {
void ResolveIcon(const NameIndex& icons, const TWCString& name, int& index) {
  if (name.IsEmpty()) return;
  if (const int found = icons.Find(name); found >= 0) index = found;
}
}  // namespace

void ResolveIcons(TMenuSystem& system) {
  const NameIndex icons = IndexByName(system.m_resources);
  for (TMenuBar* bar : system)
    for (TMenuItem* item : *bar) ResolveIcon(icons, item->m_strIconName, item->m_nIconIndex);
  for (TMenuSwitchItem* owner : system.m_switches)
    for (TSwitchStateItem* state : owner->m_states)
      ResolveIcon(icons, state->m_strIconName, state->m_nIconIndex);
}

void ResolveSwitches(TMenuSystem& system) {
  const NameIndex names = IndexByName(system.m_switches);
  for (TMenuBar* bar : system) {
    MenuWalk walk(*bar);
    while (TMenuItem* item = walk.Next()) {
      if (!item->IsSwitchMark()) continue;
      const int found = names.Find(item->m_strIconName);
      item->m_pSwitch = found >= 0 ? system.m_switches.At(found) : nullptr;
    }
  }
}

void RunPasses(TMenuSystem& system) {
  ResolveIcons(system);
  NestSubMenus(system);
  ResolveSwitches(system);
  StripConditions(system);
}
