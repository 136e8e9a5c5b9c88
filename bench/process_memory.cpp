#include "bench/process_memory.h"

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace {

// Parses a line such as "VmHWM:     1234 kB".
size_t StatusBytes(const char* field) {
  std::FILE* file = std::fopen("/proc/self/status", "r");
  if (!file) return 0;
  char line[256];
  unsigned long long kilobytes = 0;
  while (std::fgets(line, sizeof line, file))
    if (std::strncmp(line, field, std::strlen(field)) == 0)
      std::sscanf(line + std::strlen(field), ": %llu", &kilobytes);
  std::fclose(file);
  return kilobytes * 1024;
}

std::string Quoted(const std::string& text) { return " '" + text + "'"; }

}  // namespace

size_t ResidentBytes() { return StatusBytes("VmRSS"); }
size_t PeakResidentBytes() { return StatusBytes("VmHWM"); }

size_t LiveHeapBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

ChildRun RunSelf(const std::vector<std::string>& arguments) {
  std::string command = Quoted(std::filesystem::read_symlink("/proc/self/exe").string());
  for (const std::string& argument : arguments) command += Quoted(argument);
  ChildRun run;
  std::FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return run;
  char piece[256];
  while (std::fgets(piece, sizeof piece, pipe)) run.output += piece;
  run.ended = pclose(pipe) == 0;
  return run;
}

void EndAfter(unsigned seconds) { alarm(seconds); }
