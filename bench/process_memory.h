// Memory of this process as counted by the system and the heap, and a way to run the same program
// as a child process, whose figures exclude all earlier work.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

size_t ResidentBytes();      // current
size_t PeakResidentBytes();  // since the process began
size_t LiveHeapBytes();      // allocated by malloc and not freed, including its overhead

struct ChildRun {
  bool ended = false;  // normally, with exit code 0
  std::string output;
};
// Runs this program again as a child. The child limits its own time by calling EndAfter.
ChildRun RunSelf(const std::vector<std::string>& arguments);
// Ends this process by a signal after that time.
void EndAfter(unsigned seconds);
