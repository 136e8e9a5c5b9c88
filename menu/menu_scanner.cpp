#include "menu/menu_scanner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "menu/byte_search.h"

namespace {

enum CharClass : unsigned char {
  kStray,
  kZero,
  kNewline,
  kBlank,
  kLetter,
  kDigit,
  kSlash,
  kStar,
  kQuote,
  kBracket,
  kPoint,
  kComma,
  kPlus,
  kEqual,
};

constexpr std::array<CharClass, 256> MakeClasses() {
  std::array<CharClass, 256> classes{};
  for (int c = 'a'; c <= 'z'; ++c) classes[static_cast<size_t>(c)] = kLetter;
  for (int c = 'A'; c <= 'Z'; ++c) classes[static_cast<size_t>(c)] = kLetter;
  for (int c = '0'; c <= '9'; ++c) classes[static_cast<size_t>(c)] = kDigit;
  classes['_'] = kLetter;
  classes[0] = kZero;
  classes['\n'] = kNewline;
  classes[' '] = classes['\t'] = kBlank;
  classes['/'] = kSlash;
  classes['*'] = kStar;
  classes['"'] = kQuote;
  classes['['] = kBracket;
  classes['.'] = kPoint;
  classes[','] = kComma;
  classes['+'] = kPlus;
  classes['='] = kEqual;
  return classes;
}
constexpr std::array<CharClass, 256> kClasses = MakeClasses();

CharClass ClassOf(char c) { return kClasses[static_cast<unsigned char>(c)]; }
bool IsDigit(char c) { return ClassOf(c) == kDigit; }
bool IsWord(char c) { return ClassOf(c) == kLetter || ClassOf(c) == kDigit; }

struct Keyword {
  std::string_view word;
  int kind;
};

// A perfect hash: length and first letter give each keyword its own slot.
constexpr size_t PlaceOfWord(std::string_view word) {
  return (word.size() * 2 + static_cast<unsigned char>(word[0])) % 16;
}

constexpr std::array<Keyword, 16> MakeKeywords() {
  std::array<Keyword, 16> places{};
  for (const Keyword& keyword :
       {Keyword{"GET", QMN_GET_STATE}, Keyword{"SET", QMN_SET_STATE}, Keyword{"POP", QMN_POP},
        Keyword{"CTRL", QMN_CTRL}, Keyword{"SWITCH", QMN_MENU_SWITCH},
        Keyword{"RCLICK", QMN_RCLICK}, Keyword{"RESOURCE", QMN_MENU_RES},
        Keyword{"MENU_TITLE", QMN_TITLE}})
    places[PlaceOfWord(keyword.word)] = keyword;
  return places;
}
constexpr std::array<Keyword, 16> kKeywords = MakeKeywords();

// One comparison rejects most words, which are identifiers.
int KindOfWord(std::string_view word) {
  const Keyword& keyword = kKeywords[PlaceOfWord(word)];
  return word == keyword.word ? keyword.kind : QMN_IDENTIFIER;
}

int SaturatedNumber(const char* begin, const char* end) {
  constexpr long long kMost = std::numeric_limits<int>::max();
  long long value = 0;
  for (; begin < end && value <= kMost; ++begin) value = value * 10 + (*begin - '0');
  return static_cast<int>(std::min(value, kMost));
}

// As atof in the C locale; the host may have set another one.
double RealOf(const char* begin, const char* end) {
  double value = 0;
  if (std::from_chars(begin, end, value).ec == std::errc::result_out_of_range)
    value = std::strtod(std::string(begin, end).c_str(), nullptr);  // too large or too small
  return value;
}

// Deliberate: an unterminated comment never ends. The host then hangs.
void ReadOnForEver() {
  volatile char next = 0;
  while (next == 0) {
  }
}

}  // namespace

void SourceEcho::Flush() {
  if (m_file && m_count) std::fwrite(m_bytes, 1, m_count, m_file);
  m_count = 0;
}

