#include "tools/qmn/check/source_text.h"

#include <algorithm>
#include <utility>

#include "menu/menu_scanner.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr size_t kShownBefore = 60;  // characters of a long line before the position
constexpr size_t kShownInAll = 160;

std::string Folded(std::string bytes) {
  FoldLineEnds(bytes);
  return bytes;
}

// Replaces control characters by visible ones, so that a terminal does not obey them.
unsigned Printable(unsigned code) {
  if (code < 0x20) return code == '\t' ? code : 0x2400 + code;
  if (code == 0x7F) return 0x2421;
  return code >= 0x80 && code < 0xA0 ? 0xFFFD : code;
}

void AppendUnits(std::wstring& units, unsigned code) {
  if (code >= 0x10000) {
    code -= 0x10000;
    units += static_cast<wchar_t>(0xD800 | code >> 10);
    code = 0xDC00 | (code & 0x3FF);
  }
  units += static_cast<wchar_t>(code);
}

void AppendMark(std::string& caret, unsigned code, char mark) {
  if (code == '\t' && mark == ' ')
    caret += '\t';
  else
    caret.append(static_cast<size_t>(DisplayWidth(code)), mark);
}

}  // namespace

bool LooksLikeUtf8(std::string_view bytes) {
  bool isLong = false;
  for (size_t at = 0; at < bytes.size();) {
    const TextChar next = NextUtf8(bytes, at);
    if (!next.isValid) return false;
    isLong = isLong || next.size > 2;
    at += next.size;
  }
  return isLong;
}

SourceText::SourceText(std::string bytes, unsigned page)
    : m_bytes(Folded(std::move(bytes))),
      m_page(page),
      m_isUtf8(page != kUtf8Page && LooksLikeUtf8(m_bytes)),
      m_decoder(m_isUtf8 ? kUtf8Page : page),
      m_pageDecoder(page),
      m_starts{0} {
  for (size_t i = 0; i < m_bytes.size(); ++i)
    if (m_bytes[i] == '\n') m_starts.push_back(i + 1);
}

int SourceText::LineOf(size_t offset) const {
  return static_cast<int>(std::upper_bound(m_starts.begin(), m_starts.end(), offset) -
                          m_starts.begin());
}

size_t SourceText::EndOf(int line) const {
  const auto next = static_cast<size_t>(line);
  return next < m_starts.size() ? m_starts[next] - 1 : m_bytes.size();
}

const std::vector<SourceText::Character>& SourceText::CharactersOf(int line) {
  if (line == m_decodedLine) return m_characters;
  m_decodedLine = line;
  m_characters.clear();
  const std::string_view text(m_bytes.data(), EndOf(line));
  for (size_t at = m_starts[static_cast<size_t>(line) - 1]; at < text.size();) {
    const TextChar next = m_decoder.Next(text, at);
    m_characters.push_back({at, next.code});
    at += next.size;
  }
  return m_characters;
}

// Index of the character that contains the byte; one past the last for the end of the line.
size_t SourceText::IndexAt(const std::vector<Character>& characters, size_t offset) const {
  const auto behind = std::upper_bound(characters.begin(), characters.end(), offset,
                                       [](size_t at, const Character& c) { return at < c.offset; });
  const auto index = static_cast<size_t>(behind - characters.begin());
  const bool isAtEnd = offset >= m_bytes.size() || m_bytes[offset] == '\n';
  return isAtEnd || index == 0 ? index : index - 1;
}

Place SourceText::PlaceOf(size_t offset) {
  const int line = LineOf(offset);
  return {line, static_cast<int>(IndexAt(CharactersOf(line), offset)) + 1};
}

Snippet SourceText::SnippetOf(size_t begin, size_t end) {
  const int line = LineOf(begin);
  const std::vector<Character>& all = CharactersOf(line);
  const size_t at = IndexAt(all, begin);
  const size_t first = all.size() > kShownInAll && at > kShownBefore ? at - kShownBefore : 0;
  const size_t last = std::min(all.size(), first + kShownInAll);
  const size_t stop = std::max(at + 1, IndexAt(all, std::min(end, EndOf(line))));
  std::wstring shown;
  std::string caret;
  for (size_t i = first; i < last; ++i) {
    const unsigned code = Printable(all[i].code);
    AppendUnits(shown, code);
    if (i < at) AppendMark(caret, code, ' ');
    if (i == at) caret.append(1, '^').append(DisplayWidth(code) > 1 ? 1 : 0, '~');
    if (i > at && i < stop) AppendMark(caret, code, '~');
  }
  if (at >= last) caret += '^';
  const std::string before = first ? "..." : "";
  return {before + Utf8(shown) + (last < all.size() ? "..." : ""),
          std::string(before.size(), ' ') + caret};
}

std::string SourceText::Shown(size_t begin, size_t end, size_t most) {
  std::wstring units;
  const std::string_view bytes(m_bytes);
  for (size_t at = begin; at < end;) {
    if (most-- == 0) return Utf8(units) + "...";
    const TextChar next = m_decoder.Next(bytes, at);
    AppendUnits(units, Printable(next.code));
    at += next.size;
  }
  return Utf8(units);
}
