#include "menu/name_index.h"

#include <cstdint>

namespace {

uint32_t HashNoCase(const TWCString& name) {
  uint32_t hash = 2166136261u;
  const wchar_t* text = name.c_str();
  for (int i = 0; i < name.Length(); ++i)
    hash = (hash ^ static_cast<uint32_t>(FoldCase(text[i]))) * 16777619u;
  return hash ^ (hash >> 15);
}

bool IsBetween(unsigned unit, unsigned first, unsigned last) {
  return unit >= first && unit <= last;
}

// The letters of the code pages in use: Latin, Greek, Cyrillic and the full-width Latin ones.
wchar_t FoldBeyondAscii(wchar_t unit) {
  const auto u = static_cast<unsigned>(unit);
  if (IsBetween(u, 0xC0, 0xDE) && u != 0xD7) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x391, 0x3A9) && u != 0x3A2) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x410, 0x42F)) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x400, 0x40F)) return static_cast<wchar_t>(u + 0x50);
  if (IsBetween(u, 0xFF21, 0xFF3A)) return static_cast<wchar_t>(u + 0x20);
  return unit;
}

}  // namespace

wchar_t FoldCase(wchar_t unit) {
  if (unit >= L'A' && unit <= L'Z') return static_cast<wchar_t>(unit + 0x20);
  return unit < 0x80 ? unit : FoldBeyondAscii(unit);
}

bool EqualNamesNoCase(const TWCString& a, std::wstring_view b) {
  if (static_cast<size_t>(a.Length()) != b.size()) return false;
  const wchar_t* text = a.c_str();
  for (size_t i = 0; i < b.size(); ++i)
    if (text[i] != b[i] && FoldCase(text[i]) != FoldCase(b[i])) return false;
  return true;
}

NameIndex::NameIndex(int count) {
  size_t size = 8;
  while (size < static_cast<size_t>(count) * 2) size *= 2;
  m_slots.assign(size, -1);
  m_names.reserve(static_cast<size_t>(count));
}

// The slot that holds the name, or the free one where it belongs.
size_t NameIndex::SlotOf(const TWCString& name) const {
  size_t slot = HashNoCase(name) & (m_slots.size() - 1);
  const std::wstring_view wanted(name.c_str(), static_cast<size_t>(name.Length()));
  for (; m_slots[slot] >= 0; slot = (slot + 1) & (m_slots.size() - 1)) {
    ++m_comparisons;
    if (EqualNamesNoCase(*m_names[static_cast<size_t>(m_slots[slot])], wanted)) break;
  }
  return slot;
}

void NameIndex::Add(const TWCString& name) {
  const size_t slot = SlotOf(name);
  if (m_slots[slot] < 0) m_slots[slot] = static_cast<int>(m_names.size());
  m_names.push_back(&name);
}

int NameIndex::Find(const TWCString& name) const { return m_slots[SlotOf(name)]; }
