#include "tools/qmn/usage_errors.h"

#include <algorithm>

namespace {

constexpr size_t kMostDifferent = 2;

// The number of characters to insert, remove or replace.
size_t Distance(const std::string& a, const std::string& b) {
  std::vector<size_t> row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    size_t corner = row[0];
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t above = row[j];
      row[j] = std::min({above + 1, row[j - 1] + 1, corner + (a[i - 1] != b[j - 1])});
      corner = above;
    }
  }
  return row.back();
}

std::vector<std::string> CommandNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands({})) names.push_back(command->get_name());
  return names;
}

std::vector<std::string> OptionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options())
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  return names;
}

std::string OptionPart(const std::string& word) { return word.substr(0, word.find('=')); }

Message Unexpected(const CLI::App& app, const std::string& word) {
  const CLI::App* command = CommandOf(app);
  if (word.size() > 1 && word[0] == '-') {
    const std::string option = OptionPart(word);
    const std::string nearest = NearestName(option, OptionNames(command ? *command : app));
    if (!nearest.empty())
      return "there is no option '{0}'; did you mean '{1}'?"_say(option, nearest);
    return "there is no option '{0}'"_say(option);
  }
  if (command) return "'{0}' is one argument too many"_say(word);
  const std::string nearest = NearestName(word, CommandNames(app));
  if (!nearest.empty()) return "there is no command '{0}'; did you mean '{1}'?"_say(word, nearest);
  return "there is no command '{0}'"_say(word);
}

// "--json excludes --tree", "FILE is required", "--format: text": the words of the parser.
std::string WordAt(const std::string& text, size_t index) {
  size_t begin = 0;
  for (; index; --index) begin = std::min(text.find(' ', begin), text.size() - 1) + 1;
  return text.substr(begin, text.find(' ', begin) - begin);
}

std::string NameBefore(const std::string& text) { return text.substr(0, text.find(':')); }

}  // namespace

const CLI::App* CommandOf(const CLI::App& app) {
  const std::vector<const CLI::App*> parsed =
      app.get_subcommands([](const CLI::App* command) { return command->parsed(); });
  return parsed.empty() ? nullptr : parsed.front();
}

std::string NearestName(const std::string& word, const std::vector<std::string>& names) {
  std::string nearest;
  size_t least = kMostDifferent + 1;
  for (const std::string& name : names) {
    const size_t distance = Distance(word, name);
    if (distance >= least || distance >= name.size()) continue;
    least = distance;
    nearest = name;
  }
  return nearest;
}

Message ExplainUsage(const CLI::App& app, const CLI::ParseError& error) {
  const std::string text = error.what();
  const std::vector<std::string> rest = app.remaining(true);
  if (!rest.empty()) return Unexpected(app, rest.front());
  if (dynamic_cast<const CLI::RequiredError*>(&error)) {
    if (!CommandOf(app)) return "a command is missing; 'qmn help' lists them"_say;
    return "{0} is missing"_say(WordAt(text, 0));
  }
  if (dynamic_cast<const CLI::ExcludesError*>(&error))
    return "{0} and {1} exclude each other"_say(WordAt(text, 0), WordAt(text, 2));
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error))
    return "{0} needs a value"_say(NameBefore(text));
  if (dynamic_cast<const CLI::ConversionError*>(&error))
    return "{0} needs a number"_say(NameBefore(text));
  return text;
}
