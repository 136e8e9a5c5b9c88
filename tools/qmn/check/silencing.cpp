#include "tools/qmn/check/silencing.h"

#include <algorithm>
#include <string_view>

#include "menu/menu_scanner.h"
#include "tools/qmn/check/names.h"
#include "tools/qmn/silent_messages.h"

namespace {

constexpr std::string_view kMark = "qmn-ignore";

bool IsBetweenWords(char c) { return c == ' ' || c == '\t' || c == ',' || c == '\n'; }

// The next word at or after `at`; empty at the end.
std::string_view NextWord(std::string_view text, size_t& at) {
  while (at < text.size() && IsBetweenWords(text[at])) ++at;
  const size_t begin = at;
  while (at < text.size() && !IsBetweenWords(text[at])) ++at;
  return text.substr(begin, at - begin);
}

// The text of a comment without its marks.
std::string_view Inside(std::string_view comment) {
  const bool isBlock = comment[1] == '*';
  comment.remove_prefix(2);
  if (isBlock && comment.ends_with("*/")) comment.remove_suffix(2);
  return comment;
}

RuleSet AllIgnorable() {
  RuleSet rules;
  for (const RuleInfo& info : AllRules())
    if (IsIgnorable(info.rule)) rules.set(static_cast<size_t>(info.rule));
  return rules;
}

}  // namespace

Silencing::Silencing(const SourceText& source) : m_source(source) {
  const std::string& bytes = source.Bytes();
  if (bytes.find(kMark) == std::string::npos) return;
  SilentMessages messages;
  MenuScanner scanner(bytes, messages, nullptr, OpenComment::kStop);
  std::vector<Word> open;  // words whose line is not known yet
  int lastLine = 0;        // of the token before the gap
  for (MenuToken token; token.kind != QMN_END || lastLine == 0;) {
    const auto before = static_cast<size_t>(scanner.Position() - bytes.data());
    scanner.Next(token);
    const auto begin = static_cast<size_t>(token.begin - bytes.data());
    ReadGap(before, begin, open);
    const int line = token.kind == QMN_END ? 0 : source.LineOf(begin);
    for (Word& word : open) {
      const int own = source.LineOf(word.begin);
      word.line = own == lastLine ? own : line;
      m_words.push_back(word);
    }
    open.clear();
    if (token.kind == QMN_END) return;
    lastLine = line;
  }
}

void Silencing::ReadGap(size_t begin, size_t end, std::vector<Word>& open) {
  const std::string& bytes = m_source.Bytes();
  for (size_t at = begin; at + 1 < end;) {
    const bool isLine = bytes[at] == '/' && bytes[at + 1] == '/';
    const bool isBlock = bytes[at] == '/' && bytes[at + 1] == '*';
    if (!isLine && !isBlock) {
      ++at;
      continue;
    }
    const size_t close = bytes.find(isLine ? "\n" : "*/", at + 2);
    const size_t stop = std::min(end, close == std::string::npos ? end : close + (isLine ? 1 : 2));
    ReadComment(at, stop, open);
    at = stop;
  }
}

void Silencing::ReadComment(size_t begin, size_t end, std::vector<Word>& open) {
  const std::string_view comment(m_source.Bytes().data() + begin, end - begin);
  const std::string_view text = Inside(comment);
  const size_t base = begin + static_cast<size_t>(text.data() - comment.data());
  size_t at = 0;
  if (NextWord(text, at) != kMark) return;
  const size_t markEnd = at;
  bool hasCodes = false;
  for (;;) {
    const std::string_view word = NextWord(text, at);
    RuleSet rules;
    const bool isRule = !word.empty() && AddRules(word, rules);
    // What follows the codes is the reason.
    if (!isRule && FoldedName(word.substr(0, 3)) != "qmn") break;
    hasCodes = true;
    open.push_back({base + at - word.size(), base + at, 0, rules, false});
  }
  if (!hasCodes)
    open.push_back({base + markEnd - kMark.size(), base + markEnd, 0, AllIgnorable(), false});
}

bool Silencing::Silences(Rule rule, size_t offset) {
  if (m_words.empty()) return false;
  const int line = m_source.LineOf(offset);
  bool isSilenced = false;
  for (Word& word : m_words) {
    if (word.line != line || !word.rules[static_cast<size_t>(rule)]) continue;
    word.isUsed = isSilenced = true;
  }
  return isSilenced;
}

std::vector<Silencing::Unused> Silencing::UnusedWords(const RuleSet& notRun) const {
  std::vector<Unused> unused;
  for (const Word& word : m_words)
    if (!word.isUsed && (word.rules.none() || (word.rules & ~notRun).any()))
      unused.push_back(
          {word.begin, word.end, m_source.Bytes().substr(word.begin, word.end - word.begin)});
  return unused;
}
