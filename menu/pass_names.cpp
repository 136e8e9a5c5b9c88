// The end of a block, and the names that are resolved at the end of the file: icons and switches.
#include "menu/menu_passes.h"
#include "menu/menu_system.h"

// A label that is the mark of a switch only once its conditions are off shows no switch: marks are
// told first.
void FinishBlock(TMenuBar& bar, const std::vector<PassWork::LabelUse>& labels, PassWork& work) {
  NestSubMenus(bar);
  for (const PassWork::LabelUse& label : labels) {
    if (label.item->IsSwitchMark())
      work.marks.push_back(label);
    else
      StripConditions(*label.item);
  }
}

void ResolveNames(TMenuSystem& system, const PassWork& work) {
  const NameFamilies families(work.names);
  const NameLookup icons(families, work.resources);
  for (const PassWork::IconUse& use : work.icons)
    if (const int found = icons.Find(use.name); found >= 0) *use.index = found;

  const NameLookup switches(families, work.switches);
  for (const PassWork::LabelUse& mark : work.marks) {
    const int found = mark.icon == PassWork::kNoName ? -1 : switches.Find(mark.icon);
    mark.item->m_pSwitch = found >= 0 ? system.m_switches.At(found) : nullptr;
  }
}
