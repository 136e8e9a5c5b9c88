#include "menu/name_pool.h"

#include <algorithm>
#include <cstring>

#include "menu/byte_search.h"
#include "menu/fold_case.h"
#include "menu/menu_scanner.h"

namespace {

constexpr size_t kBytesAName = 100;  // of source; menus in use have between 80 and 150

// Folds the case of all characters that identifiers have: no two of them differ in this bit alone,
// letters excepted.
constexpr uint64_t kFoldEight = 0x2020202020202020u;

uint64_t Mixed(uint64_t hash, uint64_t eight) {
  hash = (hash ^ eight) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 32;
}

uint64_t EightAt(const char* p) {
  uint64_t eight;
  std::memcpy(&eight, p, sizeof eight);
  return eight;
}

// Up to eight characters as one number; which of them lies where is a matter of the length alone.
uint64_t ShortAsNumber(std::string_view name) {
  const size_t length = name.size();
  const char* p = name.data();
  if (length < 4) {
    const auto byte = [p](size_t at) { return uint64_t{static_cast<unsigned char>(p[at])}; };
    return length ? byte(0) | byte(length / 2) << 8 | byte(length - 1) << 16 : 0;
  }
  uint32_t first, last;
  std::memcpy(&first, p, sizeof first);
  std::memcpy(&last, p + length - 4, sizeof last);
  return first | uint64_t{last} << 32;
}

// `fold` is added to all bytes: kFoldEight, or 0 for a hash that tells case. The last eight bytes
// are taken whole; they may overlap those in front of them.
uint32_t HashOf(std::string_view name, uint64_t seed, uint64_t fold) {
  uint64_t hash = seed ^ name.size();
  if (name.size() <= 8) return static_cast<uint32_t>(Mixed(hash, ShortAsNumber(name) | fold) >> 16);
  for (size_t at = 0; name.size() - at > 8; at += 8) hash = Mixed(hash, EightAt(&name[at]) | fold);
  const uint64_t last = EightAt(name.data() + name.size() - 8);
  return static_cast<uint32_t>(Mixed(hash, last | fold) >> 16);
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldAscii(x) == FoldAscii(y); });
}

TSharedText Widened(std::string_view name) {
  wchar_t units[kLongestToken];
  bytes::WidenAscii(name.data(), name.data() + name.size(), units);
  return TSharedText(units, static_cast<int>(name.size()));
}

}  // namespace

// Where the pool lies is another place in each run, so that no file can be full of names that fall
// on one slot.
NamePool::NamePool(size_t sourceBytes)
    : m_seed(reinterpret_cast<std::uintptr_t>(this) * 0xD6E8FEB86659FD93u),
      m_heads(sourceBytes / kBytesAName),
      m_variants(0) {
  m_names.reserve(sourceBytes / kBytesAName);
  m_families.reserve(sourceBytes / kBytesAName);
}

NamePool::Name::Name(std::string_view name)
    : text(Widened(name)), begin(name.data()), length(static_cast<unsigned char>(name.size())) {
  std::copy_n(name.begin(), std::min(name.size(), sizeof head), head);
}

bool NamePool::Name::Is(std::string_view name) const {
  if (length != name.size()) return false;
  if (length <= sizeof head) return std::memcmp(head, name.data(), length) == 0;
  return Whole() == name;
}

template <class IsIt>
int NamePool::Table::Find(uint32_t hash, IsIt isIt) const {
  const size_t mask = m_slots.size() - 1;
  for (size_t at = hash & mask; m_slots[at].number != kNone; at = (at + 1) & mask)
    if (m_slots[at].hash == hash && isIt(m_slots[at].number)) return m_slots[at].number;
  return kNone;
}

NamePool::Table::Table(size_t names) {
  size_t slots = 64;
  while (slots * 3 < names * 4) slots *= 2;
  Spread(slots);
}

void NamePool::Table::Add(uint32_t hash, int number) {
  if (++m_taken * 4 > m_slots.size() * 3) Spread(m_slots.size() * 2);
  Put(hash, number);
}

void NamePool::Table::Put(uint32_t hash, int number) {
  const size_t mask = m_slots.size() - 1;
  size_t at = hash & mask;
  while (m_slots[at].number != kNone) at = (at + 1) & mask;
  m_slots[at] = {hash, number};
}

void NamePool::Table::Spread(size_t slots) {
  std::vector<Slot> old(slots, Slot{0, kNone});
  old.swap(m_slots);
  for (const Slot& slot : old)
    if (slot.number != kNone) Put(slot.hash, slot.number);
}

NamePool::Key NamePool::Announce(std::string_view name) const {
  const Key key{name, HashOf(name, m_seed, kFoldEight)};
  m_heads.Prefetch(key.hash);
  return key;
}

void NamePool::Approach(const Key& key) const {
  if (const int number = m_heads.Nearest(key.hash); number != Table::kNone)
    __builtin_prefetch(&At(number));
}

int NamePool::Add(const Key& key) {
  bool isHead = false;
  const int family = m_heads.Find(key.hash, [&](int number) {
    ++m_comparisons;
    isHead = At(number).Is(key.name);
    return isHead || EqualNoCase(At(number).Whole(), key.name);
  });
  if (isHead) return family;
  if (family != Table::kNone) return AddVariant(key.name, family);
  const int number = AddNew(key.name, Count());
  m_heads.Add(key.hash, number);
  return number;
}

// So a family may be large and its names are still found at once.
int NamePool::AddVariant(std::string_view name, int family) {
  const uint32_t hash = HashOf(name, m_seed, 0);
  const int known = m_variants.Find(hash, [&](int number) {
    ++m_comparisons;
    return At(number).Is(name);
  });
  if (known != Table::kNone) return known;
  m_variants.Add(hash, Count());
  return AddNew(name, family);
}

int NamePool::AddNew(std::string_view name, int family) {
  m_names.emplace_back(name);
  m_families.push_back(family);
  return Count() - 1;
}

NameLookup::NameLookup(const NamePool& pool, const std::vector<int>& tableNames)
    : m_pool(pool), m_entries(static_cast<size_t>(pool.Count()), -1) {
  for (size_t i = 0; i < tableNames.size(); ++i) {
    int& entry = m_entries[static_cast<size_t>(pool.FamilyOf(tableNames[i]))];
    if (entry < 0) entry = static_cast<int>(i);
  }
}
