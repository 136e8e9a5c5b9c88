// qmn dump: exact canonical JSON, the outline, the fields of a compiled file. The cases in golden/
// are sources with their three dumps.
#include <algorithm>
#include <limits>
#include <sstream>
#include <streambuf>

#include "tests/qmn/qmn_testing.h"
#include "menu/menu_model.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/json_out.h"
#include "tools/qmn/tool_text.h"

namespace {

namespace fs = std::filesystem;

fs::path Case(const char* file) {
  return fs::path(QVX_SOURCE_DIR) / "tests" / "qmn" / "golden" / file;
}

std::string Real(double value) {
  std::ostringstream out;
  JsonOut(out).Real(value);
  return out.str();
}

std::string Text(const std::wstring& units) {
  std::ostringstream out;
  JsonOut(out).Text(units);
  return out.str();
}

class QmnDump : public QmnTest {};

// Accepts all output and keeps only counts and the last bytes.
class CountingBuffer : public std::streambuf {
 public:
  size_t bytes = 0, pieces = 0, largestPiece = 0;
  std::string end;

 private:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    const auto count = static_cast<size_t>(size);
    bytes += count;
    ++pieces;
    largestPiece = std::max(largestPiece, count);
    end.append(text, count);
    if (end.size() > 8192) end.erase(0, end.size() - 4096);
    return size;
  }
  int overflow(int c) override {
    const char one = static_cast<char>(c);
    xsputn(&one, 1);
    return 0;
  }
};

TEST_F(QmnDump, EachFormMatchesTheGoldenFile) {
  for (const char* form : {"json", "tree", "bytes"}) {
    const QmnRun run = Qmn({"dump", Utf8Name(Case("whole.qmn")), std::string("--") + form});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, ReadBytes(Case((std::string("whole.") + form).c_str())));
  }
}

TEST_F(QmnDump, SourceAndCompiledFileGiveTheSameDumps) {
  for (const char* menu : {"qvx.qmn", "qvx2d.qmn", "simple.qmn"}) {
    const std::string source = Utf8Name(ProductFolder() / menu);
    ASSERT_EQ(Qmn({"compile", source, "-o", Name(u8"a.qmc")}).code, 0);
    for (const char* form : {"--json", "--tree", "--bytes"}) {
      const std::string dump = Qmn({"dump", source, form}).out;
      EXPECT_GT(dump.size(), 1000u);
      EXPECT_EQ(Qmn({"dump", form, Name(u8"a.qmc")}).out, dump) << menu << form;
    }
  }
}

TEST_F(QmnDump, JsonIsTheDefaultForm) {
  EXPECT_EQ(Qmn({"dump", "-"}, kGoodSource).out, Qmn({"dump", "-", "--json"}, kGoodSource).out);
}

TEST_F(QmnDump, WithoutAKnownExtensionTheFirstBytesDecide) {
  const std::string json = Qmn({"dump", "-"}, kGoodSource).out;
  EXPECT_EQ(Qmn({"dump", "-"}, GoodBytes()).out, json);
  EXPECT_EQ(Qmn({"dump", Write(u8"menu", GoodBytes())}).out, json);
  EXPECT_EQ(Qmn({"dump", Write(u8"menu", kGoodSource)}).out, json);
  EXPECT_EQ(Qmn({"dump", Write(u8"A.QMC", GoodBytes())}).out, json);
}

TEST_F(QmnDump, ARefusedSourceShowsTheEmptyModelAndReturnsOne) {
  const QmnRun run = Qmn({"dump", "-"}, "x");
  EXPECT_EQ(run.code, 1);
  EXPECT_TRUE(run.err.starts_with("-:1:1: error: the file must begin with MENU_TITLE")) << run.err;
  EXPECT_EQ(run.out,
            "{\n  \"title\": \"\",\n  \"reserved\": [\n    0,\n    0\n  ],\n"
            "  \"resources\": [],\n  \"switches\": [],\n  \"bars\": []\n}\n");
}