void FoldLineEnds(std::string& bytes) {
  size_t pair = bytes.find("\r\n");
  if (pair == std::string::npos) return;
  char* to = bytes.data() + pair;
  while (pair != std::string::npos) {
    const size_t from = pair + 1;
    pair = bytes.find("\r\n", from);
    const size_t count = (pair == std::string::npos ? bytes.size() : pair) - from;
    std::memmove(to, bytes.data() + from, count);
    to += count;
  }
  bytes.resize(static_cast<size_t>(to - bytes.data()));
}

MenuScanner::MenuScanner(const std::string& source, SourceMessages& messages, SourceEcho* echo,
                         OpenComment openComment)
    : m_at(source.data()),
      m_end(source.data() + source.size()),
      m_messages(messages),
      m_echo(echo),
      m_onOpenComment(openComment) {}

int MenuScanner::Next(MenuToken& token) {
  for (;;) {
    if (m_at == m_end) return Text(token, QMN_END, m_at, m_at);
    switch (ClassOf(*m_at)) {
      case kZero:
        ++m_at;
        return Text(token, QMN_END, m_at - 1, m_at - 1);
      case kBlank:
        ++m_at;
        break;
      case kNewline:
        ++m_line;
        [[fallthrough]];
      case kStray:
        Skip();
        break;
      case kLetter:
        return Identifier(token);
      case kDigit:
        return Number(token);
      case kPoint:
        if (const char* end = Fraction(m_at, Limit(m_at)); end != m_at) return Real(token, end);
        Skip();
        break;
      case kQuote:
        return String(token);
      case kBracket:
        return MenuLine(token);
      case kStar:
        if (int kind = Stars(token)) return kind;
        Skip();
        break;
      case kSlash:
        if (!Comment()) Skip();
        break;
      case kComma:
        ++m_at;
        return Text(token, QMN_COMA, m_at - 1, m_at);
      case kPlus:
        ++m_at;
        return Text(token, QMN_PLUS, m_at - 1, m_at);
      case kEqual:
        ++m_at;
        return Text(token, QMN_EQUAL, m_at - 1, m_at);
    }
  }
}

// A byte that no rule matches.
void MenuScanner::Skip() {
  if (m_echo) m_echo->Put(*m_at);
  ++m_at;
}

// The end of the longest token that may begin here.
const char* MenuScanner::Limit(const char* begin) const {
  return m_end - begin > kLongestToken ? begin + kLongestToken : m_end;
}

int MenuScanner::Text(MenuToken& token, int kind, const char* begin, const char* end) {
  token.kind = kind;
  token.begin = begin;
  token.text = {begin, static_cast<size_t>(end - begin)};
  return kind;
}

int MenuScanner::Fail(MenuToken& token, int kind, const char* begin, const char* end,
                      const wchar_t* message) {
  m_messages.ReportSyntaxError(message, m_line);
  return Text(token, kind, begin, end);
}

int MenuScanner::Identifier(MenuToken& token) {
  const char* begin = m_at;
  const char* limit = Limit(begin);
  while (m_at < limit && IsWord(*m_at)) ++m_at;
  Text(token, QMN_IDENTIFIER, begin, m_at);
  return token.kind = KindOfWord(token.text);
}

int MenuScanner::Number(MenuToken& token) {
  const char* begin = m_at;
  const char* limit = Limit(begin);
  const char* end = begin;
  while (end < limit && IsDigit(*end)) ++end;
  if (const char* fraction = Fraction(end, limit); fraction != end) return Real(token, fraction);
  m_at = end;
  token.number = SaturatedNumber(begin, end);
  return Text(token, QMN_ICON, begin, end);
}

// The end of a fraction (point, digits, optional exponent) that begins at `point`; `point` itself
// when there is none. An exponent without digits is not part of the number.
const char* MenuScanner::Fraction(const char* point, const char* limit) const {
  const char* p = point;
  if (p == limit || *p != '.') return point;
  ++p;
  if (p == limit || !IsDigit(*p)) return point;
  while (p < limit && IsDigit(*p)) ++p;
  const char* exponent = p;
  if (exponent < limit && (*exponent == 'e' || *exponent == 'E')) ++exponent;
  if (exponent == p) return p;
  if (exponent < limit && (*exponent == '+' || *exponent == '-')) ++exponent;
  if (exponent == limit || !IsDigit(*exponent)) return p;
  while (exponent < limit && IsDigit(*exponent)) ++exponent;
  return exponent;
}

