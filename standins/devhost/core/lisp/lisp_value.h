// A LISP value: nil, T, integer, real, string, point, entity, selection set, symbol or list.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "adsdef.h"

namespace devhost {

struct LispValue {
  enum class Kind { Nil, True, Integer, Real, String, Point, Entity, Selection, Symbol, List };
  Kind kind = Kind::Nil;
  long long integer = 0;
  double real = 0;
  std::wstring text;  // string or symbol
  std::array<double, 3> point{};
  std::array<long long, 2> name{};  // entity or selection set
  std::vector<LispValue> items;

  static LispValue Nil() { return {}; }
  static LispValue True();
  static LispValue Integer(long long value);
  static LispValue Real(double value);
  static LispValue String(std::wstring value);
  static LispValue Symbol(std::wstring value);
  static LispValue List(std::vector<LispValue> items);
  bool IsNil() const { return kind == Kind::Nil || (kind == Kind::List && items.empty()); }
};

// The value of a chain: one value, or a list in RTLB ... RTLE. Several consecutive values become a
// list; null and an empty chain are nil.
LispValue FromResbuf(const resbuf* chain);
// A chain for a value, to be released with acutRelRb. nil is one RTNIL node.
resbuf* ToResbuf(const LispValue& value);
std::wstring Printed(const LispValue& value);  // as printed on the command line

}  // namespace devhost
