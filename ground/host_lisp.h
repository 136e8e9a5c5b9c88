// LISP functions of the host, called by name. The product calls acedInvoke only here.
#pragma once

#include <memory>

#include "adslib.h"
#include "ground/lisp_caller.h"

namespace qvx {

struct ChainRelease {
  void operator()(resbuf* chain) const { acutRelRb(chain); }
};
using OwnedChain = std::unique_ptr<resbuf, ChainRelease>;

// The result of the call; null when the call failed or returned nothing. `called`, if not null,
// gets whether the call itself succeeded.
OwnedChain InvokeLisp(const wchar_t* function, bool* called = nullptr);

// Calls for lines of the menu. A function may load a menu whose lines call it again; calls nested
// deeper than a fixed limit fail without reaching the host.
class HostLisp : public LispCaller {
 public:
  LispAnswer Call(const wchar_t* function) override;
};

}  // namespace qvx
