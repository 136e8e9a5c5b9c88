// The command line itself: help, version, usage errors, colour.
#include "tests/qmn/qmn_testing.h"

namespace {

TEST(QmnUsage, HelpBeginsWithExamplesAndSucceeds) {
  const QmnRun run = Qmn({"--help"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out.substr(0, 24), "Examples:\n  qmn compile ");
  EXPECT_EQ(run.err, "");
}

TEST(QmnUsage, HelpHasAnExampleOfEachCommand) {
  const std::string help = Qmn({"--help"}).out;
  const std::string examples = help.substr(0, help.find("Exit codes"));
  for (const char* command :
       {"compile", "load", "dump", "check", "why", "which", "fmt", "decompile"})
    EXPECT_NE(examples.find(std::string("qmn ") + command), std::string::npos) << command;
}

TEST(QmnUsage, VersionGoesToStandardOutput) {
  const QmnRun run = Qmn({"--version"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out, "qmn 1.0\n");
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

// Regression: on Windows such a name was parsed as an option.
TEST(QmnUsage, AFileMayBeginWithASlash) {
  const QmnRun run = Qmn({"dump", "/no such file.qmn"});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, "/no such file.qmn: error: can't be read\n");
}

TEST(QmnUsage, ColourMarksTheWordErrorAndNothingElse) {
  const QmnRun plain = Qmn({"compile", "-"}, "x");
  const QmnRun colour = Qmn({"compile", "-"}, "x", true);
  EXPECT_EQ(plain.err, "-:1: error: syntax error\n");
  EXPECT_EQ(colour.err, "-:1: \x1b[1;31merror:\x1b[0m syntax error\n");
}

}  // namespace
