#include "tools/qmn/command_line.h"

#include <map>

#include "tools/qmn/check/names.h"
#include "tools/qmn/check/text_decoder.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr int kMostObjects = 1000000;

// Adds the options of one command. Explanations are phrases.
class CommandAdder {
 public:
  CommandAdder(CLI::App& app, const char* name, Phrase text, Language language)
      : m_app(*app.add_subcommand(name, Message(text).In(language))), m_language(language) {
    m_app.fallthrough();
    m_app.group(Message("Commands"_say).In(language));
    m_app.get_help_ptr()->group(Message("Options"_say).In(language));
  }

  template <class Value>
  CLI::Option* Add(const char* names, Value& value, Phrase text) {
    return m_app.add_option(names, value, In(text));
  }
  CLI::Option* AddFlag(const char* names, bool& value, Phrase text) {
    return m_app.add_flag(names, value, In(text));
  }
  // One value per option, so that a file may follow.
  template <class Value>
  CLI::Option* AddRepeated(const char* names, Value& values, Phrase text) {
    return Add(names, values, text)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }
  // Rules: repeated, or several with commas.
  void AddRules(const char* names, std::vector<std::string>& values, Phrase text) {
    AddRepeated(names, values, text)->delimiter(',');
  }
  void AddOutput(std::string& value, Phrase text) { Add("-o,--output", value, text); }

  // A value that is one of a few words.
  template <class Value>
  void AddChoice(const char* names, Value& value, std::map<std::string, Value> words, Phrase text) {
    m_app.add_option_function<std::string>(
        names,
        [words, &value, names, language = m_language](const std::string& word) {
          const auto found = words.find(word);
          if (found == words.end()) {
            std::string all;
            for (const auto& [known, ignored] : words) all += (all.empty() ? "" : ", ") + known;
            throw CLI::ValidationError(names, "'{0}' is none of {1}"_say(word, all).In(language));
          }
          value = found->second;
        },
        In(text));
  }

  template <class Page>
  void AddPage(Page& page) {
    m_app.add_option_function<std::string>(
        "--codepage",
        [&page, language = m_language](const std::string& text) {
          const unsigned number = PageNumber(text);
          if (!number)
            throw CLI::ValidationError("--codepage",
                                       "there is no code page {0} here"_say(text).In(language));
          page = number;
        },
        In("code page of narrow text: 874, 932, 936 (the default), 949, 950, 1250 to 1258 or "
           "65001 (UTF-8)"_say));
  }
  void AddRange(CLI::Option* option, double least, double most) {
    option->check([least, most, language = m_language](const std::string& text) -> std::string {
      char* end = nullptr;
      const double value = std::strtod(text.c_str(), &end);
      if (!text.empty() && !*end && value >= least && value <= most) return {};
      const auto shown = [](double number) {
        std::string digits = std::to_string(number);
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.ends_with('.')) digits.pop_back();
        return digits;
      };
      return "'{0}' is no number from {1} to {2}"_say(text, shown(least), shown(most)).In(language);
    });
  }

  CLI::App& App() { return m_app; }
  std::string In(Phrase text) const { return Message(text).In(m_language); }

  static unsigned PageNumber(const std::string& text) {
    const bool isNumber =
        !text.empty() && text.size() < 6 && text.find_first_not_of("0123456789") == text.npos;
    const unsigned page = isNumber ? static_cast<unsigned>(std::stoi(text)) : 0;
    return page && IsKnownPage(page) ? page : 0;
  }

 private:
  CLI::App& m_app;
  const Language m_language;
};

void AddKnown(CommandAdder& command, SourceOptions& source) {
  command.AddRules("--select", source.select,
                   "only these rules: codes, the beginning of codes (QMN05), or names"_say);
  command.AddRules("--ignore", source.ignore, "all rules but these"_say);
  command.Add("--icons", source.icons,
              "icon library (.dll); images that it lacks become findings"_say);
  command.Add("--commands", source.commands,
              "list of commands, as 'devhost --list-commands' prints it; other commands and "
              "functions become findings"_say);
}

void AddCompile(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "compile", "Compile a menu source"_say, language);
  command.Add("IN", options.compile.in, "menu source (.qmn)"_say)->required();
  command.AddOutput(options.compile.out, "compiled file; IN with .qmc unless given"_say);
  command.AddFlag("-W,--warnings", options.compile.warnings, "show warnings too"_say);
  command.AddFlag("--as-host", options.compile.asHost,
                  "print the host's messages and write what it would, after errors too"_say);
  AddKnown(command, options.compile.source);
  command.AddPage(options.compile.source.page);
}

void AddLoad(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "load", "Read a compiled file and write it again"_say, language);
  command.Add("IN", options.load.in, "compiled file (.qmc)"_say)->required();
  command.AddOutput(options.load.out, "where to write it; without it nothing is written"_say);
  command.AddFlag("--as-host", options.load.asHost,
                  "print the host's messages and write what it has read, after errors too"_say);
  command.AddPage(options.load.page);
}

void AddDump(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "dump", "Show the model of a menu file"_say, language);
  command.Add("FILE", options.dump.in, "menu source or compiled file"_say)->required();
  CLI::Option* json = command.AddFlag("--json", options.json, "canonical JSON (the default)"_say);
  CLI::Option* tree = command.AddFlag("--tree", options.tree, "outline"_say);
  CLI::Option* bytes =
      command.AddFlag("--bytes", options.bytes, "fields of the compiled file with offsets"_say);
  json->excludes(tree)->excludes(bytes);
  tree->excludes(bytes);
  command.AddPage(options.dump.source.page);
}

