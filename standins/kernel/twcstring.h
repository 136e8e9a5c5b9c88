// The kernel's strings. TWCString is the growable wide string of all menu texts; one wchar_t holds
// one UTF-16 code unit on every build. TUString converts narrow text of the ANSI code page to wide
// text on construction, TAString converts wide text to narrow text. A large menu holds millions of
// strings, so a TWCString is one pointer and an empty one owns no storage. The storage of short
// texts is pooled: strings may be used on the main thread only.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "kernel/kernel_export.h"

class QVX_KERNEL TWCString {
 public:
  TWCString() noexcept = default;
  // The capacity is a hint. Storage is allocated by the first write.
  explicit TWCString(int capacity) noexcept { (void)capacity; }
  TWCString(const wchar_t* text) { *this = text; }
  TWCString(const TWCString& other) { *this = other; }
  TWCString(TWCString&& other) noexcept : m_bits(std::exchange(other.m_bits, 0)) {}
  ~TWCString() {
    if (m_bits) Free();
  }

  // Null is the empty text. The source may lie inside this string.
  TWCString& operator=(const wchar_t* text);
  TWCString& operator=(const TWCString& other) {
    Assign(other, other.Length());
    return *this;
  }
  TWCString& operator=(TWCString&& other) noexcept {
    std::swap(m_bits, other.m_bits);
    return *this;
  }
  TWCString& operator+=(const wchar_t* text);
  // Appends the number with at most four decimals, without trailing zeros and without an exponent;
  // "?" for a value that is not finite.
  TWCString& operator<<(double value);

  // Exactly `count` units, zeros included. A count of zero or less and a null text assign or append
  // the empty text. The source may lie inside this string. Throw std::bad_alloc.
  void Assign(const wchar_t* text, int count);
  void Append(const wchar_t* text, int count);
  void Empty() noexcept {
    if (m_bits) SetLength(0);
  }

  // Never null; valid until the next change.
  operator const wchar_t*() const noexcept { return m_bits ? Text() : L""; }
  // For 0 <= index <= Length(); the unit at Length() is the terminator.
  wchar_t operator[](int index) const noexcept { return m_bits ? Text()[index] : L'\0'; }
  int Length() const noexcept { return m_bits ? Head()[kLength] : 0; }
  bool IsEmpty() const noexcept { return Length() == 0; }

  bool operator==(const TWCString& other) const noexcept;
  bool operator==(const wchar_t* text) const noexcept;
  // Folds each unit as the C library's towlower does.
  bool EqualsNoCase(const wchar_t* text) const noexcept;

 private:
  // The text is preceded by its length, and on the heap by its capacity before that. A pooled text
  // has no capacity beyond its length.
  static constexpr int kLength = -1;
  static constexpr int kCapacity = -2;
  static constexpr std::uintptr_t kHeapBit = 1;

  wchar_t* Text() const noexcept { return reinterpret_cast<wchar_t*>(m_bits & ~kHeapBit); }
  int* Head() const noexcept { return reinterpret_cast<int*>(Text()); }
  int Capacity() const noexcept {
    return m_bits ? Head()[m_bits & kHeapBit ? kCapacity : kLength] : 0;
  }
  void SetLength(int length) noexcept {
    Head()[kLength] = length;
    Text()[length] = 0;
  }
  void AssignSlowly(const wchar_t* text, int count);
  void Grow(int capacity);
  void Free() noexcept;

  std::uintptr_t m_bits = 0;  // the address of the text, with kHeapBit; 0 until the first write
};

// Wide text from narrow text of the ANSI code page. Bytes that are no character become U+FFFD.
class QVX_KERNEL TUString : public TWCString {
 public:
  TUString(const char* narrow);
  TUString(const char* narrow, int bytes);
};

// Narrow text of the ANSI code page from wide text. Characters that the page lacks become '?'.
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
