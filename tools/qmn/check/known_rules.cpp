// Commands and LISP functions that the list of --commands does not name.
#include <string>

#include "tools/qmn/check/line_rules.h"
#include "tools/qmn/check/names.h"

namespace {

bool IsOneOf(char32_t c, std::u32string_view set) { return set.find(c) != set.npos; }

// The words at which a command begins: the first one, and the first one after each run of ^C.
class CommandWords {
 public:
  explicit CommandWords(const LineView& line) : m_line(line), m_text(line.Command()) {}

  void Check() {
    for (size_t at = 0; at < m_text.size(); at = BehindCancel(at)) {
      while (at < m_text.size() && (IsPair(at) || IsOneOf(m_text[at], U" \t;")))
        at += IsPair(at) ? 2 : 1;
      CheckWord(at);
    }
  }

 private:
  // A '^' and the character after it are never part of the text that is sent.
  bool IsPair(size_t at) const { return m_text[at] == U'^' && at + 1 < m_text.size(); }
  bool IsCancel(size_t at) const { return IsPair(at) && IsOneOf(m_text[at + 1], U"Cc"); }
  size_t BehindCancel(size_t at) const {
    while (at < m_text.size() && !IsCancel(at)) ++at;
    return at;
  }
  size_t WordEnd(size_t at, std::u32string_view stops) const {
    while (at < m_text.size() && !IsOneOf(m_text[at], stops)) ++at;
    return at;
  }

  void CheckWord(size_t at) {
    if (at == m_text.size() || m_text[at] == U'*') return;
    if (m_text[at] == U'(') return CheckFunction(at + 1);
    // Transparent, in the language of the program, not redefined: the name itself follows.
    while (at < m_text.size() && IsOneOf(m_text[at], U"'_.")) ++at;
    const size_t end = WordEnd(at, U" \t;^");
    const std::string name = Utf8Of(m_text.substr(at, end - at));
    if (name.empty() || Known().commands.count(FoldedName(name))) return;
    m_line.AddInCommand(Rule::kCommandUnknown, at, end,
                        "the list of commands does not name '{0}'"_say(name));
  }

  void CheckFunction(size_t at) {
    const size_t end = WordEnd(at, U" \t;()\"'^");
    const std::string name = Utf8Of(m_text.substr(at, end - at));
    if (name.empty() || Known().functions.count(FoldedName(name))) return;
    m_line.AddInCommand(Rule::kFunctionUnknown, at, end,
                        "the list of commands does not name the function '{0}'"_say(name));
  }

  const KnownNames& Known() const { return *m_line.Context().settings.known; }

  const LineView& m_line;
  std::u32string_view m_text;
};

}  // namespace

void CheckKnownCommands(const LineView& line) {
  if (line.Context().settings.known) CommandWords(line).Check();
}

void CheckKnownFunctions(const CheckContext& context) {
  if (!context.settings.known) return;
  for (const LintSwitch& owner : context.tree.switches)
    for (const LintToken& function : owner.functions)
      if (!context.settings.known->functions.count(FoldedName(context.source, function)))
        context.Add(
            Rule::kFunctionUnknown, function,
            "the list of commands does not name the function '{0}'"_say(context.Text(function)));
}