void AddCheck(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "check", "Find every problem of menu sources"_say, language);
  CLI::Option* files =
      command.Add("FILE", options.check.files, "menu sources (.qmn), or folders of them"_say);
  command.AddChoice<CheckFormat>("--format", options.check.format,
                                 {{"text", CheckFormat::kText},
                                  {"json", CheckFormat::kJson},
                                  {"sarif", CheckFormat::kSarif},
                                  {"github", CheckFormat::kGitHub}},
                                 "text (the default), json, sarif or github"_say);
  command.AddChoice<std::optional<bool>>(
      "--fail-on", options.check.source.failOnWarning, {{"error", false}, {"warning", true}},
      "what gives exit code 1: error (the default) or warning"_say);
  AddKnown(command, options.check.source);
  CLI::Option* list =
      command.AddFlag("--list-rules", options.check.listRules, "list the rules; no FILE"_say);
  list->excludes(files);
  command.App().callback([files, list] {
    if (files->count() == 0 && list->count() == 0) throw CLI::RequiredError("FILE");
  });
  command.AddPage(options.check.source.page);
}

void AddFmt(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "fmt", "Put menu sources into their canonical layout"_say, language);
  command
      .Add("FILE", options.fmt.in,
           "menu sources, or folders of them; rewritten where they stand"_say)
      ->required();
  command.AddFlag("--check", options.fmt.check,
                  "write nothing; name the files that would change, and exit with 1"_say);
  command.AddFlag("--diff", options.fmt.diff,
                  "write nothing; show what would change, and exit with 1"_say);
  command.App().add_option_function<std::string>(
      "--to",
      [&options, language](const std::string& text) {
        options.fmt.to = PageNamed(text);
        if (!options.fmt.to)
          throw CLI::ValidationError("--to",
                                     "there is no code page {0} here"_say(text).In(language));
      },
      command.In("convert to this code page: utf-8, 936, ...; from UTF-8 and UTF-16 as found, else "
                 "from --codepage"_say));
  command.AddPage(options.fmt.source.page);
}

void AddDecompile(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "decompile", "Turn a compiled file back into source"_say, language);
  command.Add("IN", options.decompile.in, "compiled file (.qmc)"_say)->required();
  command.AddOutput(options.decompile.out,
                    "menu source that is not there yet; standard output unless given"_say);
  command.AddFlag("--force", options.decompile.force, "overwrite the output"_say);
  command.AddPage(options.decompile.page);
}

void AddWhy(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "why", "Show which block a selection gets, and why"_say, language);
  WhyOptions& why = options.why;
  command.Add("FILE", why.in, "menu source or compiled file"_say)->required();
  command.AddRepeated("--type", why.types,
                      "type of a selected object; nothing selected without one"_say);
  command.AddRepeated("--layer", why.layers, "its layer; 0 unless given"_say);
  command.AddRange(command.AddRepeated("--count", why.counts, "how many of it"_say), 1,
                   kMostObjects);
  command.AddRepeated("--layer-key", why.layerKeys, "KEY=LAYER, the layer that @KEY means"_say);
  command.AddRepeated("--group", why.groups,
                      "CODE=VALUE, what all objects have for another group"_say);
  command.AddFlag("--paper", why.paper, "in paper space, for nothing selected"_say);
  command.AddFlag("--json", why.json, "the answer as JSON"_say);
  command.AddPage(why.source.page);
}

void AddWhich(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "which", "Show which menu file the module would load"_say, language);
  WhichOptions& which = options.which;
  command.AddRepeated("--product", which.product,
                      "folder of the support path; more than one are searched in their order"_say);
  command.Add("--profile", which.profile,
              "the host's profile, \"default\" unless given; \"\" for none"_say);
  command.Add("--registry", which.registry,
              "settings file; QVX_SETTINGS_FILE or the registry unless given"_say);
  command.AddRange(command.Add("--host-version", which.hostVersion,
                               "release of the host; 24.0 unless given"_say),
                   15.0, 99.9);
}

void AddExplain(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "explain", "Explain a rule of 'qmn check'"_say, language);
  command.Add("RULE", options.explain.rules, "code (QMN052), its beginning (QMN05), or name"_say)
      ->required();
}

void AddHelp(CLI::App& app, Options& options, Language language) {
  CommandAdder command(app, "help", "Show the options of a command"_say, language);
  command.Add("COMMAND", options.helpOn, "the command; an overview unless given"_say);
}

}  // namespace

unsigned PageNamed(const std::string& text) {
  const std::string name = FoldedName(text);
  if (name == "utf-8" || name == "utf8") return kUtf8Page;
  return CommandAdder::PageNumber(name.starts_with("cp") ? name.substr(2) : name);
}

void AddCommands(CLI::App& app, Options& options, Language language) {
  AddCheck(app, options, language);
  AddExplain(app, options, language);
  AddCompile(app, options, language);
  AddFmt(app, options, language);
  AddWhy(app, options, language);
  AddWhich(app, options, language);
  AddDump(app, options, language);
  AddDecompile(app, options, language);
  AddLoad(app, options, language);
  AddHelp(app, options, language);
}
