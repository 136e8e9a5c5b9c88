// The passes that resolve names: icons and switches.
#include "menu/menu_passes.h"
#include "menu/menu_system.h"

void ResolveIcons(const PassWork& work) {
  const NameLookup icons(work.names, work.resources);
  for (const PassWork::IconUse& use : work.icons)
    if (const int found = icons.Find(use.name); found >= 0) *use.index = found;
}

void ResolveSwitches(TMenuSystem& system, const PassWork& work) {
  const NameLookup switches(work.names, work.switches);
  for (const PassWork::LabelUse& use : work.labels) {
    if (use.icon == PassWork::kNoName || !use.item->IsSwitchMark()) continue;
    const int found = switches.Find(use.icon);
    use.item->m_pSwitch = found >= 0 ? system.m_switches.At(found) : nullptr;
  }
}

void RunPasses(TMenuSystem& system, const PassWork& work) {
  ResolveIcons(work);
  NestSubMenus(system);
  ResolveSwitches(system, work);
  StripConditions(work);
}
