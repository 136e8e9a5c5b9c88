#include "tools/qmn/check/check_source.h"

#include "tools/qmn/check/lint_parser.h"
#include "tools/qmn/check/silencing.h"

namespace {

// Rules that had nothing to compare with, so that a comment that silences them may be right.
RuleSet NotRun(const CheckSettings& settings) {
  RuleSet rules = settings.hidden;
  if (!settings.images) rules.set(static_cast<size_t>(Rule::kImageUnknown));
  if (!settings.known) {
    rules.set(static_cast<size_t>(Rule::kCommandUnknown));
    rules.set(static_cast<size_t>(Rule::kFunctionUnknown));
  }
  return rules;
}

void ReportUnused(const Silencing& silencing, const CheckSettings& settings, Findings& findings) {
  for (const Silencing::Unused& unused : silencing.UnusedWords(NotRun(settings)))
    findings.Add(Rule::kIgnoreUnused, unused.begin, unused.end,
                 "'{0}' silences nothing here"_say(unused.word));
}

}  // namespace

Findings CheckSource(SourceText& source, const CheckSettings& settings) {
  Findings findings;
  if (!CheckEncoding(source, settings, findings)) return findings;
  Silencing silencing(source);
  findings.Filter(settings, silencing);
  const TokenList tokens = ReadTokens(source, findings);
  const LintTree tree = LintParser(source, tokens, findings).Parse();
  const CheckContext context{source, tree, findings, settings};
  CheckBlocks(context);
  CheckNames(context);
  CheckMenuLines(context);
  CheckKnownFunctions(context);
  ReportUnused(silencing, settings, findings);
  findings.EndFilter();
  return findings;
}
