// qmn why: converts the command line to a question about a selection. Types and layers correspond
// by index; a single layer or type applies to all.
#include <algorithm>
#include <ostream>

#include "menu/menu_system.h"
#include "tools/qmn/commands.h"
#include "tools/qmn/model_aloud.h"
#include "tools/qmn/tool_text.h"
#include "tools/qmn/why_answer.h"

namespace {

constexpr char kUsualLayer[] = "0";

template <class T>
const T& Nth(const std::vector<T>& values, size_t index) {
  return values[values.size() == 1 ? 0 : index];
}

// False when the numbers of types, layers and counts don't match.
bool ReadParts(const WhyOptions& options, WhyQuestion& question) {
  std::vector<std::string> layers = options.layers;
  std::vector<int> counts = options.counts;
  if (layers.empty()) layers.push_back(kUsualLayer);
  if (counts.empty()) counts.push_back(1);
  if (options.types.empty()) return options.layers.empty() && options.counts.empty();
  const size_t size = std::max({options.types.size(), layers.size(), counts.size()});
  for (const size_t length : {options.types.size(), layers.size(), counts.size()})
    if (length != size && length != 1) return false;
  for (size_t i = 0; i < size; ++i)
    question.parts.push_back({Wide(Nth(options.types, i)), Wide(Nth(layers, i)), Nth(counts, i)});
  return true;
}

// "NAME=VALUE"; false without a name or '='.
bool Split(const std::string& text, std::string& name, std::string& value) {
  const size_t equal = text.find('=');
  if (equal == std::string::npos || equal == 0) return false;
  name = text.substr(0, equal);
  value = text.substr(equal + 1);
  return true;
}

bool ReadPairs(const WhyOptions& options, WhyQuestion& question) {
  std::string name, value;
  for (const std::string& pair : options.layerKeys) {
    if (!Split(pair, name, value)) return false;
    question.layerKeys[Wide(name)] = Wide(value);
  }
  for (const std::string& pair : options.groups) {
    if (!Split(pair, name, value) || name.size() > 5 ||
        name.find_first_not_of("0123456789") != std::string::npos)
      return false;
    question.groups[std::stoi(name)] = Wide(value);
  }
  return true;
}

}  // namespace

int RunWhy(const WhyOptions& options, const QmnStreams& streams) {
  WhyQuestion question;
  question.paper = options.paper;
  if (!ReadParts(options, question)) {
    ReportError(streams, "qmn",
                "--type, --layer and --count: one of each object, or one for all of them"_say);
    return kWrongUsage;
  }
  if (!ReadPairs(options, question)) {
    ReportError(streams, "qmn", "--layer-key is KEY=LAYER and --group is CODE=VALUE"_say);
    return kWrongUsage;
  }
  TMenuSystem system;
  if (const int code = ReadModelAloud(options.in, options.source, streams, system); code != kFine)
    return code;
  options.json ? AnswerInJson(system, question, streams.out)
               : AnswerInWords(system, question, streams.out);
  return kFine;
}
