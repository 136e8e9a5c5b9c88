// Finds a name in a table of names: the first one that is equal when case is ignored, as a walk
// from the front would, but in constant time, because the passes look up a name for each line.
#pragma once

#include <string_view>
#include <vector>

#include "kernel/twcstring.h"

// Simple case folding of one UTF-16 unit; the same on every build and in every locale.
wchar_t FoldCase(wchar_t unit);
bool EqualNamesNoCase(const TWCString& a, std::wstring_view b);

class NameIndex {
 public:
  // For `count` names that are added in order. The names must outlive the index.
  explicit NameIndex(int count);
  void Add(const TWCString& name);
  int Find(const TWCString& name) const;  // -1 when there is none

  // How many names were compared so far; tests hold it near the number of calls.
  size_t Comparisons() const { return m_comparisons; }

 private:
  size_t SlotOf(const TWCString& name) const;

  std::vector<const TWCString*> m_names;
  std::vector<int> m_slots;  // power of two; index into m_names or -1
  mutable size_t m_comparisons = 0;
};

// The index of a list of model objects by their m_strName.
template <class List>
NameIndex IndexByName(const List& list) {
  NameIndex index(list.Length());
  for (auto* element : list) index.Add(element->m_strName);
  return index;
}
