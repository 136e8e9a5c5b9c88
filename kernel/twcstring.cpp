// The parts of TWCString that allocate or fold case. Storage is exact when a whole text is assigned
// (menu texts never change afterwards) and doubles when text is appended bit by bit.
#include "kernel/twcstring.h"

#include <cwctype>
#include <limits>
#include <new>

namespace {
constexpr int kLargest = std::numeric_limits<int>::max() / static_cast<int>(sizeof(wchar_t)) - 1;

std::size_t BytesFor(int units) { return sizeof(wchar_t) * (static_cast<std::size_t>(units) + 1); }
}  // namespace

void TWCString::Grow(int atLeast) {
  if (atLeast < 0 || atLeast > kLargest) throw std::bad_alloc();
  int capacity = m_capacity < kLargest / 2 ? m_capacity * 2 : kLargest;
  if (capacity < 15) capacity = 15;
  if (capacity < atLeast) capacity = atLeast;
  void* grown = std::realloc(m_text, BytesFor(capacity));
  if (!grown) throw std::bad_alloc();
  m_text = static_cast<wchar_t*>(grown);
  m_text[m_length] = 0;
  m_capacity = capacity;
}

void TWCString::AssignFresh(const wchar_t* text, int count) {
  if (count > kLargest) throw std::bad_alloc();
  auto* fresh = static_cast<wchar_t*>(std::malloc(BytesFor(count)));
  if (!fresh) throw std::bad_alloc();
  std::memcpy(fresh, text, sizeof(wchar_t) * static_cast<std::size_t>(count));
  fresh[count] = 0;
  std::free(m_text);  // only now: the source may lie inside the old text
  m_text = fresh;
  m_length = m_capacity = count;
}

void TWCString::Append(const wchar_t* text, int count) {
  if (count <= 0 || !text) return;
  if (count > kLargest - m_length) throw std::bad_alloc();
  if (m_length + count > m_capacity) {
    const bool inside = m_text && text >= m_text && text <= m_text + m_length;
    const std::ptrdiff_t offset = inside ? text - m_text : 0;
    Grow(m_length + count);
    if (inside) text = m_text + offset;
  }
  std::memmove(m_text + m_length, text, sizeof(wchar_t) * static_cast<std::size_t>(count));
  m_length += count;
  m_text[m_length] = 0;
}

bool TWCString::EqualsNoCase(const wchar_t* text) const {
  const wchar_t* mine = c_str();
  if (!text) text = L"";
  for (int i = 0; i < m_length; ++i) {
    const wchar_t theirs = text[i];
    if (theirs != mine[i] &&
        std::towlower(static_cast<wint_t>(theirs)) != std::towlower(static_cast<wint_t>(mine[i])))
      return false;
    if (!theirs) return false;
  }
  return text[m_length] == 0;
}
