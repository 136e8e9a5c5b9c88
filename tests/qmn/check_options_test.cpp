// Which findings are reported: --select, --ignore, comments, qmn.toml; and folders as arguments.
#include "tests/qmn/check_testing.h"
#include "tools/qmn/settings_file.h"

namespace {

class CheckOptionsTest : public QmnTest {
 protected:
  void WriteSettings(const std::string& text) const { Write(u8"qmn.toml", text); }
};

// Three warnings: a caret pair, a comma, and the unused icon A.
const std::string kThree = Framed("lines", "[Wall]^C^PWALL;1,2;\n");

std::string CodesIn(const std::string& out) {
  std::string codes;
  for (size_t at = out.find("[QMN"); at != std::string::npos; at = out.find("[QMN", at + 1))
    codes += out.substr(at + 4, 3) + " ";
  return codes;
}

std::string Codes(const std::string& source, std::vector<std::string> options = {}) {
  options.insert(options.begin(), {"check", "-"});
  return CodesIn(Qmn(options, source).out);
}

TEST_F(CheckOptionsTest, RulesAreSelectedAndIgnoredByCodeBeginningOrName) {
  EXPECT_EQ(Codes(kThree), "047 052 073 ");
  EXPECT_EQ(Codes(kThree, {"--select", "QMN047"}), "047 ");
  EXPECT_EQ(Codes(kThree, {"--select", "qmn04,command-comma"}), "047 052 ");
  EXPECT_EQ(Codes(kThree, {"--select", "QMN047", "--select", "QMN052"}), "047 052 ");
  EXPECT_EQ(Codes(kThree, {"--ignore", "QMN052,icon-unused"}), "047 ");
  EXPECT_EQ(Codes(kThree, {"--select", "QMN0", "--ignore", "QMN07"}), "047 052 ");
}

TEST_F(CheckOptionsTest, WhatIsIgnoredDoesNotCount) {
  const QmnRun run = Qmn({"check", "-", "--fail-on", "warning", "--ignore", "QMN0"}, kThree);
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.err, "1 file checked: no findings\n");
}

TEST_F(CheckOptionsTest, ErrorsAreReportedWhateverIsSelected) {
  const std::string refused = Framed("blocks", "***LAYOUT\n");
  EXPECT_EQ(Codes(refused, {"--select", "QMN047"}), "003 ");
  EXPECT_EQ(Codes(refused, {"--ignore", "QMN0"}), "003 ");
  const QmnRun run = Qmn({"check", "-", "--ignore", "QMN003"}, refused);
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.err,
            "qmn: error: QMN003 is an error that the shell refuses, and can't be ignored\n");
}

TEST_F(CheckOptionsTest, AnUnknownRuleIsWrongUsage) {
  const QmnRun run = Qmn({"check", "-", "--select", "QMN999"}, kThree);
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.err,
            "qmn: error: there is no rule 'QMN999'; 'qmn check --list-rules' lists them\n");
}

std::string Silenced(const std::string& before, const std::string& behind = "") {
  return Codes(Framed("lines", before + "[Wall]^C^PWALL;1,2;\n" + behind),
               {"--ignore", "icon-unused"});
}

TEST_F(CheckOptionsTest, ACommentSilencesTheNextLine) {
  EXPECT_EQ(Silenced("// qmn-ignore QMN047\n"), "052 ");
  EXPECT_EQ(Silenced("// qmn-ignore QMN047, QMN052 both are meant\n"), "");
  EXPECT_EQ(Silenced("/* qmn-ignore caret-pair */\n\n// more\n"), "052 ");
  EXPECT_EQ(Silenced("// qmn-ignore\n"), "");
  EXPECT_EQ(Silenced("// qmn-ignore: QMN047\n"), "047 052 ");
  EXPECT_EQ(Silenced("// Qmn-ignored QMN047\n"), "047 052 ");
}

TEST_F(CheckOptionsTest, ACommentWithTextOnItsLineSilencesThatLineOnly) {
  EXPECT_EQ(Silenced("/* qmn-ignore QMN047 */ "), "052 ");
  EXPECT_EQ(Silenced("", "// qmn-ignore QMN047\n"), "047 052 077 ");
  EXPECT_EQ(
      Codes(Framed("icons", "B = \"\",\"\"  // qmn-ignore QMN071\n"), {"--ignore", "icon-unused"}),
      "");
  EXPECT_EQ(Silenced("// qmn-ignore QMN047\n[Door]^C^CDOOR;\n"), "077 047 052 ");
}

