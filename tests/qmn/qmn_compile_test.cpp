// qmn compile: output, messages, and that no partial file is ever visible.
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <sstream>

#include "tests/qmn/qmn_testing.h"

namespace {

namespace fs = std::filesystem;

// The bytes of a .bytes file beside a golden case.
std::string GoldenBytes(const fs::path& path) {
  std::istringstream text(ReadBytes(path));
  std::string bytes;
  for (unsigned value; text >> std::hex >> value;) bytes += static_cast<char>(value);
  return bytes;
}

// FNV-1a: one short line identifies a compiled file.
std::string Fingerprint(const std::string& bytes) {
  uint64_t hash = 0xCBF29CE484222325;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  char text[60];
  std::snprintf(text, sizeof text, "%llu %016llX", static_cast<unsigned long long>(bytes.size()),
                static_cast<unsigned long long>(hash));
  return text;
}

class QmnCompile : public QmnTest {};

TEST_F(QmnCompile, WritesTheGoldenBytesOfEachCleanCaseAndNothingForTheOthers) {
  int clean = 0, refused = 0;
  for (const auto& entry : fs::directory_iterator(GoldenFolder())) {
    if (entry.path().extension() != ".qmn") continue;
    fs::path messages = entry.path(), bytes = entry.path();
    const bool good = ReadBytes(messages.replace_extension(".messages")).empty();
    const QmnRun run = Qmn({"compile", Utf8Name(entry.path()), "-o", Name(u8"out.qmc")});
    EXPECT_EQ(run.code, good ? 0 : 1) << entry.path();
    EXPECT_EQ(run.err.empty(), good) << entry.path();
    EXPECT_EQ(Read(u8"out.qmc"),
              good ? GoldenBytes(bytes.replace_extension(".bytes")) : "<missing>");
    fs::remove(m_folder / "out.qmc");
    ++(good ? clean : refused);
  }
  EXPECT_GE(clean, 5);
  EXPECT_GE(refused, 3);
}

TEST_F(QmnCompile, AsHostWritesTheGoldenBytesOfEveryCaseWithOrWithoutErrors) {
  int cases = 0;
  for (const auto& entry : fs::directory_iterator(GoldenFolder())) {
    if (entry.path().extension() != ".qmn") continue;
    fs::path messages = entry.path(), bytes = entry.path();
    const bool good = ReadBytes(messages.replace_extension(".messages")).empty();
    const QmnRun run =
        Qmn({"compile", "--as-host", Utf8Name(entry.path()), "-o", Name(u8"out.qmc")});
    EXPECT_EQ(run.code, good ? 0 : 1) << entry.path();
    EXPECT_EQ(Read(u8"out.qmc"), GoldenBytes(bytes.replace_extension(".bytes"))) << entry.path();
    ++cases;
  }
  EXPECT_GE(cases, 9);
}

// The list compares the bytes of both builds, since both run this test.
TEST_F(QmnCompile, ProductMenusGiveTheSameBytesOnBothBuilds) {
  std::istringstream list(
      ReadBytes(fs::path(QVX_SOURCE_DIR) / "tests" / "qmn" / "product_menus.txt"));
  int menus = 0;
  for (std::string name, expected; list >> name && std::getline(list >> std::ws, expected);) {
    const QmnRun run = Qmn({"compile", Utf8Name(ProductFolder() / name), "-o", "-"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Fingerprint(run.out), expected) << name;
    ++menus;
  }
  int sources = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(ProductFolder()))
    sources += entry.path().extension() == ".qmn";
  EXPECT_EQ(menus, sources);
}

TEST_F(QmnCompile, WritesBesideTheInputUnlessAnOutputIsNamed) {
  const QmnRun run = Qmn({"compile", Write(u8"菜单.qmn", kGoodSource)});
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(Read(u8"菜单.qmc"), GoodBytes());
}

TEST_F(QmnCompile, StandardInputGoesToStandardOutput) {
  const QmnRun run = Qmn({"compile", "-"}, kGoodSource);
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out.substr(0, 4), "\xFF\xFE\xFF\x1A");
  EXPECT_EQ(run.err, "");
}

TEST_F(QmnCompile, AnErrorKeepsAnOldOutput) {
  Write(u8"a.qmc", "old");
  const QmnRun run = Qmn({"compile", Write(u8"a.qmn", "MENU_TITLE\n\"T\"\n")});
  EXPECT_EQ(run.code, 1);
  const std::string in = Name(u8"a.qmn");
  EXPECT_EQ(run.err,
            in +
                ":2:1: error: expected '=' behind MENU_TITLE, found the text \"T\" [QMN001]\n"
                "\"T\"\n^~~\n" +
                in +
                ":2:4: error: the file ends without a block, ***SWITCH and ***RESOURCE "
                "[QMN002]\n\"T\"\n   ^\n"
                "1 file checked: 2 errors\n");
  EXPECT_EQ(Read(u8"a.qmc"), "old");
}

TEST_F(QmnCompile, NoOtherFileIsLeftInTheFolder) {
  const std::string in = Write(u8"a.qmn", kGoodSource);
  EXPECT_EQ(Qmn({"compile", in}).code, 0);
  EXPECT_EQ(Qmn({"compile", in}).code, 0);
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(QmnCompile, AsHostPrintsTheModulesTextWithoutAFinalNewline) {
  const QmnRun run = Qmn({"compile", "--as-host", Write(u8"a.qmn", "x")});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, "\n加载奇维菜单文件: " + Name(u8"a.qmn") + " \n语法错误，第1行: syntax error");
  EXPECT_EQ(Read(u8"a.qmc").size(), 84u);
}

