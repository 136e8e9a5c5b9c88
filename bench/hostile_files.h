// Files made to exhaust the reader's time or memory. Each kind scales to any size, and sources end
// properly. The same name and size give the same bytes every time.
#pragma once

#include <string>
#include <vector>

struct HostileKind {
  const char* name;
  bool compiled;  // a .qmc; else a .qmn
  std::string (*make)(size_t bytes);
};

std::vector<HostileKind> HostileSources();
std::vector<HostileKind> HostileCompiled();

// Overwrites some bytes of a good file with random ones.
std::string Damaged(std::string good, unsigned seed);
std::string RandomBytes(size_t bytes, unsigned seed);
