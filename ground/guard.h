// Catches exceptions at the module's borders. Entry point, exports, commands, LISP functions,
// reactors, panes, COM methods and window procedures are called by the host or the window system,
// which cannot handle an exception: the operation ends without a message, and a counter records it.
// For borders only; between rooms exceptions pass.
#pragma once

#include <utility>

namespace qvx {

// Exceptions that ended at a border since the module was loaded.
int FaultCount() noexcept;

// For a catch (...) block only: counts the fault, and deletes an exception of the class library.
void EndFault() noexcept;

template <class Work>
void Guarded(Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
  } catch (...) {
    EndFault();
  }
}

// The result of `work`, or `otherwise` when it throws.
template <class Result, class Work>
Result GuardedOr(Result otherwise, Work&& work) noexcept {
  try {
    return std::forward<Work>(work)();
  } catch (...) {
    EndFault();
    return otherwise;
  }
}

// A handler without arguments as the host calls it, guarded: GuardedHandler<Function>.
template <void (*Handler)()>
void GuardedHandler() noexcept {
  Guarded(Handler);
}

}  // namespace qvx
