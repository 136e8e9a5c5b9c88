// libFuzzer entry: drawings in the exchange format. What is read is drawn, written and read again;
// the second reading must report no error.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tests/fuzz/drawing_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  if (!FuzzDrawing({reinterpret_cast<const char*>(bytes), count}).empty()) std::abort();
  return 0;
}
