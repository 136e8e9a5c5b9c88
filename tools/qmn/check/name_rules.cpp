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

void CheckTwice(const CheckContext& context, Rule rule, Phrase text, const LintToken& name,
                Places& places) {
  const int line = EarlierLine(context, places, FoldedName(context.source, name), name);
  if (!line) return;
  context.Add(rule, name, text(context.Text(name), line));
}

void CheckLabel(const CheckContext& context, const LintToken& label) {
  const std::string text = NameOf(context.source, label);
  const size_t first = text.find('\t');
  const size_t last = text.rfind('\t');
  if (first == last) return;
  context.findings.Add(
      Rule::kLabelTabs, label.begin + first, label.begin + last + 1,
      "in a pop-up, what stands between the first and the last tab is not shown"_say);
}

void CheckState(const CheckContext& context, const LintState& state, Places& values, Places& icons,
                const Places& defined) {
  const std::string value = std::to_string(state.value.number);
  if (const int line = EarlierLine(context, values, value, state.value))
    context.Add(
        Rule::kStateValueTwice, state.value,
        "the value {0} has a state already, on line {1}; that one is shown"_say(value, line));
  if (state.value.number > kMostReported)
    context.Add(Rule::kStateValueRange, state.value,
                "the get function answers a short integer, at most 32767; this state is never "
                "reached"_say);
  const std::string icon = FoldedName(context.source, state.icon);
  if (const int line = EarlierLine(context, icons, icon, state.icon))
    context.Add(
        Rule::kStateIconTwice, state.icon,
        "icon '{0}' is that of the state on line {1} too; between the two a button keeps its label and icon"_say(
            context.Text(state.icon), line));
  if (!defined.count(icon))
    context.Add(Rule::kIconUndefined, state.icon,
                "icon '{0}' is not defined in ***RESOURCE"_say(context.Text(state.icon)));
  CheckLabel(context, state.label);
}

void CheckImage(const CheckContext& context, const LintToken& image) {
  if (image.kind != QMN_STRING) return;
  const std::string name = FoldedName(context.source, image).substr(1, image.end - image.begin - 2);
  if (name.find_first_not_of(" \t") == name.npos)
    context.Add(Rule::kImageEmpty, image, "the image has no name; the icon shows nothing"_say);
  else if (context.settings.images && !context.settings.images->count(name))
    context.Add(Rule::kImageUnknown, image,
                "the icon library has no bitmap {0}"_say(context.Text(image)));
}

}  // namespace

void CheckNames(const CheckContext& context) {
  Places icons, switches;
  for (const LintResource& icon : context.tree.resources) {
    if (icon.image) CheckImage(context, *icon.image);
    CheckTwice(context, Rule::kIconTwice,
               "icon '{0}' is defined already, on line {1}; that one counts"_say, icon.name, icons);
  }
  for (const LintSwitch& owner : context.tree.switches) {
    CheckTwice(context, Rule::kSwitchTwice,
               "switch '{0}' is defined already, on line {1}; that one counts"_say, owner.name,
               switches);
    Places values, stateIcons;
    for (const LintState& state : owner.states)
      CheckState(context, state, values, stateIcons, icons);
  }
}
