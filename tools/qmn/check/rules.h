// The rules of `qmn check`: one table with the permanent code, the severity, a short name and one
// sentence. The text output, the rules of the SARIF form, --list-rules and docs/menu-checks.md
// follow it. An error is what the engine refuses; a warning is what it accepts but partly ignores
// without a message.
#pragma once

#include <span>

enum class Rule {
  kSyntax,
  kSection,
  kEmptyBlock,
  kEmptySwitch,
  kStringOpen,
  kStringAtEnd,
  kStringTooLong,
  kLineTooLong,
  kLineAtEnd,
  kCommentOpen,
  kGroupKind,
  kGroupCode,
  kStrayBytes,
  kMinus,
  kZeroByte,
  kTokenCut,
  kNumberRange,
  kUndecodable,
  kByteOrderMark,
  kUtf8,
  kBackslash,
  kDoubleByteBackslash,
  kMaskMiddle,
  kBlockTwice,
  kBlockUnreachable,
  kBlockHidden,
  kMaskUnused,
  kNoBracket,
  kArrowOpen,
  kArrowClose,
  kArrowBehind,
  kLabelEmpty,
  kLabelTabs,
  kMnemonicTwice,
  kCaretPair,
  kConditionDropped,
  kConditionKept,
  kPartUnused,
  kCommandStar,
  kCommandComma,
  kCommandComment,
  kInPlaceNumber,
  kToolBarSeparator,
  kIconUndefined,
  kIconTwice,
  kSwitchUndefined,
  kSwitchMark,
  kSwitchTwice,
  kStateIconTwice,
  kStateValueTwice,
  kStateValueRange,
  kCount,
};

enum class Severity { kError, kWarning };

struct RuleInfo {
  Rule rule;
  const char* code;
  Severity severity;
  const char* name;
  const char* summary;
};

const RuleInfo& InfoOf(Rule rule);
std::span<const RuleInfo> AllRules();  // sorted by code
inline const char* WordOf(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}
