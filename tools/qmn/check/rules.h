// The rules of `qmn check`: one table with the permanent code, the severity, a short name and one
// sentence. The text output, the rules of the SARIF form, --list-rules and docs/menu-checks.md
// follow it. An error is what the engine refuses, and a wrong encoding, which makes everything else
// wrong; a warning is what the engine accepts but partly ignores without a message.
#pragma once

#include <bitset>
#include <span>
#include <string_view>

#include "tools/qmn/message.h"

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
  kUtf16,
  kNotUtf8,
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
  kDashes,
  kSeparatorPlace,
  kCommandMissing,
  kConditionBrace,
  kCommandQuote,
  kLineTwice,
  kAcceleratorScreen,
  kImageEmpty,
  kImageUnknown,
  kIconUnused,
  kSwitchUnused,
  kCommandUnknown,
  kFunctionUnknown,
  kIgnoreUnused,
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
Message SummaryOf(const RuleInfo& info);
Message SeverityText(Severity severity);
// For programs; the same in every language.
inline const char* WordOf(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

using RuleSet = std::bitset<static_cast<size_t>(Rule::kCount)>;

// A file with the other errors is refused by the engine, so that they can't be ignored.
bool IsIgnorable(Rule rule);
// Adds the rules with this code, the beginning of their codes ("QMN05"), or this name, in any case.
// False when there is none.
bool AddRules(std::string_view word, RuleSet& rules);
