#include "tools/qmn/check/lint_parser.h"

#include <algorithm>
#include <utility>

namespace {

const char* SignOf(int kind) {
  switch (kind) {
    case QMN_COMA:
      return "','";
    case QMN_PLUS:
      return "'+'";
    case QMN_EQUAL:
      return "'='";
    case QMN_PREFIX:
      return "'***'";
    case QMN_SUB_PREFIX:
      return "'**'";
    default:
      return nullptr;
  }
}

}  // namespace

LintTree LintParser::Parse() {
  Title();
  while (!Is(QMN_END)) Section();
  Finish();
  return std::move(m_tree);
}

const LintToken& LintParser::At(size_t ahead) const {
  return m_list.tokens[std::min(m_at + ahead, m_list.tokens.size() - 1)];
}

LintToken LintParser::Take() {
  const LintToken token = At();
  if (token.kind != QMN_END) ++m_at;
  return token;
}

bool LintParser::Expect(int kind, Phrase what) {
  LintToken ignored;
  return ExpectToken(kind, what, ignored);
}

bool LintParser::ExpectToken(int kind, Phrase what, LintToken& out) {
  if (!Is(kind)) return Unexpected(what), false;
  out = Take();
  return true;
}

// An unterminated text was reported when it was read, and counts as a valid one here.
bool LintParser::ExpectText(Phrase what, LintToken& out) {
  if (!At().IsText()) return Unexpected(what), false;
  out = Take();
  return true;
}

// Unterminated texts and lines and an open comment have been reported already.
void LintParser::Unexpected(const Message& what) {
  ++m_unexpected;
  const LintToken& token = At();
  if (token.kind == QMN_ERR_STRING || token.kind == QMN_ERR_MENU_ITEM) return;
  if (token.kind == QMN_END && m_list.endedInComment) return;
  m_findings.Add(Rule::kSyntax, token.begin, token.end,
                 "expected {0}, found {1}"_say(what, Describe(token)));
}

std::string LintParser::TextOf(const LintToken& token) {
  return m_source.Shown(token.begin, token.end);
}

Message LintParser::Describe(const LintToken& token) {
  if (const char* sign = SignOf(token.kind)) return std::string(sign);
  switch (token.kind) {
    case QMN_END:
      return m_list.endedByZero ? "a byte 0, which ends the file"_say : "the end of the file"_say;
    case QMN_STRING:
      return "the text {0}"_say(TextOf(token));
    case QMN_ICON:
    case QMN_FCON:
      return "the number {0}"_say(TextOf(token));
    case QMN_IDENTIFIER:
      return "the name '{0}'"_say(TextOf(token));
    case QMN_MENU_ITEM:
      return "a menu line"_say;
    default:
      return "the reserved word '{0}'"_say(TextOf(token));
  }
}

void LintParser::Missing(const Message& text) {
  ++m_unexpected;
  if (m_list.endedInComment) return;
  m_findings.Add(Rule::kSection, At().begin, At().end, text);
}

// menu_title : QMN_TITLE QMN_EQUAL QMN_STRING
void LintParser::Title() {
  if (!Is(QMN_TITLE))
    Missing("the file must begin with MENU_TITLE = \"...\", found {0}"_say(Describe(At())));
  while (!Is(QMN_TITLE) && !IsSectionEnd()) Take();
  LintToken ignored;
  bool isWhole = true;
  if (Is(QMN_TITLE)) {
    Take();
    isWhole = Expect(QMN_EQUAL, "'=' behind MENU_TITLE"_say) &&
              ExpectText("the title in quotes"_say, ignored);
  }
  if (isWhole && !IsSectionEnd()) Unexpected("'***' and a block"_say);
  while (!IsSectionEnd()) Take();
}

// qmn_menu : menu_title menu_bar_list menu_switch_list menu_res_list
// Called at the prefix of a section.
void LintParser::Section() {
  const LintToken prefix = Take();
  if (!Is(QMN_IDENTIFIER) && !Is(QMN_MENU_SWITCH) && !Is(QMN_MENU_RES)) return NamelessBlock();
  Order(At());
  if (Is(QMN_MENU_SWITCH)) return Switches();
  if (Is(QMN_MENU_RES)) return Resources();
  Block(prefix);
}

void LintParser::Order(const LintToken& word) {
  const bool isSwitches = word.kind == QMN_MENU_SWITCH;
  const bool isResources = word.kind == QMN_MENU_RES;
  const Phase before = m_phase;
  if (isSwitches) m_phase = std::max(m_phase, Phase::kSwitches);
  if (isResources) m_phase = Phase::kResources;
  if (isSwitches && before == Phase::kBlocks && m_tree.blocks.empty())
    return Missing("a file needs a block in front of ***SWITCH"_say);
  if (isSwitches && before == Phase::kSwitches) return Missing("a second ***SWITCH"_say);
  if (isSwitches && before == Phase::kResources)
    return Missing("***SWITCH must stand in front of ***RESOURCE"_say);
  if (isResources && before == Phase::kBlocks)
    return Missing("***SWITCH is missing in front of ***RESOURCE; it may be empty"_say);
  if (isResources && before == Phase::kResources) return Missing("a second ***RESOURCE"_say);
  if (!isSwitches && !isResources && before != Phase::kBlocks)
    Missing("block '{0}' must stand in front of ***SWITCH"_say(TextOf(word)));
}

void LintParser::Finish() {
  if (m_phase == Phase::kBlocks)
    Missing(m_tree.blocks.empty()
                ? "the file ends without a block, ***SWITCH and ***RESOURCE"_say
                : "the file ends without ***SWITCH and ***RESOURCE; both may be empty"_say);
  if (m_phase == Phase::kSwitches)
    Missing("the file ends without ***RESOURCE; it may be empty"_say);
}
