// The check of an invariant in a fuzzer and in its fixed run.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

// Ends the process with the text unless the invariant holds.
inline void Require(bool holds, const char* invariant) {
  if (holds) return;
  std::fprintf(stderr, "violated: %s\n", invariant);
  std::abort();
}

}  // namespace fuzz
