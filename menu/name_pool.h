// Numbers the identifiers of one menu source. The passes look names up by number: most lines of a
// menu name an icon.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class NamePool {
 public:
  // The size of the source is a hint for the size of the tables.
  explicit NamePool(size_t sourceBytes = 0);

  // `name` is an identifier: ASCII letters, digits and underscores, no longer than a token. It
  // outlives the pool.
  struct Key {
    std::string_view name;
    uint32_t hash = 0;
  };
  Key Hash(std::string_view name) const;

  // The number of the name, the next free one for a new name. Numbers start at 0.
  int Add(const Key& key);
  int Add(std::string_view name) { return Add(Hash(name)); }
  // The same for several names at once. In a large menu most look-ups miss the caches; here those
  // of different names do not depend on each other, so the processor overlaps their misses.
  void Add(const Key* keys, size_t count, int* numbers);
  int Count() const { return static_cast<int>(m_names.size()); }

  // Names that differ in case only form a case class; its number is that of its first name.
  int CaseClass(int number) const { return m_caseClasses[static_cast<size_t>(number)]; }

  // The number of comparisons of names so far; the tests of hostile sources bound it.
  size_t Comparisons() const { return m_comparisons; }

 private:
  static constexpr int kNone = -1;

  struct alignas(64) Name {  // one cache line
    explicit Name(std::string_view name);
    std::string_view Whole() const { return {begin, length}; }
    bool Is(std::string_view name) const;

    const char* begin;  // in the source
    unsigned char length;
    char head[55];  // most names fit, so that comparing them needs no access to the source
  };

  // Names by their hash, with open addressing.
  class Table {
   public:
    explicit Table(size_t names);
    // The number in the home slot of this hash, kNone when the slot has another hash.
    int FindAtHome(uint32_t hash) const {
      const Slot& slot = m_slots[hash & (m_slots.size() - 1)];
      return slot.hash == hash ? slot.number : kNone;
    }
    // The first number under this hash for which `matches` holds, kNone without one.
    template <class Matches>
    int Find(uint32_t hash, Matches matches) const;
    void Add(uint32_t hash, int number);

   private:
    struct Slot {
      uint32_t hash;
      int number;
    };
    void Resize(size_t slots);
    void Insert(uint32_t hash, int number);

    std::vector<Slot> m_slots;  // a power of two, at most three quarters in use
    size_t m_used = 0;
  };

  const Name& At(int number) const { return m_names[static_cast<size_t>(number)]; }
  int AddNew(std::string_view name, int caseClass);
  int AddVariant(std::string_view name, int caseClass);

  uint64_t m_seed;
  std::vector<Name> m_names;
  std::vector<int> m_caseClasses;  // of each name
  Table m_firsts;                  // the first name of each case class, by a hash that ignores case
  Table m_variants;                // all others, by a hash that does not
  size_t m_comparisons = 0;
};

// Maps names to the first entry of a table that has the name, case ignored.
class NameLookup {
 public:
  // `tableNames` has the number of each entry's name.
  NameLookup(const NamePool& pool, const std::vector<int>& tableNames);
  int Find(int number) const {  // -1 when there is none
    return m_entries[static_cast<size_t>(m_pool.CaseClass(number))];
  }

 private:
  const NamePool& m_pool;
  std::vector<int> m_entries;  // by case class
};
