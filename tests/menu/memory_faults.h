// Counts the allocations of the code under test and makes one of them fail. It replaces operator
// new and, by the linker's --wrap, calls of malloc, calloc, realloc and free in the menu engine and
// the statically linked libraries. Blocks that a shared library gets from malloc are not counted;
// the sanitizer's leak check covers them.
#pragma once

#include <cstddef>

namespace memory_faults {

// Allocations since the watch began.
struct Count {
  long allocations = 0;
  long live = 0;  // blocks that were not freed
  std::size_t bytes = 0;
  std::size_t liveBytes = 0;
  std::size_t peakBytes = 0;
  std::size_t largest = 0;
};

enum class Fails { kOnce, kFromThenOn };

// One watch at a time. `at` is the number of the allocation that fails, from 1; 0 for none.
void Begin(long at = 0, Fails fails = Fails::kOnce);
Count End();
bool HasFailed();

// For the test's own doubles: allocations in its scope are not counted and do not fail.
class Pause {
 public:
  Pause();
  ~Pause();
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  bool m_was;
};

// Frees the blocks that are left of the watch that ended, and returns their number. Always 0 on
// Windows, where blocks that the library's DLL frees are not counted.
long FreeLost();

}  // namespace memory_faults
