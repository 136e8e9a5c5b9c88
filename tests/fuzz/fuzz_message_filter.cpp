// libFuzzer entry: stream of messages.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/filter_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  FuzzMessageFilter({reinterpret_cast<const char*>(bytes), count});
  return 0;
}
