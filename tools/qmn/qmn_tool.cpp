#include "tools/qmn/qmn_tool.h"

#include <map>
#include <new>
#include <ostream>

#include <CLI/CLI.hpp>

#include "tools/qmn/commands.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr char kHelp[] = R"(Examples:
  qmn compile qvx.qmn                  writes qvx.qmc beside it
  qmn compile - -o - <a.qmn >a.qmc     from standard input to standard output
  qmn compile --as-host qvx.qmn        the host's messages, and the model that it would write
  qmn load qvx.qmc                     is this compiled file whole?
  qmn load old.qmc -o new.qmc          reads a compiled file and writes it again
  qmn check qvx.qmn simple.qmn         every problem, with its line and column
  qmn check --format sarif qvx.qmn     the same for another program
  qmn dump qvx.qmn --tree              an outline of the menus
  qmn dump qvx.qmc --json              the model as canonical JSON
  qmn dump qvx.qmc --bytes             every field of the file with its offset
  qmn fmt qvx.qmn                      puts a source into its canonical layout
  qmn fmt --check *.qmn                names those that are not in it
  qmn why qvx.qmn --type QVX_WALL --layer 0 --layer-key WALL=0
                                       which block a selection gets, and why not another
  qmn which --product product          which menu file the module would load, and why
  qmn decompile qvx.qmc -o qvx.qmn     source that compiles to the same bytes

Exit codes: 0 fine, 1 something is wrong in the input, 2 wrong usage,
3 a file could not be read or written.

qmn - menu files of the shell)";

struct Options {
  CompileOptions compile;
  LoadOptions load;
  DumpOptions dump;
  CheckOptions check;
  FmtOptions fmt;
  DecompileOptions decompile;
  WhyOptions why;
  WhichOptions which;
  bool json = false, tree = false, bytes = false;
};

void AddPage(CLI::App& command, unsigned& page) {
  command
      .add_option("--codepage", page,
                  "code page of narrow text: 874, 932, 936, 949, 950, 1250 to 1258 or 65001")
      ->default_val(std::to_string(kUsualPage))
      ->check([](const std::string& text) {
        const bool number = text.size() < 6 && text.find_first_not_of("0123456789") == text.npos;
        if (number && !text.empty() && IsKnownPage(static_cast<unsigned>(std::stoi(text))))
          return std::string();
        return "there is no code page " + text + " here";
      });
}

void AddCompile(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("compile", "Compile a menu source");
  command->add_option("IN", options.compile.in, "menu source (.qmn)")->required();
  command->add_option("-o", options.compile.out, "compiled file; IN with .qmc unless given");
  command->add_flag("--as-host", options.compile.asHost,
                    "print the host's messages and write what it would, after errors too");
  AddPage(*command, options.compile.page);
}

void AddLoad(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("load", "Read a compiled file and write it again");
  command->add_option("IN", options.load.in, "compiled file (.qmc)")->required();
  command->add_option("-o", options.load.out, "where to write it; without it nothing is written");
  command->add_flag("--as-host", options.load.asHost,
                    "print the host's messages and write what it has read, after errors too");
  AddPage(*command, options.load.page);
}

void AddDump(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("dump", "Show the model of a menu file");
  command->add_option("FILE", options.dump.in, "menu source or compiled file")->required();
  CLI::Option* json = command->add_flag("--json", options.json, "canonical JSON (the default)");
  CLI::Option* tree = command->add_flag("--tree", options.tree, "outline");
  CLI::Option* bytes =
      command->add_flag("--bytes", options.bytes, "fields of the compiled file with offsets");
  json->excludes(tree)->excludes(bytes);
  tree->excludes(bytes);
  AddPage(*command, options.dump.page);
}

void AddFmt(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("fmt", "Put menu sources into their canonical layout");
  command->add_option("FILE", options.fmt.in, "menu sources; rewritten where they stand")
      ->required();
  command->add_flag("--check", options.fmt.check,
                    "write nothing; name the files that are not in it, and exit with 1");
  AddPage(*command, options.fmt.page);
}

void AddDecompile(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("decompile", "Turn a compiled file back into source");
  command->add_option("IN", options.decompile.in, "compiled file (.qmc)")->required();
  command->add_option("-o", options.decompile.out, "menu source; standard output unless given");
  AddPage(*command, options.decompile.page);
}

