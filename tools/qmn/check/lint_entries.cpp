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
      m_findings.Add(
          Rule::kEmptyBlock, prefix.begin, name.end,
          "block '" + TextOf(name) + "' has no menu line: expected '[', found " + Describe(At()));
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
                 "section words are written in capitals: expected " + std::string(word) +
                     ", found '" + TextOf(name) + "'");
  LintToken meant = name;
  meant.kind = *word == 'S' ? QMN_MENU_SWITCH : QMN_MENU_RES;
  Order(meant);
  --m_at;  // the section's own function reads the word again
  meant.kind == QMN_MENU_SWITCH ? Switches() : Resources();
}

// The lines are checked all the same.
void LintParser::NamelessBlock() {
  Unexpected("the name of a block, SWITCH or RESOURCE behind '***'");
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
  if (!ExpectToken(QMN_ICON, "a group code, which is a whole number", group.code)) return false;
  if (!Expect(QMN_COMA, "',' behind the group code")) return false;
  if (!Is(QMN_ICON) && !Is(QMN_FCON) && !At().IsText())
    return Unexpected("the value of the group, a number or a text in quotes"), false;
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
    Unexpected("a menu line or '***'");
    Take();
    return SkipToLine();
  }
  const LintToken icon = Take();
  if (At().IsLine()) {
    block.lines.push_back({icon, Take()});
    return;
  }
  Unexpected("a menu line behind the icon name '" + TextOf(icon) + "'");
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
    Unexpected("'**' and a switch, or '***RESOURCE'");
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
                     "switch '" + TextOf(owner.name) + "' has no state: expected a number, found " +
                         Describe(At()));
  }
  if (owner.name.IsName()) m_tree.switches.push_back(std::move(owner));
}

bool LintParser::SwitchHead(LintSwitch& owner) {
  LintToken function;
  return ExpectToken(QMN_IDENTIFIER, "the name of a switch behind '**'", owner.name) &&
         Expect(QMN_GET_STATE, "GET") && Expect(QMN_EQUAL, "'=' behind GET") &&
         ExpectToken(QMN_IDENTIFIER, "the name of the get function", function) &&
         Expect(QMN_SET_STATE, "SET") && Expect(QMN_EQUAL, "'=' behind SET") &&
         ExpectToken(QMN_IDENTIFIER, "the name of the set function", function);
}

// switch_state_list : switch_state_list switch_state_item
// switch_state_list : switch_state_item
void LintParser::States(LintSwitch& owner) {
  while (!IsSectionEnd() && !Is(QMN_SUB_PREFIX)) {
    if (Is(QMN_ICON)) {
      if (!State(owner)) SkipToState();
      continue;
    }
    Unexpected("a state such as 0=ICON,\"label\", '**' or '***'");
    SkipToState();
  }
}

// switch_state_item : QMN_ICON QMN_EQUAL QMN_IDENTIFIER QMN_COMA QMN_STRING
bool LintParser::State(LintSwitch& owner) {
  LintState state;
  state.value = Take();
  if (!Expect(QMN_EQUAL, "'=' behind the value of a state") ||
      !ExpectToken(QMN_IDENTIFIER, "the icon name of the state", state.icon) ||
      !Expect(QMN_COMA, "',' behind the icon name") ||
      !ExpectText("the label of the state in quotes", state.label))
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
    Unexpected("an icon such as NAME = \"image\",\"help\" or the end of the file");
    Take();
    SkipToResource();
  }
}

// menu_res_item : QMN_IDENTIFIER QMN_EQUAL QMN_STRING QMN_COMA QMN_STRING
bool LintParser::Resource() {
  LintToken text;
  m_tree.resources.push_back({Take()});
  return Expect(QMN_EQUAL, "'=' behind the icon name") &&
         ExpectText("the name of the image in quotes", text) &&
         Expect(QMN_COMA, "',' behind the name of the image") &&
         ExpectText("the help text in quotes", text);
}

void LintParser::SkipToResource() {
  while (!IsSectionEnd() && !(Is(QMN_IDENTIFIER) && At(1).kind == QMN_EQUAL)) Take();
}
