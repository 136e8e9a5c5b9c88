// The longest wait of a play; see the header.
#include "devhost/play/longest_wait.h"

#include <cstdio>

namespace devhost {

void LongestWait::Note(std::chrono::microseconds waited, int inStep) {
  if (step >= 0 && waited <= time) return;
  time = waited;
  step = inStep;
}

std::string LongestWaitText(const std::string& file, std::chrono::microseconds time, int line) {
  char seconds[32];
  std::snprintf(seconds, sizeof seconds, "%.3f", static_cast<double>(time.count()) / 1e6);
  return file + ": longest wait " + seconds + " s" +
         (line > 0 ? " (line " + std::to_string(line) + ")" : "");
}

}  // namespace devhost
