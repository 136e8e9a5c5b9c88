// A list of object identifiers.
#pragma once

#include <vector>

#include "dbmain.h"

class AcDbObjectIdArray {
 public:
  int length() const { return static_cast<int>(m_ids.size()); }
  bool isEmpty() const { return m_ids.empty(); }
  AcDbObjectId at(int index) const { return m_ids[static_cast<std::size_t>(index)]; }
  AcDbObjectId operator[](int index) const { return at(index); }
  int append(AcDbObjectId id) {
    m_ids.push_back(id);
    return length() - 1;
  }
  void removeAll() { m_ids.clear(); }

 private:
  std::vector<AcDbObjectId> m_ids;
};
