// Measures the memory of one model, from source and from a compiled file, for engine and peer, each
// in a process of its own. Three figures: allocated heap (malloc's own count, with its overhead),
// growth of resident memory after unused heap was returned to the system, and the peak on the way.
// One-time allocations are made beforehand with a small menu. Writes JSON for the table.
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "bench/bench_case.h"
#include "bench/menu_generator.h"
#include "bench/peers/peer.h"
#include "bench/process_memory.h"
#include "kernel/native_file.h"

namespace {

constexpr int kFewestLines = 100;
constexpr unsigned kLongestSeconds = 120;

std::string ReadSource(const std::string& path) {
  std::string source;
  if (!ReadWholeFile(WidePath(path).c_str(), source)) FailLoudly("no file " + path);
  return source;
}

std::shared_ptr<void> EngineFromSource(const std::string& path) {
  return CompileWithEngine(ReadSource(path));
}

std::shared_ptr<void> EngineFromCompiled(const std::string& path) {
  NoMessages none;
  auto system = std::make_shared<TMenuSystem>();
  system->LoadCompiled(WidePath(path).c_str(), none);
  return system;
}

std::shared_ptr<void> PeerFromSource(const std::string& path) {
  auto menu = std::make_shared<peer::Menu>();
  if (!peer::Compile(ReadSource(path), *menu)) FailLoudly("the peer refuses a source");
  return menu;
}

std::shared_ptr<void> PeerFromCompiled(const std::string& path) {
  auto menu = std::make_shared<peer::Menu>();
  if (!peer::Load(path, *menu)) FailLoudly("the peer can't load a compiled file");
  return menu;
}

struct Way {
  const char* name;
  bool fromSource;
  std::shared_ptr<void> (*make)(const std::string& path);
};
constexpr Way kWays[] = {
    {"engine_compile", true, EngineFromSource},
    {"engine_load", false, EngineFromCompiled},
    {"peer_compile", true, PeerFromSource},
    {"peer_load", false, PeerFromCompiled},
};

std::string SourcePath(int lines) { return BenchFile(std::to_string(lines) + ".qmn"); }
std::string CompiledPath(int lines) { return BenchFile(std::to_string(lines) + ".qmc"); }

void MeasureOne(const Way& way, int lines) {
  EndAfter(kLongestSeconds);
  const auto path = [&](int n) { return way.fromSource ? SourcePath(n) : CompiledPath(n); };
  way.make(path(kFewestLines));
  malloc_trim(0);
  const size_t heap = LiveHeapBytes();
  const size_t resident = ResidentBytes();
  const std::shared_ptr<void> model = way.make(path(lines));
  const size_t live = LiveHeapBytes() - heap;
  const size_t peak = PeakResidentBytes() - resident;
  malloc_trim(0);
  std::printf("\"heap\": %zu, \"resident\": %zu, \"peak\": %zu", live, ResidentBytes() - resident,
              peak);
}

size_t WriteInputs(int lines) {
  NoMessages none;
  const std::string source = GenerateMenu(lines, 1);
  FileOwner file = OpenWideFile(WidePath(SourcePath(lines)).c_str(), L"wb");
  if (!file || std::fwrite(source.data(), 1, source.size(), file.get()) != source.size())
    FailLoudly("can't write " + SourcePath(lines));
  CompileWithEngine(source)->SaveCompiled(WidePath(CompiledPath(lines)).c_str(), none);
  return source.size();
}

void MeasureAll() {
  const char* comma = "";
  WriteInputs(kFewestLines);
  std::printf("[");
  for (const int lines : {2000, 20000, 200000, 1000000}) {
    const size_t bytes = WriteInputs(lines);
    for (const Way& way : kWays) {
      const ChildRun run = RunSelf({"--one", way.name, std::to_string(lines)});
      if (!run.ended) FailLoudly(std::string("a measuring process failed: ") + way.name);
      std::printf("%s\n{\"name\": \"%s\", \"lines\": %d, \"source\": %zu, %s}", comma, way.name,
                  lines, bytes, run.output.c_str());
      comma = ",";
    }
  }
  std::printf("\n]\n");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) {
    MeasureAll();
    return 0;
  }
  for (const Way& way : kWays)
    if (argc == 4 && std::strcmp(argv[2], way.name) == 0) MeasureOne(way, std::atoi(argv[3]));
}
