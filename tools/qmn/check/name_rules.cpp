// Tables of names: icons, switches and their states.
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "tools/qmn/check/check_source.h"
#include "tools/qmn/check/names.h"

namespace {

constexpr int kMostReported = 32767;  // the largest value a get function can return

using Places = std::unordered_map<std::string, int>;

// The line of the first entry of that key, 0 when this is the first.
int EarlierLine(const CheckContext& context, Places& places, const std::string& key,
                const LintToken& token) {
  const int line = context.source.LineOf(token.begin);
  const auto [first, isNew] = places.try_emplace(key, line);
  return isNew ? 0 : first->second;
}

void CheckTwice(const CheckContext& context, Rule rule, const char* what, const LintToken& name,
                Places& places) {
  const int line = EarlierLine(context, places, FoldedName(context.source, name), name);
  if (!line) return;
  context.Add(rule, name,
              std::string(what) + " '" + context.Text(name) + "' is defined already, on line " +
                  std::to_string(line) + "; that one counts");
}

void CheckLabel(const CheckContext& context, const LintToken& label) {
  const std::string text = NameOf(context.source, label);
  const size_t first = text.find('\t');
  const size_t last = text.rfind('\t');
  if (first == last) return;
  context.findings.Add(Rule::kLabelTabs, label.begin + first, label.begin + last + 1,
                       "in a pop-up, what stands between the first and the last tab is not shown");
}

void CheckState(const CheckContext& context, const LintState& state, Places& values, Places& icons,
                const Places& defined) {
  const std::string value = std::to_string(state.value.number);
  if (const int line = EarlierLine(context, values, value, state.value))
    context.Add(Rule::kStateValueTwice, state.value,
                "the value " + value + " has a state already, on line " + std::to_string(line) +
                    "; that one is shown");
  if (state.value.number > kMostReported)
    context.Add(Rule::kStateValueRange, state.value,
                "the get function answers a short integer, at most 32767; this state is never "
                "reached");
  const std::string icon = FoldedName(context.source, state.icon);
  if (const int line = EarlierLine(context, icons, icon, state.icon))
    context.Add(Rule::kStateIconTwice, state.icon,
                "icon '" + context.Text(state.icon) + "' is that of the state on line " +
                    std::to_string(line) +
                    " too; between the two a button keeps its label and icon");
  if (!defined.count(icon))
    context.Add(Rule::kIconUndefined, state.icon,
                "icon '" + context.Text(state.icon) + "' is not defined in ***RESOURCE");
  CheckLabel(context, state.label);
}

}  // namespace

void CheckNames(const CheckContext& context) {
  Places icons, switches;
  for (const LintResource& icon : context.tree.resources)
    CheckTwice(context, Rule::kIconTwice, "icon", icon.name, icons);
  for (const LintSwitch& owner : context.tree.switches) {
    CheckTwice(context, Rule::kSwitchTwice, "switch", owner.name, switches);
    Places values, stateIcons;
    for (const LintState& state : owner.states)
      CheckState(context, state, values, stateIcons, icons);
  }
}
