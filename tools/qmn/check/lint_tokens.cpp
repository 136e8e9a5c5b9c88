#include "tools/qmn/check/lint_tokens.h"

#include <algorithm>
#include <utility>

#include "tools/qmn/check/gap_rules.h"
#include "tools/qmn/check/token_rules.h"
#include "tools/qmn/silent_messages.h"

namespace {

// Drops the engine's messages and derives more detailed findings from the tokens.
class TokenReader {
 public:
  TokenReader(SourceText& source, Findings& findings)
      : m_source(source),
        m_findings(findings),
        m_bytes(source.Bytes()),
        m_scanner(m_bytes, m_silence, nullptr, OpenComment::kStop),
        m_base(m_scanner.Position()) {}

  TokenList Read() {
    while (ReadOne()) {
    }
    if (const char* open = m_scanner.OpenCommentAt()) ReportOpenComment(Offset(open));
    return std::move(m_list);
  }

 private:
  static constexpr size_t kNone = std::string::npos;

  size_t Offset(const char* at) const { return static_cast<size_t>(at - m_base); }

  bool ReadOne() {
    const size_t before = Offset(m_scanner.Position());
    MenuToken read;
    m_scanner.Next(read);
    LintToken token;
    token.kind = read.kind;
    token.number = read.number;
    token.begin = Offset(read.begin);
    token.end = token.begin + read.text.size();
    if (token.IsText()) --token.begin;
    if (token.kind == QMN_STRING) ++token.end;
    CheckGap({m_source, m_findings, m_bytes}, before, token);
    if (token.kind == QMN_END) return End(token), false;
    if (token.kind == QMN_ERR_STRING) BrokenText(token);
    if (token.kind == QMN_ERR_MENU_ITEM) BrokenLine(token);
    CheckToken({m_source, m_findings, m_source.Bytes()}, token, read.real);
    m_list.tokens.push_back(token);
    return true;
  }

  // Errors at the end of the file are shown after its last line, not on the line below.
  void End(LintToken token) {
    const size_t size = m_bytes.size();
    m_list.endedByZero = Offset(m_scanner.Position()) > token.begin;
    if (!m_list.endedByZero) {
      token.begin = token.end = size && m_bytes[size - 1] == '\n' ? size - 1 : size;
    } else {
      CheckBehindZero({m_source, m_findings, m_bytes}, token.begin);
    }
    m_list.tokens.push_back(token);
  }

  // Returns `to` when there is none before it; searching the rest of the file each time would make
  // reading quadratic.
  size_t Find(char wanted, size_t from, size_t to) const {
    const size_t at = std::string_view(m_bytes).substr(0, to).find(wanted, from);
    return std::min(at, to);
  }

  // The scanner's only state is its position, so blanking the skipped bytes is
  // equivalent to a jump.
  void SkipTo(size_t to) {
    const size_t from = Offset(m_scanner.Position());
    for (size_t i = from; i < to; ++i) m_bytes[i] = ' ';
  }

  void BrokenText(LintToken& token) {
    const size_t position = Offset(m_scanner.Position());
    const size_t read = position - token.begin - 1;
    const bool isZero = read > 0 && m_bytes[position - 1] == 0;
    if (!isZero && read >= static_cast<size_t>(kLongestToken)) return LongText(token, position);
    if (!isZero && position < m_bytes.size()) return TextOverLines(token, position);
    token.end = isZero ? position - 1 : position;
    if (isZero) SkipTo(m_source.EndOfLineAt(position - 1));
    m_findings.Add(Rule::kStringAtEnd, token.begin, token.end,
                   isZero ? "a byte 0 ends the file inside the text that begins here"_say
                          : "the file ends inside the text that begins here: expected '\"'"_say);
  }

  void TextOverLines(LintToken& token, size_t position) {
    token.end = position;
    m_findings.Add(Rule::kStringOpen, token.begin, token.end,
                   "the text that begins here does not end in its line: expected '\"'"_say);
    const size_t quote = QuoteOfNextLine(position + 1);
    if (quote != kNone) SkipTo(quote + 1);
  }

  // When a text was to continue in the next line, that line has an odd number of quotes, and the
  // first one, meant as the closing quote, does not follow a sign that introduces a text.
  size_t QuoteOfNextLine(size_t line) const {
    if (line >= m_bytes.size()) return kNone;
    const size_t end = m_source.EndOfLineAt(line);
    const std::string_view text = std::string_view(m_bytes).substr(line, end - line);
    if (std::count(text.begin(), text.end(), '"') % 2 == 0) return kNone;
    const size_t quote = text.find('"');
    const size_t before = text.substr(0, quote).find_last_not_of(" \t");
    const bool isOpening = before != text.npos && (text[before] == ',' || text[before] == '=');
    return isOpening ? kNone : line + quote;
  }

  // Skips to the closing quote when it is on the same line.
  void LongText(LintToken& token, size_t position) {
    const size_t line = m_source.EndOfLineAt(position);
    const size_t quote = Find('"', position, line);
    const size_t last = m_bytes[position - 1] == '"' ? position - 1 : quote;
    const size_t bytes = last - token.begin - 1;
    token.end = std::min(last + 1, line);
    m_findings.Add(Rule::kStringTooLong, token.begin, token.end,
                   "the text holds {0} bytes, at most 197 fit"_say(bytes));
    SkipTo(token.end);
  }

  void BrokenLine(LintToken& token) {
    const size_t position = Offset(m_scanner.Position());
    const size_t end = m_source.EndOfLineAt(token.begin);
    const size_t bytes = end - token.begin;
    const size_t zero = Find('\0', token.begin, position);
    if (zero < position) {
      m_findings.Add(Rule::kLineAtEnd, token.begin, zero,
                     "a byte 0 ends the file inside this menu line"_say);
      SkipTo(end);
    } else if (bytes > static_cast<size_t>(kLongestToken)) {
      m_findings.Add(
          Rule::kLineTooLong, token.begin, end,
          "the menu line holds {0} bytes, at most {1} fit with its '['"_say(bytes, kLongestToken));
      SkipTo(end);
    } else {
      m_findings.Add(Rule::kLineAtEnd, token.begin, end,
                     "the file ends inside this menu line: expected a newline behind it"_say);
    }
  }

  void ReportOpenComment(size_t open) {
    const bool isBlock = m_bytes[open + 1] == '*';
    m_list.endedInComment = isBlock;
    m_findings.Add(Rule::kCommentOpen, open, open + 2,
                   isBlock ? "the comment that begins here never ends: expected '*/'"_say
                           : "the comment on the last line never ends: expected a newline"_say);
  }

  SourceText& m_source;
  Findings& m_findings;
  std::string m_bytes;  // a copy; parts that must not be read again are blanked
  SilentMessages m_silence;
  MenuScanner m_scanner;
  const char* m_base;
  TokenList m_list;
};

}  // namespace

TokenList ReadTokens(SourceText& source, Findings& findings) {
  return TokenReader(source, findings).Read();
}
