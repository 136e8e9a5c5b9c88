// Watches what the code under test allocates, and makes one allocation fail. It replaces operator
// new and, by the linker's --wrap, the calls of malloc, calloc, realloc and free: all that the menu
// engine and the libraries linked into the program ask for. Blocks of a shared library that it gets
// by malloc are not seen; the sanitizer's leak check sees them where it runs.
#pragma once

#include <cstddef>

namespace memory_faults {

// What was asked for since the watch began.
struct Count {
  long allocations = 0;
  long live = 0;  // blocks that were not given back
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

// The test's own doubles work inside one of these: neither counted nor failed.
class Pause {
 public:
  Pause();
  ~Pause();
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  bool m_was;
};

// Frees the blocks that the watch that ended left behind and gives their number. Always 0 on
// Windows, where what the library's DLL frees does not come by here.
long FreeLost();

}  // namespace memory_faults
