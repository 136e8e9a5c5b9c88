// Assigns numbers to the identifiers of one menu source. The passes look up icons and switches by
// number: most lines name an icon.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class NamePool {
 public:
  // The size of the source is a hint for the initial size of the tables.
  explicit NamePool(size_t sourceBytes = 0);

  // `name` is an identifier: ASCII letters, digits and underscores, no longer than a token. Its
  // bytes must outlive the pool.
  struct Key {
    std::string_view name;
    uint32_t hash = 0;
  };
  Key Hash(std::string_view name) const;

  // Returns the number of the name; a new name gets the next number, beginning with 0.
  int Add(const Key& key);
  int Add(std::string_view name) { return Add(Hash(name)); }
  // The same for several names. In a large menu most look-ups miss the caches; those of different
  // names are independent, so that the processor overlaps the misses.
  void Add(const Key* keys, size_t count, int* numbers);
  int Count() const { return static_cast<int>(m_names.size()); }

  // The case class of a name, that is, the number of the first name that differs from it only in
  // case.
  int CaseClass(int number) const { return m_caseClasses[static_cast<size_t>(number)]; }

  // The number of comparisons of names so far; tests of hostile sources limit it.
  size_t Comparisons() const { return m_comparisons; }

 private:
  static constexpr int kNone = -1;

  struct alignas(64) Name {  // one cache line
    explicit Name(std::string_view name);
    std::string_view Whole() const { return {begin, length}; }
    bool Is(std::string_view name) const;

    const char* begin;  // in the source
    unsigned char length;
    char head[55];  // most names fit, so that comparisons need not read the source
  };

  // A hash table of name numbers with open addressing.
  class Table {
   public:
    explicit Table(size_t names);
    // The number in the first slot of this hash; kNone when that slot has another hash.
    int FindAtHome(uint32_t hash) const {
      const Slot& slot = m_slots[hash & (m_slots.size() - 1)];
      return slot.hash == hash ? slot.number : kNone;
    }
    // The first number with this hash for which `matches` returns true, else kNone.
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

    std::vector<Slot> m_slots;  // a power of two; at most three quarters are used
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

// Finds the first entry of a table by name, case ignored.
class NameLookup {
 public:
  // `tableNames` has the number of the name of each entry.
  NameLookup(const NamePool& pool, const std::vector<int>& tableNames);
  int Find(int number) const {  // -1 when there is none
    return m_entries[static_cast<size_t>(m_pool.CaseClass(number))];
  }

 private:
  const NamePool& m_pool;
  std::vector<int> m_entries;  // by case class
};
