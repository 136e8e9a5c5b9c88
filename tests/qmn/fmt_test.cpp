// qmn fmt: one layout, reached in one pass, without loss of comments or change of compiled bytes.
#include <algorithm>
#include <random>
#include <sstream>

#include "tests/qmn/qmn_testing.h"
#include "tests/qmn/source_mutation.h"
#include "tools/qmn/fmt_source.h"
#include "tools/qmn/fmt_tokens.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"
#include "tools/qmn/text_diff.h"

namespace {

constexpr unsigned kPage = 936;

class QmnFmt : public QmnTest {};

std::string Formatted(const std::string& source) {
  const QmnRun run = Qmn({"fmt", "-"}, source);
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(Qmn({"fmt", "-"}, run.out).out, run.out);
  EXPECT_EQ(Qmn({"compile", "-"}, run.out).out, Qmn({"compile", "-"}, source).out);
  return run.out;
}

// A source with these lines in its one block.
std::string Block(const std::string& lines) {
  return "MENU_TITLE = \"T\"\n\n***B\n" + lines + "\n***SWITCH\n\n***RESOURCE\n";
}

TEST_F(QmnFmt, FormatsEveryConstruct) {
  EXPECT_EQ(
      Formatted("\n\nMENU_TITLE\n=\n\"T\"***A K=0,\"X\"\n,\n62\t,  3 \n\n\nWALL[a]x;  \t\n"
                "  [--]\n ICONS   [<-b]y\n***B X[c]\n"
                "*** SWITCH **S GET = G SET = Set\n0=A,\"off\"\n10 =LONGER  ,\"on\" ** LONG\n"
                "GET=Get SET=S 1=A,\"x\"\n\n\n***\nRESOURCE A=\"i\" , \"h\" LONGER=\"j\",\"\""),
      "MENU_TITLE = \"T\"\n"
      "\n"
      "***A K = 0,\"X\",62,3\n"
      "\n"
      "WALL  [a]x;\n"
      "[--]\n"
      "ICONS [<-b]y\n"
      "\n"
      "***B\n"
      "X [c]\n"
      "\n"
      "***SWITCH\n"
      "**S    GET=G   SET=Set\n"
      "0  = A,      \"off\"\n"
      "10 = LONGER, \"on\"\n"
      "**LONG GET=Get SET=S\n"
      "1  = A,      \"x\"\n"
      "\n"
      "***RESOURCE\n"
      "A      = \"i\",\"h\"\n"
      "LONGER = \"j\",\"\"\n");
}

TEST_F(QmnFmt, ALongNameDoesNotChangeTheAlignmentOfOthers) {
  const std::string wide(25, 'W'), fits(24, 'F');
  EXPECT_EQ(Formatted(Block("A [a]\n" + wide + "[b]\n")), Block("A [a]\n" + wide + " [b]\n"));
  EXPECT_EQ(Formatted(Block("A [a]\n" + fits + "[b]\n")),
            Block("A" + std::string(24, ' ') + "[a]\n" + fits + " [b]\n"));
}

TEST_F(QmnFmt, CommentsStayOnTheirLinesAndAtTheEndsOfLines) {
  EXPECT_EQ(Formatted("// top  \n/* a */ /* b */\n\n\n\nMENU_TITLE=\"T\"// title\n"
                      "  // of B\n***B /* one */ /* two\n lines */ // three\n"
                      "/* x */ [a]x\n  // last\n\n***SWITCH//s\n***RESOURCE\n//end\n\n\n"),
            "// top\n/* a */ /* b */\n\nMENU_TITLE = \"T\"  // title\n\n"
            "// of B\n***B  /* one */ /* two\n lines */ // three\n"
            "/* x */\n[a]x\n// last\n\n***SWITCH  //s\n\n***RESOURCE\n//end\n");
}

TEST_F(QmnFmt, CommentsInsideAConstructStayInside) {
  EXPECT_EQ(Formatted(Block("LONGER [a]\nA/* i */[b]\nB // why\n\n [c]\n")),
            Block("LONGER [a]\nA /* i */ [b]\nB // why\n    [c]\n"));
  EXPECT_EQ(
      Formatted("MENU_TITLE /*=*/ = // x\n// y\n\"T\"\n***B\n[a]\n***SWITCH\n***RESOURCE\n"),
      "MENU_TITLE /*=*/ = // x\n    // y\n    \"T\"\n\n***B\n[a]\n\n***SWITCH\n\n***RESOURCE\n");
}

TEST_F(QmnFmt, ACommentAfterABlankLineBelongsToTheNextRow) {
  const std::string source = Block("[a]\n// of a\n\n[b]\n\n// of the switches");
  EXPECT_EQ(Formatted(source), source);
}

TEST_F(QmnFmt, SeveralBlankLinesBecomeOneAlsoBetweenComments) {
  EXPECT_EQ(Formatted(Block("[a]\n// one \t\n\n\n// two\n[b]\n\n\n\n[c]\n")),
            Block("[a]\n// one\n\n// two\n[b]\n\n[c]\n"));
}

TEST_F(QmnFmt, TheTextOfAMenuLineIsKept) {
  const std::string lines = "[a  b] ^C^C x ; y\n[no bracket // no comment\n[\xC7\xBD]\"x;\n";
  EXPECT_EQ(Formatted(Block(lines)), Block(lines));
}

// The first byte of a broken pair may consume the blank after it.
TEST_F(QmnFmt, TrailingBlanksAreRemovedUnlessABrokenCharacterConsumesThem) {
  EXPECT_EQ(Formatted(Block("[a]\xC7\xBD  \n")), Block("[a]\xC7\xBD\n"));
  Formatted(Block("[a]\x81 \n"));
}

TEST_F(QmnFmt, LineEndsAreThoseOfTheFirstLine) {
  const std::string lf = Block("[a]\n");
  std::string crlf;
  for (const char c : lf) crlf += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_EQ(Formatted(lf), lf);
  EXPECT_EQ(Formatted(crlf), crlf);
  EXPECT_EQ(Formatted("\r\n" + lf), crlf);
  EXPECT_EQ(Formatted("\n" + crlf), lf);
  // A CR that belongs to the text is doubled before a line end.
  EXPECT_EQ(Formatted(Block("[a]x\r\r\n[b]\n")), Block("[a]x\r\r\n[b]\n"));
}

TEST_F(QmnFmt, RewritesAFileInPlaceOnlyWhenItChanges) {
  const std::string canonical = Block("[a]\n");
  const std::string path = Write(u8"菜单.qmn", canonical);
  const auto before = std::filesystem::last_write_time(m_folder / u8"菜单.qmn");
  EXPECT_EQ(Qmn({"fmt", path}).code, 0);
  EXPECT_EQ(std::filesystem::last_write_time(m_folder / u8"菜单.qmn"), before);
  Write(u8"菜单.qmn", "\n" + canonical);
  const QmnRun run = Qmn({"fmt", path});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(Read(u8"菜单.qmn"), canonical);
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(QmnFmt, CheckNamesEachFileThatIsNotCanonicalAndWritesNothing) {
  const std::string good = Write(u8"a.qmn", Block("[a]\n"));
  const std::string other = Write(u8"b.qmn", "\n" + Block("[a]\n"));
  const std::string third = Write(u8"c.qmn", Block(" [a]\n"));
  const QmnRun run = Qmn({"fmt", "--check", good, other, third});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.out, other + "\n" + third + "\n");
  EXPECT_EQ(Read(u8"c.qmn"), Block(" [a]\n"));
  EXPECT_EQ(Qmn({"fmt", "--check", good}).code, 0);
  EXPECT_EQ(Qmn({"fmt", "--check", "-"}, Block("[a]\n")).out, "");
}

TEST_F(QmnFmt, DiffShowsTheChangesAndWritesNothing) {
  const std::string path =
      Write(u8"a.qmn", "MENU_TITLE=\"T\"\n***B\n[a]x;\n***SWITCH\n***RESOURCE\n");
  const std::string before = Read(u8"a.qmn");
  const QmnRun run = Qmn({"fmt", "--diff", path});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.out, "--- " + path + "\n+++ " + path +
                         "\n@@ -1,5 +1,8 @@\n-MENU_TITLE=\"T\"\n+MENU_TITLE = \"T\"\n+\n ***B\n"
                         " [a]x;\n+\n ***SWITCH\n+\n ***RESOURCE\n");
  EXPECT_EQ(Read(u8"a.qmn"), before);
  EXPECT_EQ(Qmn({"fmt", path}).code, 0);
  const QmnRun again = Qmn({"fmt", "--diff", path});
  EXPECT_EQ(again.code, 0);
  EXPECT_EQ(again.out, "");
}

