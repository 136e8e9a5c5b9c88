// Calls a LISP function by name, as the decisions of the rooms see it. HostLisp (host_lisp.h) calls
// the host; tests answer from a table.
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

// A result counts only when the call succeeded and gave something.
inline bool GivesNumber(const LispAnswer& answer) {
  return answer.called && answer.kind == LispAnswer::Kind::kNumber;
}
inline bool GivesTrue(const LispAnswer& answer) {
  return answer.called && answer.kind == LispAnswer::Kind::kTrue;
}

}  // namespace qvx
