// The texts of the tabs as a set, so that a free name is found without comparing each tab: a text
// is a stem and a number of stars at its end, and for each stem the numbers in use are kept as
// runs. The result is the same as that of appending a star while any tab has the text.
#pragma once

#include <map>
#include <string>
#include <unordered_map>

#include "afx.h"

class TabNames {
 public:
  // `name` with as few further stars as make it a text that is not in the set.
  CString Free(const CString& name) const;
  void Add(const CString& name);  // must not be in the set
  void Remove(const CString& name);
  void Clear() { m_stems.clear(); }

 private:
  struct Text {
    std::wstring stem;
    int stars;
  };
  using Runs = std::map<int, int>;  // first number of a run -> last one; runs never touch

  static Text Split(const CString& name);
  int FirstFree(const Text& text) const;

  std::unordered_map<std::wstring, Runs> m_stems;
};
