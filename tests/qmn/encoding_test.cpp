// Sources in UTF-8 and UTF-16: the error that names the remedy, the conversion, and UTF-8 as the
// code page of all commands.
#include "tests/qmn/qmn_testing.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/tool_text.h"

namespace {

class QmnEncoding : public QmnTest {};

const std::string kUtf8 =
    "MENU_TITLE = \"墙体\"\r\n\r\n***COMMON\r\n[绘制墙体]^C^CTWall;\r\n\r\n***SWITCH\r\n\r\n"
    "***RESOURCE\r\n";

std::string Page936() { return FromUtf8(kUtf8, 936).bytes; }
std::string WithMark() { return "\xEF\xBB\xBF" + kUtf8; }

std::string Utf16(bool isBig, bool hasMark) {
  std::string bytes = hasMark ? (isBig ? "\xFE\xFF" : "\xFF\xFE") : "";
  for (const wchar_t unit : Wide(kUtf8)) {
    const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8 & 0xFF);
    bytes += isBig ? high : low;
    bytes += isBig ? low : high;
  }
  return bytes;
}

std::vector<std::string> AllForms() {
  return {kUtf8,
          WithMark(),
          Utf16(false, true),
          Utf16(true, true),
          Utf16(false, false),
          Utf16(true, false)};
}

TEST_F(QmnEncoding, EachFormIsOneErrorThatNamesTheRemedy) {
  for (const std::string& source : AllForms())
    for (const char* command : {"check", "compile", "fmt"}) {
      const QmnRun run = Qmn({command, "-"}, source);
      EXPECT_EQ(run.code, 1) << command;
      const std::string text = run.out + run.err;
      EXPECT_NE(
          text.find("but the shell reads menus in code page 936; 'qmn fmt --to 936' converts"),
          std::string::npos)
          << text;
      EXPECT_NE(text.find("1 file checked: 1 error\n"), std::string::npos) << text;
      EXPECT_EQ(text.find("warning"), std::string::npos) << text;
    }
}

TEST_F(QmnEncoding, Utf8IsReportedAtItsFirstCharacter) {
  EXPECT_EQ(
      Qmn({"check", "-"}, kUtf8).out,
      "-:1:15: error: the file is UTF-8, but the shell reads menus in code page 936; 'qmn fmt "
      "--to 936' converts it, and a source that stays in UTF-8 needs --codepage 65001 "
      "[QMN027]\nMENU_TITLE = \"墙体\"\n              ^~\n");
}

TEST_F(QmnEncoding, Utf16IsShownDecoded) {
  EXPECT_EQ(
      Qmn({"check", "-"}, Utf16(false, true)).out,
      "-:1:1: error: the file is UTF-16, but the shell reads menus in code page 936; 'qmn fmt "
      "--to 936' converts it [QMN013]\nMENU_TITLE = \"墙体\"\n^\n");
}

TEST_F(QmnEncoding, CompileWritesNothing) {
  for (const std::string& source : AllForms()) {
    EXPECT_EQ(Qmn({"compile", Write(u8"a.qmn", source)}).code, 1);
    EXPECT_EQ(Read(u8"a.qmc"), "<missing>");
  }
}

TEST_F(QmnEncoding, EachFormIsConvertedToTheCodePage) {
  for (const std::string& source : AllForms()) {
    const QmnRun run = Qmn({"fmt", "--to", "936", Write(u8"a.qmn", source)});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(Read(u8"a.qmn"), Page936());
  }
}

TEST_F(QmnEncoding, EachFormIsConvertedToUtf8) {
  std::vector<std::string> sources = AllForms();
  sources.push_back(Page936());
  for (const std::string& source : sources) {
    const std::string path = Write(u8"a.qmn", source);
    const QmnRun run = Qmn({"fmt", "--to", "utf-8", path});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Read(u8"a.qmn"), kUtf8);
    const std::string note =
        path +
        ": note: is in code page 65001 now; the other commands need --codepage "
        "65001, or 'codepage = 65001' in a qmn.toml in its folder\n";
    EXPECT_EQ(run.err, source == kUtf8 ? "" : note);
  }
}

TEST_F(QmnEncoding, ConversionAndLayoutAreOneStep) {
  const std::string path = Write(u8"a.qmn", "\xEF\xBB\xBF\n\n" + kUtf8);
  EXPECT_EQ(Qmn({"fmt", "--to", "936", "--check", path}).out, path + "\n");
  EXPECT_EQ(Qmn({"fmt", "--to", "936", "--diff", path}).out,
            "--- " + path + "\n+++ " + path +
                "\n@@ -1,5 +1,3 @@\n-\n-\n MENU_TITLE = \"墙体\"\n \n"
                " ***COMMON\n");
  EXPECT_EQ(Read(u8"a.qmn"), "\xEF\xBB\xBF\n\n" + kUtf8);
}

