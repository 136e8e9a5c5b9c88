// libFuzzer entry: compiled menu file.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/menu_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  FuzzCompiledMenu({reinterpret_cast<const char*>(bytes), count});
  return 0;
}
