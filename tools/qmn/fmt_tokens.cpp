#include "tools/qmn/fmt_tokens.h"

#include <algorithm>

#include "menu/menu_scanner.h"
#include "tools/qmn/silent_messages.h"

namespace {

std::string_view WithoutBlanksAtEnd(std::string_view text) {
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// Reads the gap between two tokens.
class GapReader {
 public:
  GapReader(SourceTokens& out, const char* begin) : m_out(out), m_at(begin) {}

  // Up to the token at `end`; false at a byte that is neither white space nor comment.
  bool ReadTo(const char* end) {
    m_newLines = m_out.tokens.empty() ? 1 : 0;
    while (m_at < end) {
      if (*m_at == '\n') ++m_newLines;
      if (*m_at == ' ' || *m_at == '\t' || *m_at == '\n')
        ++m_at;
      else if (!Comment(end))
        return false;
    }
    return true;
  }
  void SkipToken(const char* end) { m_at = end; }
  bool AfterBlankLine() const { return m_newLines > 1; }
  const char* Position() const { return m_at; }

 private:
  bool Comment(const char* end) {
    if (end - m_at < 2 || *m_at != '/') return false;
    if (m_at[1] == '/') {
      const char* stop = std::find(m_at, end, '\n');
      Keep(stop, WithoutBlanksAtEnd({m_at, static_cast<size_t>(stop - m_at)}));
      return true;
    }
    if (m_at[1] != '*') return false;
    const std::string_view mark = "*/";
    const char* stop = std::search(m_at + 2, end, mark.begin(), mark.end()) + 2;
    Keep(stop, {m_at, static_cast<size_t>(stop - m_at)});
    return true;
  }

  void Keep(const char* stop, std::string_view text) {
    m_out.comments.push_back({text, m_newLines > 0, m_newLines > 1});
    m_newLines = 0;
    m_at = stop;
  }

  SourceTokens& m_out;
  const char* m_at;
  int m_newLines = 0;
};

}  // namespace

SourceTokens TokenizeSource(const std::string& folded) {
  SourceTokens out;
  SilentMessages messages;
  MenuScanner scanner(folded, messages, nullptr, OpenComment::kStop);
  GapReader gap(out, folded.data());
  MenuToken token;
  do {
    scanner.Next(token);
    // A string token begins after its opening quote and ends after its closing one.
    const char* begin = token.begin - (token.kind == QMN_STRING ? 1 : 0);
    const auto firstComment = static_cast<uint32_t>(out.comments.size());
    if (!gap.ReadTo(begin)) {
      out.stray = gap.Position();
      return out;
    }
    const char* end = token.kind == QMN_END ? begin : scanner.Position();
    out.tokens.push_back({token.kind,
                          {begin, static_cast<size_t>(end - begin)},
                          firstComment,
                          gap.AfterBlankLine()});
    gap.SkipToken(end);
  } while (token.kind != QMN_END);
  if (gap.Position() != folded.data() + folded.size()) out.stray = gap.Position();
  return out;
}