TEST_F(QmnFmt, ADiffHasThreeLinesAroundEachChangeAndPatchesTheText) {
  std::string before, after;
  for (int i = 0; i < 40; ++i) {
    before += std::to_string(i) + "\n";
    after += i == 5 ? "five\n" : i == 30 ? "30\nnew\n" : std::to_string(i) + "\n";
  }
  std::ostringstream out;
  WriteDiff("a", before, after, out, false);
  EXPECT_EQ(out.str(),
            "--- a\n+++ a\n@@ -3,7 +3,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n"
            "@@ -29,6 +29,7 @@\n 28\n 29\n 30\n+new\n 31\n 32\n 33\n");
}

TEST_F(QmnFmt, AFolderMeansAllSourcesInIt) {
  std::filesystem::create_directories(m_folder / "menus" / "more");
  Write(u8"menus/b.qmn", "\n" + Block("[a]\n"));
  Write(u8"menus/more/a.qmn", "\n" + Block("[a]\n"));
  const std::string one = Utf8Name(m_folder / "menus" / "b.qmn");
  const std::string two = Utf8Name(m_folder / "menus" / "more" / "a.qmn");
  Write(u8"menus/a.txt", "\n");
  Write(u8"menus/.hidden.qmn", "\n");
  const QmnRun run = Qmn({"fmt", "--check", Name(u8"menus")});
  EXPECT_EQ(run.out, one + "\n" + two + "\n");
  std::filesystem::create_directories(m_folder / "empty");
  const QmnRun empty = Qmn({"fmt", "--check", Name(u8"empty")});
  EXPECT_EQ(empty.code, 3);
  EXPECT_EQ(empty.err,
            Name(u8"empty") + ": error: there is no menu source (*.qmn) in this folder\n");
}

