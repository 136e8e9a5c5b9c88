// The command: exit codes, formats, order, positions, exact message texts.
#include <nlohmann/json.hpp>

#include "tests/qmn/check_testing.h"
#include "tools/qmn/check/findings.h"

namespace {

using Json = nlohmann::json;

// Without unused names, which the sources here have.
QmnRun Check(const std::string& source, std::vector<std::string> options = {}) {
  options.insert(options.begin(), {"check", "-", "--ignore", "QMN073,QMN074"});
  return Qmn(options, source);
}

const std::string kWarned = Framed("lines", "[Wall]^C^PWALL;\n");
const std::string kRefused = Framed("blocks", "***LAYOUT\n");

class CheckCommand : public QmnTest {};

TEST_F(CheckCommand, AFileWithoutFindingsHasOnlyTheSummary) {
  const QmnRun run = Check(Framed("lines", "[Wall]^C^CWALL;\n"));
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "1 file checked: no findings\n");
}

TEST_F(CheckCommand, FailsOnAnErrorAndOnAWarningOnlyOnRequest) {
  EXPECT_EQ(Check(kRefused).code, 1);
  EXPECT_EQ(Check(kRefused, {"--fail-on", "error"}).code, 1);
  EXPECT_EQ(Check(kWarned).code, 0);
  EXPECT_EQ(Check(kWarned, {"--fail-on", "error"}).code, 0);
  EXPECT_EQ(Check(kWarned, {"--fail-on", "warning"}).code, 1);
}

TEST_F(CheckCommand, RefusesMissingAndUnknownArguments) {
  EXPECT_EQ(Qmn({"check"}).code, 2);
  EXPECT_EQ(Check("", {"--format", "xml"}).code, 2);
  EXPECT_EQ(Check("", {"--fail-on", "nothing"}).code, 2);
  EXPECT_EQ(Check("", {"--list-rules"}).code, 2);
}

TEST_F(CheckCommand, AnUnreadableFileExitsWithThreeAfterTheOthersAreChecked) {
  const std::string bad = Write(u8"bad.qmn", kRefused);
  const QmnRun run = Qmn({"check", Name(u8"missing.qmn"), bad});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Name(u8"missing.qmn") +
                         ": error: can't be read: there is no such file\n"
                         "1 file checked: 1 error; 1 not read\n");
  EXPECT_EQ(run.out.rfind(bad + ":4:1: error: ", 0), 0u) << run.out;
}

TEST_F(CheckCommand, FilesAreReportedInTheOrderOfTheArguments) {
  const std::string one = Write(u8"一.qmn", kRefused);
  const std::string two = Write(u8"a.qmn", kWarned);
  const QmnRun run = Qmn({"check", one, two});
  EXPECT_LT(run.out.find(one), run.out.find(two));
  EXPECT_NE(run.out.find(two), std::string::npos);
  EXPECT_EQ(run.out, Qmn({"check", one, two}).out);
}

TEST_F(CheckCommand, SyntaxErrorsNameTheExpectedAndTheFoundToken) {
  EXPECT_EQ(Check(Framed("lines", "GET [Wall]^C^CWALL;\n")).out,
            "-:3:1: error: expected a menu line or '***', found the reserved word 'GET' [QMN001]\n"
            "GET [Wall]^C^CWALL;\n"
            "^~~\n");
}

TEST_F(CheckCommand, OneRunFindsAllErrors) {
  const QmnRun run = Check(
      "MENU_TITLE \"T\"\n"
      "***COMMON\n"
      "A A [Wall]^C^CWALL;\n"
      "***SWITCH\n"
      "**S GET=g SET s\n"
      "0=A,\"off\"\n"
      "1 A,\"on\"\n"
      "***RESOURCE\n"
      "A = \"a\" \"b\"\n"
      "B = \"a\",\"b\"\n"
      "?\n");
  std::vector<std::string> places;
  for (size_t at = run.out.find("-:"); at != std::string::npos; at = run.out.find("\n-:", at + 1))
    places.push_back(run.out.substr(at, run.out.find(' ', at + 2) - at));
  EXPECT_EQ(places, (std::vector<std::string>{
                        "-:1:12:", "\n-:3:3:", "\n-:5:15:", "\n-:7:3:", "\n-:9:9:", "\n-:11:1:"}));
}

