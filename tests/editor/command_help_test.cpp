// F1: help on the running command by the map of commands.
#include "editor/command_help.h"

#include "tests/editor/filter_test.h"

namespace editortest {
namespace {

class CommandHelpTest : public FilterTest {
 protected:
  void SetUp() override {
    FilterTest::SetUp();
    host.helpFile = L"C:\\s\\qvx.chm";
    host.files = {L"qvxcmd.txt"};
    host.command = L"TWALL";
    host.bytes = "wall TWall\ndoor TDoor\n";
  }
};

std::string KeywordOf(const std::string& map, const wchar_t* command) {
  return Utf8(qvx::FindHelpKeyword(map, command));
}

TEST_F(CommandHelpTest, OpensTheHelpFileThreeTimesAndSwallowsTheKey) {
  EXPECT_EQ(
      Order(Key(VK_F1)),
      (Entries{"CMDNAMES?", "ctrl?", "help file?", "find qvxcmd.txt?", "command?",
               "read C:\\s\\qvxcmd.txt", "help topic C:\\s\\qvx.chm ",
               "help keyword C:\\s\\qvx.chm wall", "help index C:\\s\\qvx.chm wall", "close tip"}));
  EXPECT_TRUE(Filter(Key(VK_F1)));
}

TEST_F(CommandHelpTest, WorksInABusyHost) {
  host.isIdle = false;
  EXPECT_TRUE(Filter(Key(VK_F1)));
}

TEST_F(CommandHelpTest, IsLeftToTheHostWithoutHelpFileMapReadableMapOrLine) {
  const auto isLeft = [this] {
    const bool swallowed = Filter(Key(VK_F1));
    for (const std::string& entry : diary.entries) EXPECT_NE(entry.rfind("help topic", 0), 0u);
    return !swallowed;
  };
  host.command = L"LINE";
  EXPECT_TRUE(isLeft());
  host.command.clear();
  EXPECT_TRUE(isLeft());
  host.command = L"TWALL";
  host.canRead = false;
  EXPECT_TRUE(isLeft());
  host.canRead = true;
  host.files.clear();
  EXPECT_TRUE(isLeft());
  EXPECT_FALSE(Asked("command?"));
  host.files = {L"qvxcmd.txt"};
  host.helpFile.clear();
  EXPECT_TRUE(isLeft());
  EXPECT_FALSE(Asked("find qvxcmd.txt?"));
}

TEST(HelpKeyword, IsThatOfTheFirstLineForTheCommandIgnoringCase) {
  EXPECT_EQ(KeywordOf("a TA\nb tb\nc TB\n", L"TB"), "b");
  EXPECT_EQ(KeywordOf("a TA\r\nb TB", L"tb"), "b") << "the last line may lack its end";
  EXPECT_EQ(KeywordOf("\"two words\" TB more\n", L"TB"), "two words");
  EXPECT_EQ(KeywordOf("a TBX\n", L"TB"), "");
  EXPECT_EQ(KeywordOf("a XTB\n", L"TB"), "");
}

TEST(HelpKeyword, LinesWithAnEmptyWordAreSkipped) {
  EXPECT_EQ(KeywordOf("\n\nTB\n\"\" TB\na \"\"\n\t b\tTB \n", L"TB"), "b");
  EXPECT_EQ(KeywordOf("a \"\"\n", L""), "");
  EXPECT_EQ(KeywordOf("", L"TB"), "");
}

TEST(HelpKeyword, LinesOfMoreThan255CharactersAreReadInPieces) {
  EXPECT_EQ(KeywordOf(std::string(255, 'x') + "a TB\n", L"TB"), "a");
  const std::string cut = std::string(253, 'x') + " a TB\n";
  EXPECT_EQ(KeywordOf(cut, L"A"), std::string(253, 'x'));
  EXPECT_EQ(KeywordOf(cut, L"TB"), "");
}

TEST(HelpKeyword, TheMapIsInTheChineseCodePage) {
  EXPECT_EQ(KeywordOf("\xC7\xBD\xCC\xE5 TWall\n", L"TWALL"), "墙体");
}

TEST(HelpKeyword, RandomBytesFindNothingAndDoNoHarm) {
  unsigned state = 7;
  for (int round = 0; round < 200; ++round) {
    std::string map;
    for (int i = 0; i < 700; ++i) {
      state = state * 1664525 + 1013904223;
      map += static_cast<char>(state >> 24);
    }
    EXPECT_EQ(KeywordOf(map, L"TWALL"), "");
  }
}

}  // namespace
}  // namespace editortest
