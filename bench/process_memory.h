// Memory of this process as the system and the heap count it, and running this very program again
// as a fresh process, where nothing that ran before is in the figures.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

size_t ResidentBytes();      // now
size_t PeakResidentBytes();  // since the program began
size_t LiveHeapBytes();      // handed out by malloc and not freed, its own overhead included

struct ChildRun {
  bool ended = false;  // by itself, with exit code 0
  std::string output;
};
// The child ends itself by calling EndAfter.
ChildRun RunSelf(const std::vector<std::string>& arguments);
// Ends this process by a signal when it is still there then.
void EndAfter(unsigned seconds);
