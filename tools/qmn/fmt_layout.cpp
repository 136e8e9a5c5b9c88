#include "tools/qmn/fmt_layout.h"

#include <algorithm>
#include <array>

#include "afxstr.h"
#include "menu/menu_token.h"

namespace {

// Longer names do not widen their column: one long name would move all other columns far right.
constexpr size_t kWidestColumn = 24;
constexpr char kContinuation[] = "    ";

// A construct that starts an output line.
enum class RowKind { kTitle, kBlock, kLine, kSwitches, kSwitch, kState, kResources, kResource };

struct Row {
  RowKind kind;
  size_t first, end;  // tokens
};

class RowReader {
 public:
  explicit RowReader(const SourceTokens& source) : m_tokens(source.tokens) {}

  std::vector<Row> ReadAll() {
    std::vector<Row> rows;
    for (m_at = 0; KindAt(0) != QMN_END; m_at = rows.back().end) rows.push_back(Next());
    return rows;
  }

 private:
  int KindAt(size_t ahead) const {
    const size_t index = m_at + ahead;
    return index < m_tokens.size() ? m_tokens[index].kind : QMN_END;
  }
  Row Of(RowKind kind, size_t length) const {
    return {kind, m_at, std::min(m_at + length, m_tokens.size() - 1)};
  }

  Row Next() {
    switch (KindAt(0)) {
      case QMN_TITLE:
        return Of(RowKind::kTitle, 3);
      case QMN_PREFIX:
        return Section();
      case QMN_SUB_PREFIX:
        return Of(RowKind::kSwitch, 8);
      case QMN_ICON:
        return Of(RowKind::kState, 5);
      case QMN_IDENTIFIER:
        return KindAt(1) == QMN_EQUAL ? Of(RowKind::kResource, 5) : Of(RowKind::kLine, 2);
      default:
        return Of(RowKind::kLine, 1);
    }
  }

  Row Section() {
    if (KindAt(1) == QMN_MENU_SWITCH) return Of(RowKind::kSwitches, 2);
    if (KindAt(1) == QMN_MENU_RES) return Of(RowKind::kResources, 2);
    if (KindAt(2) != QMN_IDENTIFIER || KindAt(3) != QMN_EQUAL) return Of(RowKind::kBlock, 2);
    size_t length = 7;
    while (KindAt(length) == QMN_COMA) length += 4;
    return Of(RowKind::kBlock, length);
  }

  const std::vector<SourceToken>& m_tokens;
  size_t m_at = 0;
};

// Index of the padded token in its row, by kind of row.
constexpr size_t kIconOfLine = 0;
constexpr size_t kNameOfSwitch = 1, kGetOfSwitch = 4;
constexpr size_t kValueOfState = 0, kIconOfState = 2;
constexpr size_t kNameOfResource = 0;

// The columns of one block or section.
struct Columns {
  size_t icon = 0;
  size_t switchName = 0, get = 0;
  size_t value = 0, stateIcon = 0;
  size_t resource = 0;
};

class Layout {
 public:
  Layout(const SourceTokens& source, unsigned page)
      : m_source(source), m_page(page), m_rows(RowReader(source).ReadAll()) {}

  std::string Run() {
    for (size_t i = 0; i < m_rows.size(); ++i) {
      if (IsSection(m_rows[i])) m_columns = Measure(i);
      PutGap(m_rows[i].first, i > 0, IsSection(m_rows[i]));
      PutRow(m_rows[i]);
    }
    PutGap(m_source.tokens.size() - 1, !m_rows.empty(), false);
    return std::move(m_out);
  }

 private:
  static bool IsSection(const Row& row) {
    return row.kind == RowKind::kBlock || row.kind == RowKind::kSwitches ||
           row.kind == RowKind::kResources;
  }

  // --- Columns

  // Covers the rows after a section's head up to the next head.
  Columns Measure(size_t head) const {
    Columns columns;
    for (size_t i = head + 1; i < m_rows.size() && !IsSection(m_rows[i]); ++i)
      if (!HasInnerComment(m_rows[i])) MeasureRow(m_rows[i], columns);
    return columns;
  }

  void MeasureRow(const Row& row, Columns& columns) const {
    switch (row.kind) {
      case RowKind::kLine:
        if (row.end - row.first == 2) Widen(columns.icon, row, kIconOfLine);
        break;
      case RowKind::kSwitch:
        Widen(columns.switchName, row, kNameOfSwitch);
        Widen(columns.get, row, kGetOfSwitch);
        break;
      case RowKind::kState:
        Widen(columns.value, row, kValueOfState);
        Widen(columns.stateIcon, row, kIconOfState);
        break;
      case RowKind::kResource:
        Widen(columns.resource, row, kNameOfResource);
        break;
      default:
        break;
    }
  }

  void Widen(size_t& column, const Row& row, size_t token) const {
    const size_t width = m_source.tokens[row.first + token].text.size();
    if (width <= kWidestColumn) column = std::max(column, width);
  }

  // --- Rows

  // The comments before a token end where those of the next token begin.
  size_t CommentsEnd(size_t token) const {
    return token + 1 < m_source.tokens.size() ? m_source.tokens[token + 1].firstComment
                                              : m_source.comments.size();
  }

