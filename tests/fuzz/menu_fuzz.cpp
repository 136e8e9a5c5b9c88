#include "tests/fuzz/menu_fuzz.h"

#include <cstdlib>

#include "tests/menu/menu_testing.h"

namespace {

void Promise(bool kept) {
  if (!kept) std::abort();
}

// The system must be written, read and written again to the same bytes.
void RoundTrip(TMenuSystem& system) {
  const std::string first = SaveBytes(system);
  TMenuSystem back;
  Promise(LoadBytes(back, first).empty());
  Promise(SaveBytes(back) == first);
}

}  // namespace

void FuzzMenuSource(const std::string& bytes) {
  Compiled compiled;
  Compile(bytes, compiled);
  if (compiled.result != 0)
    Promise(compiled.system.Length() == 0 && !compiled.messages.all.empty());
  RoundTrip(compiled.system);
}

void FuzzCompiledMenu(const std::string& bytes) {
  TMenuSystem system;
  LoadBytes(system, bytes);
  system.FindItemByCommand(L"\x1");
  RoundTrip(system);
}
