// The kernel's strings. TWCString is the growable wide string that every menu text lives in: one
// UTF-16 code unit per wchar_t on every build. A menu of a million lines holds some five million of
// them, so a string is one pointer, an empty one owns nothing, and texts that never change are
// packed (see Keep). TUString converts narrow text of the ANSI code page to wide on construction,
// TAString the other way. Nothing here formats, searches or knows a locale beyond the case fold of
// EqualsNoCase.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kernel/kernel_export.h"
#include "kernel/packed_memory.h"

class QVX_KERNEL TWCString {
 public:
  TWCString() noexcept = default;
  // The capacity is a promise about growth and no more: storage comes with the first write.
  explicit TWCString(int capacity) noexcept { (void)capacity; }
  TWCString(const wchar_t* text) { Assign(text, TextLength(text)); }
  TWCString(const TWCString& other) { Copy(other); }
  TWCString(TWCString&& other) noexcept : m_bits(std::exchange(other.m_bits, 0)) {}
  ~TWCString() {
    if (m_bits) Release();
  }

  TWCString& operator=(const wchar_t* text) {
    Assign(text, TextLength(text));
    return *this;
  }
  TWCString& operator=(const TWCString& other) {
    if (this != &other) Copy(other);
    return *this;
  }
  TWCString& operator=(TWCString&& other) noexcept {
    std::swap(m_bits, other.m_bits);
    return *this;
  }
  TWCString& operator+=(const wchar_t* text) {
    Append(text, TextLength(text));
    return *this;
  }
  TWCString& operator+=(const TWCString& other) {
    Append(other.c_str(), other.Length());
    return *this;
  }
  TWCString& operator+=(wchar_t unit) {
    Append(&unit, 1);
    return *this;
  }
  // Appends the number: at most four decimals, none that are zero, never an exponent; "?" for what
  // is no number.
  TWCString& operator<<(double value);

  // Never null; valid until the next change.
  operator const wchar_t*() const noexcept { return c_str(); }
  const wchar_t* c_str() const noexcept { return m_bits ? Text() : L""; }

  int Length() const noexcept { return m_bits ? Head()[kLength] : 0; }
  bool IsEmpty() const noexcept { return Length() == 0; }
  void Empty() { Truncate(0); }

  // For 0 <= index <= Length(); the last one is the terminator, which stays as it is.
  wchar_t& operator[](int index) {
    if (Capacity() == 0) Grow(Length());
    return Text()[index];
  }
  wchar_t operator[](int index) const noexcept { return c_str()[index]; }

  // Takes exactly `count` units, zeros among them; the source may lie inside this string. A
  // negative count or null text gives the empty string.
  void Assign(const wchar_t* text, int count);
  // The same for a text that will stay as it is: it is packed beside the other kept ones, and
  // copies of the string share it. A change later on moves it out first. Main thread only.
  void Keep(const wchar_t* text, int count);
  // The same for a text of at least one unit that `write` lays down where it is told to. It may
  // use up to kOverrun units behind the text as well.
  static constexpr int kOverrun = static_cast<int>(PackedMemory::kOverrun / sizeof(wchar_t));
  template <class Writer>
  void KeepBy(int count, Writer write) {
    wchar_t* text = KeepRoom(count);
    write(text);
    text[count] = 0;
  }
  // Keeps a text that lies outside this string and behind which kOverrun units more can be read.
  void KeepQuickly(const wchar_t* text, int count) {
    if (count <= 0) return Empty();
    KeepBy(count, [=](wchar_t* room) {
      if constexpr (kOverrun == 0)
        std::memcpy(room, text, sizeof(wchar_t) * static_cast<std::size_t>(count));
      else
        for (int done = 0; done < count; done += kOverrun)
          std::memcpy(room + done, text + done, PackedMemory::kOverrun);
    });
  }
  // Drops the first units of a text that was kept just now and that has no copies; an even number,
  // no more than it has.
  void CutFront(int even);
  void Append(const wchar_t* text, int count);
  void Reserve(int capacity) {
    if (capacity > Capacity()) Grow(capacity);
  }
  // Cuts behind `length` units; does nothing when the string is not longer.
  void Truncate(int length);

