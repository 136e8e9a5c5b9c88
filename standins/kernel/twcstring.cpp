// The members of TWCString that allocate or compare. Assign allocates exactly what the text needs;
// Append doubles the capacity, so that appending unit by unit takes linear time.
#include "kernel/twcstring.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cwctype>
#include <limits>
#include <new>

#include "kernel/text_memory.h"

namespace {

// Builds for memory checkers put every text on the heap, so that the checker knows its bounds.
#if defined(QVX_SEPARATE_BLOCKS)
constexpr bool kHasPool = false;
#else
constexpr bool kHasPool = true;
#endif
constexpr int kLongestPooled = 240;
constexpr int kLongest =
    (std::numeric_limits<int>::max() - 64) / static_cast<int>(sizeof(wchar_t)) - 1;

constexpr std::size_t BytesOf(int units) {
  return sizeof(wchar_t) * static_cast<std::size_t>(units);
}
static_assert(sizeof(int) + BytesOf(kLongestPooled + 1) <= TextMemory::kLargestBlock);

int LengthOf(const wchar_t* text) {
  return text ? static_cast<int>(std::char_traits<wchar_t>::length(text)) : 0;
}

// Copies a text that does not overlap `out`. For the usual lengths no branch depends on the length:
// four pieces are copied, which overlap when the text is shorter.
inline void CopyText(wchar_t* out, const wchar_t* text, int count) {
  constexpr int kPiece = 4;
  const auto copy = [=](int at) { std::memcpy(out + at, text + at, kPiece * sizeof(wchar_t)); };
  const int last = count - kPiece;
  if (last >= 0 && last <= 3 * kPiece) [[likely]] {
    copy(0);
    copy(std::min(kPiece, last));
    copy(std::min(2 * kPiece, last));
    copy(last);
  } else {
    std::memcpy(out, text, BytesOf(count));
  }
}

}  // namespace

TWCString& TWCString::operator=(const wchar_t* text) {
  Assign(text, LengthOf(text));
  return *this;
}

TWCString& TWCString::operator+=(const wchar_t* text) {
  Append(text, LengthOf(text));
  return *this;
}

// The usual case: a short text for an empty string.
void TWCString::Assign(const wchar_t* text, int count) {
  if (kHasPool && !m_bits && text && count > 0 && count <= kLongestPooled) [[likely]] {
    if (void* block = TextMemory::Cut(sizeof(int) + BytesOf(count + 1))) [[likely]] {
      m_bits = reinterpret_cast<std::uintptr_t>(static_cast<int*>(block) + 1);
      SetLength(count);
      return CopyText(Text(), text, count);
    }
    TextMemory::Refill();
  }
  AssignSlowly(text, count);
}

// Not inlined, so that Assign needs no stack frame.
[[gnu::noinline]] void TWCString::AssignSlowly(const wchar_t* text, int count) {
  if (count <= 0 || !text) return Empty();
  if (count <= Capacity()) {
    std::memmove(Text(), text, BytesOf(count));
    return SetLength(count);
  }
  TWCString fresh;  // the source may lie in the old text
  if (kHasPool && count <= kLongestPooled) {
    fresh.Assign(text, count);
  } else {
    fresh.Grow(count);
    std::memcpy(fresh.Text(), text, BytesOf(count));
    fresh.SetLength(count);
  }
  std::swap(m_bits, fresh.m_bits);
}

void TWCString::Append(const wchar_t* text, int count) {
  if (count <= 0 || !text) return;
  const int length = Length();
  if (count > kLongest - length) throw std::bad_alloc();
  TWCString copy;  // of a source that lies in the text that Grow replaces
  if (length + count > Capacity()) {
    const wchar_t* mine = *this;
    if (text >= mine && text <= mine + length) {
      copy.Assign(text, count);
      text = copy;
    }
    const int doubled = length < kLongest / 2 ? 2 * length : kLongest;
    Grow(std::max({length + count, doubled, 15}));
  }
  std::memmove(Text() + length, text, BytesOf(count));
  SetLength(length + count);
}

// Moves the text to a heap block of this capacity.
void TWCString::Grow(int capacity) {
  if (capacity > kLongest) throw std::bad_alloc();
  void* block = std::malloc(2 * sizeof(int) + BytesOf(capacity + 1));
  if (!block) throw std::bad_alloc();
  TWCString grown;
  grown.m_bits = reinterpret_cast<std::uintptr_t>(static_cast<int*>(block) + 2) | kHeapBit;
  grown.Head()[kCapacity] = capacity;
  if (m_bits) std::memcpy(grown.Text(), Text(), BytesOf(Length()));
  grown.SetLength(Length());
  std::swap(m_bits, grown.m_bits);
}

void TWCString::Free() noexcept {
  if (m_bits & kHeapBit)
    std::free(Head() + kCapacity);
  else
    TextMemory::Free(Head() + kLength);
}

bool TWCString::operator==(const TWCString& other) const noexcept {
  const int length = Length();
  return length == other.Length() &&
         (length == 0 || std::memcmp(Text(), other.Text(), BytesOf(length)) == 0);
}

bool TWCString::operator==(const wchar_t* text) const noexcept {
  const int length = Length();
  return LengthOf(text) == length &&
         (length == 0 || std::memcmp(Text(), text, BytesOf(length)) == 0);
}

bool TWCString::EqualsNoCase(const wchar_t* text) const noexcept {
  const wchar_t* mine = *this;
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