TEST_F(QmnFmt, ASourceWithErrorsIsNotChangedAndTheOthersAre) {
  const std::string bad = Write(u8"a.qmn", "MENU_TITLE\n\"T\"\n");
  const std::string wrongGroup =
      Write(u8"b.qmn", "MENU_TITLE=\"T\"***A B=62,\"x\"\n[a]\n***SWITCH ***RESOURCE");
  const std::string open = Write(u8"c.qmn", Block("[a]\n") + "/* open");
  const std::string fine = Write(u8"d.qmn", "\n" + Block("[a]\n"));
  const QmnRun run = Qmn({"fmt", bad, wrongGroup, open, fine});
  EXPECT_EQ(run.code, 1);
  for (const std::string& place : {bad + ":2:1: error: ", wrongGroup + ":1:22: error: ",
                                   open + ":9:1: error: the comment that begins here never ends"})
    EXPECT_NE(run.err.find(place), std::string::npos) << place << "\n" << run.err;
  EXPECT_EQ(Read(u8"a.qmn"), "MENU_TITLE\n\"T\"\n");
  EXPECT_EQ(Read(u8"d.qmn"), Block("[a]\n"));
}

TEST_F(QmnFmt, BytesThatTheLanguageSkipsAreKept) {
  const std::string zero("\0x", 2);
  for (const std::string& stray : {std::string("-"), std::string("\xC7\xBD"), std::string("\f"),
                                   std::string("*"), std::string("/ "), zero, std::string("\r ")}) {
    const std::string source = Block("[a]\n") + "\n" + stray;
    const QmnRun run = Qmn({"fmt", "-"}, source);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "-:10: error: bytes that the language skips stand here, which a new layout would "
              "lose; 'qmn check' shows them\n")
        << stray;
  }
}

