// The global functions yylex and yyparse.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "menu/menu_token.h"
#include "menu/yacc_entry.h"
#include "tests/menu/menu_testing.h"

namespace {

struct YaccEntry : testing::Test {
  void Begin(const std::string& source) {
    in.reset(std::tmpfile());
    ASSERT_TRUE(in);
    std::fwrite(source.data(), 1, source.size(), in.get());
    std::rewind(in.get());
    yybegin(in.get(), nullptr, messages, system);
  }
  ~YaccEntry() override { yyend(); }
  std::string TakeText() {
    std::string text = yylval.text;
    std::free(yylval.text);
    return text;
  }
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> in;
  CollectedMessages messages;
  TMenuSystem system;
};

TEST_F(YaccEntry, YylexReturnsTokensAndTheirValues) {
  Begin("abc 12 1.5\n\"s\" [m]\n***");
  EXPECT_EQ(yylex(), QMN_IDENTIFIER);
  EXPECT_EQ(TakeText(), "abc");
  EXPECT_EQ(yylex(), QMN_ICON);
  EXPECT_EQ(yylval.number, 12);
  EXPECT_EQ(yylex(), QMN_FCON);
  EXPECT_EQ(yylval.real, 1.5);
  EXPECT_EQ(yylex(), QMN_STRING);
  EXPECT_EQ(TakeText(), "s");
  EXPECT_EQ(yylineno(), 2);
  EXPECT_EQ(yylex(), QMN_MENU_ITEM);
  EXPECT_EQ(TakeText(), "[m]");
  EXPECT_EQ(yylex(), QMN_PREFIX);
  EXPECT_EQ(yylex(), QMN_END);
  EXPECT_EQ(yylex(), QMN_END);
}

TEST_F(YaccEntry, YyparseFillsTheSystemWithoutRunningThePasses) {
  Begin("MENU_TITLE=\"t\"***A[->a]\n[<-b]\n***SWITCH***RESOURCE");
  EXPECT_EQ(yyparse(), 0);
  EXPECT_EQ(DumpTree(system), "title \"t\"\nbar A\n  \"->a\"\n  \"<-b\"\n");
}

TEST_F(YaccEntry, YyparseReturnsOneOnASyntaxError) {
  Begin("MENU_TITLE\n5");
  EXPECT_EQ(yyparse(), 1);
  EXPECT_EQ(messages.Text(), "2: syntax error\n");
}

TEST_F(YaccEntry, WithoutARunThereIsNothingToRead) {
  yyend();
  EXPECT_EQ(yylex(), QMN_END);
  EXPECT_EQ(yyparse(), 1);
  EXPECT_EQ(yylineno(), 0);
}

TEST_F(YaccEntry, TheErrorTokensCarryTheirTextToo) {
  Begin("\"ab\n[cd");
  EXPECT_EQ(yylex(), QMN_ERR_STRING);
  EXPECT_EQ(TakeText(), "ab");
  EXPECT_EQ(yylex(), QMN_ERR_MENU_ITEM);
  EXPECT_EQ(TakeText(), "[cd");
  EXPECT_EQ(yylex(), QMN_END);
}

}  // namespace
