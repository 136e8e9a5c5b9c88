// Each rule by the examples of docs/menu-checks.md: the bad one causes this finding and no other,
// the corrected one none. The document, the table of rules and --list-rules must agree.
#include <map>
#include <sstream>

#include "tests/qmn/check_testing.h"
#include "tools/qmn/check/rules.h"
#include "tools/qmn/check/text_decoder.h"

namespace {

struct Example {
  std::string part, source;
};

struct Section {
  std::string name, severity, summary;
  std::map<std::string, Example> examples;  // "bad" and "mended"
};

class Document {
 public:
  Document() {
    std::istringstream in(
        ReadBytes(std::filesystem::path(QVX_SOURCE_DIR) / "docs" / "menu-checks.md"));
    for (std::string line; std::getline(in, line);) Take(line);
  }
  const std::map<std::string, Section>& Sections() const { return m_sections; }

 private:
  void Take(const std::string& line) {
    if (m_example) {
      if (line == "```") return EndExample();
      m_text += line + "\n";
    } else if (line.rfind("# ", 0) == 0) {
      m_severity = line == "# Errors" ? "error" : "warning";
    } else if (line.rfind("## QMN", 0) == 0) {
      m_section = &m_sections[line.substr(3, 6)];
      m_section->name = line.substr(10);
      m_section->severity = m_severity;
    } else if (line.rfind("```", 0) == 0) {
      BeginExample(line.substr(3));
    } else if (m_section && m_section->summary.empty()) {
      m_section->summary = line;
    }
  }
  void BeginExample(const std::string& words) {
    m_example = m_section ? &m_section->examples[words.substr(words.find(' ') + 1)] : &m_ignored;
    m_example->part = words.substr(0, words.find(' '));
    m_text.clear();
  }
  void EndExample() {
    m_example->source = Framed(m_example->part, MenuBytes(m_text));
    m_example = nullptr;
  }

  std::map<std::string, Section> m_sections;
  std::string m_severity, m_text;
  Section* m_section = nullptr;
  Example* m_example = nullptr;
  Example m_ignored;
};

const std::map<std::string, Section>& Sections() {
  static const Document document;
  return document.Sections();
}

// What the sections of these rules say about their examples.
CheckSettings SettingsOf(Rule rule) {
  CheckSettings settings = ExampleSettings();
  settings.hidden.reset(static_cast<size_t>(rule));
  if (rule == Rule::kImageUnknown)
    settings.images = std::make_shared<NameSet>(NameSet{"bmp_a", "bmp_wall"});
  if (rule == Rule::kCommandUnknown || rule == Rule::kFunctionUnknown)
    settings.known = std::make_shared<KnownNames>(
        KnownNames{{"first", "wall"}, {"islocked", "getortho", "setortho"}});
  return settings;
}

bool IsOfEncoding(Rule rule) {
  return rule == Rule::kUtf16 || rule == Rule::kNotUtf8 || rule == Rule::kByteOrderMark ||
         rule == Rule::kUtf8;
}

class CheckRule : public testing::TestWithParam<RuleInfo> {};

TEST_P(CheckRule, IsDocumentedAndItsExampleRaisesItAndNothingElse) {
  const RuleInfo& rule = GetParam();
  ASSERT_EQ(Sections().count(rule.code), 1u);
  const Section& section = Sections().at(rule.code);
  EXPECT_EQ(section.name, rule.name);
  EXPECT_EQ(section.severity, WordOf(rule.severity));
  EXPECT_EQ(section.summary, rule.summary);
  ASSERT_EQ(section.examples.size(), 2u);
  const std::string& bad = section.examples.at("bad").source;
  const std::string& mended = section.examples.at("mended").source;
  const CheckSettings settings = SettingsOf(rule.rule);
  const unsigned page = rule.rule == Rule::kNotUtf8 ? kUtf8Page : kUsualPage;
  EXPECT_EQ(CodesOf(bad, settings, page), std::set<std::string>{rule.code}) << bad;
  EXPECT_EQ(CodesOf(mended, settings, page), std::set<std::string>{}) << mended;
  if (!IsOfEncoding(rule.rule)) {
    EXPECT_EQ(EngineTakes(bad), rule.severity == Severity::kWarning);
  }
  EXPECT_TRUE(EngineTakes(mended));
}

INSTANTIATE_TEST_SUITE_P(Rules, CheckRule, testing::ValuesIn(AllRules().begin(), AllRules().end()),
                         [](const auto& info) { return std::string(info.param.code); });

TEST(CheckRules, EveryDocumentedRuleExists) { EXPECT_EQ(Sections().size(), AllRules().size()); }

TEST(CheckRules, AreInTheOrderOfTheirCodesAndOfTheirNumbers) {
  std::string last;
  for (const RuleInfo& rule : AllRules()) {
    EXPECT_LT(last, rule.code);
    EXPECT_EQ(&InfoOf(rule.rule), &rule);
    last = rule.code;
  }
}

TEST(CheckRules, AreListedOnePerLine) {
  const QmnRun run = Qmn({"check", "--list-rules"});
  EXPECT_EQ(run.code, 0);
  std::istringstream lines(run.out);
  for (const RuleInfo& rule : AllRules()) {
    std::string line;
    ASSERT_TRUE(std::getline(lines, line));
    std::istringstream words(line);
    std::string code, severity, name, summary;
    words >> code >> severity >> name;
    std::getline(words >> std::ws, summary);
    EXPECT_EQ(code, rule.code);
    EXPECT_EQ(severity, WordOf(rule.severity));
    EXPECT_EQ(name, rule.name);
    EXPECT_EQ(summary, rule.summary);
  }
}

}  // namespace