void AddWhy(CLI::App& app, Options& options) {
  constexpr int kMostObjects = 1000000;
  CLI::App* command = app.add_subcommand("why", "Tell which block a selection gets, and why");
  command->add_option("FILE", options.why.in, "menu source or compiled file")->required();
  // One value per option, so that FILE may follow.
  const auto repeated = [command](const char* name, auto& values, const char* text) {
    return command->add_option(name, values, text)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  };
  repeated("--type", options.why.types, "type of a selected object; nothing selected without one");
  repeated("--layer", options.why.layers, "its layer; 0 unless given");
  repeated("--count", options.why.counts, "how many of it")->check(CLI::Range(1, kMostObjects));
  repeated("--layer-key", options.why.layerKeys, "KEY=LAYER, the layer that @KEY stands for");
  repeated("--group", options.why.groups, "CODE=VALUE, what all objects have for another group");
  command->add_flag("--paper", options.why.paper, "in paper space, for nothing selected");
  command->add_flag("--json", options.why.json, "the answer as JSON");
  AddPage(*command, options.why.page);
}

void AddCheck(CLI::App& app, Options& options) {
  static const std::map<std::string, CheckFormat> formats{{"text", CheckFormat::kText},
                                                          {"json", CheckFormat::kJson},
                                                          {"sarif", CheckFormat::kSarif},
                                                          {"github", CheckFormat::kGitHub}};
  static const std::map<std::string, bool> severities{{"error", false}, {"warning", true}};
  CLI::App* command = app.add_subcommand("check", "Find every problem of menu sources");
  CLI::Option* files = command->add_option("FILE", options.check.files, "menu sources (.qmn)");
  command->add_option("--format", options.check.format, "text (the default), json, sarif or github")
      ->transform(CLI::CheckedTransformer(formats).description(""));
  command
      ->add_option("--fail-on", options.check.failOnWarning,
                   "what gives exit code 1: error (the default) or warning")
      ->transform(CLI::CheckedTransformer(severities).description(""));
  CLI::Option* list =
      command->add_flag("--list-rules", options.check.listRules, "list the rules; no FILE");
  list->excludes(files);
  command->callback([files, list] {
    if (files->count() == 0 && list->count() == 0) throw CLI::RequiredError("FILE");
  });
  AddPage(*command, options.check.page);
}

void AddWhich(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("which", "Tell which menu file the module would load");
  command
      ->add_option("--product", options.which.product,
                   "folder of the support path; more than one are searched in their order")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  command->add_option("--profile", options.which.profile,
                      "the host's profile, \"default\" unless given; \"\" for none");
  command->add_option("--registry", options.which.registry,
                      "settings file; QVX_SETTINGS_FILE or the registry unless given");
  command->add_option("--host-version", options.which.hostVersion, "release of the host")
      ->default_val("24.0")
      ->check(CLI::Range(15.0, 99.9));
}

int RunChosen(const CLI::App& app, Options& options, const QmnStreams& streams) {
  if (app.got_subcommand("compile")) return RunCompile(options.compile, streams);
  if (app.got_subcommand("check")) return RunCheck(options.check, streams);
  if (app.got_subcommand("load")) return RunLoad(options.load, streams);
  if (app.got_subcommand("fmt")) return RunFmt(options.fmt, streams);
  if (app.got_subcommand("decompile")) return RunDecompile(options.decompile, streams);
  if (app.got_subcommand("why")) return RunWhy(options.why, streams);
  if (app.got_subcommand("which")) return RunWhich(options.which, streams);
  if (options.tree) options.dump.form = DumpForm::kTree;
  if (options.bytes) options.dump.form = DumpForm::kBytes;
  return RunDump(options.dump, streams);
}

}  // namespace

int RunQmn(const std::vector<std::string>& args, const QmnStreams& streams) {
  CLI::App app(kHelp, "qmn");
  Options options;
  app.set_version_flag("--version", "qmn 1.0");
  app.require_subcommand(1);
  // A path may begin with a slash, also on Windows.
  app.allow_windows_style_options(false);
  AddCompile(app, options);
  AddLoad(app, options);
  AddDump(app, options);
  AddCheck(app, options);
  AddFmt(app, options);
  AddDecompile(app, options);
  AddWhy(app, options);
  AddWhich(app, options);
  try {
    // The parser reads its arguments from the end.
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
  } catch (const CLI::ParseError& stop) {
    return app.exit(stop, streams.out, streams.err) == 0 ? kFine : kWrongUsage;
  }
  try {
    return RunChosen(app, options, streams);
  } catch (const std::bad_alloc&) {
    ReportError(streams, "qmn", "out of memory");
    return kFileTrouble;
  }
}
