// qmn explain: each rule with its reason and example, in both languages.
#include "tests/qmn/check_testing.h"
#include "tools/qmn/check/rules.h"

namespace {

TEST(QmnExplain, ShowsTheSentenceTheReasonAndAnExample) {
  const QmnRun run = Qmn({"explain", "QMN052"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(
      run.out,
      "QMN052 command-comma (warning)\n"
      "A command with a comma breaks in the kept list of recent commands.\n\n"
      "The list is stored as one text with commas between the commands. Define a command name "
      "in the host instead.\n\n"
      "Wrong:\n    [Centre]^C^CZOOM;C;0,0;\n"
      "Right:\n    [Centre]^C^CZOOMCENTRE;\n");
}

TEST(QmnExplain, ARuleIsNamedByCodeBeginningOrName) {
  const std::string out = Qmn({"explain", "QMN052"}).out;
  EXPECT_EQ(Qmn({"explain", "qmn052"}).out, out);
  EXPECT_EQ(Qmn({"explain", "command-comma"}).out, out);
  EXPECT_NE(Qmn({"explain", "QMN05"}).out.find(out), std::string::npos);
  const QmnRun run = Qmn({"explain", "QMN999"});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.err,
            "qmn: error: there is no rule 'QMN999'; 'qmn check --list-rules' lists them\n");
}

TEST(QmnExplain, EveryRuleHasAnExampleOfBothKinds) {
  for (const RuleInfo& info : AllRules()) {
    const std::string out = Qmn({"explain", info.code}).out;
    EXPECT_NE(out.find(std::string(info.summary) + "\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Wrong:\n    "), std::string::npos) << out;
    EXPECT_NE(out.find("Right:\n    "), std::string::npos) << out;
  }
}

// Where the English document gives a reason, the Chinese one does too.
TEST(QmnExplain, EveryReasonIsTranslated) {
  const auto reasonOf = [](const std::string& out, const std::string& example) {
    const size_t begin = out.find('\n', out.find('\n') + 1) + 1;
    return out.substr(begin, out.find(example) - begin);
  };
  for (const RuleInfo& info : AllRules()) {
    const std::string english = reasonOf(Qmn({"explain", info.code}).out, "\nWrong:");
    const QmnRun run = Qmn({"explain", info.code, "--lang", "zh"});
    EXPECT_EQ(reasonOf(run.out, "\n错误写法：").empty(), english.empty()) << run.out;
  }
}

}  // namespace