  // Case folds as the C library's towlower does for each unit.
  bool EqualsNoCase(const wchar_t* text) const;
  bool operator==(const TWCString& other) const noexcept {
    return m_bits == other.m_bits ||
           (Length() == other.Length() &&
            std::memcmp(c_str(), other.c_str(),
                        sizeof(wchar_t) * static_cast<std::size_t>(Length())) == 0);
  }
  bool operator==(const wchar_t* text) const noexcept { return Equals(text); }
  // C++20 derives !=.

 private:
  friend class TSharedText;
  static int TextLength(const wchar_t* text) noexcept {
    return text ? static_cast<int>(std::char_traits<wchar_t>::length(text)) : 0;
  }
  bool Equals(const wchar_t* text) const noexcept {
    return std::char_traits<wchar_t>::length(text ? text : L"") ==
               static_cast<std::size_t>(Length()) &&
           std::char_traits<wchar_t>::compare(c_str(), text ? text : L"",
                                              static_cast<std::size_t>(Length())) == 0;
  }

  // The text has its length in front of it and, unless it is a kept one, its capacity before that.
  static constexpr std::uintptr_t kKept = 1;
  static constexpr int kLength = -1;
  static constexpr int kCapacity = -2;
  static constexpr int kLongestKept =
      static_cast<int>((PackedMemory::kLargest - sizeof(int)) / sizeof(wchar_t)) - 1;

  bool IsKept() const noexcept { return m_bits & kKept; }
  wchar_t* Text() const noexcept { return reinterpret_cast<wchar_t*>(m_bits & ~kKept); }
  int* Head() const noexcept { return reinterpret_cast<int*>(Text()); }
  // What may be written without asking for room; 0 for a kept text, which is not to be touched.
  int Capacity() const noexcept { return !m_bits || IsKept() ? 0 : Head()[kCapacity]; }
  void Copy(const TWCString& other);
  void Release() noexcept;
  void Grow(int atLeast);  // throws std::bad_alloc
  void SetLength(int length) noexcept {
    Head()[kLength] = length;
    Text()[length] = 0;
  }
  // Without the terminator.
  wchar_t* KeepRoom(int count) {
    if (count > kLongestKept) return LongRoom(count);
    const std::size_t bytes = sizeof(int) + sizeof(wchar_t) * (static_cast<std::size_t>(count) + 1);
    int* head = static_cast<int*>(PackedMemory::Take(bytes)) + 1;
    if (m_bits) Release();
    m_bits = reinterpret_cast<std::uintptr_t>(head) | kKept;
    head[kLength] = count;
    return Text();
  }
  wchar_t* LongRoom(int count);

  std::uintptr_t m_bits =
      0;  // where the text begins; bit 0 marks a kept one; 0 until the first write
};
static_assert(sizeof(TWCString) == sizeof(void*));

// A kept text that many strings are going to share. Its copies are paid for in advance, so that
// making one does not visit the memory of the text. Movable; the copies outlive it.
class QVX_KERNEL TSharedText {
 public:
  TSharedText(const wchar_t* text, int count) { m_text.Keep(text, count); }
  TSharedText(TSharedText&& other) noexcept
      : m_text(std::move(other.m_text)), m_paid(std::exchange(other.m_paid, 0)) {}
  TSharedText& operator=(TSharedText&&) = delete;
  ~TSharedText() {
    if (m_paid) GiveBack();
  }

  const TWCString& Text() const noexcept { return m_text; }
  void CopyTo(TWCString& out) {
    if (m_paid == 0) return PayAndCopyTo(out);
    if (out.m_bits) out.Release();
    out.m_bits = m_text.m_bits;
    --m_paid;
  }

 private:
  static constexpr int kPaidAtOnce = 1 << 16;
  void PayAndCopyTo(TWCString& out);
  void GiveBack() noexcept;

  TWCString m_text;
  int m_paid = 0;
};

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
