// Condition prefixes that are dropped, and those that remain in the label.
#include "tools/qmn/check/line_rules.h"
#include "tools/qmn/check/names.h"

namespace {

// The engine does not examine shorter labels.
constexpr size_t kShortestLabel = 3;

std::u32string_view TrimFront(std::u32string_view text) {
  while (!text.empty() && text.front() == U' ') text.remove_prefix(1);
  return text;
}

std::u32string_view TrimBack(std::u32string_view text) {
  while (!text.empty() && text.back() == U' ') text.remove_suffix(1);
  return text;
}

bool IsOneWord(std::u32string_view text) { return text.find(U' ') == text.npos; }

class ConditionWalk {
 public:
  ConditionWalk(const LineView& line, size_t skip) : m_line(line), m_label(line.Label()) {
    m_rest = TrimFront(m_label.substr(skip));
  }

  void Run() {
    while (!m_rest.empty() && m_rest.front() == U'{') {
      const size_t close = m_rest.find(U'}');
      if (close == m_rest.npos) break;
      m_begin = m_label.size() - m_rest.size();
      m_end = m_begin + close + 1;
      Condition(m_rest.substr(1, close - 1));
      m_rest = TrimFront(m_rest.substr(close + 1));
    }
  }

 private:
  void Condition(std::u32string_view text) {
    const size_t equal = text.find(U'=');
    if (equal == text.npos)
      return Report(
          "the prefix has no '=' and is dropped; expected {~=Function} or {!=Function}"_say);
    // Only the first word on the left is used.
    const std::u32string_view left = TrimFront(text.substr(0, equal));
    const std::u32string_view word = left.substr(0, left.find(U' '));
    if (word != U"~" && word != U"!")
      return Report("the prefix is dropped; expected '~' or '!' in front of '='"_say);
    const std::u32string_view name = TrimBack(TrimFront(text.substr(equal + 1)));
    if (name.empty()) return Report("the prefix names no function"_say);
    CheckFunction(name.substr(0, name.find(U' ')));
    if (!IsOneWord(TrimBack(left)) || !IsOneWord(name))
      return Report("only the first word on each side of the '=' counts"_say);
    bool& seen = word == U"~" ? m_hasGray : m_hasCheck;
    if (seen) Report("the prefix takes the place of the one before it of the same kind"_say);
    seen = true;
  }

  void CheckFunction(std::u32string_view name) {
    const CheckSettings& settings = m_line.Context().settings;
    if (!settings.known) return;
    const std::string narrow = Utf8Of(name);
    if (settings.known->functions.count(FoldedName(narrow))) return;
    m_line.AddInLabel(Rule::kFunctionUnknown, m_begin, m_end,
                      "the list of commands does not name the function '{0}'"_say(narrow));
  }

  void Report(Phrase text) { m_line.AddInLabel(Rule::kConditionDropped, m_begin, m_end, text); }

  const LineView& m_line;
  std::u32string_view m_label, m_rest;
  size_t m_begin = 0, m_end = 0;
  bool m_hasGray = false, m_hasCheck = false;
};

// True when the compiled label contains a prefix.
bool KeepsPrefix(const TMenuItem& item) {
  std::wstring_view label = TextOf(item.m_strLabel);
  if (label.find(L"{~=") != label.npos || label.find(L"{!=") != label.npos) return true;
  while (!label.empty() && (label.front() == L' ' || label.front() == L'\t'))
    label.remove_prefix(1);
  return !label.empty() && label.front() == L'{';
}

// The compiled label is a suffix of the written one.
size_t KeptAt(const LineView& line) {
  const std::u32string_view label = TrimBack(line.Label());
  const auto kept = static_cast<size_t>(line.Item().m_strLabel.Length());
  const size_t open = label.find(U'{', label.size() > kept ? label.size() - kept : 0);
  return open == label.npos ? line.Label().find(U'{') : open;
}

Phrase WhyKept(const LineView& line) {
  if (ArrowOf(line.Label()) == Arrow::kOpening)
    return "a line that opens a sub-menu takes no condition; it stays in the label"_say;
  if (line.Label().find(U'}') == LineView::kNone)
    return "the condition has no '}'; it stays in the label"_say;
  return "a condition counts only at the very beginning of a label; it stays in the label"_say;
}

// A condition that lost its '{'.
void CheckBrace(const LineView& line) {
  const std::u32string_view label = line.Label();
  const auto skip =
      ArrowOf(label) == Arrow::kOpening ? size_t{2} : 2 * static_cast<size_t>(PairsOf(label));
  std::u32string_view rest = TrimFront(label.substr(skip));
  while (!rest.empty() && rest.front() == U'{' && rest.find(U'}') != rest.npos)
    rest = TrimFront(rest.substr(rest.find(U'}') + 1));
  if (!rest.starts_with(U"~=") && !rest.starts_with(U"!=")) return;
  const size_t begin = label.size() - rest.size();
  const size_t close = rest.find(U'}');
  line.AddInLabel(Rule::kConditionBrace, begin, close == rest.npos ? begin + 2 : begin + close + 1,
                  "the condition has no '{'; it stays in the label"_say);
}

}  // namespace

void CheckConditions(const LineView& line) {
  CheckBrace(line);
  const std::u32string_view label = line.Label();
  if (label.find(U'{') == label.npos) return;
  if (KeepsPrefix(line.Item()))
    line.AddInLabel(Rule::kConditionKept, KeptAt(line), KeptAt(line) + 1, WhyKept(line));
  if (line.Item().m_pSubMenu || line.Item().m_pSwitch) return;
  const auto pairs = static_cast<size_t>(PairsOf(label));
  if (label.size() - 2 * pairs < kShortestLabel) return;
  if (TextOf(line.Item().m_strLabel).substr(0, 2) == L"<-" && pairs) return;
  ConditionWalk(line, 2 * pairs).Run();
}