TEST_F(QmnDump, ADamagedFileDumpsTheFieldsUpToTheDamage) {
  const std::string bytes = GoodBytes();
  const std::string whole = Qmn({"dump", "-", "--bytes"}, bytes).out;
  for (size_t size = 60; size < bytes.size(); size += 7) {
    const QmnRun run = Qmn({"dump", "-", "--bytes"}, bytes.substr(0, size));
    EXPECT_EQ(run.code, 1);
    const size_t lastLine = run.out.rfind('\n', run.out.size() - 2) + 1;
    EXPECT_EQ(run.out.substr(0, lastLine), whole.substr(0, lastLine));
    EXPECT_TRUE(run.out.ends_with("  end of file, too early\n")) << run.out;
  }
}

// The source language has neither, so a group of the good file is given another code.
TEST_F(QmnDump, GroupsOfLongAndOfNoKindShowTheirTypes) {
  const std::string bytes = GoodBytes();
  const std::string group("\x3E\0\x03\0\0\0", 6);
  const size_t at = bytes.find(group);
  ASSERT_NE(at, std::string::npos);
  std::string changed = bytes;
  changed[at] = 90;
  QmnRun run = Qmn({"dump", "-"}, changed);
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_NE(run.out.find("\"code\": 90,\n          \"type\": \"long\",\n          \"value\": 3\n"),
            std::string::npos)
      << run.out;
  changed[at] = 80;
  changed.erase(at + 2, 4);
  run = Qmn({"dump", "-"}, changed);
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_NE(
      run.out.find("\"code\": 80,\n          \"type\": \"other\",\n          \"value\": null\n"),
      std::string::npos)
      << run.out;
}

// Indentation grows with the depth, and the dump with its square; nothing else may grow so.
TEST_F(QmnDump, FiveThousandNestedSubMenusAreWrittenInBoundedPieces) {
  constexpr size_t kDepth = 5000;
  TMenuSystem system;
  system.Append(new TMenuBar);
  TMenuBar* bar = system.At(0);
  for (size_t i = 0; i < kDepth; ++i) {
    auto* item = new TMenuItem(L"a", L"");
    bar->Append(item);
    if (i + 1 < kDepth) bar = item->m_pSubMenu = new TMenuBar;
  }
  for (const bool json : {true, false}) {
    CountingBuffer buffer;
    std::ostream out(&buffer);
    json ? DumpJson(system, out) : DumpOutline(system, out);
    EXPECT_GT(buffer.bytes, kDepth * kDepth);
    EXPECT_LE(buffer.largestPiece, 4096u);
    // One piece per word, and one per 4096 blanks of indentation.
    EXPECT_LT(buffer.pieces, kDepth * 200 + buffer.bytes / 4096);
    EXPECT_TRUE(buffer.end.ends_with(json ? "\n  ]\n}\n" : "  \"a\"\n"));
  }
}

TEST_F(QmnDump, BytesAfterTheModelAreCounted) {
  const QmnRun run = Qmn({"dump", "-", "--bytes"}, GoodBytes() + "abc");
  EXPECT_TRUE(run.out.ends_with("  3 bytes behind the model\n")) << run.out;
}

TEST_F(QmnDump, AnUnreadableFileExitsWithThree) {
  const QmnRun run = Qmn({"dump", Name(u8"none.qmn")});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.out, "");
}

TEST(QmnJson, RealsHaveTheShortestFormThatReadsBack) {
  EXPECT_EQ(Real(0.1), "0.1");
  EXPECT_EQ(Real(3), "3");
  EXPECT_EQ(Real(-2.5), "-2.5");
  EXPECT_EQ(Real(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(Real(1e300), "1e+300");
  EXPECT_EQ(Real(std::numeric_limits<double>::infinity()), "null");
}

TEST(QmnJson, TextIsUtf8WithOnlyTheEscapesThatJsonRequires) {
  EXPECT_EQ(Text(L"墙\"\\\n\t\x1b/"), "\"墙\\\"\\\\\\n\\t\\u001b/\"");
  EXPECT_EQ(Text({wchar_t{0xD83D}, wchar_t{0xDE00}}), "\"\xF0\x9F\x98\x80\"");
  EXPECT_EQ(Text({wchar_t{0xD83D}, L'a'}),
            "\"\xEF\xBF\xBD"
            "a\"");
}

TEST(QmnText, Utf8RoundTripsThroughWideText) {
  for (const char* text : {"", "a", "é", "墙线", "\xF0\x9F\x98\x80"})
    EXPECT_EQ(Utf8(Wide(text)), text);
}

}  // namespace
