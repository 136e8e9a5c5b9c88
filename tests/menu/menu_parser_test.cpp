// The parser: which files are accepted, what each rule builds, every message with its line, and the
// state after a failed file.
#include <gtest/gtest.h>

#include "tests/menu/menu_testing.h"

namespace {

const char kTail[] = "***SWITCH\n***RESOURCE\n";

std::string WithBlocks(const std::string& blocks) {
  return "MENU_TITLE = \"t\"\n" + blocks + kTail;
}

// The title is line 1; the blocks begin on line 2.
struct Parsed : Compiled {
  explicit Parsed(const std::string& source) { Compile(source, *this); }
};

void ExpectError(const std::string& source, const std::string& messages) {
  Parsed parsed(source);
  EXPECT_EQ(parsed.result, 1) << source;
  EXPECT_EQ(parsed.messages.Text(), messages) << source;
  EXPECT_EQ(parsed.Tree(), "title \"\"\n") << source;
}

TEST(MenuParser, ReadsAWholeFile) {
  Parsed parsed(
      "// comment\nMENU_TITLE = \"T\"\n***SCREEN\n[->W]\nWALLICON [D]^C^CTWall;\n"
      "[<-L]^C^CTLine2Wall;\n[--]\nORTHOSW [*SWITCH*]\n***COMMON\n"
      "[{!=IsLocked}{~=NoSel}K]^C^CTLock \"a;b\";\n[Q]\n"
      "***WALL_MENU WALL = 0,\"QVX_WALL\",8,\"@WALL\"\n[E]^C^CTObjEdit;\n***SWITCH\n"
      "**ORTHOSW GET=GetOrtho SET=ToggleOrtho\n0=ORTHO0,\"off\"\n1=ORTHO1,\"on\"\n***RESOURCE\n"
      "WALLICON = \"BMP_WALL\",\"BMP_WALL2\"\nORTHO0 = \"BMP_ORTHO0\",\"\"\n"
      "ORTHO1 = \"BMP_ORTHO1\",\"\"\n");
  EXPECT_EQ(parsed.result, 0);
  EXPECT_EQ(parsed.messages.Text(), "");
  EXPECT_EQ(parsed.Tree(),
            "title \"T\"\n"
            "resource WALLICON \"BMP_WALL\" \"BMP_WALL2\"\n"
            "resource ORTHO0 \"BMP_ORTHO0\" \"\"\n"
            "resource ORTHO1 \"BMP_ORTHO1\" \"\"\n"
            "switch ORTHOSW get GetOrtho set ToggleOrtho\n"
            "  0 \"off\" icon ORTHO0 at 1\n"
            "  1 \"on\" icon ORTHO1 at 2\n"
            "bar SCREEN\n"
            "  \"W\" >\n"
            "    \"D\" \"\\e\\eTWall\\n\" icon WALLICON at 0\n"
            "    \"L\" \"\\e\\eTLine2Wall\\n\"\n"
            "  \"--\"\n"
            "  \"*SWITCH*\" icon ORTHOSW switch 0\n"
            "bar COMMON\n"
            "  \"K\" \"\\e\\eTLock \"a;b\"\\n\" flags 3 check IsLocked gray NoSel\n"
            "  \"Q\"\n"
            "bar WALL_MENU kind WALL 0=\"QVX_WALL\" 8=\"@WALL\"\n"
            "  \"E\" \"\\e\\eTObjEdit\\n\"\n");
}

TEST(MenuParser, SectionsMayBeEmptyButMustBeThere) {
  EXPECT_EQ(Parsed("MENU_TITLE=\"\"***A[a]\n***SWITCH***RESOURCE").result, 0);
  ExpectError("MENU_TITLE=\"\"***A[a]\n***RESOURCE", "2: syntax error\n");
  ExpectError("MENU_TITLE=\"\"***A[a]\n***SWITCH", "2: syntax error\n");
  ExpectError("MENU_TITLE=\"\"***A[a]\n***RESOURCE***SWITCH", "2: syntax error\n");
  ExpectError("MENU_TITLE=\"\"***A[a]\n***SWITCH***SWITCH", "2: syntax error\n");
  ExpectError("MENU_TITLE=\"\"\n***SWITCH***RESOURCE", "2: syntax error\n");
}

TEST(MenuParser, AFileMustBeginWithItsTitle) {
  ExpectError("", "1: syntax error\n");
  ExpectError("\n\n***A\n[a]\n", "3: syntax error\n");
  ExpectError("MENU_TITLE \"x\"", "1: syntax error\n");
  ExpectError("MENU_TITLE =\n5", "2: syntax error\n");
}

TEST(MenuParser, ABlockWithoutLinesAndASwitchWithoutStatesAreErrors) {
  ExpectError(WithBlocks("***A\n"), "3: syntax error\n");
  ExpectError(WithBlocks("***A K = 8,\"X\"\n***B\n[b]\n"), "3: syntax error\n");
  ExpectError("MENU_TITLE=\"\"\n***A[a]\n***SWITCH\n**S GET=g SET=s\n***RESOURCE\n",
              "5: syntax error\n");
  ExpectError("MENU_TITLE=\"\"\n***A[a]\n***SWITCH\n**S GET=g SET=s\n**T GET=g SET=s\n0=a,\"\"\n",
              "5: syntax error\n");
}

TEST(MenuParser, PopIsReservedAndNoRuleUsesIt) {
  ExpectError("POP = RCLICK\n" + WithBlocks("***A\n[a]\n"), "1: syntax error\n");
  ExpectError(WithBlocks("POP = CTRL + RCLICK\n***A\n[a]\n"), "2: syntax error\n");
}

TEST(MenuParser, AWrongTokenAfterACompleteFileLeavesTheModelEmpty) {
  ExpectError(WithBlocks("***A\n[a]\n") + "\n***B", "7: syntax error\n");
  ExpectError(WithBlocks("***A\n[a]\n") + "5", "6: syntax error\n");
}

TEST(MenuParser, AFailedFileKeepsTheOldTitle) {
  Compiled compiled;
  compiled.system.m_strTitle = L"old";
  Compile("MENU_TITLE = \"new\"", compiled);
  EXPECT_TRUE(compiled.system.m_strTitle == L"old");
}

TEST(MenuParser, TheSecondIdentifierIsAKindOnlyBeforeAnEqualSign) {
  Parsed parsed(WithBlocks("***A B\n[x]\nC [y]\n***D E = 62,1\nF [z]\n"));
  EXPECT_EQ(parsed.Tree(),
            "title \"t\"\nbar A\n  \"x\" icon B\n  \"y\" icon C\nbar D kind E 62=1\n"
            "  \"z\" icon F\n");
  ExpectError(WithBlocks("***A B C\n[x]\n"), "2: syntax error\n");
  ExpectError(WithBlocks("***A\nB\n***C\n[x]\n"), "4: syntax error\n");
}

TEST(MenuParser, AMaskOfThreeGroupsKeepsFirstAndLast) {
  Parsed parsed(WithBlocks("***A B = 8,\"X\",0,\"Y\",62,1\n[x]\n"));
  EXPECT_EQ(parsed.Tree(), "title \"t\"\nbar A kind B 8=\"X\" 62=1\n  \"x\"\n");
  parsed.~Parsed();
  new (&parsed) Parsed(WithBlocks("***A B = 8,\"X\",0,\"Y\",62,1,40,2.5\n[x]\n"));
  EXPECT_EQ(parsed.Tree(), "title \"t\"\nbar A kind B 8=\"X\" 40=2.5\n  \"x\"\n");
}

TEST(MenuParser, ShortGroupValuesAreTruncatedTo16SignedBits) {
  Parsed parsed(WithBlocks("***A B = 62,40000,70,65537\n[x]\n"));
  EXPECT_EQ(parsed.Tree(), "title \"t\"\nbar A kind B 62=-25536 70=1\n  \"x\"\n");
}

TEST(MenuParser, AGroupOfTheWrongKindIsReportedAndDropsEveryBlock) {
  Parsed parsed(
      "MENU_TITLE=\"t\"\n***Z\n[z]\n***A B = 0,5\n[a]\n***C\n[c]\n***SWITCH\n"
      "**S GET=g SET=s\n0=a,\"l\"\n***RESOURCE\nR=\"i\",\"j\"\n");
  EXPECT_EQ(parsed.result, 0);
  EXPECT_EQ(parsed.messages.Text(), "4: Dxf code 0 is not integer code\n");
  EXPECT_EQ(parsed.Tree(),
            "title \"t\"\nresource R \"i\" \"j\"\nswitch S get g set s\n  0 \"l\" icon a at -1\n");
}

TEST(MenuParser, EachKindOfGroupHasItsMessage) {
  EXPECT_EQ(Parsed(WithBlocks("***A B = 8,5\n[a]\n")).messages.Text(),
            "2: Dxf code 8 is not integer code\n");
  EXPECT_EQ(Parsed(WithBlocks("***A B = 62,5.5\n[a]\n")).messages.Text(),
            "2: Dxf code 62 is not real code\n");
  EXPECT_EQ(Parsed(WithBlocks("***A B = 62,\"x\"\n[a]\n")).messages.Text(),
            "2: Dxf code 62 is not integer code\n");
  EXPECT_EQ(Parsed(WithBlocks("***A B = 90,5\n[a]\n")).messages.Text(),
            "2: Dxf code 90 is not integer code\n");
}

TEST(MenuParser, TheGroupCodeIsNotTruncatedBeforeItsKindIsLookedUp) {
  EXPECT_EQ(Parsed(WithBlocks("***A B = 65544,\"x\"\n[a]\n")).messages.Text(),
            "2: Dxf code 65544 is not integer code\n");
}

TEST(MenuParser, AWrongGroupIsReportedBeforeTheNextTokenIsRead) {
  Parsed parsed("MENU_TITLE=\"t\"\n***A B = 0,5\n\n\n\"raw\n");
  EXPECT_EQ(parsed.messages.Text(),
            "2: Dxf code 0 is not integer code\n"
            "5: \\n字串没有结束就出现换行符号!\n"
            "5: syntax error\n");
}

TEST(MenuParser, EveryWrongGroupOfAMaskIsReported) {
  Parsed parsed(WithBlocks("***A B = 0,5,\n8,\"x\",\n1,2.5\n[a]\n"));
  EXPECT_EQ(parsed.messages.Text(),
            "2: Dxf code 0 is not integer code\n4: Dxf code 1 is not real code\n");
  EXPECT_EQ(parsed.system.Length(), 0);
}

TEST(MenuParser, ALaterWrongGroupDropsTheBlocksToo) {
  Parsed parsed(WithBlocks("***A B = 8,\"x\",0,5\n[a]\n***C D = 8,\"x\"\n[c]\n"));
  EXPECT_EQ(parsed.result, 0);
  EXPECT_EQ(parsed.system.Length(), 0);
}

TEST(MenuParser, TheScannersMessageComesBeforeTheSyntaxError) {
  ExpectError("MENU_TITLE = \"abc\n", "1: \\n字串没有结束就出现换行符号!\n1: syntax error\n");
  ExpectError(WithBlocks("***A\n[" + std::string(300, 'x') + "]\n"),
              "3: 字符串超长\n3: syntax error\n");
}

TEST(MenuParser, TokensMayBeSpreadOverLines) {
  EXPECT_EQ(Parsed("MENU_TITLE\n=\n\"t\"\n***\nA\nB\n=\n8\n,\n\"x\"\nI\n[a]\n***\nSWITCH\n***\n"
                   "RESOURCE\nR\n=\n\"\"\n,\n\"\"\n")
                .result,
            0);
}

TEST(MenuParser, CarriageReturnsMakeNoDifference) {
  std::string source = WithBlocks("***A\n[a]x;\n");
  Parsed plain(source);
  for (size_t at = 0; (at = source.find('\n', at)) != std::string::npos; at += 2)
    source.insert(at, "\r");
  EXPECT_EQ(Parsed(source).Tree(), plain.Tree());
}

TEST(MenuParser, TextIsDecodedFromTheCodePage) {
  Parsed parsed(
      "MENU_TITLE = \"\xC6\xE6\xCE\xAC\"\n***A\n[\xC7\xBD]\xBB\xAD;\n***SWITCH\n"
      "***RESOURCE\n");
  EXPECT_EQ(parsed.Tree(), "title \"奇维\"\nbar A\n  \"墙\" \"画\\n\"\n");
}

TEST(MenuParser, ABracketInsideADoubleByteCharacterIsNoBracket) {
  // The second byte of this character is 5D, a closing bracket.
  Parsed parsed("MENU_TITLE = \"\"\n***A\n[\x81\x5D]x\n***SWITCH\n***RESOURCE\n");
  EXPECT_EQ(parsed.Tree(), "title \"\"\nbar A\n  \"乚\" \"x\\n\"\n");
}

TEST(MenuParser, EscapesInStringsAreKeptAsWritten) {
  Parsed parsed("MENU_TITLE = \"a\\\"b\"\n***A\n[a]\n***SWITCH\n***RESOURCE\n");
  EXPECT_TRUE(parsed.system.m_strTitle == L"a\\\"b");
}

TEST(MenuParser, EachParseReplacesTheOldContent) {
  Compiled compiled;
  Compile(WithBlocks("***A\n[a]\n"), compiled);
  Compile(WithBlocks("***B\n[b]\n"), compiled);
  EXPECT_EQ(compiled.Tree(), "title \"t\"\nbar B\n  \"b\"\n");
  compiled.system.m_recent.AddRecent(L"kept");
  Compile("broken", compiled);
  EXPECT_EQ(compiled.system.Length(), 0);
  EXPECT_EQ(compiled.system.m_recent.Length(), 1);
}

TEST(MenuParser, EveryPrefixOfAFileIsASyntaxErrorOrACompleteFile) {
  const std::string source =
      "MENU_TITLE=\"t\"\n***A B = 0,\"x\",62,1\nI [->a]\n[<-{~=f}b]c;\n***SWITCH\n"
      "**S GET=g SET=s\n0=i,\"l\"\n***RESOURCE\nR=\"a\",\"b\"\n";
  int accepted = 0;
  for (size_t i = 0; i < source.size(); ++i) {
    Parsed parsed(source.substr(0, i));
    EXPECT_EQ(parsed.messages.all.empty(), parsed.result == 0) << i;
    accepted += parsed.result == 0;
  }
  EXPECT_EQ(accepted, 3);  // after RESOURCE, after its newline, without the last newline
}

TEST(SourceMessages, HaveTheFormThatTheCommandLineShows) {
  EXPECT_TRUE(FormatSyntaxError(L"syntax error", 12) == L" \n语法错误，第12行: syntax error");
}

}  // namespace
