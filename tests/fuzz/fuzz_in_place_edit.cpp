// libFuzzer entry: stream of keys, mouse messages and menu commands.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/edit_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
  FuzzInPlaceEdit({reinterpret_cast<const char*>(bytes), count});
  return 0;
}