TEST_F(QmnCompile, AsHostReportsAFileItCannotOpenOrCreateInTheModulesWords) {
  QmnRun run = Qmn({"compile", "--as-host", Name(u8"none.qmn")});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, "\nCould not open file " + Name(u8"none.qmn"));
  const std::string out = Name(u8"no/such/a.qmc");
  run = Qmn({"compile", "--as-host", "-", "-o", out}, kGoodSource);
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, "\n加载奇维菜单文件: -\n无法创建文件" + out + "\n");
}

TEST_F(QmnCompile, UnreadableAndUnwritableFilesAreReported) {
  QmnRun run = Qmn({"compile", Name(u8"none.qmn")});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Name(u8"none.qmn") + ": error: can't be read: there is no such file\n");
  run = Qmn({"compile", Utf8Name(m_folder)});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Utf8Name(m_folder) + ": error: can't be read: it is a folder\n");
  run = Qmn({"compile", "-", "-o", Utf8Name(m_folder)}, kGoodSource);
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Utf8Name(m_folder) + ": error: can't be written: it is a folder\n");
  run = Qmn({"compile", "-", "-o", Name(u8"no/a.qmc")}, kGoodSource);
  EXPECT_EQ(run.err, Name(u8"no/a.qmc") + ": error: can't be written: there is no folder " +
                         Name(u8"no") + "\n");
}

TEST_F(QmnCompile, ACommentWithoutEndIsRefusedWithTheLineWhereItBegins) {
  const std::string source = std::string(kGoodSource) + "/* open\n\n";
  for (const bool asHost : {false, true}) {
    std::vector<std::string> args{"compile", Write(u8"a.qmn", source)};
    if (asHost) args.push_back("--as-host");
    const QmnRun run = Qmn(args);
    EXPECT_EQ(run.code, 1);
    const std::string expected =
        asHost
            ? "\n" + Name(u8"a.qmn") + ":14: error: the comment that begins here never ends\n"
            : Name(u8"a.qmn") +
                  ":14:1: error: the comment that begins here never ends: expected '*/' [QMN010]\n"
                  "/* open\n^~\n1 file checked: 1 error\n";
    EXPECT_TRUE(run.err.ends_with(expected)) << run.err;
    EXPECT_EQ(Read(u8"a.qmc"), "<missing>");
  }
}

TEST_F(QmnCompile, AGroupOfTheWrongKindIsAnErrorThoughTheParserContinues) {
  const QmnRun run = Qmn({"compile", "-"}, "MENU_TITLE = \"T\"\n***A B = 62,\"x\"\n[a]\n");
  EXPECT_EQ(run.code, 1);
  EXPECT_NE(run.err.find("-:2:10: error: group code 62 takes a whole number, found \"x\""),
            std::string::npos)
      << run.err;
  EXPECT_EQ(run.out, "");
}

TEST_F(QmnCompile, WarningsAreShownOnRequestAndDoNotPreventTheOutput) {
  const std::string source =
      "MENU_TITLE = \"T\"\n***COMMON\n[Wall]^C^PWALL;\n***SWITCH\n***RESOURCE\n";
  const QmnRun silent = Qmn({"compile", "-"}, source);
  EXPECT_EQ(silent.code, 0);
  EXPECT_EQ(silent.err, "");
  for (const char* option : {"-W", "--warnings"}) {
    const QmnRun run = Qmn({"compile", option, "-"}, source);
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, silent.out);
    EXPECT_EQ(
        run.err,
        "-:3:9: warning: the '^' vanishes together with the character behind it; only ^C means "
        "something [QMN047]\n[Wall]^C^PWALL;\n        ^~\n1 file checked: 1 warning\n");
  }
}

TEST_F(QmnCompile, OutputMayBeNamedByTheLongOption) {
  EXPECT_EQ(Qmn({"compile", "-", "--output", Name(u8"a.qmc")}, kGoodSource).code, 0);
  EXPECT_EQ(Read(u8"a.qmc"), GoodBytes());
}

TEST_F(QmnCompile, DoesNotOverwriteItsOwnInput) {
  const std::string in = Write(u8"a.qmc", kGoodSource);
  EXPECT_EQ(Qmn({"compile", in}).code, 2);
  EXPECT_EQ(Read(u8"a.qmc"), kGoodSource);
}

#ifndef _WIN32
TEST_F(QmnCompile, ALinkIsKeptAndItsTargetIsReplaced) {
  Write(u8"real.qmc", "old");
  fs::create_symlink(m_folder / "real.qmc", m_folder / "a.qmc");
  EXPECT_EQ(Qmn({"compile", "-", "-o", Name(u8"a.qmc")}, kGoodSource).code, 0);
  EXPECT_TRUE(fs::is_symlink(m_folder / "a.qmc"));
  EXPECT_EQ(Read(u8"real.qmc"), GoodBytes());
}

TEST_F(QmnCompile, ADeviceIsWrittenToAndNotReplaced) {
  EXPECT_EQ(Qmn({"compile", "-", "-o", "/dev/null"}, kGoodSource).code, 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}
#endif

}  // namespace