TEST_F(CheckCommand, AColumnCountsCharactersAndTheCaretTheirWidth) {
  const QmnRun run = Check(Framed("lines", MenuBytes("[绘制墙体]^C^P命令;\n")));
  EXPECT_EQ(run.out,
            "-:3:9: warning: the '^' vanishes together with the character behind it; only ^C means "
            "something [QMN047]\n"
            "[绘制墙体]^C^P命令;\n"
            "            ^~\n");
}

TEST_F(CheckCommand, TheCaretIsPlacedCorrectlyAfterTabsAndInFilesWithCrLf) {
  const QmnRun run =
      Check(MenuBytes("MENU_TITLE = \"T\"\r\n***COMMON\r\n\t/* 墙 */\tB\t[x]^C^CX;\r\n"
                      "***SWITCH\r\n***RESOURCE\r\n"));
  EXPECT_NE(run.out.find("-:3:"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("\n\t        \t^\n"), std::string::npos) << run.out;
  EXPECT_EQ(run.out.find('\r'), std::string::npos);
}

TEST_F(CheckCommand, AnErrorAtTheEndOfTheFileIsShownAfterItsLastLine) {
  EXPECT_EQ(Check("MENU_TITLE = \"T\"\n***COMMON\n[Wall]x;\n***SWITCH\n").out,
            "-:4:10: error: the file ends without ***RESOURCE; it may be empty [QMN002]\n"
            "***SWITCH\n"
            "         ^\n");
  EXPECT_EQ(
      Check("").out,
      "-:1:1: error: the file must begin with MENU_TITLE = \"...\", found the end of the file "
      "[QMN002]\n\n^\n"
      "-:1:1: error: the file ends without a block, ***SWITCH and ***RESOURCE [QMN002]\n\n^\n");
}

TEST_F(CheckCommand, ControlCharactersAreShownAsPictures) {
  const QmnRun run = Check(Framed("lines", "[Wall\x1b[2J\x07]^C^PWALL;\n"));
  EXPECT_NE(run.out.find("[Wall␛[2J␇]"), std::string::npos) << run.out;
  EXPECT_EQ(run.out.find('\x1b'), std::string::npos);
}

TEST_F(CheckCommand, OfALongLineThePartAroundThePositionIsShown) {
  const std::string source = Framed("icons", std::string(5000, ' ') + "?" + std::string(5000, ' '));
  const QmnRun run = Check(source);
  EXPECT_LT(run.out.size(), 500u);
  EXPECT_NE(run.out.find("-:6:5001: "), std::string::npos);
  EXPECT_NE(run.out.find("\n..." + std::string(60, ' ') + "?"), std::string::npos);
  EXPECT_NE(run.out.find("\n   " + std::string(60, ' ') + "^\n"), std::string::npos);
}

TEST_F(CheckCommand, FindingsHaveTheColourSettingOfTheirOwnStream) {
  EXPECT_EQ(Qmn({"check", "-"}, kRefused, true).out.find('\x1b'), std::string::npos);
}

TEST_F(CheckCommand, FindingsBeyondTheLimitAreCounted) {
  std::string lines;
  for (int i = 0; i < 1500; ++i) lines += "[" + std::to_string(i) + "]^P;\n";
  const QmnRun run = Check(Framed("lines", lines), {"--format", "json"});
  const Json file = Json::parse(run.out)["files"][0];
  EXPECT_EQ(file["warnings"], 1500);
  EXPECT_EQ(file["findings"].size(), Findings::kMostKept);
  EXPECT_EQ(file["omitted"], 500);
  EXPECT_EQ(file["findings"].back()["line"], 1002);
  const std::string text = Check(Framed("lines", lines)).out;
  EXPECT_EQ(text.substr(text.size() - 35), "-: 500 more findings are not shown\n");
}

TEST_F(CheckCommand, JsonHasEveryFinding) {
  const Json document = Json::parse(Check(kWarned, {"--format", "json"}).out);
  EXPECT_EQ(document["version"], 1);
  const Json& file = document["files"][0];
  EXPECT_EQ(file["file"], "-");
  EXPECT_EQ(file["read"], true);
  EXPECT_EQ(file["errors"], 0);
  EXPECT_EQ(file["warnings"], 1);
  EXPECT_EQ(file["findings"],
            Json::parse(R"([{"line":3,"column":9,"endLine":3,"endColumn":11,"severity":"warning",
              "code":"QMN047","rule":"caret-pair","source":"[Wall]^C^PWALL;",
              "text":"the '^' vanishes together with the character behind it; only ^C means something"
            }])"));
}

