// Parts of a command that are lost, and commands that are never sent.
#include <algorithm>

#include "tools/qmn/check/line_rules.h"

namespace {

constexpr int kFirstAction = 5001, kLastAction = 5024, kNoAction = 5017;

// Parsed as the editing actions do: blanks, a sign, digits.
int NumberOf(std::wstring_view text) {
  size_t i = 0;
  while (i < text.size() && (text[i] == L' ' || (text[i] >= 9 && text[i] <= 13))) ++i;
  if (i < text.size() && text[i] == L'-') return 0;
  if (i < text.size() && text[i] == L'+') ++i;
  int number = 0;
  for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i)
    number = number > kLastAction ? number : number * 10 + (text[i] - L'0');
  return number;
}

void CheckAction(const LineView& line) {
  const int number = NumberOf(TextOf(line.Item().m_strCommand));
  if (number >= kFirstAction && number <= kLastAction && number != kNoAction) return;
  line.AddInCommand(Rule::kInPlaceNumber, 0, line.Command().size(),
                    "this is no editing action: expected 5001 to 5016 or 5018 to 5024"_say);
}

// Advances by pairs, as the engine does.
void CheckCarets(const LineView& line) {
  std::u32string_view command = line.Command();
  if (command.back() == U';') command.remove_suffix(1);
  for (size_t i = 0; i < command.size(); ++i) {
    if (command[i] != U'^') continue;
    if (i + 1 == command.size()) {
      line.AddInCommand(Rule::kCaretPair, i, i + 1, "the '^' at the end vanishes"_say);
      return;
    }
    const char32_t next = command[i + 1];
    if (next != U'C' && next != U'c')
      line.AddInCommand(Rule::kCaretPair, i, i + 2,
                        "the '^' vanishes together with the character behind it; only ^C means "
                        "something"_say);
    ++i;
  }
}

void CheckComment(const LineView& line) {
  const std::u32string_view command = line.Command();
  for (size_t i = 0; i + 1 < command.size(); ++i) {
    if (command[i] != U'/' || (command[i + 1] != U'/' && command[i + 1] != U'*')) continue;
    if (i > 0 && command[i - 1] != U' ' && command[i - 1] != U'\t' && command[i - 1] != U';')
      continue;
    line.AddInCommand(Rule::kCommandComment, i, command.size(),
                      "a menu line has no comment; this is part of the command"_say);
    return;
  }
}

void CheckUnused(const LineView& line) {
  const TMenuItem& item = line.Item();
  if (item.IsSeparator() && line.Source().icon && !item.m_pSubMenu)
    line.AddIcon(Rule::kPartUnused, "a separator shows no icon"_say);
  if (line.Command().empty() || line.SendsCommand()) return;
  line.AddInCommand(Rule::kPartUnused, 0, line.Command().size(),
                    item.m_pSubMenu  ? "a line that opens a sub-menu never sends its command"_say
                    : item.m_pSwitch ? "a switch never sends its command"_say
                                     : "a separator never sends its command"_say);
}

// Lines with another finding about their label are left out.
void CheckMissing(const LineView& line) {
  const TMenuItem& item = line.Item();
  if (!line.Command().empty() || item.IsSeparator() || item.m_pSubMenu || item.m_pSwitch) return;
  if (item.m_strLabel.IsEmpty() || IsOnlyDashes(item) || ShowsSwitchMark(item)) return;
  if (KeepsArrow(item)) return;
  line.AddLabel(Rule::kCommandMissing, "the line has no command and is always greyed"_say);
}

void CheckQuotes(const LineView& line) {
  const std::u32string_view command = line.Command();
  if (std::count(command.begin(), command.end(), U'"') % 2 == 0) return;
  const size_t last = command.rfind(U'"');
  line.AddInCommand(Rule::kCommandQuote, last, command.size(),
                    "this quote is never closed; a ';' behind it is no Enter"_say);
}

}  // namespace

void CheckCommand(const LineView& line) {
  CheckUnused(line);
  CheckMissing(line);
  if (!line.SendsCommand()) return;
  CheckComment(line);
  if (line.IsInPlace()) return CheckAction(line);
  CheckCarets(line);
  CheckQuotes(line);
  CheckKnownCommands(line);
  const TWCString& sent = line.Item().m_strCommand;
  if (line.IsPopUp() && !sent.IsEmpty() && sent[0] == L'*')
    line.AddInCommand(Rule::kCommandStar, 0, line.Command().size(),
                      "in a pop-up this names a group of the screen menu and is not sent to the "
                      "host; the Enter at its end keeps it from being found"_say);
  const size_t comma = line.Command().find(U',');
  if (comma != LineView::kNone)
    line.AddInCommand(Rule::kCommandComma, comma, comma + 1,
                      "the list of recent commands is kept with commas between them; this command "
                      "comes back in pieces"_say);
}