TEST_F(QmnEncoding, ASourceWithErrorsIsConvertedAllTheSame) {
  const std::string path = Write(u8"a.qmn", "MENU_TITLE \"墙体\"\n");
  const QmnRun run = Qmn({"fmt", "--to", "936", path});
  EXPECT_EQ(run.code, 1);
  EXPECT_NE(run.err.find(":1:12: error: expected '='"), std::string::npos) << run.err;
  EXPECT_EQ(Read(u8"a.qmn"), FromUtf8("MENU_TITLE \"墙体\"\n", 936).bytes);
}

TEST_F(QmnEncoding, ACharacterThatTheCodePageLacksIsShownAndNothingIsWritten) {
  const std::string source =
      "MENU_TITLE = \"T\"\r\n***COMMON\r\n[墙 😀]x;\r\n***SWITCH\r\n***RESOURCE\r\n";
  const std::string path = Write(u8"a.qmn", source);
  const QmnRun run = Qmn({"fmt", "--to", "936", path});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, path +
                         ":3:4: error: U+1F600 is not in code page 936; the file is left as it is\n"
                         "[墙 😀]x;\n    ^~\n");
  EXPECT_EQ(Read(u8"a.qmn"), source);
}

TEST_F(QmnEncoding, Utf8WorksThroughAllCommands) {
  const std::string wanted = Qmn({"compile", "-"}, Page936()).out;
  for (const std::string& source : {kUtf8, WithMark()}) {
    const std::string path = Write(u8"a.qmn", source);
    const auto run = [&path](std::vector<std::string> args) {
      args.insert(args.end(), {path, "--codepage", "65001"});
      return Qmn(args);
    };
    EXPECT_EQ(run({"check"}).out, "");
    EXPECT_EQ(run({"compile", "-o", "-"}).out, wanted);
    EXPECT_EQ(run({"dump", "--tree"}).out, Qmn({"dump", "--tree", "-"}, wanted).out);
    EXPECT_NE(run({"why"}).out.find("chosen: COMMON"), std::string::npos);
    EXPECT_EQ(run({"fmt"}).code, 0);
    EXPECT_EQ(Read(u8"a.qmn"), kUtf8);
  }
  EXPECT_EQ(Qmn({"decompile", "-", "--codepage", "65001"}, wanted).out, kUtf8);
}

TEST_F(QmnEncoding, AFileThatIsNotUtf8IsOneErrorUnderItsCodePage) {
  const QmnRun run = Qmn({"check", "-", "--codepage", "65001"}, Page936());
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.out.substr(0, run.out.find('\n')),
            "-:1:15: error: the file is not UTF-8, as code page 65001 says; 'qmn fmt --to utf-8' "
            "converts it from code page 936, and a source that stays as it is needs --codepage 936 "
            "[QMN014]");
  EXPECT_EQ(run.err, "1 file checked: 1 error\n");
  EXPECT_EQ(Qmn({"fmt", "--to", "utf-8", "--codepage", "65001", "-"}, Page936()).out, kUtf8);
}

TEST_F(QmnEncoding, TheErrorCanBeIgnoredForAFileThatIsRightAllTheSame) {
  EXPECT_EQ(Qmn({"compile", "-", "-o", "-", "--ignore", "QMN027"}, kUtf8).code, 0);
}

TEST_F(QmnEncoding, ACompiledMenuIsNoSource) {
  const QmnRun run = Qmn({"check", Write(u8"a.qmc", GoodBytes())});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, Name(u8"a.qmc") +
                         ": error: this is a compiled menu, not a source; 'qmn decompile' makes a "
                         "source of it\n0 files checked: no findings; 1 not read\n");
}

TEST_F(QmnEncoding, TheProductsMenusAreTheSameInBothEncodings) {
  for (const char* name : {"qvx.qmn", "qvx2d.qmn", "qvxavi.qmn", "simple.qmn"}) {
    const std::string path = Utf8Name(ProductFolder() / name);
    const std::string shipped = ProductMenu(ProductFolder() / name);
    EXPECT_EQ(
        Qmn({"fmt", "--to", "936", "-", "--codepage", "65001"}, ReadBytes(ProductFolder() / name))
            .out,
        shipped);
    EXPECT_EQ(Qmn({"compile", "-"}, shipped).out, Qmn({"compile", path, "-o", "-"}).out) << name;
  }
}

}  // namespace
