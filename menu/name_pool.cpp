#include "menu/name_pool.h"

#include <algorithm>
#include <cstring>

#include "menu/fold_case.h"
#include "menu/menu_scanner.h"

namespace {

constexpr size_t kFirstSlots = 256;

// Folds the case of all characters that identifiers have: no two of them differ in this bit alone,
// letters excepted.
constexpr uint64_t kFoldEight = 0x2020202020202020u;

uint64_t Mixed(uint64_t hash, uint64_t eight) {
  hash = (hash ^ (eight | kFoldEight)) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 32;
}

uint32_t HashNoCase(std::string_view name, uint64_t seed) {
  uint64_t hash = seed ^ name.size();
  uint64_t eight = 0;
  size_t at = 0;
  for (; name.size() - at >= 8; at += 8) {
    std::memcpy(&eight, name.data() + at, 8);
    hash = Mixed(hash, eight);
  }
  eight = 0;
  for (; at < name.size(); ++at) eight = eight << 8 | static_cast<unsigned char>(name[at]);
  return static_cast<uint32_t>(Mixed(hash, eight) >> 16);
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldAscii(x) == FoldAscii(y); });
}

TSharedText Widened(std::string_view name) {
  wchar_t units[kLongestToken];
  std::copy(name.begin(), name.end(), units);
  return TSharedText(units, static_cast<int>(name.size()));
}

}  // namespace

// Where the pool lies is another place in each run, so that no file can be full of names that fall
// on one slot.
NamePool::NamePool() : m_seed(reinterpret_cast<std::uintptr_t>(this) * 0xD6E8FEB86659FD93u) {
  Spread(kFirstSlots);
}

NamePool::Name::Name(std::string_view name, int firstOfFamily)
    : text(Widened(name)), begin(name.data()), family(firstOfFamily) {
  length = static_cast<unsigned char>(name.size());
  std::copy_n(name.begin(), std::min(name.size(), sizeof head), head);
}

bool NamePool::Name::Is(std::string_view name) const {
  if (length != name.size()) return false;
  if (length <= sizeof head) return std::memcmp(head, name.data(), length) == 0;
  return Whole() == name;
}

NamePool::Key NamePool::Announce(std::string_view name) const {
  const Key key{name, HashNoCase(name, m_seed)};
  __builtin_prefetch(&m_slots[key.hash & (m_slots.size() - 1)]);
  return key;
}

int NamePool::Add(const Key& key) {
  const auto [name, hash] = key;
  const size_t mask = m_slots.size() - 1;
  int family = Count();
  size_t at = hash & mask;
  for (; m_slots[at].number != kFree; at = (at + 1) & mask) {
    if (m_slots[at].hash != hash) continue;
    ++m_comparisons;
    const Name& known = m_names[static_cast<size_t>(m_slots[at].number)];
    if (known.Is(name)) return m_slots[at].number;
    if (EqualNoCase(known.Whole(), name)) family = known.family;
  }
  m_names.emplace_back(name, family);
  m_slots[at] = {hash, Count() - 1};
  if (m_names.size() * 4 > m_slots.size() * 3) Spread(m_slots.size() * 2);
  return Count() - 1;
}

void NamePool::Spread(size_t slots) {
  std::vector<Slot> old(slots, Slot{0, kFree});
  old.swap(m_slots);
  for (const Slot& slot : old) {
    if (slot.number == kFree) continue;
    size_t at = slot.hash & (slots - 1);
    while (m_slots[at].number != kFree) at = (at + 1) & (slots - 1);
    m_slots[at] = slot;
  }
}

NameLookup::NameLookup(const NamePool& pool, const std::vector<int>& tableNames)
    : m_pool(pool), m_entries(static_cast<size_t>(pool.Count()), -1) {
  for (size_t i = 0; i < tableNames.size(); ++i) {
    int& entry = m_entries[static_cast<size_t>(pool.Family(tableNames[i]))];
    if (entry < 0) entry = static_cast<int>(i);
  }
}
