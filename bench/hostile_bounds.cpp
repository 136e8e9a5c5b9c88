// Checks that reading hostile files stays within bounds. Each file is read in a process of its own,
// measured from opening the file until the model is freed. Time is processor time including system
// calls, the best of a few runs; memory is the peak resident size above that at the start, the
// worst of the runs.
//   hostile_bounds [--table]   exit code 1 when a bound is broken; --table prints markdown
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "bench/bench_case.h"
#include "bench/hostile_files.h"
#include "bench/process_memory.h"
#include "kernel/native_file.h"
#include "menu/menu_compiler.h"

namespace {

constexpr int kRuns = 3;
constexpr unsigned kLongestSeconds = 20;
constexpr size_t kSizes[] = {60, 1 << 12, 1 << 16, 1 << 20, 1 << 22};

struct Bound {
  double seconds;
  double secondsPerByte;
  double bytes;
  double bytesPerByte;
};
constexpr Bound kSource{0.010, 300e-9, 8e6, 160};
constexpr Bound kCompiled{0.010, 100e-9, 8e6, 32};

// Formats each message as the host prints it and, like the host, keeps none.
class PrintedMessages : public SourceMessages, public MenuBoxes {
 public:
  void ReportSyntaxError(const wchar_t* text, int line) override {
    m_units += FormatSyntaxError(text, line).Length();
  }
  void ShowMessage(const wchar_t*) override {}
  int Units() const { return m_units; }

 private:
  int m_units = 0;
};

void ReadSource(const std::wstring& path, PrintedMessages& messages) {
  std::string source;
  if (!ReadWholeFile(path.c_str(), source)) std::exit(2);
  TMenuSystem system;
  MenuCompiler(std::move(source), messages, nullptr, OpenComment::kStop).Compile(system);
}

void ReadCompiled(const std::wstring& path, PrintedMessages& messages) {
  TMenuSystem system;
  system.LoadCompiled(path.c_str(), messages);
}

double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void MeasureOne(bool compiled, const std::string& path) {
  EndAfter(kLongestSeconds);
  PrintedMessages messages;
  const size_t before = PeakResidentBytes();
  const double begin = ProcessorSeconds();
  (compiled ? ReadCompiled : ReadSource)(WidePath(path), messages);
  const double took = ProcessorSeconds() - begin;
  std::printf("%.9f %zu\n", took, PeakResidentBytes() - before);
}

struct Result {
  const HostileKind* kind;
  size_t bytes;
  double seconds = 1e9;
  double peak = 0;
  bool died = false;

  const Bound& Limit() const { return kind->compiled ? kCompiled : kSource; }
  double TimeShare() const {
    return seconds / (Limit().seconds + Limit().secondsPerByte * static_cast<double>(bytes));
  }
  double MemoryShare() const {
    return peak / (Limit().bytes + Limit().bytesPerByte * static_cast<double>(bytes));
  }
  double Worst() const { return died ? 1e9 : std::max(TimeShare(), MemoryShare()); }
};

Result Measure(const HostileKind& kind, size_t size) {
  const std::string bytes = kind.make(size);
  const std::string path = BenchFile(kind.compiled ? "hostile.qmc" : "hostile.qmn");
  {
    FileOwner file = OpenWideFile(WidePath(path).c_str(), L"wb");
    if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
      FailLoudly("can't write " + path);
  }
  Result result{&kind, bytes.size()};
  for (int i = 0; i < kRuns && !result.died; ++i) {
    const ChildRun run = RunSelf({"--one", kind.compiled ? "qmc" : "qmn", path});
    double seconds = 0, peak = 0;
    result.died = !run.ended || std::sscanf(run.output.c_str(), "%lf %lf", &seconds, &peak) != 2;
    result.seconds = std::min(result.seconds, seconds);
    result.peak = std::max(result.peak, peak);
  }
  return result;
}

void PrintResult(const Result& result, bool table) {
  const char* verdict = result.Worst() <= 1 ? "PASS" : result.died ? "DIED" : "FAIL";
  std::printf(table ? "| %s | %s | %zu | %.2f | %.0f %% | %.2f | %.0f %% | %s |\n"
                    : "%s %-34s %8zu bytes %10.2f ms %4.0f %% %9.2f MB %4.0f %% %s\n",
              result.kind->compiled ? "qmc" : "qmn", result.kind->name, result.bytes,
              result.seconds * 1e3, result.TimeShare() * 100, result.peak / 1e6,
              result.MemoryShare() * 100, verdict);
}

int PrintAll(std::vector<Result> results, bool table) {
  std::sort(results.begin(), results.end(),
            [](const Result& a, const Result& b) { return a.Worst() > b.Worst(); });
  size_t broken = 0;
  for (const Result& result : results) broken += result.Worst() > 1;
  const size_t shown = std::max<size_t>(broken, 15);
  if (table)
    std::printf(
        "| | kind | bytes | ms | of the bound | MB | of the bound | |\n"
        "|---|---|---:|---:|---:|---:|---:|---|\n");
  for (size_t i = 0; i < results.size() && (!table || i < shown); ++i)
    PrintResult(results[i], table);
  std::printf("\n%zu files, %zu outside their bounds\n", results.size(), broken);
  return broken ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "--one") == 0) {
    MeasureOne(std::strcmp(argv[2], "qmc") == 0, argv[3]);
    return 0;
  }
  std::vector<HostileKind> kinds = HostileSources();
  for (const HostileKind& kind : HostileCompiled()) kinds.push_back(kind);
  std::vector<Result> results;
  for (const HostileKind& kind : kinds)
    for (const size_t size : kSizes) results.push_back(Measure(kind, size));
  return PrintAll(std::move(results), argc == 2 && std::strcmp(argv[1], "--table") == 0);
}
