// The scanner: each pattern, limit and message, with line numbers.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "menu/menu_scanner.h"
#include "tests/menu/menu_testing.h"

namespace {

struct Scan {
  explicit Scan(std::string text) : source(std::move(text)) {
    FoldLineEnds(source);
    MenuScanner scanner(source, messages, nullptr, OpenComment::kStop);
    MenuToken token;
    while (scanner.Next(token) != QMN_END) tokens.push_back(token);
    line = scanner.Line();
  }
  std::vector<int> Kinds() const {
    std::vector<int> kinds;
    for (const MenuToken& token : tokens) kinds.push_back(token.kind);
    return kinds;
  }
  std::string Text(size_t i) const { return std::string(tokens.at(i).text); }
  std::string source;
  CollectedMessages messages;
  std::vector<MenuToken> tokens;
  int line = 0;
};

using Kinds = std::vector<int>;

TEST(MenuScanner, TokenNumbersAreFixed) {
  EXPECT_EQ(QMN_ERR_STRING, 257);
  EXPECT_EQ(QMN_MENU_ITEM, 261);
  EXPECT_EQ(QMN_PREFIX, 267);
  EXPECT_EQ(QMN_SET_STATE, 276);
}

TEST(MenuScanner, ThreeStarsAndTwoStarsAreTokensAndASingleOneIsSkipped) {
  EXPECT_EQ(Scan("***").Kinds(), Kinds{QMN_PREFIX});
  EXPECT_EQ(Scan("**").Kinds(), Kinds{QMN_SUB_PREFIX});
  EXPECT_EQ(Scan("****").Kinds(), Kinds{QMN_PREFIX});
  EXPECT_EQ(Scan("*****").Kinds(), (Kinds{QMN_PREFIX, QMN_SUB_PREFIX}));
  EXPECT_EQ(Scan("*").Kinds(), Kinds{});
}

TEST(MenuScanner, KeywordsAreCaseSensitiveWholeWords) {
  EXPECT_EQ(Scan("POP RCLICK CTRL RESOURCE SWITCH GET SET MENU_TITLE").Kinds(),
            (Kinds{QMN_POP, QMN_RCLICK, QMN_CTRL, QMN_MENU_RES, QMN_MENU_SWITCH, QMN_GET_STATE,
                   QMN_SET_STATE, QMN_TITLE}));
  EXPECT_EQ(Scan("SWITCHES switch GETX POP1 _POP").Kinds(), Kinds(5, QMN_IDENTIFIER));
}

TEST(MenuScanner, IdentifiersAreLettersDigitsAndUnderscores) {
  Scan scan("a_1 _x Z9z");
  EXPECT_EQ(scan.Text(0), "a_1");
  EXPECT_EQ(scan.Text(1), "_x");
  EXPECT_EQ(scan.Text(2), "Z9z");
}

TEST(MenuScanner, IntegersSaturate) {
  Scan scan("0 007 2147483647 2147483648 99999999999999999999999999");
  EXPECT_EQ(scan.tokens[1].number, 7);
  EXPECT_EQ(scan.tokens[2].number, 2147483647);
  EXPECT_EQ(scan.tokens[3].number, 2147483647);
  EXPECT_EQ(scan.tokens[4].number, 2147483647);
}

TEST(MenuScanner, RealsNeedAPointFollowedByADigit) {
  Scan scan("1.5e3 .5 1.5E-2 12.25");
  EXPECT_EQ(scan.Kinds(), Kinds(4, QMN_FCON));
  EXPECT_EQ(scan.tokens[0].real, 1500.0);
  EXPECT_EQ(scan.tokens[1].real, 0.5);
  EXPECT_EQ(scan.tokens[2].real, 0.015);
  EXPECT_EQ(scan.tokens[3].real, 12.25);
  EXPECT_EQ(Scan("5.").Kinds(), Kinds{QMN_ICON});
  EXPECT_EQ(Scan("1e5").Kinds(), (Kinds{QMN_ICON, QMN_IDENTIFIER}));
}

TEST(MenuScanner, AnExponentWithoutDigitsIsTheNextToken) {
  Scan scan("1.5e 1.5e+ 1.2.3");
  EXPECT_EQ(scan.Kinds(), (Kinds{QMN_FCON, QMN_IDENTIFIER, QMN_FCON, QMN_IDENTIFIER, QMN_PLUS,
                                 QMN_FCON, QMN_FCON}));
  EXPECT_EQ(scan.Text(1), "e");
  EXPECT_EQ(scan.tokens[6].real, 0.3);
}

TEST(MenuScanner, RealsBeyondTheRangeAreInfiniteOrZero) {
  Scan scan("1.0e999 1.0e-999");
  EXPECT_TRUE(std::isinf(scan.tokens[0].real));
  EXPECT_EQ(scan.tokens[1].real, 0.0);
}

TEST(MenuScanner, AMinusIsNoPartOfANumber) {
  Scan scan("-5");
  EXPECT_EQ(scan.Kinds(), Kinds{QMN_ICON});
  EXPECT_EQ(scan.tokens[0].number, 5);
}

TEST(MenuScanner, StrayBytesAreSkippedWithoutAMessage) {
  Scan scan("a / * . - \x80\xff\x1a\r ; b");
  EXPECT_EQ(scan.Kinds(), Kinds(2, QMN_IDENTIFIER));
  EXPECT_EQ(scan.messages.Text(), "");
}

TEST(MenuScanner, StrayBytesAndNewlinesGoToTheEchoAndBlanksDoNot) {
  const std::wstring path = TempPath(L"echo.out");
  {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), std::fclose);
    ASSERT_TRUE(file);
    CollectedMessages messages;
    const std::string source = "a;\n b\t/.*[x]\n";
    {
      SourceEcho echo(file.get());
      MenuScanner scanner(source, messages, &echo);
      MenuToken token;
      while (scanner.Next(token) != QMN_END) {
      }
    }
    std::rewind(file.get());
    char text[20] = {};
    const size_t count = std::fread(text, 1, sizeof text, file.get());
    EXPECT_EQ(std::string(text, count), ";\n/.*\n");
  }
}

