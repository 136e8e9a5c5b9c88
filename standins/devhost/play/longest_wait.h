// The longest time for which a message had to wait for the program during a play, and in which step
// that was. Plain figures; who measures them stands in win/message_probe.
#pragma once

#include <chrono>
#include <string>

namespace devhost {

struct LongestWait {
  std::chrono::microseconds time{0};
  int step = -1;  // a running number; none: nothing has waited

  void Note(std::chrono::microseconds waited, int inStep);  // the first of equals stays
};

// "walls.script: longest wait 0.120 s (line 14)". Line 0: none is named.
std::string LongestWaitText(const std::string& file, std::chrono::microseconds time, int line);

}  // namespace devhost
