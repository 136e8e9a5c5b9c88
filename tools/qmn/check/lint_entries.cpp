// The entries of the sections: blocks with masks and lines, switches with states, icons.
#include <utility>

#include "tools/qmn/check/lint_parser.h"
#include "tools/qmn/check/names.h"

// menu_bar : QMN_PREFIX QMN_IDENTIFIER QMN_IDENTIFIER QMN_EQUAL object_mask menu_item_list
// menu_bar : QMN_PREFIX QMN_IDENTIFIER menu_item_list
// Called after the prefix, at the name.
void LintParser::Block(const LintToken& prefix) {
  const LintToken name = Take();
  if (IsMisspelt(name, "SWITCH", QMN_SUB_PREFIX)) return Misspelt(name, "SWITCH");
  if (IsMisspelt(name, "RESOURCE", QMN_IDENTIFIER)) return Misspelt(name, "RESOURCE");
  LintBlock block;
  block.name = name;
  const int before = m_unexpected;
  if (At().IsName() && At(1).kind == QMN_EQUAL) {
    Take();
    Take();
    Mask(block);
  }
  Lines(block);
  if (block.lines.empty() && m_unexpected == before) {
    ++m_unexpected;
    if (!Is(QMN_END) || !m_list.endedInComment)
      m_findings.Add(Rule::kEmptyBlock, prefix.begin, name.end,
                     "block '{0}' has no menu line: expected '[', found {1}"_say(TextOf(name),
                                                                                 Describe(At())));
  }
  m_tree.blocks.push_back(std::move(block));
}

// True only where the engine refuses what follows: a block may have such a name.
bool LintParser::IsMisspelt(const LintToken& name, const char* word, int next) const {
  if (FoldedName(m_source, name) != FoldedName(word)) return false;
  if (next == QMN_SUB_PREFIX) return Is(next) || IsSectionEnd();
  return (Is(next) && At(1).kind == QMN_EQUAL && At(2).IsText()) || IsSectionEnd();
}

void LintParser::Misspelt(const LintToken& name, const char* word) {
  ++m_unexpected;
  m_findings.Add(Rule::kSection, name.begin, name.end,
                 "section words are written in capitals: expected {0}, found '{1}'"_say(
                     std::string(word), TextOf(name)));
  LintToken meant = name;
  meant.kind = *word == 'S' ? QMN_MENU_SWITCH : QMN_MENU_RES;
  Order(meant);
  --m_at;  // the section's own function reads the word again
  meant.kind == QMN_MENU_SWITCH ? Switches() : Resources();
}

// The lines are checked all the same.
void LintParser::NamelessBlock() {
  Unexpected("the name of a block, SWITCH or RESOURCE behind '***'"_say);
  LintBlock block;
  if (!IsSectionEnd() && !At().IsLine()) Take();
  SkipToLine();
  if (!IsSectionEnd()) Lines(block);
  m_tree.blocks.push_back(std::move(block));
}

// object_mask : object_mask QMN_COMA dxf_group
// object_mask : dxf_group
void LintParser::Mask(LintBlock& block) {
  for (;;) {
    if (!Group(block)) {
      block.isMaskBroken = true;
      return SkipToLine();
    }
    if (!Is(QMN_COMA)) return;
    Take();
  }
}

// dxf_group : QMN_ICON QMN_COMA QMN_ICON
// dxf_group : QMN_ICON QMN_COMA QMN_FCON
// dxf_group : QMN_ICON QMN_COMA QMN_STRING
bool LintParser::Group(LintBlock& block) {
  LintGroup group;
  if (!ExpectToken(QMN_ICON, "a group code, which is a whole number"_say, group.code)) return false;
  if (!Expect(QMN_COMA, "',' behind the group code"_say)) return false;
  if (!Is(QMN_ICON) && !Is(QMN_FCON) && !At().IsText())
    return Unexpected("the value of the group, a number or a text in quotes"_say), false;
  group.value = Take();
  block.mask.push_back(group);
  return true;
}

// menu_item_list : menu_item_list menu_item
// menu_item_list : menu_item
void LintParser::Lines(LintBlock& block) {
  while (!IsSectionEnd()) LineOrError(block);
}

// menu_item : QMN_MENU_ITEM
// menu_item : QMN_IDENTIFIER QMN_MENU_ITEM
void LintParser::LineOrError(LintBlock& block) {
  if (At().IsLine()) {
    block.lines.push_back({std::nullopt, Take()});
    return;
  }
  if (!At().IsName()) {
    Unexpected("a menu line or '***'"_say);
    Take();
    return SkipToLine();
  }
  const LintToken icon = Take();
  if (At().IsLine()) {
    block.lines.push_back({icon, Take()});
    return;
  }
  Unexpected("a menu line behind the icon name '{0}'"_say(TextOf(icon)));
  SkipToLine();
}

