// A host integer variable that is held at another value for a scope and put back at its end.
#pragma once

#include "aced.h"
#include "adslib.h"

template <class T, T Held>
class TPushAcadVar;

template <int Held>
class TPushAcadVar<int, Held> {
 public:
  explicit TPushAcadVar(const wchar_t* name) : m_name(name) {
    resbuf value{};
    if (acedGetVar(m_name, &value) == RTNORM && value.restype == RTSHORT)
      m_saved = value.resval.rint;
    Set(Held);
  }
  virtual ~TPushAcadVar() { Set(m_saved); }
  TPushAcadVar(const TPushAcadVar&) = delete;
  TPushAcadVar& operator=(const TPushAcadVar&) = delete;

 private:
  void Set(int value) {
    resbuf wanted{};
    wanted.restype = RTSHORT;
    wanted.resval.rint = static_cast<short>(value);
    acedSetVar(m_name, &wanted);
  }

  const wchar_t* m_name;
  int m_saved = 80;  // what a variable that can't be read is "restored" to; part of the design
};
