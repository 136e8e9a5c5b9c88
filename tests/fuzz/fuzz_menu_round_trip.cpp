// libFuzzer entry: menu source to compiled file and back, and formatting.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/round_trip_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  FuzzMenuRoundTrip({reinterpret_cast<const char*>(bytes), count});
  return 0;
}
