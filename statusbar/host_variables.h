// One short integer variable of the host, or nothing when it can't be read or is of another type.
#pragma once

#include <optional>

#include "adslib.h"

namespace qvx {

inline std::optional<int> ShortVariable(const wchar_t* name) {
  resbuf value{};
  if (acedGetVar(name, &value) != RTNORM || value.restype != RTSHORT) return {};
  return value.resval.rint;
}

}  // namespace qvx
