// Sets a host integer variable for a scope and restores it at the end.
#pragma once

#include "ground/host_variables.h"

template <class T, T Held>
class TPushAcadVar;

template <int Held>
class TPushAcadVar<int, Held> {
 public:
  explicit TPushAcadVar(const wchar_t* name)
      : m_name(name), m_saved(qvx::ShortVariable(name).value_or(kUnreadable)) {
    qvx::SetShortVariable(m_name, Held);
  }
  virtual ~TPushAcadVar() { qvx::SetShortVariable(m_name, m_saved); }
  TPushAcadVar(const TPushAcadVar&) = delete;
  TPushAcadVar& operator=(const TPushAcadVar&) = delete;

 private:
  static constexpr int kUnreadable = 80;  // deliberate: such a variable becomes 80 at the end

  const wchar_t* m_name;
  int m_saved;
};
