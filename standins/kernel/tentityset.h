// One object of a drawing in a selection: the object path, and the groups that were read last.
// TPickEntSet creates it; each drawing has one for the object under the pointer.
//
// Groups are read from the object. A group that the object omits has the default value of drawing
// files, where there is one.
#pragma once

#include <string>
#include <variant>

#include "dbmain.h"
#include "kernel/trblist.h"

class QVX_KERNEL TEntitySet {
 public:
  // Null for a group that the object does not have.
  using Value = std::variant<std::monostate, long long, double, std::wstring>;
  static constexpr int kDataUnits = 512;  // room that GetData requires

  TEntitySet() noexcept = default;
  explicit TEntitySet(const ads_name name) noexcept : m_name{name[0], name[1]} {}
  TEntitySet(const TEntitySet& other) noexcept : TEntitySet(other.m_name) {}
  // Copies the object path only; frees the groups read before.
  TEntitySet& operator=(const TEntitySet& other) noexcept;

  bool IsEmpty() const noexcept { return !m_name[0] && !m_name[1]; }
  bool operator==(const TEntitySet& other) const noexcept {
    return m_name[0] == other.m_name[0] && m_name[1] == other.m_name[1];
  }
  const ads_name& Name() const noexcept { return m_name; }
  AcDbObjectId ObjectId() const;  // null when empty or erased

  bool Is(const wchar_t* type) const;  // the name in drawing files, case ignored
  // The first value of a group as text; false, and an empty text, without one.
  bool GetData(int code, wchar_t* out) const;
  // True when every group of the mask matches: texts by the host's wild cards, numbers by equality.
  // False for an empty mask and for an object that can't be opened.
  bool MatchBase(const TRBList& mask) const;
  void Redraw(int mode) const;  // 3 highlights, 4 removes the highlight

  // The class name in drawing files; valid as long as the object.
  static const wchar_t* TypeOf(const AcDbEntity& entity);
  static void GroupOf(const AcDbEntity& entity, int code, Value& out);

 private:
  ads_name m_name = {0, 0};
  mutable TRBList m_groups;  // of the last GetData
};

// The object under the pointer in the current drawing, with a null path for none. A shared dummy
// when no drawing is open.
QVX_KERNEL TEntitySet& DocGetEntMouseOn();
