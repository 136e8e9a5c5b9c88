// A host integer variable that is held at another value for a scope and put back at its end.
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
  static constexpr int kUnreadable = 80;  // what such a variable is "restored" to; by design

  const wchar_t* m_name;
  int m_saved;
};
