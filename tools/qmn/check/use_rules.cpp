#include "tools/qmn/check/use_rules.h"

#include "tools/qmn/check/names.h"

namespace {

// The shell looks for these icons itself, for the lines that it adds to the pop-up of a row.
constexpr const char* kIconsOfShell[] = {"id_itemhelp", "id_customize"};

}  // namespace

void UsedNames::Add(const LineView& line) {
  if (!line.Source().icon) return;
  const std::string name = FoldedName(line.Context().source, *line.Source().icon);
  (line.Item().m_pSwitch ? m_switches : m_icons).insert(name);
}

void UsedNames::ReportUnused(const CheckContext& context) const {
  if (context.findings.Errors()) return;
  NameSet icons = m_icons;
  icons.insert(std::begin(kIconsOfShell), std::end(kIconsOfShell));
  for (const LintSwitch& owner : context.tree.switches) {
    if (!m_switches.count(FoldedName(context.source, owner.name)))
      context.Add(Rule::kSwitchUnused, owner.name,
                  "no line shows switch '{0}'"_say(context.Text(owner.name)));
    for (const LintState& state : owner.states)
      icons.insert(FoldedName(context.source, state.icon));
  }
  for (const LintResource& icon : context.tree.resources)
    if (!icons.count(FoldedName(context.source, icon.name)))
      context.Add(Rule::kIconUnused, icon.name,
                  "no line and no state uses icon '{0}'"_say(context.Text(icon.name)));
}
