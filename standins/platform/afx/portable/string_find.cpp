// CStringW and CStringA: comparing, searching, extracting, trimming and changing case.
#include "afx.h"

#include <algorithm>
#include <cwctype>

namespace {

// Basic letters only, so that the result is the same on every build and locale.
wchar_t Upper(wchar_t c) {
  if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - 32);
  const bool latin1 = c >= 0xE0 && c <= 0xFE && c != 0xF7;
  const bool greek = c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2;
  const bool cyrillic = c >= 0x430 && c <= 0x44F;
  const bool fullWidth = c >= 0xFF41 && c <= 0xFF5A;
  if (latin1 || greek || cyrillic || fullWidth) return static_cast<wchar_t>(c - 32);
  return c >= 0x450 && c <= 0x45F ? static_cast<wchar_t>(c - 80) : c;
}

wchar_t Lower(wchar_t c) {
  if (c >= L'A' && c <= L'Z') return static_cast<wchar_t>(c + 32);
  const bool latin1 = c >= 0xC0 && c <= 0xDE && c != 0xD7;
  const bool greek = c >= 0x391 && c <= 0x3A9 && c != 0x3A2;
  const bool cyrillic = c >= 0x410 && c <= 0x42F;
  const bool fullWidth = c >= 0xFF21 && c <= 0xFF3A;
  if (latin1 || greek || cyrillic || fullWidth) return static_cast<wchar_t>(c + 32);
  return c >= 0x400 && c <= 0x40F ? static_cast<wchar_t>(c + 80) : c;
}

// Trail bytes of two-byte characters look like letters: only ASCII changes case, and MakeUpper and
// MakeLower below skip the second byte of a pair.
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool IsLeadByte(wchar_t) { return false; }
bool IsLeadByte(char c) {
  return static_cast<unsigned char>(c) > 0x80 && static_cast<unsigned char>(c) < 0xFF;
}

template <class Char, class Change>
void ChangeCase(std::basic_string<Char>* text, Change change) {
  for (std::size_t i = 0; i < text->size(); ++i) {
    if (IsLeadByte((*text)[i]))
      ++i;
    else
      (*text)[i] = change((*text)[i]);
  }
}

template <class Char>
unsigned Rank(Char c) {
  return static_cast<std::make_unsigned_t<Char>>(c);
}

// The ideographic space (U+3000) counts too.
template <class Char>
bool IsBlank(Char c) {
  return c == ' ' || (c >= 9 && c <= 13) || Rank(c) == 0x3000u;
}

template <class Char>
bool IsOneOf(const Char* characters, Char c) {
  return std::basic_string_view<Char>(characters).find(c) != std::basic_string_view<Char>::npos;
}

template <class Char, class Test>
void CutLeft(std::basic_string<Char>* text, Test test) {
  text->erase(text->begin(), std::find_if_not(text->begin(), text->end(), test));
}

template <class Char, class Test>
void CutRight(std::basic_string<Char>* text, Test test) {
  text->erase(std::find_if_not(text->rbegin(), text->rend(), test).base(), text->end());
}

}  // namespace

template <class Char>
int CStringT<Char>::Compare(const Char* other) const {
  constexpr Char kNothing[1] = {};
  const int order = m_text.compare(other ? other : kNothing);
  return order < 0 ? -1 : order > 0;
}

template <class Char>
int CStringT<Char>::CompareNoCase(const Char* other) const {
  const Char* mine = m_text.c_str();
  for (; *mine && Lower(*mine) == Lower(*other); ++mine, ++other) {
  }
  const unsigned a = Rank(Lower(*mine));
  const unsigned b = Rank(Lower(*other));
  return a < b ? -1 : a > b;
}

template <class Char>
int CStringT<Char>::Find(Char character, int start) const {
  if (start < 0 || start >= GetLength()) return -1;
  return static_cast<int>(m_text.find(character, static_cast<std::size_t>(start)));
}

template <class Char>
int CStringT<Char>::Find(const Char* text, int start) const {
  if (start < 0 || start > GetLength() || !text) return -1;
  return static_cast<int>(m_text.find(text, static_cast<std::size_t>(start)));
}

template <class Char>
int CStringT<Char>::FindOneOf(const Char* characters) const {
  return static_cast<int>(m_text.find_first_of(characters));
}

template <class Char>
int CStringT<Char>::ReverseFind(Char character) const {
  return static_cast<int>(m_text.rfind(character));
}

template <class Char>
CStringT<Char> CStringT<Char>::Left(int count) const {
  return Mid(0, count);
}

template <class Char>
CStringT<Char> CStringT<Char>::Right(int count) const {
  count = std::clamp(count, 0, GetLength());
  return Mid(GetLength() - count, count);
}

template <class Char>
CStringT<Char> CStringT<Char>::Mid(int first) const {
  return Mid(first, GetLength());
}

template <class Char>
CStringT<Char> CStringT<Char>::Mid(int first, int count) const {
  first = std::clamp(first, 0, GetLength());
  count = std::clamp(count, 0, GetLength() - first);
  return CStringT(m_text.c_str() + first, count);
}

template <class Char>
CStringT<Char> CStringT<Char>::SpanIncluding(const Char* characters) const {
  const std::size_t end = m_text.find_first_not_of(characters);
  return Left(static_cast<int>(std::min(end, m_text.size())));
}

template <class Char>
CStringT<Char> CStringT<Char>::SpanExcluding(const Char* characters) const {
  const std::size_t end = m_text.find_first_of(characters);
  return Left(static_cast<int>(std::min(end, m_text.size())));
}

template <class Char>
CStringT<Char> CStringT<Char>::Tokenize(const Char* separators, int& start) const {
  if (start < 0) AfxThrowInvalidArgException();
  const std::size_t first = m_text.find_first_not_of(separators, static_cast<std::size_t>(start));
  if (first == m_text.npos) {
    start = -1;
    return {};
  }
  const std::size_t end = std::min(m_text.find_first_of(separators, first), m_text.size());
  start = static_cast<int>(end + (end < m_text.size()));
  return Mid(static_cast<int>(first), static_cast<int>(end - first));
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeUpper() {
  ChangeCase(&m_text, [](Char c) { return Upper(c); });
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeLower() {
  ChangeCase(&m_text, [](Char c) { return Lower(c); });
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::MakeReverse() {
  std::reverse(m_text.begin(), m_text.end());
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim() {
  return TrimRight().TrimLeft();
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim(Char character) {
  return TrimRight(character).TrimLeft(character);
}

template <class Char>
CStringT<Char>& CStringT<Char>::Trim(const Char* characters) {
  return TrimRight(characters).TrimLeft(characters);
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft() {
  CutLeft(&m_text, IsBlank<Char>);
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft(Char character) {
  CutLeft(&m_text, [character](Char c) { return c == character; });
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimLeft(const Char* characters) {
  CutLeft(&m_text, [characters](Char c) { return IsOneOf(characters, c); });
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight() {
  CutRight(&m_text, IsBlank<Char>);
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight(Char character) {
  CutRight(&m_text, [character](Char c) { return c == character; });
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::TrimRight(const Char* characters) {
  CutRight(&m_text, [characters](Char c) { return IsOneOf(characters, c); });
  return *this;
}

template class CStringT<wchar_t>;
template class CStringT<char>;
