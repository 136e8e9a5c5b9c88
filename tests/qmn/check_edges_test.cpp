// The limits of each rule: sources that come close to a finding and have none.
#include <sstream>

#include "tests/qmn/check_testing.h"
#include "tools/qmn/check/mask_cover.h"
#include "tools/qmn/check/report.h"
#include "tools/qmn/check/text_decoder.h"

namespace {

using Codes = std::set<std::string>;

Codes Lines(const std::string& text) { return CodesOf(Framed("lines", text)); }
Codes Blocks(const std::string& text) { return CodesOf(Framed("blocks", text)); }

TEST(CheckEdges, APatternIsWiderOnlyWhenItMatchesAllThatTheOtherMatches) {
  const std::pair<const char*, const char*> wider[] = {
      {"*", "a"},   {"*", "~a"},    {"a*", "ab"}, {"a*", "a*b*"}, {"a?c", "abc"},  {"a?", "a?"},
      {"*b", "ab"}, {"a*c", "abc"}, {"?*", "a*"}, {"a*", "a"},    {"[ab]", "[ab]"}};
  const std::pair<const char*, const char*> notWider[] = {
      {"a", "b"},    {"a?", "a*"},  {"a*", "b*"}, {"a*b", "a*"}, {"a*", "ab,c"},
      {"a*", "~ab"}, {"[ab]", "a"}, {"a#", "a1"}, {"a?", "a"},   {"a", "a*"}};
  for (const auto& [wide, narrow] : wider)
    EXPECT_TRUE(IsWiderPattern(wide, narrow)) << wide << " " << narrow;
  for (const auto& [wide, narrow] : notWider)
    EXPECT_FALSE(IsWiderPattern(wide, narrow)) << wide << " " << narrow;
}

TEST(CheckEdges, ASecondScreenBlockStaysAndItsMaskIsChecked) {
  EXPECT_EQ(Blocks("***SCREEN\n[a]x;\n***Screen B = 0,\"W\"\n[a]x;\n"), Codes{"QMN031"});
}

TEST(CheckEdges, ABlockThatIsFoundByItsNameIsNotHiddenByAMask) {
  EXPECT_EQ(Blocks("***A B = 0,\"*\"\n[a]x;\n***LAYOUT B = 0,\"W\"\n[a]x;\n"), Codes{});
  EXPECT_EQ(Blocks("***A B = 0,\"*\"\n[a]x;\n***INPLACE8 B = 0,\"W\"\n[a]x;\n"), Codes{"QMN033"});
}

TEST(CheckEdges, AMaskWithLostMiddleGroupsIsComparedWithoutThem) {
  EXPECT_EQ(Blocks("***A B = 0,\"W\",8,\"L\",62,1\n[a]x;\n***C B = 0,\"W\",62,1,8,\"M\"\n[a]x;\n"),
            Codes{"QMN030"});
  EXPECT_EQ(Blocks("***A B = 0,\"W\",8,\"L\",62,1\n[a]x;\n***C B = 0,\"W\",62,1\n[a]x;\n"),
            (Codes{"QMN030", "QMN033"}));
}

TEST(CheckEdges, OneLineMayHaveAMnemonicTwiceAndTwoMenusMayShareOne) {
  EXPECT_EQ(Lines("[&Copy &cell]^C^CX;\n"), Codes{});
  EXPECT_EQ(Lines("[->&Copy]\n[<-&Cell]^C^CX;\n"), Codes{});
  EXPECT_EQ(Lines("[Pen & ink]^C^CX;\n[Ink & pen]^C^CY;\n"), Codes{});
}

TEST(CheckEdges, TheScreenMenuHasNoMnemonicsAndDoesNotAlignTabs) {
  EXPECT_EQ(Blocks("***SCREEN\n[&a b]^C^CX;\n[&a]*x\n"), Codes{});
  EXPECT_EQ(Blocks("***SCREEN\n[a\tb\tc]^C^CX;\n"), Codes{"QMN070"});
  EXPECT_EQ(Blocks("***LAYOUT\n[a\tb]^C^CX;\n"), Codes{});
}

TEST(CheckEdges, ASeparatorMayEndAMenuAndBeginTheToolBar) {
  EXPECT_EQ(Blocks("***LAYOUT\n[a]x;\n[--]\n"), Codes{});
  EXPECT_EQ(Blocks("***ToolBar\n[--]\n[a]x;\n"), Codes{});
  EXPECT_EQ(Blocks("***ToolBar\n[--]\n[--]\n[a]x;\n"), Codes{"QMN065"});
  EXPECT_EQ(Blocks("***LAYOUT\n[->a]\n[--]\n[<-b]x;\n"), Codes{"QMN065"});
  EXPECT_EQ(Blocks("***LAYOUT\n[a]x;\n[--]\n[->b]\n[<-c]x;\n[--]\n[d]x;\n"), Codes{});
}

TEST(CheckEdges, DashesOfAnyKindAreALabelUnlessThereAreTwo) {
  for (const char* label : {"-", "---", "- -", "\xA1\xAA"})
    EXPECT_EQ(Lines(std::string("[a]x;\n[") + label + "]\n[b]x;\n"), Codes{"QMN064"}) << label;
  EXPECT_EQ(Lines("[-a-]x;\n"), Codes{});
}

TEST(CheckEdges, OnlyALineThatCouldSendACommandMissesIt) {
  EXPECT_EQ(Lines("[->a]\n[<-b]x;\n[--]\n[c];\n"), Codes{});
  EXPECT_EQ(Lines("[->a]\n[<-b]  \n"), Codes{"QMN066"});
  EXPECT_EQ(Lines("[{~=F}a]\n"), Codes{"QMN066"});
}

TEST(CheckEdges, AConditionWithoutItsFirstBraceIsFoundBehindOthersAndArrows) {
  EXPECT_EQ(Lines("[{~=A}!=B}c]x;\n"), Codes{"QMN067"});
  EXPECT_EQ(Lines("[->a]\n[<-~=B}c]x;\n"), Codes{"QMN067"});
  EXPECT_EQ(Lines("[a ~= b]x;\n[b != c]x;\n"), Codes{});
}

TEST(CheckEdges, QuotesAreCountedOverTheWholeCommand) {
  EXPECT_EQ(Lines("[a](f \"x;\" \"y\");\n"), Codes{});
  EXPECT_EQ(Lines("[a](f \"x\" \"y);\n"), Codes{"QMN068"});
}

TEST(CheckEdges, ALineIsThereTwiceOnlyInOneMenuAndWithTheSameConditions) {
  EXPECT_EQ(Lines("[a]x;\n[a]y;\n[{~=F}a]x;\n[->b]\n[<-a]x;\n[->c]\n[<-a]x;\n"), Codes{});
  EXPECT_EQ(Lines("[->b]\n[<-a]x;\n[->b]\n[<-c]x;\n"), Codes{"QMN069"});
  EXPECT_EQ(Lines("[->b]\n[a]x;\n[<-a]x\n"), Codes{"QMN069"});
}

TEST(CheckEdges, UnusedNamesAreReportedOnlyInAFileWithoutErrors) {
  EXPECT_EQ(CodesOf(Framed("lines", "[a]x;\n"), {}), Codes{"QMN073"});
  EXPECT_EQ(CodesOf(Framed("blocks", "***LAYOUT\n"), {}), Codes{"QMN003"});
  EXPECT_EQ(CodesOf(Framed("icons", "ID_ItemHelp = \"B\",\"\"\nid_customize = \"B\",\"\"\n")),
            Codes{});
  EXPECT_EQ(CodesOf(Framed("lines", "a [a]x;\n"), {}), Codes{});
}

TEST(CheckEdges, OnlyBlanksAndZerosAfterAZeroAreNotReported) {
  const std::string file = Framed("", "");
  EXPECT_EQ(CodesOf(file + std::string("\0\0\n \0", 5)), Codes{});
  EXPECT_EQ(CodesOf(file + std::string("\0\0x", 3)), Codes{"QMN022"});
}

TEST(CheckEdges, SectionsHiddenByACommentAreNotReportedMissing) {
  for (const char* place : {"lines", "switches", "icons"})
    EXPECT_EQ(CodesOf(Framed(place, "/* A\n")), Codes{"QMN010"}) << place;
  EXPECT_EQ(CodesOf(Framed("switches", "**S GET=g /*\n")), Codes{"QMN010"});
  EXPECT_EQ(CodesOf(Framed("icons", "B = /*\n")), Codes{"QMN010"});
}

TEST(CheckEdges, TheLargestShortIntegerIsAState) {
  EXPECT_EQ(CodesOf(Framed("switches", "**S GET=g SET=s\n32767=A,\"a\"\n")), Codes{});
}

TEST(CheckEdges, ACommentInACommandFollowsABlankOrAnEnter) {
  EXPECT_EQ(Lines("[a]^C^CX;// note\n"), Codes{"QMN053"});
  EXPECT_EQ(Lines("[a]// note\n"), Codes{"QMN053"});
  EXPECT_EQ(Lines("[a]^C^CBROWSER;http://host/page;\n"), Codes{});
}

TEST(CheckEdges, AnEditingActionMayHaveABlankBeforeAndWordsAfterIt) {
  EXPECT_EQ(Blocks("***INPLACE\n[a] 5001 accept\n[--]\n[->b]\n[<-c]5024\n"), Codes{});
  EXPECT_EQ(Blocks("***INPLACE\n[a]5025\n[b]-5001\n[c]x5001\n"), Codes{"QMN054"});
}

TEST(CheckEdges, TextsAndLinesMayHaveTheirMaximumLength) {
  EXPECT_EQ(Lines(MenuBytes("[‹98×墙›]x\n")), Codes{});
  EXPECT_EQ(Lines(MenuBytes("[‹98×墙›]xx\n")), Codes{"QMN008"});
}

TEST(CheckEdges, Utf8IsCompleteInShortestFormAndWithoutSurrogates) {
  EXPECT_EQ(NextUtf8("\xE5\xA2\x99", 0).code, 0x5899u);
  EXPECT_EQ(NextUtf8("\xF0\x9F\x98\x80", 0).code, 0x1F600u);
  for (const char* bytes : {"\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xE5\xA2", "\x80", "\xFF"})
    EXPECT_FALSE(NextUtf8(bytes, 0).isValid);
  EXPECT_FALSE(LooksLikeUtf8("caf\xC3\xA9"));
  EXPECT_TRUE(LooksLikeUtf8("\xE5\xA2\x99"));
}

TEST(CheckEdges, WideCharactersTakeTwoColumnsAndCombiningOnesNone) {
  EXPECT_EQ(DisplayWidth('a'), 1);
  EXPECT_EQ(DisplayWidth(0x5899), 2);
  EXPECT_EQ(DisplayWidth(0xFF0C), 2);
  EXPECT_EQ(DisplayWidth(0x00B0), 1);
  EXPECT_EQ(DisplayWidth(0x0301), 0);
}

TEST(CheckEdges, AWorkflowCommandEscapesTheColonOfADrive) {
  FileReport report;
  report.file = "C:\\a,b\n.qmn";
  report.findings.push_back({Rule::kMinus, {2, 3}, {2, 5}, std::string("a: b,\r\n100%"), {}});
  std::ostringstream out;
  ReportAsGitHub(report, out, Language::kEnglish);
  EXPECT_EQ(out.str(),
            "::warning file=C%3A\\a%2Cb%0A.qmn,line=2,endLine=2,col=3,endColumn=5,title=QMN021 "
            "minus::a: b,%0D%0A100%25\n");
}

}  // namespace