void LintParser::SkipToLine() {
  while (!IsSectionEnd() && !At().IsLine() && !(At().IsName() && At(1).IsLine())) Take();
}

// menu_switch_list : menu_switch_list menu_switch_item
// menu_switch_list : QMN_PREFIX QMN_MENU_SWITCH
void LintParser::Switches() {
  Take();
  while (!IsSectionEnd()) {
    if (Is(QMN_SUB_PREFIX)) {
      Switch();
      continue;
    }
    Unexpected("'**' and a switch, or '***RESOURCE'"_say);
    while (!IsSectionEnd() && !Is(QMN_SUB_PREFIX)) Take();
  }
}

// menu_switch_item : QMN_SUB_PREFIX QMN_IDENTIFIER QMN_GET_STATE QMN_EQUAL QMN_IDENTIFIER
//                    QMN_SET_STATE QMN_EQUAL QMN_IDENTIFIER switch_state_list
void LintParser::Switch() {
  const LintToken prefix = Take();
  LintSwitch owner;
  const int before = m_unexpected;
  if (!SwitchHead(owner)) SkipToState();
  States(owner);
  if (owner.states.empty() && m_unexpected == before) {
    ++m_unexpected;
    if (!Is(QMN_END) || !m_list.endedInComment)
      m_findings.Add(Rule::kEmptySwitch, prefix.begin, owner.name.end,
                     "switch '{0}' has no state: expected a number, found {1}"_say(
                         TextOf(owner.name), Describe(At())));
  }
  if (owner.name.IsName()) m_tree.switches.push_back(std::move(owner));
}

bool LintParser::SwitchHead(LintSwitch& owner) {
  LintToken get, set;
  const bool isWhole =
      ExpectToken(QMN_IDENTIFIER, "the name of a switch behind '**'"_say, owner.name) &&
      Expect(QMN_GET_STATE, "GET"_say) && Expect(QMN_EQUAL, "'=' behind GET"_say) &&
      ExpectToken(QMN_IDENTIFIER, "the name of the get function"_say, get) &&
      Expect(QMN_SET_STATE, "SET"_say) && Expect(QMN_EQUAL, "'=' behind SET"_say) &&
      ExpectToken(QMN_IDENTIFIER, "the name of the set function"_say, set);
  if (get.IsName()) owner.functions.push_back(get);
  if (set.IsName()) owner.functions.push_back(set);
  return isWhole;
}

// switch_state_list : switch_state_list switch_state_item
// switch_state_list : switch_state_item
void LintParser::States(LintSwitch& owner) {
  while (!IsSectionEnd() && !Is(QMN_SUB_PREFIX)) {
    if (Is(QMN_ICON)) {
      if (!State(owner)) SkipToState();
      continue;
    }
    Unexpected("a state such as 0=ICON,\"label\", '**' or '***'"_say);
    SkipToState();
  }
}

// switch_state_item : QMN_ICON QMN_EQUAL QMN_IDENTIFIER QMN_COMA QMN_STRING
bool LintParser::State(LintSwitch& owner) {
  LintState state;
  state.value = Take();
  if (!Expect(QMN_EQUAL, "'=' behind the value of a state"_say) ||
      !ExpectToken(QMN_IDENTIFIER, "the icon name of the state"_say, state.icon) ||
      !Expect(QMN_COMA, "',' behind the icon name"_say) ||
      !ExpectText("the label of the state in quotes"_say, state.label))
    return false;
  owner.states.push_back(state);
  return true;
}

void LintParser::SkipToState() {
  while (!IsSectionEnd() && !Is(QMN_SUB_PREFIX) && !(Is(QMN_ICON) && At(1).kind == QMN_EQUAL))
    Take();
}

// menu_res_list : menu_res_list menu_res_item
// menu_res_list : QMN_PREFIX QMN_MENU_RES
void LintParser::Resources() {
  Take();
  while (!IsSectionEnd()) {
    if (Is(QMN_IDENTIFIER)) {
      if (!Resource()) SkipToResource();
      continue;
    }
    Unexpected("an icon such as NAME = \"image\",\"help\" or the end of the file"_say);
    Take();
    SkipToResource();
  }
}

// menu_res_item : QMN_IDENTIFIER QMN_EQUAL QMN_STRING QMN_COMA QMN_STRING
bool LintParser::Resource() {
  LintToken image, text;
  m_tree.resources.push_back({Take(), {}});
  if (!Expect(QMN_EQUAL, "'=' behind the icon name"_say) ||
      !ExpectText("the name of the image in quotes"_say, image))
    return false;
  m_tree.resources.back().image = image;
  return Expect(QMN_COMA, "',' behind the name of the image"_say) &&
         ExpectText("the help text in quotes"_say, text);
}

void LintParser::SkipToResource() {
  while (!IsSectionEnd() && !(Is(QMN_IDENTIFIER) && At(1).kind == QMN_EQUAL)) Take();
}