TEST_F(CheckOptionsTest, AMenuLineHasNoCommentAndTextsHaveNone) {
  EXPECT_EQ(
      Codes(Framed("lines", "[Wall]^C^PWALL; // qmn-ignore QMN047\n"), {"--ignore", "icon-unused"}),
      "047 053 ");
  EXPECT_EQ(Codes(Framed("icons", "B = \"\",\"// qmn-ignore QMN071\"\n"), {"--ignore", "QMN073"}),
            "071 ");
}

TEST_F(CheckOptionsTest, AnErrorIsNotSilenced) {
  EXPECT_EQ(Codes(Framed("blocks", "// qmn-ignore\n***LAYOUT\n")), "077 003 ");
}

TEST_F(CheckOptionsTest, ACommentThatSilencesNothingIsReported) {
  const QmnRun run = Qmn({"check", "-", "--ignore", "icon-unused"},
                         Framed("lines", "// qmn-ignore QMN047 QMN999\n[Wall]^C^CWALL;\n"));
  EXPECT_EQ(run.out,
            "-:3:15: warning: 'QMN047' silences nothing here [QMN077]\n"
            "// qmn-ignore QMN047 QMN999\n              ^~~~~~\n"
            "-:3:22: warning: 'QMN999' silences nothing here [QMN077]\n"
            "// qmn-ignore QMN047 QMN999\n                     ^~~~~~\n");
}

TEST_F(CheckOptionsTest, ACommentForARuleThatDidNotRunIsNotReported) {
  EXPECT_EQ(Silenced("// qmn-ignore QMN075 QMN047 QMN052\n"), "");
  EXPECT_EQ(Codes(Framed("lines", "// qmn-ignore QMN047\n[a]x;\n"), {"--ignore", "QMN047,QMN073"}),
            "");
}

TEST_F(CheckOptionsTest, TheSummaryCountsWhatIsSilenced) {
  EXPECT_EQ(Qmn({"check", "-"}, Framed("lines", "// qmn-ignore\n[Wall]^C^PWALL;1,2;\n")).err,
            "1 file checked: 1 warning, 2 silenced\n");
}

TEST_F(CheckOptionsTest, SettingsAreReadFromTheFolderOfEachSource) {
  std::filesystem::create_directories(m_folder / "other");
  const std::string here = Write(u8"a.qmn", kThree), there = Write(u8"other/a.qmn", kThree);
  WriteSettings("ignore = [\"QMN052\", 'icon-unused']  # reasons\n\nfail-on = \"warning\"\n");
  EXPECT_EQ(CodesIn(Qmn({"check", here}).out), "047 ");
  EXPECT_EQ(Qmn({"check", here}).code, 1);
  EXPECT_EQ(Qmn({"check", here, "--fail-on", "error"}).code, 0);
  EXPECT_EQ(CodesIn(Qmn({"check", here, "--ignore", "QMN047"}).out), "");
  EXPECT_EQ(CodesIn(Qmn({"check", there}).out), "047 052 073 ");
}

TEST_F(CheckOptionsTest, PathsOfTheSettingsBeginAtTheirFolder) {
  const std::string source = Write(u8"a.qmn", kThree);
  Write(u8"commands.txt", "FIRST\n");
  WriteSettings("commands = \"commands.txt\"\nselect = [\"QMN075\"]\n");
  EXPECT_EQ(CodesIn(Qmn({"check", source}).out), "075 ");
}

TEST_F(CheckOptionsTest, AMissingLibraryMattersOnlyWhereWarningsAreShown) {
  const std::string source = Write(u8"a.qmn", kGoodSource);
  WriteSettings("icons = \"none.dll\"\n");
  const QmnRun run = Qmn({"check", source});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err.substr(0, run.err.find('\n')),
            Name(u8"none.dll") + ": error: can't be read: there is no such file");
  EXPECT_EQ(Qmn({"compile", "-W", source}).code, 3);
  EXPECT_EQ(Qmn({"compile", source}).code, 0);
  EXPECT_EQ(Qmn({"fmt", source}).code, 0);
}

