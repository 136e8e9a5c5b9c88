// See host_lisp.h.
#include "ground/host_lisp.h"

#include "aced.h"

namespace qvx {
namespace {

LispAnswer::Kind KindOf(int restype) {
  if (restype == RTSHORT) return LispAnswer::Kind::kNumber;
  return restype == RTT ? LispAnswer::Kind::kTrue : LispAnswer::Kind::kOther;
}

// A function that loads a menu whose lines call it would recurse without end. Calls beyond the
// limit are not made; their lines look as after a failed call.
class Nesting {
 public:
  Nesting() { ++Depth(); }
  ~Nesting() { --Depth(); }
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

  bool IsTooDeep() const { return Depth() > kDeepest; }

 private:
  static constexpr int kDeepest = 8;
  static int& Depth() {
    static int s_depth = 0;  // over all callers of the host's one thread
    return s_depth;
  }
};

}  // namespace

OwnedChain InvokeLisp(const wchar_t* function, bool* called) {
  if (called) *called = false;
  const OwnedChain call(acutBuildList(RTSTR, function, RTNONE));
  if (!call) return nullptr;
  resbuf* result = nullptr;
  const bool succeeded = acedInvoke(call.get(), &result) == RTNORM;
  if (called) *called = succeeded;
  OwnedChain owned(result);
  if (!succeeded) owned.reset();
  return owned;
}

LispAnswer HostLisp::Call(const wchar_t* function) {
  const Nesting nesting;
  LispAnswer answer;
  if (nesting.IsTooDeep()) return answer;
  const OwnedChain result = InvokeLisp(function, &answer.called);
  if (!result) return answer;
  answer.kind = KindOf(result->restype);
  if (answer.kind == LispAnswer::Kind::kNumber) answer.number = result->resval.rint;
  return answer;
}

}  // namespace qvx
