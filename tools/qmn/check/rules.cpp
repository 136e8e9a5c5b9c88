#include "tools/qmn/check/rules.h"

#include <iterator>

#include "tools/qmn/check/names.h"

namespace {

constexpr Severity kErr = Severity::kError;
constexpr Severity kWarn = Severity::kWarning;

// In the order of the enumeration. A code is never reused for another rule.
constexpr RuleInfo kRules[] = {
    {Rule::kSyntax, "QMN001", kErr, "syntax",
     "Something else was expected here; the file leaves no menu at all."},
    {Rule::kSection, "QMN002", kErr, "section",
     "Title, blocks, ***SWITCH and ***RESOURCE must all be there, in this order."},
    {Rule::kEmptyBlock, "QMN003", kErr, "empty-block", "A block needs at least one menu line."},
    {Rule::kEmptySwitch, "QMN004", kErr, "empty-switch", "A switch needs at least one state."},
    {Rule::kStringOpen, "QMN005", kErr, "string-open", "A text must end in its own line."},
    {Rule::kStringAtEnd, "QMN006", kErr, "string-at-end", "The file ends inside a text."},
    {Rule::kStringTooLong, "QMN007", kErr, "string-too-long", "A text holds at most 197 bytes."},
    {Rule::kLineTooLong, "QMN008", kErr, "line-too-long",
     "A menu line holds at most 199 bytes with its '['."},
    {Rule::kLineAtEnd, "QMN009", kErr, "line-at-end",
     "A menu line must end in a newline, also the last one of the file."},
    {Rule::kCommentOpen, "QMN010", kErr, "comment-open",
     "A comment that never ends would be read for ever."},
    {Rule::kGroupKind, "QMN011", kErr, "group-kind",
     "A mask group whose value is of the wrong kind loses every block of the file."},
    {Rule::kGroupCode, "QMN012", kErr, "group-code",
     "A group code whose value a source can't write loses every block of the file."},
    {Rule::kUtf16, "QMN013", kErr, "utf-16", "The file is UTF-16, which the shell does not read."},
    {Rule::kNotUtf8, "QMN014", kErr, "not-utf-8",
     "The file is not UTF-8, though the code page 65001 says so."},
    {Rule::kStrayBytes, "QMN020", kWarn, "stray-bytes",
     "Bytes that mean nothing where they stand are skipped in silence."},
    {Rule::kMinus, "QMN021", kWarn, "minus",
     "A minus before a number is skipped; negative values can't be written."},
    {Rule::kZeroByte, "QMN022", kWarn, "zero-byte",
     "A byte 0 ends the file; what stands behind it is not read."},
    {Rule::kTokenCut, "QMN023", kWarn, "token-cut",
     "A word or number is cut after 199 bytes; the rest is read on its own."},
    {Rule::kNumberRange, "QMN024", kWarn, "number-range",
     "A number that does not fit becomes another one."},
    {Rule::kUndecodable, "QMN025", kWarn, "undecodable",
     "Bytes that are no text of the code page show as replacement characters."},
    {Rule::kByteOrderMark, "QMN026", kErr, "byte-order-mark",
     "A byte order mark means that the file is not in the code page."},
    {Rule::kUtf8, "QMN027", kErr, "utf-8",
     "The file is UTF-8, while menus are read in the code page."},
    {Rule::kBackslash, "QMN028", kWarn, "backslash",
     "Escapes are not decoded: the backslash stays in the text."},
    {Rule::kDoubleByteBackslash, "QMN029", kWarn, "double-byte-backslash",
     "A character whose second byte is that of a backslash escapes the quote behind it."},
    {Rule::kMaskMiddle, "QMN030", kWarn, "mask-middle",
     "Of three or more mask groups only the first and the last count."},
    {Rule::kBlockTwice, "QMN031", kWarn, "block-twice",
     "Of two blocks with one name the first is found."},
    {Rule::kBlockUnreachable, "QMN032", kWarn, "block-unreachable",
     "A block without a mask is chosen by a known name only."},
    {Rule::kBlockHidden, "QMN033", kWarn, "block-hidden",
     "An earlier block with the same or a wider mask is always chosen instead."},
    {Rule::kMaskUnused, "QMN034", kWarn, "mask-unused",
     "The mask of the block SCREEN is never looked at."},
    {Rule::kNoBracket, "QMN040", kWarn, "no-bracket",
     "A menu line without ']' loses its label and its command."},
    {Rule::kArrowOpen, "QMN041", kWarn, "arrow-open",
     "A '->' that is never closed opens no sub-menu and stays in the label."},
    {Rule::kArrowClose, "QMN042", kWarn, "arrow-close",
     "A '<-' with nothing to close stays in the label."},
    {Rule::kArrowBehind, "QMN043", kWarn, "arrow-behind",
     "An arrow counts only as the very first thing of a label."},
    {Rule::kLabelEmpty, "QMN044", kWarn, "label-empty", "A line without a label shows as a gap."},
    {Rule::kLabelTabs, "QMN045", kWarn, "label-tabs",
     "In a pop-up, what stands between the first and the last tab of a label is not shown."},
    {Rule::kMnemonicTwice, "QMN046", kWarn, "mnemonic-twice",
     "Of two lines with one mnemonic in a pop-up the key picks the first."},
    {Rule::kCaretPair, "QMN047", kWarn, "caret-pair",
     "A '^' takes the character behind it along; only ^C means something."},
    {Rule::kConditionDropped, "QMN048", kWarn, "condition-dropped",
     "A condition prefix that says nothing known is dropped."},
    {Rule::kConditionKept, "QMN049", kWarn, "condition-kept",
     "A condition prefix that is not read as one stays in the label."},
    {Rule::kPartUnused, "QMN050", kWarn, "part-unused",
     "Separators, switches and lines that open a sub-menu send no command."},
    {Rule::kCommandStar, "QMN051", kWarn, "command-star",
     "A pop-up command that begins with '*' names a group of the screen menu and is never sent."},
    {Rule::kCommandComma, "QMN052", kWarn, "command-comma",
     "A command with a comma breaks in the kept list of recent commands."},
    {Rule::kCommandComment, "QMN053", kWarn, "command-comment",
     "A comment behind a menu line is part of its command."},
    {Rule::kInPlaceNumber, "QMN054", kWarn, "inplace-number",
     "A line of an INPLACE block needs the number of an editing action as its command."},
    {Rule::kToolBarSeparator, "QMN055", kWarn, "toolbar-separator",
     "Each separator of ToolBar moves one place down, and one at the end has nowhere to go."},
    {Rule::kIconUndefined, "QMN056", kWarn, "icon-undefined",
     "An icon name that ***RESOURCE does not define shows no icon."},
    {Rule::kIconTwice, "QMN057", kWarn, "icon-twice",
     "Of two icons with one name, whatever its case, the first counts."},
    {Rule::kSwitchUndefined, "QMN058", kWarn, "switch-undefined",
     "A *SWITCH* line without a defined switch shows as it is written."},
    {Rule::kSwitchMark, "QMN059", kWarn, "switch-mark",
     "*SWITCH* counts only as the whole label of a line without a sub-menu."},
    {Rule::kSwitchTwice, "QMN060", kWarn, "switch-twice",
     "Of two switches with one name, whatever its case, the first counts."},
    {Rule::kStateIconTwice, "QMN061", kWarn, "state-icon-twice",
     "Between two states with one icon a button of the screen menu keeps its label."},
    {Rule::kStateValueTwice, "QMN062", kWarn, "state-value-twice",
     "Of two states with one value the first is shown."},
    {Rule::kStateValueRange, "QMN063", kWarn, "state-value-range",
     "A state above 32767 is never reached, since the get function answers a short integer."},
    {Rule::kDashes, "QMN064", kWarn, "dashes",
     "Only [--] is a separator; other dashes are a label."},
    {Rule::kSeparatorPlace, "QMN065", kWarn, "separator-place",
     "A separator stands between two lines, not first in its menu and not twice."},
    {Rule::kCommandMissing, "QMN066", kWarn, "command-missing",
     "A line without a command is always greyed."},
    {Rule::kConditionBrace, "QMN067", kWarn, "condition-brace",
     "A condition without its '{' stays in the label."},
    {Rule::kCommandQuote, "QMN068", kWarn, "command-quote",
     "Behind a quote that is never closed a ';' is no Enter."},
    {Rule::kLineTwice, "QMN069", kWarn, "line-twice",
     "Two lines of one menu have the same label and the same command."},
    {Rule::kAcceleratorScreen, "QMN070", kWarn, "accelerator-screen",
     "In the screen menu an accelerator text touches its label."},
    {Rule::kImageEmpty, "QMN071", kWarn, "image-empty",
     "An icon whose image has no name shows nothing."},
    {Rule::kImageUnknown, "QMN072", kWarn, "image-unknown",
     "An image that the icon library lacks shows nothing."},
    {Rule::kIconUnused, "QMN073", kWarn, "icon-unused", "No line and no state uses this icon."},
    {Rule::kSwitchUnused, "QMN074", kWarn, "switch-unused", "No line shows this switch."},
    {Rule::kCommandUnknown, "QMN075", kWarn, "command-unknown",
     "The list of commands does not name this command."},
    {Rule::kFunctionUnknown, "QMN076", kWarn, "function-unknown",
     "The list of commands does not name this LISP function."},
    {Rule::kIgnoreUnused, "QMN077", kWarn, "ignore-unused",
     "A qmn-ignore comment that silences nothing hides a later mistake."},
};
static_assert(std::size(kRules) == static_cast<size_t>(Rule::kCount));

}  // namespace

const RuleInfo& InfoOf(Rule rule) { return kRules[static_cast<size_t>(rule)]; }
std::span<const RuleInfo> AllRules() { return kRules; }

Message SummaryOf(const RuleInfo& info) { return Phrase(info.summary); }

Message SeverityText(Severity severity) {
  return severity == Severity::kError ? "error"_say : "warning"_say;
}

bool IsIgnorable(Rule rule) {
  switch (rule) {
    case Rule::kUtf16:
    case Rule::kNotUtf8:
    case Rule::kByteOrderMark:
    case Rule::kUtf8:
      return true;
    default:
      return InfoOf(rule).severity == Severity::kWarning;
  }
}

bool AddRules(std::string_view word, RuleSet& rules) {
  constexpr size_t kShortest = 4;  // "QMN0"
  const std::string wanted = FoldedName(word);
  bool isAny = false;
  for (const RuleInfo& info : kRules) {
    const bool isCode = wanted.size() >= kShortest && FoldedName(info.code).starts_with(wanted);
    if (!isCode && wanted != info.name) continue;
    rules.set(static_cast<size_t>(info.rule));
    isAny = true;
  }
  return isAny;
}