TEST(MenuScanner, PunctuationGivesItsTokens) {
  EXPECT_EQ(Scan(",+=").Kinds(), (Kinds{QMN_COMA, QMN_PLUS, QMN_EQUAL}));
}

TEST(MenuScanner, AnIdentifierMayPrecedeAMenuLine) {
  Scan scan("WALLICON [Wall]^C^CTWall\n");
  EXPECT_EQ(scan.Kinds(), (Kinds{QMN_IDENTIFIER, QMN_MENU_ITEM}));
  EXPECT_EQ(scan.Text(1), "[Wall]^C^CTWall");
}

TEST(MenuScanner, AMenuLineMayContainAnyCharacter) {
  Scan scan("[a]\"/* // \x80[***\nx");
  EXPECT_EQ(scan.Text(0), "[a]\"/* // \x80[***");
  EXPECT_EQ(scan.Text(1), "x");
}

TEST(MenuScanner, CarriageReturnsAreRemovedOnlyBeforeANewline) {
  Scan scan("[a\rb]\r\n[c]\r\r\n");
  EXPECT_EQ(scan.Text(0), "[a\rb]");
  EXPECT_EQ(scan.Text(1), "[c]\r");
}

TEST(MenuScanner, ALineOf199BytesFitsAndOneOf200DoesNot) {
  Scan fits("[" + std::string(198, 'x') + "\ny");
  EXPECT_EQ(fits.Kinds(), (Kinds{QMN_MENU_ITEM, QMN_IDENTIFIER}));
  EXPECT_EQ(fits.Text(0).size(), 199u);
  Scan not_(std::string("[") + std::string(199, 'x') + "\ny");
  EXPECT_EQ(not_.tokens[0].kind, QMN_ERR_MENU_ITEM);
  EXPECT_EQ(not_.Text(0).size(), 199u);
  EXPECT_EQ(not_.messages.Text(), "1: 字符串超长\n");
}

