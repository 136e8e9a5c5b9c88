// The subcommands, each with what its command line says. "-" as a file is standard input or output.
// All give an ExitCode.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/code_page.h"
#include "tools/qmn/qmn_tool.h"

struct CompileOptions {
  std::string in;
  std::string out;  // empty: beside the input, with .qmc; standard output for standard input
  bool asHost = false;
  unsigned page = kUsualPage;
};
int RunCompile(const CompileOptions& options, const QmnStreams& streams);

struct LoadOptions {
  std::string in;
  std::string out;  // empty: the file is read and nothing is written
  bool asHost = false;
  unsigned page = kUsualPage;
};
int RunLoad(const LoadOptions& options, const QmnStreams& streams);

enum class DumpForm { kJson, kTree, kBytes };

struct DumpOptions {
  std::string in;
  DumpForm form = DumpForm::kJson;
  unsigned page = kUsualPage;
};
int RunDump(const DumpOptions& options, const QmnStreams& streams);

enum class CheckFormat { kText, kJson, kSarif, kGitHub };

struct CheckOptions {
  std::vector<std::string> files;
  CheckFormat format = CheckFormat::kText;
  bool failOnWarning = false;
  bool listRules = false;  // instead of checking anything
  unsigned page = kUsualPage;
};
int RunCheck(const CheckOptions& options, const QmnStreams& streams);

struct FmtOptions {
  std::vector<std::string> in;
  bool check = false;  // names the files that aren't in canonical layout and writes nothing
  unsigned page = kUsualPage;
};
int RunFmt(const FmtOptions& options, const QmnStreams& streams);

struct DecompileOptions {
  std::string in;
  std::string out;  // empty: standard output
  unsigned page = kUsualPage;
};
int RunDecompile(const DecompileOptions& options, const QmnStreams& streams);

// Types, layers and counts belong together in their order.
struct WhyOptions {
  std::string in;
  std::vector<std::string> types, layers;
  std::vector<int> counts;
  std::vector<std::string> layerKeys;  // KEY=LAYER
  std::vector<std::string> groups;     // CODE=VALUE, for all objects
  bool paper = false;
  bool json = false;
  unsigned page = kUsualPage;
};
int RunWhy(const WhyOptions& options, const QmnStreams& streams);

struct WhichOptions {
  std::vector<std::string> product;  // folders of the support path, in order
  std::string profile = "default";   // empty: the host has none to tell
  std::string registry;              // settings file; empty: where settings are by themselves
  double hostVersion = 24.0;
};
int RunWhich(const WhichOptions& options, const QmnStreams& streams);
