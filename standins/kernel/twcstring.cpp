// The parts of TWCString that allocate or fold case. Storage is exact when a whole text is assigned
// and doubles when text is appended bit by bit.
#include "kernel/twcstring.h"

#include <algorithm>
#include <cstdlib>
#include <cwctype>
#include <limits>
#include <new>

namespace {
constexpr std::size_t kHeapHead = 2 * sizeof(int);
constexpr std::size_t kKeptHead = sizeof(int);
constexpr int kLargest =
    (std::numeric_limits<int>::max() - 64) / static_cast<int>(sizeof(wchar_t)) - 1;

std::size_t BytesOf(int units) { return sizeof(wchar_t) * static_cast<std::size_t>(units); }

std::uintptr_t NewText(int capacity) {
  void* block = std::malloc(kHeapHead + BytesOf(capacity + 1));
  if (!block) throw std::bad_alloc();
  return reinterpret_cast<std::uintptr_t>(block) + kHeapHead;
}
}  // namespace

void TWCString::Release() noexcept {
  char* text = reinterpret_cast<char*>(Text());
  if (IsKept())
    PackedMemory::Drop(text - kKeptHead);
  else
    std::free(text - kHeapHead);
  m_bits = 0;
}

void TWCString::Copy(const TWCString& other) {
  if (!other.IsKept()) return Assign(other.c_str(), other.Length());
  PackedMemory::Share(other.Text());
  if (m_bits) Release();
  m_bits = other.m_bits;
}

void TWCString::Keep(const wchar_t* text, int count) {
  if (count <= 0 || !text) return Empty();
  const auto copy = [=](wchar_t* out) { std::memcpy(out, text, BytesOf(count)); };
  if (!m_bits) return KeepBy(count, copy);
  TWCString kept;  // for its own part: the source may lie inside the old text
  kept.KeepBy(count, copy);
  std::swap(m_bits, kept.m_bits);
}

// In place: the length moves up in front of what is left. The block is known by any address in it.
void TWCString::CutFront(int even) {
  const int left = Length() - even;
  if (!IsKept() || left == 0) {
    const TWCString rest(c_str() + even);
    return Assign(rest.c_str(), left);
  }
  m_bits += BytesOf(even);
  Head()[kLength] = left;
}

// Too long for packed memory: on the heap like any other text.
wchar_t* TWCString::LongRoom(int count) {
  if (count > kLargest - kOverrun) throw std::bad_alloc();
  Reserve(count + kOverrun);
  Head()[kLength] = count;
  return Text();
}

// A text that is not packed, the empty one for instance, is copied like any other.
void TSharedText::PayAndCopyTo(TWCString& out) {
  if (!m_text.IsKept()) {
    out = m_text;
    return;
  }
  PackedMemory::Share(m_text.Text(), kPaidAtOnce);
  m_paid = kPaidAtOnce;
  CopyTo(out);
}

void TSharedText::GiveBack() noexcept {
  PackedMemory::Drop(m_text.Text(), static_cast<std::size_t>(m_paid));
}

// Room of its own for at least so many units, and no less than the text, which stays, needs.
void TWCString::Grow(int atLeast) {
  if (atLeast < Length() || atLeast > kLargest) throw std::bad_alloc();
  const int old = Capacity();
  const int capacity = std::max({atLeast, 15, old < kLargest / 2 ? old * 2 : kLargest});
  TWCString grown;
  grown.m_bits = NewText(capacity);
  grown.Head()[kCapacity] = capacity;
  const int length = Length();
  std::memcpy(grown.Text(), c_str(), BytesOf(length));
  grown.SetLength(length);
  std::swap(m_bits, grown.m_bits);
}

void TWCString::Assign(const wchar_t* text, int count) {
  if (count <= 0 || !text) return Empty();
  if (count > kLargest) throw std::bad_alloc();
  if (count > Capacity()) {
    const std::uintptr_t fresh = NewText(count);
    std::memcpy(reinterpret_cast<wchar_t*>(fresh), text, BytesOf(count));
    if (m_bits) Release();  // only now: the source may lie inside the old text
    m_bits = fresh;
    Head()[kCapacity] = count;
  } else {
    std::memmove(Text(), text, BytesOf(count));
  }
  SetLength(count);
}

void TWCString::Append(const wchar_t* text, int count) {
  if (count <= 0 || !text) return;
  const int length = Length();
  if (count > kLargest - length) throw std::bad_alloc();
  TWCString before;  // the source may lie inside the text that Grow leaves
  if (length + count > Capacity()) {
    const bool inside = m_bits && text >= Text() && text <= Text() + length;
    if (inside) before.Assign(text, count), text = before.c_str();
    Grow(length + count);
  }
  std::memmove(Text() + length, text, BytesOf(count));
  SetLength(length + count);
}

void TWCString::Truncate(int length) {
  length = std::max(length, 0);
  if (length >= Length()) return;
  if (length == 0 && IsKept()) return Release();
  if (IsKept()) Grow(Length());
  SetLength(length);
}

bool TWCString::EqualsNoCase(const wchar_t* text) const {
  const wchar_t* mine = c_str();
  if (!text) text = L"";
  const int length = Length();
  for (int i = 0; i < length; ++i) {
    const wchar_t theirs = text[i];
    if (theirs != mine[i] &&
        std::towlower(static_cast<wint_t>(theirs)) != std::towlower(static_cast<wint_t>(mine[i])))
      return false;
    if (!theirs) return false;
  }
  return text[length] == 0;
}
