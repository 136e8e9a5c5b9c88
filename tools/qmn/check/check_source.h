// Runs all rules over one source.
#pragma once

#include "tools/qmn/check/check_settings.h"
#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/lint_tree.h"
#include "tools/qmn/check/source_text.h"

// Everything of a file in a wrong encoding would be wrong, so that such a file has one finding.
Findings CheckSource(SourceText& source, const CheckSettings& settings = {});

// The input and output of the rules.
struct CheckContext {
  SourceText& source;
  const LintTree& tree;
  Findings& findings;
  const CheckSettings& settings;

  std::string Text(const LintToken& token) const { return source.Shown(token.begin, token.end); }
  void Add(Rule rule, const LintToken& token, Message text) const {
    findings.Add(rule, token.begin, token.end, std::move(text));
  }
};

// Reserved block names; the name decides which code looks the block up.
enum class BlockRole { kScreen, kToolBar, kNoSelection, kInPlace, kOther };
BlockRole RoleOf(const CheckContext& context, const LintBlock& block);

void CheckBlocks(const CheckContext& context);          // masks and names of blocks
void CheckNames(const CheckContext& context);           // icons, switches and states
void CheckMenuLines(const CheckContext& context);       // lines, sub-menus, labels, commands
void CheckKnownFunctions(const CheckContext& context);  // of switches
// False after a finding that makes all others meaningless.
bool CheckEncoding(const SourceText& source, const CheckSettings& settings, Findings& findings);
