// Groups, numbers and text of drawing files.
#include <gtest/gtest.h>

#include "devhost/core/dxf/dxf_text.h"

using namespace devhost;

TEST(DxfText, PairsHaveTheLineOfTheirCode) {
  const DxfScan scan = ScanDxf("  0\nSECTION\n  2\r\nHEADER\r\n0\nEOF\n");
  ASSERT_EQ(scan.groups.size(), 3u);
  EXPECT_EQ(scan.groups[1].code, 2);
  EXPECT_EQ(scan.groups[1].value, "HEADER");
  EXPECT_EQ(scan.groups[1].line, 3);
  EXPECT_EQ(scan.damage, DxfDamage::None);
}

TEST(DxfText, CommentsAreOmitted) {
  const DxfScan scan = ScanDxf("999\nmade by hand\n0\nEOF\n");
  ASSERT_EQ(scan.groups.size(), 1u);
  EXPECT_EQ(scan.groups[0].line, 3);
}

TEST(DxfText, ANonNumericCodeEndsReadingAtItsLine) {
  const DxfScan scan = ScanDxf("0\nSECTION\nabc\nHEADER\n0\nEOF\n");
  EXPECT_EQ(scan.groups.size(), 1u);
  EXPECT_EQ(scan.damage, DxfDamage::BadCode);
  EXPECT_EQ(scan.line, 3);
}

TEST(DxfText, ACodeWithoutAValueIsATruncation) {
  const DxfScan scan = ScanDxf("0\nSECTION\n2\n");
  EXPECT_EQ(scan.damage, DxfDamage::Truncated);
  EXPECT_EQ(scan.line, 3);
}

TEST(DxfText, AMissingEndMarkIsReported) {
  EXPECT_EQ(ScanDxf("0\nSECTION\n").damage, DxfDamage::NoEndMark);
  EXPECT_EQ(ScanDxf("0\nSECTION\n\n  \n").damage, DxfDamage::NoEndMark);
  EXPECT_EQ(ScanDxf("").damage, DxfDamage::NoEndMark);
}

TEST(DxfText, DataAfterTheEndMarkIsReportedWithItsLine) {
  const DxfScan scan = ScanDxf("0\nEOF\n\nmore\n");
  EXPECT_EQ(scan.damage, DxfDamage::DataAfterEnd);
  EXPECT_EQ(scan.line, 4);
  EXPECT_EQ(ScanDxf("0\nEOF\n\n\x1a\n").damage, DxfDamage::None);
}

TEST(DxfText, ABinaryFileIsRecognised) {
  const DxfScan scan = ScanDxf("AutoCAD Binary DXF\r\n\x1a");
  EXPECT_EQ(scan.damage, DxfDamage::NotText);
  EXPECT_TRUE(scan.groups.empty());
}

TEST(DxfText, NumbersAreReadCompletelyOrNotAtAll) {
  EXPECT_EQ(DxfReal(" 1.5 "), 1.5);
  EXPECT_EQ(DxfReal("+2"), 2.0);
  EXPECT_EQ(DxfReal("-1e3"), -1000.0);
  EXPECT_EQ(DxfReal("1e-400"), 0.0);
  EXPECT_FALSE(DxfReal("1.5x"));
  EXPECT_FALSE(DxfReal("nan"));
  EXPECT_FALSE(DxfReal("inf"));
  EXPECT_FALSE(DxfReal(""));
  EXPECT_EQ(DxfInteger("  70"), 70);
  EXPECT_EQ(DxfInteger("3.0"), 3);
  EXPECT_FALSE(DxfInteger("7a"));
  EXPECT_FALSE(DxfInteger("99999999999999999999"));
  EXPECT_EQ(DxfHandle("1F"), 0x1Fu);
  EXPECT_FALSE(DxfHandle("0"));
  EXPECT_FALSE(DxfHandle("G"));
  EXPECT_FALSE(DxfHandle("11111111111111111"));
}

TEST(DxfText, CodePagesAreFoundByTheNamesThatProgramsWrite) {
  EXPECT_EQ(DxfPageOf("ANSI_936"), 936u);
  EXPECT_EQ(DxfPageOf("ansi_1252"), 1252u);
  EXPECT_EQ(DxfPageOf("dos932"), 932u);
  EXPECT_EQ(DxfPageOf("GB2312"), 936u);
  EXPECT_EQ(DxfPageOf("UTF-8"), 65001u);
  for (const char* page :
       {"ANSI_874", "ANSI_932", "ANSI_949", "ANSI_950", "ANSI_1250", "ANSI_1251", "ANSI_1253",
        "ANSI_1254", "ANSI_1255", "ANSI_1256", "ANSI_1257", "ANSI_1258", "DOS850", "DOS437"})
    EXPECT_TRUE(DxfPageOf(page)) << page;
  EXPECT_FALSE(DxfPageOf("nonsense"));
  EXPECT_FALSE(DxfPageOf("ANSI_"));
  EXPECT_FALSE(DxfPageOf("ANSI_93"));    // no such page
  EXPECT_FALSE(DxfPageOf("ANSI_1200"));  // two bytes a character
}

TEST(DxfText, TextIsDecodedInTheFilesCodePage) {
  DxfDecoder decoder;
  EXPECT_EQ(decoder.Text("\xC7\xBD\xCC\xE5"), L"墙体");
  decoder.SetPage(65001);
  EXPECT_EQ(decoder.Text("\xE5\xA2\x99"), L"墙");
  decoder.SetPage(1252);
  EXPECT_EQ(decoder.Text("\xFC"), L"ü");
}

TEST(DxfText, CodesInTheTextBecomeCharacters) {
  const DxfDecoder decoder;
  EXPECT_EQ(decoder.Text("a\\U+00FCb"), L"aüb");
  EXPECT_EQ(decoder.Text("\\U+589"), L"\\U+589");
  EXPECT_EQ(decoder.Text("\\U+00zz"), L"\\U+00zz");
  EXPECT_EQ(decoder.Text("\\M+5C7BD"), L"墙");
  EXPECT_EQ(decoder.Text("one^Jtwo"), L"one\ntwo");
  EXPECT_EQ(decoder.Text("a^ b"), L"a^b");
  EXPECT_EQ(decoder.Text("a^Mb"), L"a\rb");
  EXPECT_EQ(decoder.Text(std::string_view("a\0b", 3)),
            L"a\xFFFD"
            L"b");
  EXPECT_EQ(decoder.Text("\\S1^2;"), L"\\S1^2;");
  EXPECT_EQ(decoder.Text("^"), L"^");
  EXPECT_EQ(decoder.Text("\\U+"), L"\\U+");
}
