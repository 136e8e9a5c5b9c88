// A selection in the current drawing by the host's selection sets: the current selection, objects
// at a point or along a line, or the object under the pointer. Objects are in the order of
// selection. An empty set is not an error.
#pragma once

#include "gepnt3d.h"
#include "kernel/tentityset.h"

class QVX_KERNEL TPickEntSet {
 public:
  enum Mode {
    kBorrowed = 1,  // the host's set is not released
    kOwned = 2,     // it is released with this object
  };

  explicit TPickEntSet(int mode = kOwned) noexcept : m_mode(mode) {}
  ~TPickEntSet() { Free(); }
  TPickEntSet(const TPickEntSet&) = delete;
  TPickEntSet& operator=(const TPickEntSet& other);  // a set of its own with the same objects

  // Selects as acedSSGet does with this mode, points and filter; replaces the old content. "I" is
  // the implied selection, "F" the objects that the line between two points crosses, null with a
  // point the object there. RTNORM or the host's error.
  int Get(const wchar_t* mode, const AcGePoint3d* first = nullptr,
          const AcGePoint3d* second = nullptr, const resbuf* filter = nullptr);
  // The current selection. Unlike Get(L"I") it does not change the previous selection.
  int GetFirst();
  // The object under the pointer in the current view, if its AcceptsPointer agrees. A hit test; can
  // be slow.
  int GetPreSel();
  void Set(const TEntitySet& entity);  // this object only; an empty one empties the set

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
