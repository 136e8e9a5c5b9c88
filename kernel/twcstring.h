// The kernel's strings. TWCString is the growable wide string that every menu text lives in: one
// UTF-16 code unit per wchar_t on every build. A menu of a million lines holds some five million of
// them, so an empty one owns nothing and the whole record is 16 bytes. TUString converts narrow
// text of the ANSI code page to wide on construction, TAString the other way. Nothing here formats,
// searches or knows a locale beyond the case fold of EqualsNoCase.
#pragma once

#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kernel/kernel_export.h"

class QVX_KERNEL TWCString {
 public:
  TWCString() noexcept = default;
  // The capacity is a promise about growth and no more: storage comes with the first write.
  explicit TWCString(int capacity) noexcept { (void)capacity; }
  TWCString(const wchar_t* text) { Assign(text, TextLength(text)); }
  TWCString(const TWCString& other) { Assign(other.m_text, other.m_length); }
  TWCString(TWCString&& other) noexcept
      : m_text(std::exchange(other.m_text, nullptr)),
        m_length(std::exchange(other.m_length, 0)),
        m_capacity(std::exchange(other.m_capacity, 0)) {}
  ~TWCString() { std::free(m_text); }

  TWCString& operator=(const wchar_t* text) {
    Assign(text, TextLength(text));
    return *this;
  }
  TWCString& operator=(const TWCString& other) {
    if (this != &other) Assign(other.m_text, other.m_length);
    return *this;
  }
  TWCString& operator=(TWCString&& other) noexcept {
    std::swap(m_text, other.m_text);
    std::swap(m_length, other.m_length);
    std::swap(m_capacity, other.m_capacity);
    return *this;
  }
  TWCString& operator+=(const wchar_t* text) {
    Append(text, TextLength(text));
    return *this;
  }
  TWCString& operator+=(const TWCString& other) {
    Append(other.m_text, other.m_length);
    return *this;
  }
  TWCString& operator+=(wchar_t unit) {
    if (m_length >= m_capacity) Grow(m_length + 1);
    m_text[m_length++] = unit;
    m_text[m_length] = 0;
    return *this;
  }

  // Never null; valid until the next change.
  operator const wchar_t*() const noexcept { return m_text ? m_text : L""; }
  const wchar_t* c_str() const noexcept { return m_text ? m_text : L""; }

  int Length() const noexcept { return m_length; }
  bool IsEmpty() const noexcept { return m_length == 0; }
  void Empty() noexcept { Truncate(0); }

  // For 0 <= index <= Length(); the last one is the terminator, which stays as it is.
  wchar_t& operator[](int index) {
    if (!m_text) Grow(0);
    return m_text[index];
  }
  wchar_t operator[](int index) const noexcept { return c_str()[index]; }

  // Takes exactly `count` units, zeros among them; the source may lie inside this string. A
  // negative count or null text gives the empty string.
  void Assign(const wchar_t* text, int count) {
    if (count <= 0 || !text) {
      Empty();
      return;
    }
    if (count > m_capacity) {
      AssignFresh(text, count);
      return;
    }
    std::memmove(m_text, text, sizeof(wchar_t) * static_cast<std::size_t>(count));
    m_length = count;
    m_text[count] = 0;
  }
  void Append(const wchar_t* text, int count);
  void Reserve(int capacity) {
    if (capacity > m_capacity) Grow(capacity);
  }
  // Cuts behind `length` units; does nothing when the string is not longer.
  void Truncate(int length) noexcept {
    if (length < 0) length = 0;
    if (length >= m_length) return;
    m_length = length;
    m_text[length] = 0;
  }

  // Case folds as the C library's towlower does for each unit.
  bool EqualsNoCase(const wchar_t* text) const;
  bool operator==(const TWCString& other) const noexcept {
    return m_length == other.m_length &&
           (m_length == 0 ||
            std::memcmp(m_text, other.m_text,
                        sizeof(wchar_t) * static_cast<std::size_t>(m_length)) == 0);
  }
  bool operator==(const wchar_t* text) const noexcept { return Equals(text); }
  // C++20 derives !=.

 private:
  static int TextLength(const wchar_t* text) noexcept {
    return text ? static_cast<int>(std::char_traits<wchar_t>::length(text)) : 0;
  }
  bool Equals(const wchar_t* text) const noexcept {
    return std::char_traits<wchar_t>::length(text ? text : L"") ==
               static_cast<std::size_t>(m_length) &&
           std::char_traits<wchar_t>::compare(c_str(), text ? text : L"",
                                              static_cast<std::size_t>(m_length)) == 0;
  }
  void Grow(int atLeast);                            // throws std::bad_alloc
  void AssignFresh(const wchar_t* text, int count);  // exact fit; throws std::bad_alloc

  wchar_t* m_text = nullptr;  // null until the first write; else m_capacity + 1 units
  int m_length = 0;
  int m_capacity = 0;
};
static_assert(sizeof(TWCString) == sizeof(void*) + 8);

// Wide text from narrow text of the ANSI code page. Bytes that are no character become U+FFFD.
class QVX_KERNEL TUString : public TWCString {
 public:
  TUString(const char* narrow);
  TUString(const char* narrow, int bytes);
};

// Narrow text of the ANSI code page from wide text. What the page lacks becomes '?'.
class QVX_KERNEL TAString {
 public:
  TAString(const wchar_t* wide);
  operator const char*() const noexcept { return m_text.c_str(); }
  const char* c_str() const noexcept { return m_text.c_str(); }
  int Length() const noexcept { return static_cast<int>(m_text.size()); }

 private:
  std::string m_text;
};

class QVX_KERNEL TWCStringList {
 public:
  void Add(const wchar_t* text) { m_strings.emplace_back(text); }
  int Length() const noexcept { return static_cast<int>(m_strings.size()); }
  const TWCString& operator[](int index) const noexcept {
    return m_strings[static_cast<std::size_t>(index)];
  }

 private:
  std::vector<TWCString> m_strings;
};
