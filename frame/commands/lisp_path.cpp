#include "frame/commands/lisp_path.h"

#include "aced.h"
#include "adslib.h"

void PublishLispPath() {
  resbuf nil{};
  nil.restype = RTNIL;
  acedPutSym(L"_qvxatoml", &nil);
  resbuf* call = acutBuildList(RTSTR, L"TGetLispPath", RTNONE);
  resbuf* result = nullptr;
  if (acedInvoke(call, &result) == RTNORM && result) {
    acedPutSym(L"_prefix", result);
    acedPutSym(L"_prefix1", result);
    acutRelRb(result);
  }
  acutRelRb(call);
}