TEST_F(CheckOptionsTest, TheCodePageOfTheSettingsIsForAllCommands) {
  const std::string source =
      Write(u8"a.qmn", "MENU_TITLE = \"墙\"\n\n***COMMON\n[墙]x;\n\n***SWITCH\n\n***RESOURCE\n");
  WriteSettings("codepage = 65001\n");
  EXPECT_EQ(Qmn({"check", source}).code, 0);
  EXPECT_EQ(Qmn({"fmt", "--check", source}).code, 0);
  EXPECT_EQ(Qmn({"compile", source}).code, 0);
  EXPECT_NE(Qmn({"dump", "--tree", source}).out.find("墙"), std::string::npos);
  EXPECT_EQ(Qmn({"why", source}).code, 0);
  EXPECT_EQ(Qmn({"check", source, "--codepage", "936"}).code, 1);
}

TEST_F(CheckOptionsTest, AnErrorInTheSettingsHasItsLine) {
  const std::string source = Write(u8"a.qmn", kThree);
  WriteSettings("codepage = 936\nignored = [\"QMN052\"]\n");
  const QmnRun run = Qmn({"check", source});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.err, Name(u8"qmn.toml") +
                         ":2: error: there is no setting 'ignored'; there are codepage, fail-on, "
                         "icons, commands, select and ignore\n");
  WriteSettings("ignore = [\"QMN999\"]\n");
  EXPECT_EQ(Qmn({"check", source}).err,
            Name(u8"qmn.toml") +
                ": error: there is no rule 'QMN999'; 'qmn check --list-rules' lists them\n");
}

TEST_F(CheckOptionsTest, EveryMistakeInTheSettingsIsExplained) {
  const std::pair<const char*, const char*> cases[] = {
      {"[section]", "there are no sections here; a line is KEY = VALUE"},
      {"codepage", "expected KEY = VALUE"},
      {"= 1", "expected KEY = VALUE"},
      {"codepage =", "expected a number, a text in quotes, or a list in [ ]"},
      {"codepage = 1", "there is no code page 1 here"},
      {"codepage = \"936\"", "the value of codepage is a number"},
      {"codepage = 936 x", "expected the end of the line behind the value"},
      {"icons = \"a", "the text does not end in its line"},
      {"icons = \"a\\b\"", "a '\\' is written twice between \" \", or once between ' '"},
      {"icons = 1", "the value of icons is a text in quotes"},
      {"fail-on = \"never\"", "the value of fail-on is \"error\" or \"warning\""},
      {"ignore = \"QMN052\"", "the value of ignore is a list: [\"QMN052\"]"},
      {"ignore = [1]", "expected a text in quotes or ']'"},
      {"ignore = [\"a\" \"b\"]", "expected ',' or ']'"},
  };
  for (const auto& [text, expected] : cases) {
    FileSettings settings;
    const auto error = ReadSettings(std::string("# first\n") + text, settings);
    ASSERT_TRUE(error) << text;
    EXPECT_EQ(error->line, 2) << text;
    EXPECT_EQ(error->text.English(), expected) << text;
  }
}

TEST_F(CheckOptionsTest, AListMayHaveSeveralLines) {
  FileSettings settings;
  EXPECT_FALSE(ReadSettings(
      "ignore = [\r\n  \"QMN052\",  # one\r\n  'a\\b',\r\n]\r\nicons = \"c\\\\d\"", settings));
  EXPECT_EQ(settings.ignore, (std::vector<std::string>{"QMN052", "a\\b"}));
  EXPECT_EQ(settings.icons, "c\\d");
}

TEST_F(CheckOptionsTest, AFolderMeansItsSources) {
  std::filesystem::create_directories(m_folder / "more");
  Write(u8"more/b.qmn", kThree);
  const std::string one = Write(u8"a.qmn", kThree);
  const std::string two = Utf8Name(m_folder / "more" / "b.qmn");
  Write(u8"readme.txt", "x");
  const QmnRun run = Qmn({"check", Utf8Name(m_folder), "--select", "QMN047"});
  EXPECT_LT(run.out.find(one), run.out.find(two));
  EXPECT_NE(run.out.find(two), std::string::npos);
  EXPECT_EQ(run.err, "2 files checked: 2 warnings\n");
}

}  // namespace
