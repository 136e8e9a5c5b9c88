// One short integer variable of the host, or nothing when it can't be read or is of another type.
#pragma once

#include <cstdlib>
#include <optional>

#include "adslib.h"

namespace qvx {

inline std::optional<int> ShortVariable(const wchar_t* name) {
  resbuf value{};
  if (acedGetVar(name, &value) != RTNORM) return {};
  if (value.restype == RTSHORT) return value.resval.rint;
  if (value.restype == RTSTR) std::free(value.resval.rstring);
  return {};
}

}  // namespace qvx
