// The identifiers of one menu source. Each gets a number when it is first met; all its uses share
// one text, and the passes look names up by number: most lines of a menu name an icon.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "kernel/twcstring.h"

class NamePool {
 public:
  // Made for a source of so many bytes; any number of names may come.
  explicit NamePool(size_t sourceBytes = 0);

  // `name` is an identifier: ASCII letters, digits and underscores, no longer than a token. It
  // outlives the pool.
  int Add(std::string_view name) { return Add(Announce(name)); }
  // In steps, with other work between them that gives the memory time to arrive: in a large menu
  // most look-ups leave the caches. Approach may be left out.
  struct Key {
    std::string_view name;
    uint32_t hash = 0;
  };
  Key Announce(std::string_view name) const;
  void Approach(const Key& key) const;
  int Add(const Key& key);
  int Count() const { return static_cast<int>(m_names.size()); }
  void CopyTo(int number, TWCString& out) { m_names[static_cast<size_t>(number)].text.CopyTo(out); }

  // Names that are equal when case is ignored are one family: the number of its first name.
  int FamilyOf(int number) const { return m_families[static_cast<size_t>(number)]; }

  // How many names were compared so far; tests hold it near the number of calls.
  size_t Comparisons() const { return m_comparisons; }

 private:
  struct alignas(64) Name {  // one line of the cache
    explicit Name(std::string_view name);
    std::string_view Whole() const { return {begin, length}; }
    bool Is(std::string_view name) const;

    TSharedText text;
    const char* begin;  // in the source
    unsigned char length;
    char head[39];  // nearly all names lie in the record whole: comparing them goes nowhere else
  };

  // Names or families by their hash, with open addressing.
  class Table {
   public:
    static constexpr int kNone = -1;
    explicit Table(size_t names);
    void Prefetch(uint32_t hash) const {
      __builtin_prefetch(&m_slots[hash & (m_slots.size() - 1)]);
    }
    // The number in the place where this hash belongs; kNone when that is free.
    int Nearest(uint32_t hash) const { return m_slots[hash & (m_slots.size() - 1)].number; }
    // The number under this hash that is the one; kNone when there is none.
    template <class IsIt>
    int Find(uint32_t hash, IsIt isIt) const;
    void Add(uint32_t hash, int number);

   private:
    struct Slot {
      uint32_t hash;
      int number;
    };
    void Spread(size_t slots);
    void Put(uint32_t hash, int number);

    std::vector<Slot> m_slots;  // a power of two, at most three quarters of them taken
    size_t m_taken = 0;
  };

  const Name& At(int number) const { return m_names[static_cast<size_t>(number)]; }
  int AddNew(std::string_view name, int family);
  int AddVariant(std::string_view name, int family);

  uint64_t m_seed;
  std::vector<Name> m_names;
  std::vector<int> m_families;  // of each name
  Table m_heads;                // the first name of each family, by a hash that ignores case
  Table m_variants;             // all others, by a hash that does not
  size_t m_comparisons = 0;
};

// From the numbers of a table's names to the first entry of that name, case ignored.
class NameLookup {
 public:
  NameLookup(const NamePool& pool, const std::vector<int>& tableNames);
  int Find(int number) const {  // -1 when there is none
    return m_entries[static_cast<size_t>(m_pool.FamilyOf(number))];
  }

 private:
  const NamePool& m_pool;
  std::vector<int> m_entries;  // by family
};
