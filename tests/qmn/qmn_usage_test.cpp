// The command line itself: help, version, usage errors, colour.
#include "qvx_version.h"
#include "tests/qmn/qmn_testing.h"

namespace {

TEST(QmnUsage, HelpBeginsWithExamplesAndSucceeds) {
  const QmnRun run = Qmn({"--help"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out.substr(0, 24), "Examples:\n  qmn check qv");
  EXPECT_EQ(run.err, "");
}

TEST(QmnUsage, HelpIsACommandToo) {
  EXPECT_EQ(Qmn({"help"}).out, Qmn({"--help"}).out);
  const QmnRun run = Qmn({"help", "fmt"});
  EXPECT_EQ(run.code, 0);
  EXPECT_NE(run.out.find("Usage: qmn fmt [OPTIONS] FILE..."), std::string::npos) << run.out;
  EXPECT_EQ(Qmn({"help", "fmtt"}).err,
            "qmn: error: there is no command 'fmtt'; did you mean 'fmt'?\n");
}

TEST(QmnUsage, TheExampleOfDecompileDoesNotOverwriteTheSource) {
  EXPECT_NE(Qmn({"help"}).out.find("qmn decompile old.qmc -o again.qmn"), std::string::npos);
}

TEST(QmnUsage, HelpHasAnExampleOfEachCommand) {
  const std::string help = Qmn({"--help"}).out;
  const std::string examples = help.substr(0, help.find("Exit codes"));
  for (const char* command :
       {"compile", "load", "dump", "check", "why", "which", "fmt", "decompile", "explain"})
    EXPECT_NE(examples.find(std::string("qmn ") + command), std::string::npos) << command;
}

TEST(QmnUsage, VersionGoesToStandardOutput) {
  const QmnRun run = Qmn({"--version"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out, "qmn " QVX_VERSION "\n");
}

TEST(QmnUsage, WrongUsageGivesTwoAndAReasonOnStandardError) {
  const std::vector<std::vector<std::string>> wrong{
      {},
      {"compile"},
      {"compile", "a.qmn", "b.qmn"},
      {"compile", "a.qmn", "--no-such"},
      {"dump", "a.qmn", "--json", "--tree"},
      {"dump", "a.qmn", "--codepage", "many"},
  };
  for (const auto& args : wrong) {
    const QmnRun run = Qmn(args);
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err, "");
  }
}

TEST(QmnUsage, WrongUsageIsExplainedInPlainWords) {
  const auto error = [](const std::vector<std::string>& args) {
    const std::string text = Qmn(args).err;
    return text.substr(0, text.find('\n'));
  };
  EXPECT_EQ(error({}), "qmn: error: a command is missing; 'qmn help' lists them");
  EXPECT_EQ(error({"chekc"}), "qmn: error: there is no command 'chekc'; did you mean 'check'?");
  EXPECT_EQ(error({"unknown"}), "qmn: error: there is no command 'unknown'");
  EXPECT_EQ(error({"check", "a", "--fromat", "json"}),
            "qmn check: error: there is no option '--fromat'; did you mean '--format'?");
  EXPECT_EQ(error({"check"}), "qmn check: error: FILE is missing");
  EXPECT_EQ(error({"check", "a", "--format", "xml"}),
            "qmn check: error: --format: 'xml' is none of github, json, sarif, text");
  EXPECT_EQ(error({"check", "a", "--format"}), "qmn check: error: --format needs a value");
  EXPECT_EQ(error({"compile", "a", "b"}), "qmn compile: error: 'b' is one argument too many");
  EXPECT_EQ(error({"dump", "a", "--json", "--tree"}),
            "qmn dump: error: --json and --tree exclude each other");
  EXPECT_EQ(error({"why", "a", "--count", "x"}),
            "qmn why: error: --count: 'x' is no number from 1 to 1000000");
  EXPECT_EQ(error({"fmt", "a", "--to", "1"}), "qmn fmt: error: --to: there is no code page 1 here");
}

// Regression: on Windows such a name was parsed as an option.
TEST(QmnUsage, AFileMayBeginWithASlash) {
  const QmnRun run = Qmn({"dump", "/no such file.qmn"});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, "/no such file.qmn: error: can't be read: there is no such file\n");
}

TEST(QmnUsage, ColourMarksTheWordErrorAndNothingElse) {
  const QmnRun plain = Qmn({"dump", "no such"});
  const QmnRun colour = Qmn({"dump", "no such"}, "", true);
  EXPECT_EQ(plain.err, "no such: error: can't be read: there is no such file\n");
  EXPECT_EQ(colour.err, "no such: \x1b[1;31merror:\x1b[0m can't be read: there is no such file\n");
}

}  // namespace
