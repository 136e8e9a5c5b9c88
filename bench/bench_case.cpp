#include "bench/bench_case.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>
#include <sstream>
#include <system_error>

#include "bench/menu_generator.h"
#include "bench/peers/peer.h"
#include "menu/menu_compiler.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/model_io.h"

namespace {

constexpr uint64_t kSeed = 20240607;

std::string WithoutIndent(const std::string& json) {
  std::string out;
  bool quoted = false;
  for (size_t i = 0; i < json.size(); ++i) {
    const char c = json[i];
    if (quoted && c == '\\') {
      out += c;
      out += json[++i];
      continue;
    }
    if (c == '"') quoted = !quoted;
    if (quoted || (c != ' ' && c != '\n')) out += c;
  }
  return out;
}

std::string CompileWithPeer(const std::string& source) {
  peer::Menu menu;
  if (!peer::Compile(source, menu)) FailLoudly("the peer refuses a source");
  return peer::Write(menu);
}

// Compiles with engine and peer and returns the bytes. Ends the program unless both give the same
// bytes, also after each has loaded and rewritten them.
std::string CheckedBytes(const std::string& source, const std::string& path) {
  NoMessages none;
  const std::unique_ptr<TMenuSystem> system = CompileWithEngine(source);
  const std::string bytes = SaveBytes(*system);
  if (bytes != CompileWithPeer(source)) FailLoudly("engine and peer compile to different bytes");
  system->SaveCompiled(WidePath(path).c_str(), none);
  peer::Menu menu;
  if (!peer::Load(path, menu) || peer::Write(menu) != bytes)
    FailLoudly("the peer loads a compiled file with a difference");
  TMenuSystem loaded;
  loaded.LoadCompiled(WidePath(path).c_str(), none);
  if (SaveBytes(loaded) != bytes) FailLoudly("the engine loads a compiled file with a difference");
  return bytes;
}

constexpr char kFolderVariable[] = "QVX_BENCH_FOLDER";

void RemoveOwnFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(std::getenv(kFolderVariable), ignored);
}

// One folder per run, shared with the child processes and removed at exit.
std::string OwnFolder() {
  if (const char* given = std::getenv(kFolderVariable)) return given;
  std::string folder = (std::filesystem::temp_directory_path() / "qvx_bench.XXXXXX").string();
  if (!mkdtemp(folder.data())) FailLoudly("no folder for temporary files");
  setenv(kFolderVariable, folder.c_str(), 1);
  std::atexit(RemoveOwnFolder);
  return folder;
}

void CheckGenerator() {
  const std::string source = GenerateMenu(2000, kSeed);
  if (source != GenerateMenu(2000, kSeed)) FailLoudly("one seed makes two menus");
  if (source == GenerateMenu(2000, kSeed + 1)) FailLoudly("two seeds make one menu");
  if (MeasureMix(source).lines != 2000) FailLoudly("a menu has not as many lines as asked for");
}

void CheckRefusals() {
  for (const char* bad : {"MENU_TITLE = \"a\"\n***B\n***SWITCH\n***RESOURCE\n", "***B\n[a]\n",
                          "MENU_TITLE=\"a\"\n***B\n[a]\n***RESOURCE\n***SWITCH\n"}) {
    peer::Menu menu;
    if (peer::Compile(bad, menu) || !menu.bars.empty()) FailLoudly("the peer takes a bad source");
  }
}

}  // namespace

void FailLoudly(const std::string& text) {
  std::fprintf(stderr, "bench: %s\n", text.c_str());
  std::exit(1);
}

void NoMessages::ReportSyntaxError(const wchar_t*, int line) {
  FailLoudly("a message about line " + std::to_string(line));
}
void NoMessages::ShowMessage(const wchar_t* text) {
  FailLoudly("a message box: " + std::string(text, text + std::char_traits<wchar_t>::length(text)));
}

std::wstring WidePath(const std::string& path) { return {path.begin(), path.end()}; }

std::string BenchFile(const std::string& name) {
  static const std::string folder = OwnFolder();
  return folder + "/" + name;
}

std::unique_ptr<TMenuSystem> CompileWithEngine(std::string source) {
  NoMessages messages;
  auto system = std::make_unique<TMenuSystem>();
  if (MenuCompiler(std::move(source), messages, nullptr, OpenComment::kStop).Compile(*system) != 0)
    FailLoudly("the engine refuses a source");
  return system;
}

const BenchCase& CaseOf(int lines) {
  static std::map<int, BenchCase> cases;
  BenchCase& made = cases[lines];
  if (made.lines) return made;
  made.lines = lines;
  made.source = GenerateMenu(lines, kSeed);
  made.compiledPath = BenchFile(std::to_string(lines) + ".qmc");
  made.compiledBytes = CheckedBytes(made.source, made.compiledPath).size();
  std::ostringstream json;
  DumpJson(*CompileWithEngine(made.source), json);
  made.json = json.str();
  made.tightJson = WithoutIndent(made.json);
  return made;
}

void CheckPeer(const std::string& folder) {
  CheckGenerator();
  CheckRefusals();
  for (const char* name : {"qvx.qmn", "qvx2d.qmn", "simple.qmn"}) {
    std::ifstream file(folder + "/" + name, std::ios::binary);
    if (!file) FailLoudly("no file " + folder + "/" + name);
    const std::string utf8(std::istreambuf_iterator<char>(file), {});
    CheckedBytes(FromUtf8(utf8, kUsualPage).bytes, BenchFile("check.qmc"));
  }
}
