// The subcommands, each with the options of its command line. "-" as a file is standard input or
// output. All return an ExitCode.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/code_page.h"
#include "tools/qmn/qmn_tool.h"
#include "tools/qmn/source_settings.h"

struct CompileOptions {
  std::string in;
  // Empty: the input's name with .qmc; standard output for standard input.
  std::string out;
  bool asHost = false;
  bool warnings = false;  // print them too
  SourceOptions source;
};
int RunCompile(const CompileOptions& options, const QmnStreams& streams);

struct LoadOptions {
  std::string in;
  std::string out;  // empty: read only, write nothing
  bool asHost = false;
  unsigned page = kUsualPage;
};
int RunLoad(const LoadOptions& options, const QmnStreams& streams);

enum class DumpForm { kJson, kTree, kBytes };

struct DumpOptions {
  std::string in;
  DumpForm form = DumpForm::kJson;
  SourceOptions source;
};
int RunDump(const DumpOptions& options, const QmnStreams& streams);

enum class CheckFormat { kText, kJson, kSarif, kGitHub };

struct CheckOptions {
  std::vector<std::string> files;
  CheckFormat format = CheckFormat::kText;
  bool listRules = false;  // list the rules and check nothing
  SourceOptions source;
};
int RunCheck(const CheckOptions& options, const QmnStreams& streams);

struct FmtOptions {
  std::vector<std::string> in;
  bool check = false;  // list the files that aren't in canonical layout, write nothing
  bool diff = false;   // show what would change, write nothing
  unsigned to = 0;     // the page to convert to; 0: none
  SourceOptions source;
};
int RunFmt(const FmtOptions& options, const QmnStreams& streams);

struct DecompileOptions {
  std::string in;
  std::string out;     // empty: standard output
  bool force = false;  // overwrite OUT
  unsigned page = kUsualPage;
};
int RunDecompile(const DecompileOptions& options, const QmnStreams& streams);

// Types, layers and counts correspond by index.
struct WhyOptions {
  std::string in;
  std::vector<std::string> types, layers;
  std::vector<int> counts;
  std::vector<std::string> layerKeys;  // KEY=LAYER
  std::vector<std::string> groups;     // CODE=VALUE, for all objects
  bool paper = false;
  bool json = false;
  SourceOptions source;
};
int RunWhy(const WhyOptions& options, const QmnStreams& streams);

// Codes, their beginnings, or names of rules.
struct ExplainOptions {
  std::vector<std::string> rules;
};
int RunExplain(const ExplainOptions& options, const QmnStreams& streams);

struct WhichOptions {
  std::vector<std::string> product;  // folders of the support path, in search order
  std::string profile = "default";   // empty: the host reports no profile
  std::string registry;              // settings file; empty: the system's registry
  double hostVersion = 24.0;
};
int RunWhich(const WhichOptions& options, const QmnStreams& streams);
