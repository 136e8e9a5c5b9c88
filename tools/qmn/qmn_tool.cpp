#include "tools/qmn/qmn_tool.h"

#include <new>
#include <optional>
#include <ostream>

#include "tools/qmn/command_line.h"
#include "tools/qmn/phrases.h"
#include "tools/qmn/tool_text.h"
#include "tools/qmn/usage_errors.h"

namespace {

// The language of --lang, which decides in which language wrong usage is explained; so it is looked
// for before the arguments are parsed.
std::optional<Language> LanguageNamed(const std::vector<std::string>& args) {
  for (size_t i = 0; i < args.size(); ++i) {
    const bool isJoined = args[i].starts_with("--lang=");
    if (!isJoined && (args[i] != "--lang" || i + 1 == args.size())) continue;
    const std::string name = isJoined ? args[i].substr(7) : args[i + 1];
    if (name == "zh") return Language::kChinese;
    if (name == "en") return Language::kEnglish;
  }
  return std::nullopt;
}

void AddGlobals(CLI::App& app, Language language) {
  const auto in = [language](Phrase text) { return Message(text).In(language); };
  app.set_help_flag("-h,--help", in("show this and stop"_say));
  app.set_version_flag("--version", std::string("qmn ") + kToolVersion,
                       in("show the version and stop"_say));
  app.add_option_function<std::string>(
      "--lang",
      [in](const std::string& name) {
        if (name != "zh" && name != "en")
          throw CLI::ValidationError("--lang", in("the languages are zh and en"_say));
      },
      in("language of the messages, zh or en; that of the system unless given"_say));
  app.require_subcommand(1);
  // A path may begin with a slash, also on Windows.
  app.allow_windows_style_options(false);
}

void TranslateLabels(CLI::App& app, Language language) {
  const std::shared_ptr<CLI::FormatterBase> formatter = app.get_formatter();
  const auto label = [&](const char* key, Phrase text) {
    formatter->label(key, Message(text).In(language));
  };
  label("Usage", "Usage"_say);
  label("OPTIONS", "OPTIONS"_say);
  label("SUBCOMMAND", "COMMAND"_say);
  label("SUBCOMMANDS", "COMMANDS"_say);
  label("Positionals", "Arguments"_say);
  app.option_defaults()->group(Message("Options"_say).In(language));
  label("REQUIRED", "required"_say);
  label("TEXT", "VALUE"_say);
  formatter->column_width(28);
}

int ShowHelp(CLI::App& app, const std::string& on, const QmnStreams& streams) {
  if (on.empty()) {
    app.clear();  // else the help of `help` is shown
    streams.out << app.help();
    return kFine;
  }
  std::vector<std::string> names;
  for (CLI::App* command : app.get_subcommands({})) {
    names.push_back(command->get_name());
    if (names.back() != on) continue;
    streams.out << command->help("qmn");
    return kFine;
  }
  const std::string nearest = NearestName(on, names);
  ReportError(streams, "qmn",
              nearest.empty() ? "there is no command '{0}'"_say(on)
                              : "there is no command '{0}'; did you mean '{1}'?"_say(on, nearest));
  return kWrongUsage;
}

int ReportUsage(const CLI::App& app, const CLI::ParseError& error, const QmnStreams& streams) {
  const CLI::App* command = CommandOf(app);
  const std::string where = command ? "qmn " + command->get_name() : "qmn";
  ReportError(streams, where, ExplainUsage(app, error));
  const Message hint = command ? "'qmn help {0}' explains its options"_say(command->get_name())
                               : Message("'qmn help' lists the commands"_say);
  streams.err << hint.In(streams.language) << "\n";
  return kWrongUsage;
}

int RunChosen(CLI::App& app, Options& options, const QmnStreams& streams) {
  if (app.got_subcommand("compile")) return RunCompile(options.compile, streams);
  if (app.got_subcommand("check")) return RunCheck(options.check, streams);
  if (app.got_subcommand("load")) return RunLoad(options.load, streams);
  if (app.got_subcommand("fmt")) return RunFmt(options.fmt, streams);
  if (app.got_subcommand("decompile")) return RunDecompile(options.decompile, streams);
  if (app.got_subcommand("why")) return RunWhy(options.why, streams);
  if (app.got_subcommand("which")) return RunWhich(options.which, streams);
  if (app.got_subcommand("explain")) return RunExplain(options.explain, streams);
  if (app.got_subcommand("help")) return ShowHelp(app, options.helpOn, streams);
  if (options.tree) options.dump.form = DumpForm::kTree;
  if (options.bytes) options.dump.form = DumpForm::kBytes;
  return RunDump(options.dump, streams);
}

}  // namespace

int RunQmn(const std::vector<std::string>& args, const QmnStreams& given) {
  QmnStreams streams = given;
  streams.language = LanguageNamed(args).value_or(given.language);
  CLI::App app(Message(Phrase(kOverview)).In(streams.language), "qmn");
  Options options;
  TranslateLabels(app, streams.language);
  AddGlobals(app, streams.language);
  AddCommands(app, options, streams.language);
  try {
    // The parser reads its arguments from the end.
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
  } catch (const CLI::ParseError& stop) {
    if (stop.get_exit_code() == 0) return app.exit(stop, streams.out, streams.err), kFine;
    return ReportUsage(app, stop, streams);
  }
  try {
    return RunChosen(app, options, streams);
  } catch (const std::bad_alloc&) {
    ReportError(streams, "qmn", "out of memory"_say);
    return kFileTrouble;
  }
}