  bool HasInnerComment(const Row& row) const {
    for (size_t i = row.first + 1; i < row.end; ++i)
      if (m_source.tokens[i].firstComment != CommentsEnd(i)) return true;
    return false;
  }

  void PutRow(const Row& row) {
    const bool padded = !HasInnerComment(row);
    for (size_t i = row.first; i < row.end; ++i) {
      if (i > row.first && !PutInnerComments(i)) PutSpace(row, i, padded);
      PutToken(m_source.tokens[i]);
    }
  }

  // Inner comments keep their place; after a // comment the row continues on the next line.
  bool PutInnerComments(size_t token) {
    const size_t begin = m_source.tokens[token].firstComment, end = CommentsEnd(token);
    for (size_t i = begin; i < end; ++i) {
      const SourceComment& comment = m_source.comments[i];
      if (m_out.back() != ' ') m_out += ' ';
      m_out += comment.text;
      m_out += comment.IsLineComment() ? std::string("\n") + kContinuation : " ";
    }
    return begin != end;
  }

  void PutToken(const SourceToken& token) {
    m_out += token.kind == QMN_MENU_ITEM ? TrimmedLine(token.text) : token.text;
  }

  // Trailing blanks of the command are removed. When a broken character before them consumes the
  // first blank, they are kept.
  std::string_view TrimmedLine(std::string_view line) const {
    const size_t size = line.find_last_not_of(" \t") + 1;
    if (size == line.size()) return line;
    const std::string_view trimmed = line.substr(0, size);
    if (static_cast<unsigned char>(trimmed.back()) < 0x80) return trimmed;
    const std::string_view blanks = line.substr(size);
    const std::wstring whole = AnsiToWide(line, m_page);
    return whole == AnsiToWide(trimmed, m_page) + std::wstring(blanks.begin(), blanks.end())
               ? trimmed
               : line;
  }

  // Between two tokens of a row.
  void PutSpace(const Row& row, size_t token, bool padded) {
    const size_t index = token - row.first;
    switch (row.kind) {
      case RowKind::kTitle:
        return PutBlanks(1);
      case RowKind::kBlock:
        return PutBlanks(index >= 2 && index <= 4 ? 1 : 0);
      case RowKind::kLine:
        return PutPadding(row, kIconOfLine, m_columns.icon, padded);
      case RowKind::kSwitch:
        if (index == 2) return PutPadding(row, kNameOfSwitch, m_columns.switchName, padded);
        if (index == 5) return PutPadding(row, kGetOfSwitch, m_columns.get, padded);
        return;
      case RowKind::kState:
        if (index == 1) return PutPadding(row, kValueOfState, m_columns.value, padded);
        if (index == 4) return PutPadding(row, kIconOfState, m_columns.stateIcon, padded);
        return PutBlanks(index == 2 ? 1 : 0);
      case RowKind::kResource:
        if (index == 1) return PutPadding(row, kNameOfResource, m_columns.resource, padded);
        return PutBlanks(index == 2 ? 1 : 0);
      default:
        return;
    }
  }

  void PutBlanks(size_t count) { m_out.append(count, ' '); }

  void PutPadding(const Row& row, size_t token, size_t column, bool padded) {
    const size_t width = m_source.tokens[row.first + token].text.size();
    PutBlanks(padded && width < column ? column - width + 1 : 1);
  }

  // --- Between rows

  // Comments after the previous row on its line stay there, all others get lines of
  // their own. Several empty lines become one; a section is preceded by one, placed
  // before the section's comments.
  void PutGap(size_t token, bool hasRowBefore, bool section) {
    size_t i = m_source.tokens[token].firstComment;
    const size_t end = CommentsEnd(token);
    if (hasRowBefore)
      for (size_t first = i; i < end && !m_source.comments[i].onNewLine; ++i) {
        PutBlanks(i == first ? 2 : 1);
        m_out += m_source.comments[i].text;
      }
    bool wantsBlank = section && hasRowBefore && !HasBlankLine(i, end, token);
    for (; i < end; ++i) {
      const SourceComment& comment = m_source.comments[i];
      if (comment.onNewLine)
        NewLine(comment.blankBefore || wantsBlank);
      else if (!m_out.empty())
        PutBlanks(1);
      wantsBlank = false;
      m_out += comment.text;
    }
    const bool last = token + 1 == m_source.tokens.size();
    NewLine(!last && (m_source.tokens[token].blankBefore || wantsBlank));
  }

  bool HasBlankLine(size_t comment, size_t end, size_t token) const {
    for (; comment < end; ++comment)
      if (m_source.comments[comment].blankBefore) return true;
    return m_source.tokens[token].blankBefore;
  }

  void NewLine(bool blank) {
    if (m_out.empty()) return;
    m_out += blank ? "\n\n" : "\n";
  }

  const SourceTokens& m_source;
  const unsigned m_page;
  const std::vector<Row> m_rows;
  Columns m_columns;
  std::string m_out;
};

}  // namespace

std::string LayOutSource(const SourceTokens& source, unsigned page) {
  return Layout(source, page).Run();
}