TEST(MenuScanner, TheByteThatInterruptsAMenuLineIsDropped) {
  Scan scan("[" + std::string(198, 'x') + "ab\n");
  EXPECT_EQ(scan.Kinds(), (Kinds{QMN_ERR_MENU_ITEM, QMN_IDENTIFIER}));
  EXPECT_EQ(scan.Text(1), "b");
}

TEST(MenuScanner, TheLastMenuLineMustEndInANewline) {
  Scan scan("\n[abc");
  EXPECT_EQ(scan.Kinds(), Kinds{QMN_ERR_MENU_ITEM});
  EXPECT_EQ(scan.Text(0), "[abc");
  EXPECT_EQ(scan.messages.Text(), "2: 碰到文件结束符或非法字符,字符串还未结束\n");
  EXPECT_EQ(Scan("[" + std::string(198, 'x')).messages.Text(), "1: 字符串超长\n");
}

TEST(MenuScanner, AStringKeepsItsEscapesAsWritten) {
  Scan scan("\"a\\\"b\" \"\" \"\\\\\"");
  EXPECT_EQ(scan.Kinds(), Kinds(3, QMN_STRING));
  EXPECT_EQ(scan.Text(0), "a\\\"b");
  EXPECT_EQ(scan.Text(0).size(), 4u);
  EXPECT_EQ(scan.Text(1), "");
  EXPECT_EQ(scan.Text(2), "\\\\");
}

TEST(MenuScanner, ARawNewlineEndsAStringWithTheNumberOfItsLine) {
  Scan scan("\n\n\"ab\ncd");
  EXPECT_EQ(scan.Kinds(), (Kinds{QMN_ERR_STRING, QMN_IDENTIFIER}));
  EXPECT_EQ(scan.Text(0), "ab");
  EXPECT_EQ(scan.messages.Text(), "3: \\n字串没有结束就出现换行符号!\n");
  EXPECT_EQ(scan.line, 4);
}

TEST(MenuScanner, AnEscapedNewlineIsKeptInTheStringAndCounted) {
  Scan scan("\"a\\\nb\" c");
  EXPECT_EQ(scan.Text(0), "a\\\nb");
  EXPECT_EQ(scan.line, 2);
  EXPECT_EQ(scan.messages.Text(), "");
}

TEST(MenuScanner, TheEndOfTheFileInsideAStringIsReported) {
  for (const char* text : {"\"ab", "\"ab\\"}) {
    Scan scan(text);
    EXPECT_EQ(scan.Kinds(), Kinds{QMN_ERR_STRING});
    EXPECT_EQ(scan.messages.Text(), "1: \\n字符串没有结束, 文件就结束了!\n");
  }
}

TEST(MenuScanner, TheLongestStringHas197BytesAndTheClosingQuote) {
  EXPECT_EQ(Scan("\"" + std::string(197, 'x') + "\"").Kinds(), Kinds{QMN_STRING});
  Scan scan("\"" + std::string(198, 'x') + "\" y");
  EXPECT_EQ(scan.tokens[0].kind, QMN_ERR_STRING);
  EXPECT_EQ(scan.messages.all[0], "1: \\nExceee maximium string!");
}

TEST(MenuScanner, AnEscapeThatReachesTheLimitEndsTheString) {
  EXPECT_EQ(Scan("\"" + std::string(195, 'x') + "\\\"\"").Kinds(), Kinds{QMN_STRING});
  Scan scan("\"" + std::string(197, 'x') + "\\\"\"");
  EXPECT_EQ(scan.messages.all[0], "1: \\nExceee maximium string!");
}

TEST(MenuScanner, ANewlineAtTheLimitIsCounted) {
  Scan scan("\"" + std::string(198, 'x') + "\nz");
  EXPECT_EQ(scan.messages.Text(), "2: \\nExceee maximium string!\n");
  EXPECT_EQ(scan.Text(1), "z");
}

