// The work at the end of a block and, for icons and switches, at the end of the file.
#include "menu/menu_passes.h"
#include "menu/menu_system.h"

void PassWork::FlushNames() {
  int numbers[kBatch];
  names.Add(m_keys, m_pending, numbers);
  for (size_t i = 0; i < m_pending; ++i) {
    const NameUse& use = m_uses[i];
    if (use.iconIndex) icons.push_back({use.iconIndex, numbers[i]});
    if (use.mark) marks.push_back({use.mark, numbers[i]});
    if (use.table) use.table->push_back(numbers[i]);
  }
  m_pending = 0;
}

// "*SWITCH*" is compared before conditions are stripped: a label that becomes "*SWITCH*" only by
// stripping gets no switch.
void FinishBlock(TDPtrList<TMenuItem>& lines, TMenuBar& bar, BlockWork& block, PassWork& work) {
  block.nester.HandOut(lines, bar);
  for (const PassWork::LabelUse& label : block.labels) {
    if (!label.item->IsSwitchMark())
      StripConditions(*label.item);
    else if (!label.icon.name.empty())
      work.AddName(label.icon, {.mark = label.item});
    else
      work.marks.push_back({label.item, PassWork::kNoName});
  }
}

void ResolveNames(TMenuSystem& system, const PassWork& work) {
  const NameLookup icons(work.names, work.resources);
  for (const PassWork::IconUse& use : work.icons)
    if (const int found = icons.Find(use.name); found >= 0) *use.index = found;

  const NameLookup switches(work.names, work.switches);
  for (const PassWork::Mark& mark : work.marks) {
    const int found = mark.name == PassWork::kNoName ? -1 : switches.Find(mark.name);
    mark.item->m_pSwitch = found >= 0 ? system.m_switches.At(found) : nullptr;
  }
}
