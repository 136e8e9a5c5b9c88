// CStringW (CString) and CStringA: the class library's strings, and the conversion between wide
// text and the ANSI code page. The buffer is not shared and has no reference count, so a copy can
// be used in another thread. Included by afx.h.
#pragma once

#include <compare>
#include <concepts>
#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

#include "afxv_w32.h"

#ifndef _WIN32
using TCHAR = wchar_t;
using WCHAR = wchar_t;
using CHAR = char;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
#define _T(text) L##text
#else
#ifndef _T
#define _T(text) L##text
#endif
#endif

// The code page of narrow text: the system's own on Windows, 936 elsewhere.
#ifdef _WIN32
inline constexpr unsigned AFX_ANSI_PAGE = 0;  // CP_ACP
#else
inline constexpr unsigned AFX_ANSI_PAGE = 936;
#endif

// Invalid bytes become U+FFFD; characters that are not in the code page become '?'. Wide text is
// one UTF-16 unit per wchar_t on every build.
std::wstring AnsiToWide(std::string_view text, unsigned page = AFX_ANSI_PAGE);
std::string WideToAnsi(std::wstring_view text, unsigned page = AFX_ANSI_PAGE);

template <class Char>
class CStringT {
 public:
  using XCHAR = Char;
  using YCHAR = std::conditional_t<std::is_same_v<Char, wchar_t>, char, wchar_t>;
  using PXSTR = Char*;
  using PCXSTR = const Char*;

  CStringT() = default;
  CStringT(const Char* text);   // null: empty
  CStringT(const YCHAR* text);  // through the ANSI code page
  CStringT(const Char* text, int length);
  CStringT(const YCHAR* text, int length);
  explicit CStringT(Char character, int count = 1);
  CStringT(const CStringT&) = default;
  CStringT(CStringT&&) noexcept = default;
  explicit CStringT(const CStringT<YCHAR>& text);

  CStringT& operator=(const CStringT&) = default;
  CStringT& operator=(CStringT&&) noexcept = default;
  CStringT& operator=(const Char* text);
  CStringT& operator=(const YCHAR* text);
  CStringT& operator=(const CStringT<YCHAR>& text);
  CStringT& operator=(Char character);

  int GetLength() const { return static_cast<int>(m_text.size()); }
  bool IsEmpty() const { return m_text.empty(); }
  void Empty() { m_text.clear(); }
  int GetAllocLength() const { return static_cast<int>(m_text.capacity()); }
  void Preallocate(int length);
  const Char* GetString() const { return m_text.c_str(); }
  operator const Char*() const { return m_text.c_str(); }
  // An index outside the text throws CInvalidArgException; the index of the
  // end returns the terminator.
  Char GetAt(int index) const;
  void SetAt(int index, Char character);
  template <std::integral Index>
  Char operator[](Index index) const {
    return GetAt(static_cast<int>(index));
  }

  // Room for at least this many characters. Call ReleaseBuffer before any other use; without a
  // length it looks for the terminator.
  Char* GetBuffer(int minimum = 0);
  Char* GetBufferSetLength(int length);
  void ReleaseBuffer(int length = -1);
  void ReleaseBufferSetLength(int length) { ReleaseBuffer(length); }
  void FreeExtra() { m_text.shrink_to_fit(); }
  void SetString(const Char* text);
  void SetString(const Char* text, int length);
  void Truncate(int length);

  CStringT& operator+=(const CStringT& text);
  CStringT& operator+=(const Char* text);
  CStringT& operator+=(const YCHAR* text);
  CStringT& operator+=(Char character);
  void Append(const Char* text);
  void Append(const Char* text, int length);
  void AppendChar(Char character) { m_text.push_back(character); }

  // Formats as Windows' own wide and narrow functions: %s is text of this string's width, %S of the
  // other, %hs narrow, %ls wide; l means 32 bits, ll and I64 64 bits, on every build.
  void Format(const Char* format, ...);
  void FormatV(const Char* format, va_list arguments);
  void AppendFormat(const Char* format, ...);
  void AppendFormatV(const Char* format, va_list arguments);

  int Compare(const Char* other) const;
  int CompareNoCase(const Char* other) const;
  int Collate(const Char* other) const { return Compare(other); }
  int CollateNoCase(const Char* other) const { return CompareNoCase(other); }

  int Find(Char character, int start = 0) const;  // -1: not found
  int Find(const Char* text, int start = 0) const;
  int FindOneOf(const Char* characters) const;
  int ReverseFind(Char character) const;

  CStringT Left(int count) const;
  CStringT Right(int count) const;
  CStringT Mid(int first) const;
  CStringT Mid(int first, int count) const;
  CStringT SpanIncluding(const Char* characters) const;
  CStringT SpanExcluding(const Char* characters) const;
  // Returns the next token between any of `separators`, from `start`, and advances `start`; at the
  // end an empty string and a start of -1.
  CStringT Tokenize(const Char* separators, int& start) const;

  CStringT& MakeUpper();
  CStringT& MakeLower();
  CStringT& MakeReverse();
  CStringT& Trim();
  CStringT& Trim(Char character);
  CStringT& Trim(const Char* characters);
  CStringT& TrimLeft();
  CStringT& TrimLeft(Char character);
  CStringT& TrimLeft(const Char* characters);
  CStringT& TrimRight();
  CStringT& TrimRight(Char character);
  CStringT& TrimRight(const Char* characters);
  int Replace(Char from, Char to);                // number of characters replaced
  int Replace(const Char* from, const Char* to);  // number of places replaced
  int Remove(Char character);                     // number of characters removed
  int Insert(int index, Char character);          // new length
  int Insert(int index, const Char* text);
  int Delete(int index, int count = 1);

#ifdef _WIN32
  // Loads from the current resource module or the given one. FALSE: the text is unchanged.
  BOOL LoadString(UINT id);
  BOOL LoadString(HINSTANCE module, UINT id);
#endif

  friend CStringT operator+(const CStringT& a, const CStringT& b) { return CStringT(a) += b; }
  friend CStringT operator+(const CStringT& a, const Char* b) { return CStringT(a) += b; }
  friend CStringT operator+(const Char* a, const CStringT& b) { return CStringT(a) += b; }
  friend CStringT operator+(const CStringT& a, Char b) { return CStringT(a) += b; }
  friend CStringT operator+(Char a, const CStringT& b) { return CStringT(a) += b; }
  friend bool operator==(const CStringT& a, const CStringT& b) { return a.Compare(b) == 0; }
  friend bool operator==(const CStringT& a, const Char* b) { return a.Compare(b) == 0; }
  friend std::strong_ordering operator<=>(const CStringT& a, const CStringT& b) {
    return a.Compare(b) <=> 0;
  }
  friend std::strong_ordering operator<=>(const CStringT& a, const Char* b) {
    return a.Compare(b) <=> 0;
  }

 private:
  std::basic_string<Char> m_text;
};

extern template class CStringT<wchar_t>;
extern template class CStringT<char>;

using CStringW = CStringT<wchar_t>;
using CStringA = CStringT<char>;
using CString = CStringW;
