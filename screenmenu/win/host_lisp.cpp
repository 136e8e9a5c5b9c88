// See host_lisp.h.
#include "screenmenu/win/host_lisp.h"

#include <cstdlib>

#include "acdocman.h"
#include "adslib.h"
#include "dbapserv.h"
#include "ground/host_variables.h"

namespace qvx {
namespace {

LispAnswer::Kind KindOf(int restype) {
  if (restype == RTSHORT) return LispAnswer::Kind::kNumber;
  return restype == RTT ? LispAnswer::Kind::kTrue : LispAnswer::Kind::kOther;
}

// A function that loads the menu whose lines call it would go on for ever: each new tree asks it
// again. Calls inside so many others are not made; their lines show what a failing function shows.
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

LispAnswer HostLisp::Call(const wchar_t* function) {
  const Nesting nesting;
  LispAnswer answer;
  if (nesting.IsTooDeep()) return answer;
  resbuf* call = acutBuildList(RTSTR, function, RTNONE);
  if (!call) return answer;
  resbuf* result = nullptr;
  answer.called = acedInvoke(call, &result) == RTNORM;
  acutRelRb(call);
  if (!result) return answer;
  answer.kind = KindOf(result->restype);
  if (answer.kind == LispAnswer::Kind::kNumber) answer.number = result->resval.rint;
  acutRelRb(result);
  return answer;
}

HostActivity AskHostActivity() {
  HostActivity host;
  host.active = ShortVariable(L"CMDACTIVE").value_or(0);
  resbuf value{};
  if (acedGetVar(L"CMDNAMES", &value) == RTNORM && value.restype == RTSTR && value.resval.rstring) {
    host.names = value.resval.rstring;
    std::free(value.resval.rstring);
  }
  return host;
}

bool HasWorkingDatabase() {
  AcDbHostApplicationServices* services = acdbHostApplicationServices();
  return services && services->workingDatabase();
}

void SendToHost(const wchar_t* text) {
  AcApDocument* document = acDocManager ? acDocManager->curDocument() : nullptr;
  if (document) acDocManager->sendStringToExecute(document, text, true, false, true);
}

}  // namespace qvx
