// Unmatched "->" and "<-". The engine nests a range only where the depth returns to
// exactly zero, so one wrong arrow also keeps the lines around it from nesting; only the
// wrong arrows are reported.
#include "tools/qmn/check/line_rules.h"

namespace {

std::u32string_view Trim(std::u32string_view text) {
  while (!text.empty() && (text.front() == U' ' || text.front() == U'\t')) text.remove_prefix(1);
  return text;
}

class ArrowRules {
 public:
  void Check(const LineView& line) {
    switch (ArrowOf(line.Label())) {
      case Arrow::kOpening:
        m_open.push_back(&line);
        break;
      case Arrow::kClosing:
        Close(line, PairsOf(line.Label()));
        break;
      case Arrow::kNone:
        break;
    }
  }

  void End() {
    for (const LineView* line : m_open)
      line->AddInLabel(
          Rule::kArrowOpen, 0, 2,
          "the sub-menu opened here is never closed; the arrow stays in the label"_say);
  }

 private:
  static Message TooMany(int pairs, int open) {
    if (open == 0) return "there is no open sub-menu to close; the arrow stays in the label"_say;
    if (open == 1)
      return "this closes {0} sub-menus, but only 1 is open; the arrow stays in the label"_say(
          pairs);
    return "this closes {0} sub-menus, but only {1} are open; the arrow stays in the label"_say(
        pairs, open);
  }

  void Close(const LineView& line, int pairs) {
    const auto open = static_cast<int>(m_open.size());
    if (pairs <= open) {
      m_open.resize(m_open.size() - static_cast<size_t>(pairs));
      return;
    }
    line.AddInLabel(Rule::kArrowClose, 0, 2 * static_cast<size_t>(pairs), TooMany(pairs, open));
    // The openings around it are lost too, but are not errors of their own.
    m_open.clear();
  }

  std::vector<const LineView*> m_open;
};

// Reports an arrow that remains in the final label: either the label does not begin with an arrow,
// or this one follows the arrow that it begins with.
void CheckBehind(const LineView& line) {
  const std::u32string_view label = line.Label();
  const Arrow first = ArrowOf(label);
  const size_t skip = first == Arrow::kNone      ? 0
                      : first == Arrow::kOpening ? 2
                                                 : 2 * static_cast<size_t>(PairsOf(label));
  std::u32string_view rest = Trim(label.substr(skip));
  while (!rest.empty() && rest.front() == U'{' && rest.find(U'}') != rest.npos)
    rest = Trim(rest.substr(rest.find(U'}') + 1));
  if (ArrowOf(rest) == Arrow::kNone) return;
  const size_t at = label.size() - rest.size();
  line.AddInLabel(
      Rule::kArrowBehind, at, at + 2,
      first == Arrow::kNone
          ? "an arrow counts only right behind the '['; this one stays in the label"_say
          : "a line begins with arrows of one kind only; this one stays in the label"_say);
}

}  // namespace

void CheckArrows(const CheckContext&, const std::vector<LineView>& lines) {
  ArrowRules rules;
  for (const LineView& line : lines) {
    if (!line.HasBracket()) continue;
    rules.Check(line);
    CheckBehind(line);
  }
  rules.End();
}
