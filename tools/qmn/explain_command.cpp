// qmn explain: a rule with its reason and an example, as docs/menu-checks.md has them.
#include <ostream>
#include <sstream>
#include <string_view>

#include "tools/qmn/check/rules.h"
#include "tools/qmn/commands.h"
#include "tools/qmn/documents.h"
#include "tools/qmn/tool_text.h"

namespace {

// The lines below the heading "## CODE name", up to the next heading.
std::string SectionOf(const char* document, const char* code) {
  std::istringstream lines(document);
  const std::string heading = std::string("## ") + code;
  std::string section;
  bool isInside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#") && isInside) return section;
    if (isInside) section += line + "\n";
    if (line == heading || line.starts_with(heading + " ")) isInside = true;
  }
  return section;
}

struct Explanation {
  std::string reason;  // paragraphs
  std::string bad, mended;
};

// `skipped` paragraphs at the beginning are left out.
Explanation Read(const std::string& section, int skipped) {
  Explanation out;
  std::istringstream lines(section);
  std::string* example = nullptr;
  int paragraphs = 0;
  bool wasBlank = true;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) {
      const bool isEnd = example != nullptr;
      example = isEnd ? nullptr : line.ends_with("bad") ? &out.bad : &out.mended;
    } else if (example) {
      *example += "    " + line + "\n";
    } else {
      if (wasBlank && !line.empty()) ++paragraphs;
      if (paragraphs > skipped) out.reason += line + "\n";
      wasBlank = line.empty();
    }
  }
  while (out.reason.ends_with("\n\n")) out.reason.pop_back();
  return out;
}

void Explain(const RuleInfo& info, const QmnStreams& streams) {
  const auto in = [&streams](const Message& text) { return text.In(streams.language); };
  const bool isChinese = streams.language == Language::kChinese;
  const Explanation english = Read(SectionOf(kMenuChecksDocument, info.code), 1);
  const std::string reason =
      isChinese ? Read(SectionOf(kMenuChecksChineseDocument, info.code), 0).reason : english.reason;
  streams.out << info.code << ' ' << info.name << " (" << in(SeverityText(info.severity)) << ")\n"
              << in(SummaryOf(info)) << "\n";
  if (!reason.empty()) streams.out << "\n" << reason;
  streams.out << "\n" << in("Wrong:"_say) << "\n" << english.bad;
  streams.out << in("Right:"_say) << "\n" << english.mended;
}

}  // namespace

int RunExplain(const ExplainOptions& options, const QmnStreams& streams) {
  RuleSet rules;
  for (const std::string& word : options.rules) {
    if (AddRules(word, rules)) continue;
    ReportError(streams, "qmn",
                "there is no rule '{0}'; 'qmn check --list-rules' lists them"_say(word));
    return kWrongUsage;
  }
  const char* before = "";
  for (const RuleInfo& info : AllRules()) {
    if (!rules[static_cast<size_t>(info.rule)]) continue;
    streams.out << before;
    Explain(info, streams);
    before = "\n";
  }
  return kFine;
}
