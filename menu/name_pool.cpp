#include "menu/name_pool.h"

#include <algorithm>
#include <cstring>

#include "menu/byte_search.h"
#include "menu/fold_case.h"

namespace {

constexpr size_t kBytesPerName = 100;  // of source; the menus in use have 80 to 150

// Sets the case bit of eight characters. In identifiers only the two cases of a letter differ in
// this bit alone.
constexpr uint64_t kFoldEight = 0x2020202020202020u;

uint64_t Mix(uint64_t hash, uint64_t eight) {
  hash = (hash ^ eight) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 32;
}

// Up to eight characters as one number. The layout depends only on the length.
uint64_t ShortNameValue(std::string_view name) {
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

// `fold` is kFoldEight, or 0 for a case-sensitive hash. The last eight bytes are hashed together
// and may overlap the previous eight.
uint32_t HashOf(std::string_view name, uint64_t seed, uint64_t fold) {
  uint64_t hash = seed ^ name.size();
  if (name.size() <= 8) return static_cast<uint32_t>(Mix(hash, ShortNameValue(name) | fold) >> 16);
  for (size_t at = 0; name.size() - at > 8; at += 8)
    hash = Mix(hash, bytes::EightAt(&name[at]) | fold);
  const uint64_t last = bytes::EightAt(name.data() + name.size() - 8);
  return static_cast<uint32_t>(Mix(hash, last | fold) >> 16);
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldAscii(x) == FoldAscii(y); });
}

}  // namespace

// The seed is the address of the pool, which differs between runs: no file can contain names that
// always collide.
NamePool::NamePool(size_t sourceBytes)
    : m_seed(reinterpret_cast<std::uintptr_t>(this) * 0xD6E8FEB86659FD93u),
      m_firsts(sourceBytes / kBytesPerName),
      m_variants(0) {
  m_names.reserve(sourceBytes / kBytesPerName);
  m_caseClasses.reserve(sourceBytes / kBytesPerName);
}

NamePool::Name::Name(std::string_view name)
    : begin(name.data()), length(static_cast<unsigned char>(name.size())) {
  std::copy_n(name.begin(), std::min(name.size(), sizeof head), head);
}

bool NamePool::Name::Is(std::string_view name) const {
  if (length != name.size()) return false;
  if (length <= sizeof head) return std::memcmp(head, name.data(), length) == 0;
  return Whole() == name;
}

template <class Matches>
int NamePool::Table::Find(uint32_t hash, Matches matches) const {
  const size_t mask = m_slots.size() - 1;
  for (size_t at = hash & mask; m_slots[at].number != kNone; at = (at + 1) & mask)
    if (m_slots[at].hash == hash && matches(m_slots[at].number)) return m_slots[at].number;
  return kNone;
}

NamePool::Table::Table(size_t names) {
  size_t slots = 64;
  while (slots * 3 < names * 4) slots *= 2;
  Resize(slots);
}

void NamePool::Table::Add(uint32_t hash, int number) {
  if (++m_used * 4 > m_slots.size() * 3) Resize(m_slots.size() * 2);
  Insert(hash, number);
}

void NamePool::Table::Insert(uint32_t hash, int number) {
  const size_t mask = m_slots.size() - 1;
  size_t at = hash & mask;
  while (m_slots[at].number != kNone) at = (at + 1) & mask;
  m_slots[at] = {hash, number};
}

void NamePool::Table::Resize(size_t slots) {
  std::vector<Slot> old(slots, Slot{0, kNone});
  old.swap(m_slots);
  for (const Slot& slot : old)
    if (slot.number != kNone) Insert(slot.hash, slot.number);
}

NamePool::Key NamePool::Hash(std::string_view name) const {
  return {name, HashOf(name, m_seed, kFoldEight)};
}

int NamePool::Add(const Key& key) {
  bool isFirst = false;
  const int caseClass = m_firsts.Find(key.hash, [&](int number) {
    ++m_comparisons;
    isFirst = At(number).Is(key.name);
    return isFirst || EqualNoCase(At(number).Whole(), key.name);
  });
  if (isFirst) return caseClass;
  if (caseClass != kNone) return AddVariant(key.name, caseClass);
  const int number = AddNew(key.name, Count());
  m_firsts.Add(key.hash, number);
  return number;
}

// Each loop reads one kind of memory. The last loop handles new names, names that are not the first
// of their case class, and names that are not in the first slot of their hash.
void NamePool::Add(const Key* keys, size_t count, int* numbers) {
  for (size_t i = 0; i < count; ++i) numbers[i] = m_firsts.FindAtHome(keys[i].hash);
  for (size_t i = 0; i < count; ++i) {
    if (numbers[i] == kNone) continue;
    ++m_comparisons;
    if (!At(numbers[i]).Is(keys[i].name)) numbers[i] = kNone;
  }
  for (size_t i = 0; i < count; ++i)
    if (numbers[i] == kNone) numbers[i] = Add(keys[i]);
}

// Variants are in a table of their own, so that a case class of many names is not searched
// linearly.
int NamePool::AddVariant(std::string_view name, int caseClass) {
  const uint32_t hash = HashOf(name, m_seed, 0);
  const int known = m_variants.Find(hash, [&](int number) {
    ++m_comparisons;
    return At(number).Is(name);
  });
  if (known != kNone) return known;
  m_variants.Add(hash, Count());
  return AddNew(name, caseClass);
}

int NamePool::AddNew(std::string_view name, int caseClass) {
  m_names.emplace_back(name);
  m_caseClasses.push_back(caseClass);
  return Count() - 1;
}

NameLookup::NameLookup(const NamePool& pool, const std::vector<int>& tableNames)
    : m_pool(pool), m_entries(static_cast<size_t>(pool.Count()), -1) {
  for (size_t i = 0; i < tableNames.size(); ++i) {
    int& entry = m_entries[static_cast<size_t>(pool.CaseClass(tableNames[i]))];
    if (entry < 0) entry = static_cast<int>(i);
  }
}
