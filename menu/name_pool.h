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
  NamePool();

  // `name` is an identifier: ASCII letters, digits and underscores, no longer than a token. It
  // outlives the pool.
  int Add(std::string_view name) { return Add(Announce(name)); }
  // In two steps, with other work between them that gives the memory time to arrive: in a large
  // menu most look-ups leave the caches.
  struct Key {
    std::string_view name;
    uint32_t hash = 0;
  };
  Key Announce(std::string_view name) const;
  int Add(const Key& key);
  int Count() const { return static_cast<int>(m_names.size()); }
  void CopyTo(int number, TWCString& out) { m_names[static_cast<size_t>(number)].text.CopyTo(out); }
  // The same for all names that are equal when case is ignored: the number of the first of them.
  int Family(int number) const { return m_names[static_cast<size_t>(number)].family; }

  // How many names were compared so far; tests hold it near the number of calls.
  size_t Comparisons() const { return m_comparisons; }

 private:
  struct Name {
    Name(std::string_view name, int firstOfFamily);
    std::string_view Whole() const { return {begin, length}; }
    bool Is(std::string_view name) const;

    TSharedText text;
    const char* begin;  // in the source
    int family;
    unsigned char length;
    char head[11];  // most names lie in the record as a whole: comparing them goes nowhere else
  };
  struct Slot {
    uint32_t hash;
    int number;  // kFree, or into m_names
  };
  static constexpr int kFree = -1;

  void Spread(size_t slots);

  uint64_t m_seed;
  std::vector<Name> m_names;
  std::vector<Slot> m_slots;  // a power of two, at most three quarters of them taken
  size_t m_comparisons = 0;
};

// From the numbers of a table's names to the first entry of that name, case ignored.
class NameLookup {
 public:
  NameLookup(const NamePool& pool, const std::vector<int>& tableNames);
  int Find(int number) const {  // -1 when there is none
    return m_entries[static_cast<size_t>(m_pool.Family(number))];
  }

 private:
  const NamePool& m_pool;
  std::vector<int> m_entries;  // by family
};
