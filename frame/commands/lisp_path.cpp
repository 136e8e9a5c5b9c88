#include "frame/commands/lisp_path.h"

#include "aced.h"
#include "adslib.h"
#include "ground/host_lisp.h"

void PublishLispPath() {
  resbuf nil{};
  nil.restype = RTNIL;
  acedPutSym(L"_qvxatoml", &nil);
  const qvx::OwnedChain path = qvx::InvokeLisp(L"TGetLispPath");
  if (!path) return;
  acedPutSym(L"_prefix", path.get());
  acedPutSym(L"_prefix1", path.get());
}
