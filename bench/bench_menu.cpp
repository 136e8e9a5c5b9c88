// Times the menu engine and its peers in one run, at four sizes. Freeing the model is excluded from
// the time and reported as a counter. Time is the processor time of the thread including system
// calls, so that other load on the machine has less effect; wall clock time is a counter. bench/run
// calls this program and makes the table of ratios.
//   bench_menu --mix    prints the shares of kinds of line instead
#include <benchmark/benchmark.h>
#include <rapidjson/document.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <string>

#include "bench/bench_case.h"
#include "bench/menu_generator.h"
#include "bench/mix_table.h"
#include "bench/peers/peer.h"
#include "menu/menu_compiler.h"

namespace {

double Seconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

struct Nothing {
  void operator()() const {}
};

// `make` returns an owning pointer to the result; `bytes` is the size of its input. `prepare` runs
// before each round and is not measured.
template <class Make, class Prepare = Nothing>
void Measure(benchmark::State& state, const BenchCase& in, size_t bytes, Make make,
             Prepare prepare = {}) {
  double freeing = 0, wall = 0;
  for (auto _ : state) {
    prepare();
    const double wallBegin = Seconds(CLOCK_MONOTONIC);
    const double begin = Seconds(CLOCK_THREAD_CPUTIME_ID);
    auto made = make();
    const double end = Seconds(CLOCK_THREAD_CPUTIME_ID);
    wall += Seconds(CLOCK_MONOTONIC) - wallBegin;
    benchmark::DoNotOptimize(made.get());
    made.reset();
    freeing += Seconds(CLOCK_THREAD_CPUTIME_ID) - end;
    state.SetIterationTime(end - begin);
  }
  const auto rounds = static_cast<double>(state.iterations());
  state.counters["free_s"] = freeing / rounds;
  state.counters["wall_s"] = wall / rounds;
  state.counters["bytes"] = static_cast<double>(bytes);
  state.counters["lines"] = in.lines;
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes));
}

const BenchCase& Input(const benchmark::State& state) {
  return CaseOf(static_cast<int>(state.range(0)));
}

void EngineCompile(benchmark::State& state) {
  const BenchCase& in = Input(state);
  // The engine takes ownership of the source text, so each round gets a copy,
  // made outside the measurement.
  std::string source;
  Measure(
      state, in, in.source.size(), [&] { return CompileWithEngine(std::move(source)); },
      [&] { source = in.source; });
}

void PeerCompile(benchmark::State& state) {
  const BenchCase& in = Input(state);
  Measure(state, in, in.source.size(), [&] {
    auto menu = std::make_unique<peer::Menu>();
    if (!peer::Compile(in.source, *menu)) FailLoudly("the peer refuses a source");
    return menu;
  });
}

void PeerParse(benchmark::State& state) {
  const BenchCase& in = Input(state);
  Measure(state, in, in.source.size(), [&] {
    auto menu = std::make_unique<peer::Menu>();
    if (!peer::Parse(in.source, *menu)) FailLoudly("the peer refuses a source");
    return menu;
  });
}

void PeerScan(benchmark::State& state) {
  const BenchCase& in = Input(state);
  Measure(state, in, in.source.size(),
          [&] { return std::make_unique<size_t>(peer::Scan(in.source)); });
}

void EngineTokens(benchmark::State& state) {
  const BenchCase& in = Input(state);
  Measure(state, in, in.source.size(), [&] {
    NoMessages messages;
    MenuScanner scanner(in.source, messages, nullptr, OpenComment::kStop);
    MenuToken token;
    auto count = std::make_unique<size_t>(0);
    while (scanner.Next(token) != QMN_END) ++*count;
    return count;
  });
}

void ReadJson(benchmark::State& state, const std::string& json) {
  Measure(state, Input(state), json.size(), [&] {
    auto document = std::make_unique<rapidjson::Document>();
    document->Parse(json.data(), json.size());
    if (document->HasParseError()) FailLoudly("the JSON peer refuses the canonical form");
    return document;
  });
}
void JsonDom(benchmark::State& state) { ReadJson(state, Input(state).json); }
void TightJsonDom(benchmark::State& state) { ReadJson(state, Input(state).tightJson); }

void EngineToFile(benchmark::State& state) {
  const BenchCase& in = Input(state);
  const std::wstring path = WidePath(BenchFile("engine.qmc"));
  std::string source;
  Measure(
      state, in, in.source.size(),
      [&] {
        NoMessages none;
        auto system = CompileWithEngine(std::move(source));
        system->SaveCompiled(path.c_str(), none);
        return system;
      },
      [&] { source = in.source; });
}

void PeerToFile(benchmark::State& state) {
  const BenchCase& in = Input(state);
  const std::string path = BenchFile("peer.qmc");
  Measure(state, in, in.source.size(), [&] {
    auto menu = std::make_unique<peer::Menu>();
    if (!peer::Compile(in.source, *menu) || !peer::Save(*menu, path))
      FailLoudly("the peer can't compile to a file");
    return menu;
  });
}

void EngineLoad(benchmark::State& state) {
  const BenchCase& in = Input(state);
  const std::wstring path = WidePath(in.compiledPath);
  Measure(state, in, in.compiledBytes, [&] {
    NoMessages none;
    auto system = std::make_unique<TMenuSystem>();
    system->LoadCompiled(path.c_str(), none);
    return system;
  });
}

void PeerLoad(benchmark::State& state) {
  const BenchCase& in = Input(state);
  Measure(state, in, in.compiledBytes, [&] {
    auto menu = std::make_unique<peer::Menu>();
    if (!peer::Load(in.compiledPath, *menu)) FailLoudly("the peer can't load a compiled file");
    return menu;
  });
}

void Register() {
  struct Entry {
    const char* name;
    void (*run)(benchmark::State&);
  };
  constexpr Entry kEntries[] = {
      {"engine_compile", EngineCompile}, {"peer_compile", PeerCompile},
      {"peer_parse", PeerParse},         {"peer_scan", PeerScan},
      {"engine_tokens", EngineTokens},   {"json_dom", JsonDom},
      {"tight_json_dom", TightJsonDom},  {"engine_to_file", EngineToFile},
      {"peer_to_file", PeerToFile},      {"engine_load", EngineLoad},
      {"peer_load", PeerLoad},
  };
  for (const Entry& entry : kEntries)
    benchmark::RegisterBenchmark(entry.name, entry.run)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Arg(2000)
        ->Arg(20000)
        ->Arg(200000)
        ->Arg(1000000);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string product = QVX_SOURCE_DIR "/product";
  CheckPeer(product);
  if (argc == 2 && std::strcmp(argv[1], "--mix") == 0) {
    PrintMixTable(product + "/qvx.qmn");
    return 0;
  }
  Register();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
