// The longest time that a message waited for the program during a play, and its step.
// Measured by win/message_probe.
#pragma once

#include <chrono>
#include <string>

namespace devhost {

struct LongestWait {
  std::chrono::microseconds time{0};
  int step = -1;  // index of the step; -1: no message waited

  void Note(std::chrono::microseconds waited, int inStep);  // keeps the first of equal times
};

// "walls.script: longest wait 0.120 s (line 14)". Line 0 is omitted.
std::string LongestWaitText(const std::string& file, std::chrono::microseconds time, int line);

}  // namespace devhost
