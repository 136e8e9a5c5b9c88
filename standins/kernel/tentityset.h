// One object of a drawing as selections name it: the object path, and the groups that were read
// last. Made by TPickEntSet and kept as the object under the pointer, one a drawing.
//
// What a group holds is asked of the object itself; a group that the object leaves out has the
// value that drawings give to a missing one, where there is such a value.
#pragma once

#include <string>
#include <variant>

#include "dbmain.h"
#include "kernel/trblist.h"

class QVX_KERNEL TEntitySet {
 public:
  // Nothing for a group that the object does not have.
  using Value = std::variant<std::monostate, long long, double, std::wstring>;
  static constexpr int kDataUnits = 512;  // room that GetData expects

  TEntitySet() noexcept = default;
  explicit TEntitySet(const ads_name name) noexcept : m_name{name[0], name[1]} {}
  TEntitySet(const TEntitySet& other) noexcept : TEntitySet(other.m_name) {}
  // Takes the object path only; groups that were read here are freed first.
  TEntitySet& operator=(const TEntitySet& other) noexcept;

  bool IsEmpty() const noexcept { return !m_name[0] && !m_name[1]; }
  bool operator==(const TEntitySet& other) const noexcept {
    return m_name[0] == other.m_name[0] && m_name[1] == other.m_name[1];
  }
  const ads_name& Name() const noexcept { return m_name; }
  AcDbObjectId ObjectId() const;  // null when empty or gone

  bool Is(const wchar_t* type) const;  // the name in drawing files, case ignored
  // The first value of a group as text; false, and an empty text, without one.
  bool GetData(int code, wchar_t* out) const;
  // Every group of the mask fits: texts as the host's wild cards, numbers when equal. An object
  // that does not open fits nothing, and so does an empty mask.
  bool MatchBase(const TRBList& mask) const;
  void Redraw(int mode) const;  // 3 highlights, 4 takes it back

  // The name that drawing files have for the object's class; lives as long as the object.
  static const wchar_t* TypeOf(const AcDbEntity& entity);
  static void GroupOf(const AcDbEntity& entity, int code, Value& out);

 private:
  ads_name m_name = {0, 0};
  mutable TRBList m_groups;  // of the last GetData
};

// The object under the pointer in the current drawing, null path for none. A slot of nobody's
// without a drawing.
QVX_KERNEL TEntitySet& DocGetEntMouseOn();
