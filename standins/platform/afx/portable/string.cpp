// CStringW and CStringA without formatting (string_format.cpp) and searching (string_find.cpp).
#include "afx.h"

#include <algorithm>

#include "string_format.h"

namespace {

template <class Char>
std::size_t LengthOf(const Char* text) {
  return text ? std::char_traits<Char>::length(text) : 0;
}

std::wstring Other(const char* text, std::size_t length) { return AnsiToWide({text, length}); }
std::string Other(const wchar_t* text, std::size_t length) { return WideToAnsi({text, length}); }

std::size_t Size(int count) {
  if (count < 0) AfxThrowInvalidArgException();
  return static_cast<std::size_t>(count);
}

}  // namespace

template <class Char>
CStringT<Char>::CStringT(const Char* text) {
  if (text) m_text = text;
}

template <class Char>
CStringT<Char>::CStringT(const YCHAR* text) : m_text(Other(text, LengthOf(text))) {}

template <class Char>
CStringT<Char>::CStringT(const Char* text, int length) {
  if (text) m_text.assign(text, Size(length));
}

template <class Char>
CStringT<Char>::CStringT(const YCHAR* text, int length)
    : m_text(Other(text, text ? Size(length) : 0)) {}

template <class Char>
CStringT<Char>::CStringT(Char character, int count)
    : m_text(static_cast<std::size_t>(std::max(count, 0)), character) {}

template <class Char>
CStringT<Char>::CStringT(const CStringT<YCHAR>& text)
    : m_text(Other(text.GetString(), Size(text.GetLength()))) {}

template <class Char>
CStringT<Char>& CStringT<Char>::operator=(const Char* text) {
  SetString(text);
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator=(const YCHAR* text) {
  m_text = Other(text, LengthOf(text));
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator=(const CStringT<YCHAR>& text) {
  m_text = Other(text.GetString(), Size(text.GetLength()));
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator=(Char character) {
  m_text.assign(1, character);
  return *this;
}

template <class Char>
void CStringT<Char>::Preallocate(int length) {
  m_text.reserve(Size(length));
}

template <class Char>
Char CStringT<Char>::GetAt(int index) const {
  if (index < 0 || index > GetLength()) AfxThrowInvalidArgException();
  return m_text.c_str()[index];
}

template <class Char>
void CStringT<Char>::SetAt(int index, Char character) {
  if (index < 0 || index >= GetLength()) AfxThrowInvalidArgException();
  m_text[static_cast<std::size_t>(index)] = character;
}

template <class Char>
Char* CStringT<Char>::GetBuffer(int minimum) {
  if (Size(minimum) > m_text.size()) m_text.resize(Size(minimum));
  return m_text.data();
}

template <class Char>
Char* CStringT<Char>::GetBufferSetLength(int length) {
  m_text.resize(Size(length));
  return m_text.data();
}

template <class Char>
void CStringT<Char>::ReleaseBuffer(int length) {
  m_text.resize(length < 0 ? LengthOf(m_text.c_str()) : std::min(Size(length), m_text.size()));
}

template <class Char>
void CStringT<Char>::SetString(const Char* text) {
  SetString(text, static_cast<int>(LengthOf(text)));
}

template <class Char>
void CStringT<Char>::SetString(const Char* text, int length) {
  if (text)
    m_text.assign(text, Size(length));
  else
    m_text.clear();
}

template <class Char>
void CStringT<Char>::Truncate(int length) {
  if (Size(length) < m_text.size()) m_text.resize(Size(length));
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator+=(const CStringT& text) {
  m_text += text.m_text;
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator+=(const Char* text) {
  Append(text);
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator+=(const YCHAR* text) {
  m_text += Other(text, LengthOf(text));
  return *this;
}

template <class Char>
CStringT<Char>& CStringT<Char>::operator+=(Char character) {
  m_text.push_back(character);
  return *this;
}

template <class Char>
void CStringT<Char>::Append(const Char* text) {
  if (text) m_text += text;
}

template <class Char>
void CStringT<Char>::Append(const Char* text, int length) {
  if (text) m_text.append(text, Size(length));
}

template <class Char>
void CStringT<Char>::Format(const Char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  FormatV(format, arguments);
  va_end(arguments);
}

template <class Char>
void CStringT<Char>::FormatV(const Char* format, va_list arguments) {
  m_text = FormatText(format, arguments);
}

template <class Char>
void CStringT<Char>::AppendFormat(const Char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  AppendFormatV(format, arguments);
  va_end(arguments);
}

template <class Char>
void CStringT<Char>::AppendFormatV(const Char* format, va_list arguments) {
  m_text += FormatText(format, arguments);
}

template <class Char>
int CStringT<Char>::Replace(Char from, Char to) {
  const auto places = std::count(m_text.begin(), m_text.end(), from);
  std::replace(m_text.begin(), m_text.end(), from, to);
  return from == to ? 0 : static_cast<int>(places);
}

template <class Char>
int CStringT<Char>::Replace(const Char* from, const Char* to) {
  const std::size_t taken = LengthOf(from);
  if (!taken) return 0;
  const std::size_t given = LengthOf(to);
  int places = 0;
  for (std::size_t at = 0; (at = m_text.find(from, at, taken)) != m_text.npos; at += given) {
    m_text.replace(at, taken, to ? to : from, given);
    ++places;
  }
  return places;
}

template <class Char>
int CStringT<Char>::Remove(Char character) {
  return static_cast<int>(std::erase(m_text, character));
}

template <class Char>
int CStringT<Char>::Insert(int index, Char character) {
  m_text.insert(std::min(Size(std::max(index, 0)), m_text.size()), 1, character);
  return GetLength();
}

template <class Char>
int CStringT<Char>::Insert(int index, const Char* text) {
  if (text) m_text.insert(std::min(Size(std::max(index, 0)), m_text.size()), text);
  return GetLength();
}

template <class Char>
int CStringT<Char>::Delete(int index, int count) {
  const std::size_t at = Size(std::max(index, 0));
  if (at < m_text.size() && count > 0) m_text.erase(at, Size(count));
  return GetLength();
}

template class CStringT<wchar_t>;
template class CStringT<char>;
