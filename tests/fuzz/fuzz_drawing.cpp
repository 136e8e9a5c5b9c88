// libFuzzer entry: drawings in the exchange format. Whatever is read is drawn, written and read
// again; the second reading must find nothing to complain of.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tests/fuzz/drawing_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  if (!FuzzDrawing({reinterpret_cast<const char*>(bytes), count}).empty()) std::abort();
  return 0;
}
