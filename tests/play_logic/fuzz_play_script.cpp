// The entry point for a fuzzer: any bytes are a script or an error with a place. Built with a
// fuzzing engine, or called by test_play_script.cpp with random bytes of a fixed seed.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "devhost/play/play_script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<devhost::Step> steps;
  devhost::ScriptError error;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const bool read = devhost::ParsePlayScript(text, &steps, &error);
  if (!read && (error.line < 1 || error.column < 1 || error.message.empty())) std::abort();
  int line = 0;
  for (const devhost::Step& step : steps) {
    if (step.line <= line) std::abort();
    line = step.line;
  }
  return 0;
}
