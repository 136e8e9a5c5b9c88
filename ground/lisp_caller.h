// The interface by which the rooms call LISP functions. HostLisp (host_lisp.h) calls the host.
#pragma once

namespace qvx {

struct LispAnswer {
  enum class Kind { kNothing, kNumber, kTrue, kOther };

  bool called = false;         // the call itself succeeded
  Kind kind = Kind::kNothing;  // of the first result; kNothing when there is none
  int number = 0;              // of a short integer
};

class LispCaller {
 public:
  virtual ~LispCaller() = default;
  virtual LispAnswer Call(const wchar_t* function) = 0;
};

// False unless the call succeeded and returned such a value.
inline bool GivesNumber(const LispAnswer& answer) {
  return answer.called && answer.kind == LispAnswer::Kind::kNumber;
}
inline bool GivesTrue(const LispAnswer& answer) {
  return answer.called && answer.kind == LispAnswer::Kind::kTrue;
}

}  // namespace qvx