int MenuScanner::Real(MenuToken& token, const char* end) {
  const char* begin = m_at;
  token.real = RealOf(begin, end);
  m_at = end;
  return Text(token, QMN_FCON, begin, end);
}

// The limit of 199 bytes includes the closing quote and both bytes of an escape; the 199th byte
// ends the string, whatever it is. Escapes are kept as written, and an escaped newline does not end
// the string.
int MenuScanner::String(MenuToken& token) {
  const char* begin = m_at + 1;
  const char* last = m_end - begin < kLongestToken ? m_end : begin + kLongestToken - 1;
  const char* p = begin;
  for (;; ++p) {
    p = bytes::FindAny<'"', '\\', '\n', '\0'>(p, last);
    const char* kept = p;
    if (p < last && *p == '\\') ++p;
    if (p == m_end || *p == 0) {
      m_at = p == m_end ? p : p + 1;
      return Fail(token, QMN_ERR_STRING, begin, kept, L"\n字符串没有结束, 文件就结束了!");
    }
    if (p >= last) {
      if (*p == '\n') ++m_line;
      m_at = p + 1;
      return Fail(token, QMN_ERR_STRING, begin, kept, L"\nExceee maximium string!");
    }
    if (p != kept) {
      if (*p == '\n') ++m_line;
      continue;
    }
    if (*p == '\n') {
      m_at = p;
      return Fail(token, QMN_ERR_STRING, begin, p, L"\n字串没有结束就出现换行符号!");
    }
    if (*p == '"') break;
  }
  m_at = p + 1;
  return Text(token, QMN_STRING, begin, p);
}

// Up to the end of the line; the newline is not consumed.
int MenuScanner::MenuLine(MenuToken& token) {
  const char* begin = m_at;
  const char* limit = Limit(begin);
  const char* p = bytes::FindAny<'\n', '\0'>(begin + 1, limit);
  m_at = p;
  if (p < m_end && *p == '\n') return Text(token, QMN_MENU_ITEM, begin, p);
  if (p < m_end) ++m_at;
  if (p - begin == kLongestToken) return Fail(token, QMN_ERR_MENU_ITEM, begin, p, L"字符串超长");
  return Fail(token, QMN_ERR_MENU_ITEM, begin, p, L"碰到文件结束符或非法字符,字符串还未结束");
}

// 0 for a single star, which is not a token.
int MenuScanner::Stars(MenuToken& token) {
  const char* begin = m_at;
  if (m_end - begin >= 2 && begin[1] == '*') {
    const bool three = m_end - begin >= 3 && begin[2] == '*';
    m_at = begin + (three ? 3 : 2);
    return Text(token, three ? QMN_PREFIX : QMN_SUB_PREFIX, begin, m_at);
  }
  return 0;
}

bool MenuScanner::Comment() {
  if (m_end - m_at < 2) return false;
  if (m_at[1] == '/') return LineComment();
  return m_at[1] == '*' && BlockComment();
}

bool MenuScanner::LineComment() {
  const void* newline = std::memchr(m_at, '\n', static_cast<size_t>(m_end - m_at));
  if (!newline) return CommentHasNoEnd(m_at);
  m_at = static_cast<const char*>(newline) + 1;
  ++m_line;
  return true;
}

bool MenuScanner::BlockComment() {
  for (const char* p = m_at + 2; p < m_end; ++p) {
    if (*p == '\n') ++m_line;
    if (*p == '*' && p + 1 < m_end && p[1] == '/') {
      m_at = p + 2;
      return true;
    }
  }
  return CommentHasNoEnd(m_at);
}

bool MenuScanner::CommentHasNoEnd(const char* begin) {
  if (m_onOpenComment == OpenComment::kReadOn) ReadOnForEver();
  m_openComment = begin;
  m_at = m_end;
  return true;
}