TEST_F(QmnFmt, UnreadableFilesExitWithThreeAndTheOthersAreFormatted) {
  const std::string fine = Write(u8"d.qmn", "\n" + Block("[a]\n"));
  const QmnRun run = Qmn({"fmt", Name(u8"none.qmn"), fine});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Name(u8"none.qmn") + ": error: can't be read: there is no such file\n");
  EXPECT_EQ(Read(u8"d.qmn"), Block("[a]\n"));
}

std::vector<std::string> CommentsOf(const std::string& source) {
  std::string folded = source;
  folded.erase(std::remove(folded.begin(), folded.end(), '\r'), folded.end());
  std::vector<std::string> comments;
  for (const SourceComment& comment : TokenizeSource(folded).comments)
    comments.emplace_back(comment.text);
  return comments;
}

TEST_F(QmnFmt, MutatedSourcesKeepBytesAndCommentsAndAreFormattedInOnePass) {
  const std::vector<std::string> seeds = SeedSources();
  std::mt19937 random(5);
  int done = 0;
  for (int i = 0; i < 6000; ++i) {
    const std::string source = MutatedSource(seeds, random);
    TMenuSystem system, again;
    SilentMessages messages;
    if (!CompileSource(source, messages, system).accepted || messages.Count()) continue;
    const FormattedSource once = FormatSource(source, kPage);
    if (once.strayLine) continue;
    ASSERT_TRUE(CompileSource(once.text, messages, again).accepted) << source;
    ASSERT_EQ(SaveBytes(again), SaveBytes(system)) << source;
    ASSERT_EQ(CommentsOf(once.text), CommentsOf(source)) << source;
    ASSERT_EQ(FormatSource(once.text, kPage).text, once.text) << source;
    ++done;
  }
  EXPECT_GE(done, 1000);
}

// Any white space between tokens gives the same text.
TEST_F(QmnFmt, AllLayoutsOfOneSourceGiveTheSameText) {
  const char* const tokens[] = {
      "MENU_TITLE", "=",       "\"T\"",    "***",   "A",   "K",      "=",  "0",    ",",
      "\"X\"",      "[a]x;\n", "WALL",     "[b]\n", "***", "SWITCH", "**", "S",    "GET",
      "=",          "G",       "SET",      "=",     "F",   "0",      "=",  "A",    ",",
      "\"l\"",      "***",     "RESOURCE", "A",     "=",   "\"i\"",  ",",  "\"h\""};
  std::mt19937 random(6);
  std::string expected;
  for (int i = 0; i < 200; ++i) {
    std::string source;
    for (const char* token : tokens) source += token + std::string(random() % 2 ? " " : "\t");
    if (expected.empty()) expected = Formatted(source);
    ASSERT_EQ(FormatSource(source, kPage).text, expected);
  }
}

TEST_F(QmnFmt, ProductMenusAreInCanonicalLayout) {
  std::vector<std::string> args{"fmt", "--check"};
  for (const auto& entry : std::filesystem::directory_iterator(ProductFolder()))
    if (entry.path().extension() == ".qmn") args.push_back(Utf8Name(entry.path()));
  EXPECT_GE(args.size(), 5u);
  const QmnRun run = Qmn(args);
  EXPECT_EQ(run.code, 0) << run.out << "qmn fmt puts them right\n";
}

TEST_F(QmnFmt, DeepAndLongFilesAreFormatted) {
  std::string lines;
  for (int i = 0; i < 100000; ++i) lines += "[->a]\n";
  for (int i = 0; i < 50000; ++i) lines += "ICON [<-<-b]x;\n";
  const std::string source = Block(lines);
  EXPECT_EQ(FormatSource(source, kPage).text, FormatSource("\n" + source + "  \n", kPage).text);
  const QmnRun run = Qmn({"fmt", "-"}, source);
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(run.out, source);
}

}  // namespace