TEST_F(CheckCommand, SarifHasThePropertiesThatTheStandardRequires) {
  const std::string file = Write(u8"墙 1.qmn", kWarned);
  const QmnRun run =
      Qmn({"check", "--format", "sarif", file, Name(u8"none.qmn"), "--ignore", "icon-unused"});
  EXPECT_EQ(run.code, 3);
  const Json document = Json::parse(run.out);
  EXPECT_EQ(document["version"], "2.1.0");
  EXPECT_TRUE(document["$schema"].is_string());
  ASSERT_EQ(document["runs"].size(), 1u);
  const Json& log = document["runs"][0];
  const Json& driver = log["tool"]["driver"];
  EXPECT_EQ(driver["name"], "qmn");
  ASSERT_EQ(log["results"].size(), 1u);
  const Json& result = log["results"][0];
  EXPECT_EQ(result["ruleId"], "QMN047");
  EXPECT_EQ(driver["rules"][result["ruleIndex"].get<size_t>()]["id"], "QMN047");
  EXPECT_EQ(result["level"], "warning");
  EXPECT_FALSE(result["message"]["text"].get<std::string>().empty());
  const Json& place = result["locations"][0]["physicalLocation"];
  const std::string uri = place["artifactLocation"]["uri"];
  EXPECT_EQ(uri.rfind("file:///", 0), 0u) << uri;
  EXPECT_NE(uri.find("/%E5%A2%99%201.qmn"), std::string::npos) << uri;
  EXPECT_EQ(place["region"]["startLine"], 3);
  EXPECT_EQ(place["region"]["startColumn"], 9);
  EXPECT_EQ(place["region"]["endColumn"], 11);
  EXPECT_EQ(log["columnKind"], "unicodeCodePoints");
  EXPECT_EQ(log["invocations"][0]["executionSuccessful"], false);
  EXPECT_EQ(log["invocations"][0]["toolExecutionNotifications"].size(), 1u);
}

TEST_F(CheckCommand, GitHubWorkflowCommandsAreEscaped) {
  EXPECT_EQ(Check(kWarned, {"--format", "github"}).out,
            "::warning file=-,line=3,endLine=3,col=9,endColumn=11,title=QMN047 caret-pair::the '^' "
            "vanishes together with the character behind it; only ^C means something\n");
  const std::string file = Write(u8"a,b%.qmn", Framed("lines", "%a [x]\n"));
  const std::string out = Qmn({"check", "--format", "github", file}).out;
  EXPECT_NE(out.find("a%2Cb%25.qmn,line=3,"), std::string::npos) << out;
  EXPECT_NE(out.find("::'%25' means nothing"), std::string::npos) << out;
}

TEST_F(CheckCommand, AnotherCodePageIsUsedWhenItIsGiven) {
  const std::string source = Framed("lines", "[\xC0\xF0\xA4\x5D]^C^PWALL;\n");
  const QmnRun run = Check(source, {"--codepage", "950"});
  EXPECT_EQ(run.out,
            "-:3:7: warning: the '^' vanishes together with the character behind it; only ^C means "
            "something [QMN047]\n[牆也]^C^PWALL;\n        ^~\n");
  EXPECT_EQ(Check(Framed("lines", "[墙]^C^CWALL;\n"), {"--codepage", "65001"}).out, "");
}

}  // namespace