TEST(MenuScanner, ASecondByteThatIsABackslashEscapesTheClosingQuote) {
  Scan scan("\"\x95\x5c\" x\"");
  EXPECT_EQ(scan.Kinds(), Kinds{QMN_STRING});
  EXPECT_EQ(scan.Text(0), "\x95\x5c\" x");
}

TEST(MenuScanner, CommentsAreSkippedAndTheirLinesCount) {
  Scan scan("a // b\n/* c\n * d **/ e /**/ f /*/ g */ h");
  EXPECT_EQ(scan.Kinds(), Kinds(4, QMN_IDENTIFIER));
  EXPECT_EQ(scan.Text(2), "f") << "the shortest comment has four characters";
  EXPECT_EQ(scan.Text(3), "h");
  EXPECT_EQ(scan.line, 3);
}

TEST(MenuScanner, PunctuationTokensHaveTheirText) {
  Scan scan("a+b,c=d***e**f");
  for (const auto& [at, text] : {std::pair(1, "+"), {3, ","}, {5, "="}, {7, "***"}, {9, "**"}})
    EXPECT_EQ(scan.Text(static_cast<size_t>(at)), text);
}

TEST(MenuScanner, CommentsDoNotNest) {
  Scan scan("/* /* */ a");
  EXPECT_EQ(scan.Text(0), "a");
}

TEST(MenuScanner, AnUnterminatedCommentIsReportedOnRequest) {
  for (const char* text : {"a // b", "a /* b", "a /*", "a /* *", "a //"}) {
    CollectedMessages messages;
    const std::string source = text;
    MenuScanner scanner(source, messages, nullptr, OpenComment::kStop);
    MenuToken token;
    EXPECT_EQ(scanner.Next(token), QMN_IDENTIFIER);
    EXPECT_EQ(scanner.OpenCommentAt(), nullptr);
    EXPECT_EQ(scanner.Next(token), QMN_END);
    EXPECT_EQ(scanner.OpenCommentAt(), source.data() + 2);
  }
}

TEST(MenuScanner, AByteZeroReadsAsTheEndExceptInComments) {
  using namespace std::string_literals;
  EXPECT_EQ(Scan("a\0b"s).Kinds(), Kinds{QMN_IDENTIFIER});
  const std::string source = "\0b"s;
  CollectedMessages messages;
  MenuToken end;
  EXPECT_EQ(MenuScanner(source, messages).Next(end), QMN_END);
  EXPECT_TRUE(end.text.empty()) << "the zero is no part of it";
  EXPECT_EQ(Scan("/* \0 */ // \0\na"s).Kinds(), Kinds{QMN_IDENTIFIER});
  EXPECT_EQ(Scan("\"a\0"s).messages.Text(), "1: \\n字符串没有结束, 文件就结束了!\n");
  Scan scan("[a\0b\n"s);
  EXPECT_EQ(scan.messages.Text(), "1: 碰到文件结束符或非法字符,字符串还未结束\n");
  EXPECT_EQ(scan.Text(1), "b");
}

TEST(MenuScanner, ALongWordIsSplitAt199Bytes) {
  Scan scan(std::string(250, 'x') + " " + std::string(250, '7') + " " + std::string(197, '1') +
            ".5e2");
  EXPECT_EQ(scan.Text(0).size(), 199u);
  EXPECT_EQ(scan.Text(1).size(), 51u);
  EXPECT_EQ(scan.tokens[2].number, 2147483647);
  EXPECT_EQ(scan.Text(3).size(), 51u);
  EXPECT_EQ(scan.tokens[4].kind, QMN_FCON);
  EXPECT_EQ(scan.Text(4).size(), 199u);
  EXPECT_EQ(scan.Text(5), "e2");
}

TEST(MenuScanner, EveryPrefixOfASourceEndsInTheEndToken) {
  const std::string source = "MENU_TITLE=\"a\\\"\"/*x*/***A B=8,1.5e+3//\n[->q]^C\"\n**1.\x81\n";
  for (size_t i = 0; i <= source.size(); ++i) Scan(source.substr(0, i));
  SUCCEED();
}

}  // namespace
