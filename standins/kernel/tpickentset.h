// A selection of the current drawing, by the host's selection sets: what is selected already, what
// lies at a point or along a line, what the pointer is over. Indexing gives the objects in the
// order in which they were selected. A set that found nothing is empty; nothing is reported.
#pragma once

#include "gepnt3d.h"
#include "kernel/tentityset.h"

class QVX_KERNEL TPickEntSet {
 public:
  enum Mode {
    kBorrowed = 1,  // the host's set stays when this object goes
    kOwned = 2,     // it is released with this object
  };

  explicit TPickEntSet(int mode = kOwned) noexcept : m_mode(mode) {}
  ~TPickEntSet() { Free(); }
  TPickEntSet(const TPickEntSet&) = delete;
  TPickEntSet& operator=(const TPickEntSet&) = delete;

  // Selects as acedSSGet does with this mode, points and filter, in place of what was here: "I" the
  // implied selection, null with a point what lies there. RTNORM, or why nothing was found.
  int Get(const wchar_t* mode, const AcGePoint3d* first = nullptr,
          const AcGePoint3d* second = nullptr, const resbuf* filter = nullptr);
  // The object under the pointer in the drawing view: a hit test, which can take long.
  int GetPreSel();
  void Set(const TEntitySet& entity);  // this one alone; an empty one empties the set

  int Length() const;
  TEntitySet operator[](int index) const;  // empty for an invalid index
  bool IsInclude(const TEntitySet& entity) const;
  const ads_name& Name() const noexcept { return m_name; }
  void Free();

 private:
  bool HasSet() const noexcept { return m_name[0] || m_name[1]; }

  int m_mode;
  ads_name m_name = {0, 0};
};
